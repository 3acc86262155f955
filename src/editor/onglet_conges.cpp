#include "editor/onglet_conges.h"

#include "editor/editeur.h"

namespace editor {

OngletConges::OngletConges(Frm_ElementsContrat& editeur)
    : Onglet(editeur, DroitsConges, "Cdr_Ong4") {
  Page.SetEnabled(false);
  // They name the contract that leave goes to or comes from: none yet.
  screen::Montrer({&Cac_ReportConges, &Etq_ReportConges, &Cac_RepriseConges, &Etq_RepriseConges},
                  false);
}

// Only a private employer provisions leave here.
void OngletConges::SelonConvention(const std::string& convention) {
  screen::Montrer({&Etq_ProvisionCP, &Txt_ProvisionCP, &Etq_ProvisionCours, &Txt_ProvisionCours},
                  convention == data::ConventionParticuliers);
}

}  // namespace editor
