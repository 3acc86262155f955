#include "editor/caracteristiques_qualif.h"

#include "data/layouts/voisins.h"
#include "dialogs/frm_qualif_pro.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
namespace T = data::Tables;

}  // namespace

Qualification::Qualification(Frm_ElementsContrat& editeur, screen::Frame& page,
                             session::Sourdine& sourdine)
    : editeur_(editeur),
      page_(page),
      sourdine_(sourdine),
      zones_({session::texte(Cbo_QualifContrat, C::Qualification).ParAvenant()}) {
  Txt_RegroupBudget.SetEnabled(false);
  Cbo_QualifContrat.DropDown = [this] { Remplir(); };
  Cbo_QualifContrat.Click = Cbo_QualifContrat.Change =
      sourdine.SiAudible([this] { MontrerRegroupement(); });
  Cmd_QualifPro.Click = [this] { Cmd_QualifPro_Click(); };
}

void Qualification::Montrer(const data::CItem& contrat, int rang) {
  zones_.Montrer(editeur_.Session().Lib, contrat, rang);
  MontrerRegroupement();
}

void Qualification::MontrerNouveau() {
  zones_.Vider();
  zones_.Oublier();
  Txt_RegroupBudget.SetText("");
}

void Qualification::Ecrire(data::CItem& contrat, int rang) const {
  zones_.Ecrire(editeur_.Session().Lib, contrat, rang);
}

void Qualification::SelonConvention(const std::string& convention) {
  screen::Montrer({&Etq_RegroupBudget, &Txt_RegroupBudget},
                  convention != data::ConventionParticuliers);
  MontrerRegroupement();
}

void Qualification::Remplir() {
  data::CItem groupes;
  editeur_.Session().F_TABLES.Lire(T::RegroupBudget, groupes);
  data::CItem qualifications;
  editeur_.Session().F_TABLES.Lire(T::Qualif, qualifications);
  regroupements_ = data::ListeCodes::DeTable(groupes);
  qualifications_ =
      data::ListeCodes::DeTable(qualifications, T::QualifRegroupements, T::QualifLibelles);
  const std::string montree = Cbo_QualifContrat.Text();
  Cbo_QualifContrat.Clear();
  for (const auto& ligne : qualifications_.Lignes()) Cbo_QualifContrat.AddItem(ligne.libelle);
  const session::Sourdine::Silence silence(sourdine_);
  Cbo_QualifContrat.SetText(montree);
}

// The label of the group whose code the qualification bears.
void Qualification::MontrerRegroupement() {
  Txt_RegroupBudget.SetText("");
  if (editeur_.origine.Particuliers()) return;
  const std::string groupe = qualifications_.Code(Cbo_QualifContrat.Text());
  Txt_RegroupBudget.SetText(regroupements_.Libelle(groupe));
}

void Qualification::Cmd_QualifPro_Click() {
  dialogs::Frm_QualifPro(editeur_.Services()).Ouvrir(editeur_);
  Remplir();
}

}  // namespace editor
