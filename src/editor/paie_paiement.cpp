#include "editor/paie_paiement.h"

#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* ModesPaiement[] = {"Virement bancaire", "Chèque", "Espèces"};
constexpr int Virement = 0;  // row of Cbo_ModPaieContrat
constexpr int Cheque = 1;

}  // namespace

PaiePaiement::PaiePaiement(Frm_ElementsContrat& editeur, screen::Frame& page,
                           session::Sourdine& sourdine)
    : editeur_(editeur), page_(page) {
  for (const char* mode : ModesPaiement) Cbo_ModPaieContrat.AddItem(mode);
  Cbo_ModPaieContrat.LostFocus = [this] { Cbo_ModPaieContrat_LostFocus(); };
  Cac_CPMoisContrat.Click = sourdine.SiAudible([this] { MontrerProvision(); });
}

session::Session& PaiePaiement::Session() const {
  return editeur_.Session();
}

std::vector<session::Zone> PaiePaiement::Zones() {
  return {session::ligne(Cbo_ModPaieContrat, C::ModePaiement),
          session::drapeau(Cac_PaieSalContrat, C::PaiementParEntite),
          session::drapeau(Cac_CPMoisContrat, C::CongesAuMois),
          session::drapeau(Cac_ProvCP, C::ProvisionConges)};
}

void PaiePaiement::Oublier() {
  for (auto* const boite : {&Cac_PaieSalContrat, &Cac_CPMoisContrat, &Cac_ProvCP}) {
    boite->SetValue(0);
  }
  Cac_ProvCP.SetVisible(false);
  modePropose_.clear();
}

// A carer with an account is paid by transfer, where the entity pays or the agreement of private
// employers says so.
void PaiePaiement::ProposerMode() {
  const std::string& choisi = Cbo_ModPaieContrat.Text();
  if (!choisi.empty() && choisi != modePropose_) return;
  data::CItem convention;
  data::CItem rib;
  if (editeur_.origine.Particuliers()) {
    Session().F_CONVENTIONCOL.Lire(editeur_.origine.Convention(), convention);
  }
  const bool parVirement = !editeur_.origine.Particuliers() ||
                           convention.Vue(data::ConventionCol::VirementParDefaut) == "1";
  const bool compte = parVirement && Session().F_RIBAIDANT.Lire(Session().CodeAidant, rib) &&
                      !rib.Vue(data::RibAidant::Compte).empty();
  Cbo_ModPaieContrat.SetListIndex(compte ? Virement : Cheque);
  modePropose_ = Cbo_ModPaieContrat.Text();
}

// The boxes of a contract of private employers are what the agreement says.
void PaiePaiement::ProposerSelonConvention(const std::string& convention) {
  data::CItem defauts;
  if (convention == data::ConventionParticuliers) {
    Session().F_CONVENTIONCOL.Lire(convention, defauts);
  }
  const auto coche = [&](int attribut) { return defauts.Vue(attribut) == "1" ? 1 : 0; };
  Cac_CPMoisContrat.SetValue(coche(data::ConventionCol::CongesAuMoisParDefaut));
  Cac_ProvCP.SetValue(0);
  Cac_PaieSalContrat.SetValue(coche(data::ConventionCol::PaiementParEntiteParDefaut));
  MontrerProvision();
}

void PaiePaiement::MontrerProvision() {
  const bool provision = editeur_.origine.Particuliers() && Cac_CPMoisContrat.Value() == 0;
  Cac_ProvCP.SetVisible(provision);
  if (!provision) Cac_ProvCP.SetValue(0);
}

void PaiePaiement::Cbo_ModPaieContrat_LostFocus() {
  if (session::ChoisirTexte(Cbo_ModPaieContrat)) return;
  Refuser("Le mode de paiement saisi n'existe pas, veuillez le ressaisir.");
  Cbo_ModPaieContrat.SetText("");
}

bool PaiePaiement::ProvisionFacturee() const {
  return Cac_PaieSalContrat.Value() != 0 && Cac_ProvCP.Value() != 0;
}

bool PaiePaiement::ModeChange() const {
  return editeur_.Dossier().Initial.Vue(C::ModePaiement) !=
         std::to_string(Cbo_ModPaieContrat.ListIndex() + 1);
}

bool PaiePaiement::RibManquant(const char* modePaiement) {
  if (Cbo_ModPaieContrat.ListIndex() != Virement) return false;
  data::CItem rib;
  if (Session().F_RIBAIDANT.Lire(Session().CodeAidant, rib)) return false;
  Refuser("Vous ne pouvez pas sélectionner le mode de " + std::string(modePaiement) +
          " virement\r\ncar l'aidant ne possède pas de RIB.");
  return true;
}

void PaiePaiement::Refuser(const std::string& texte) {
  editeur_.Ong_Contrat.SetTab(ElementsPaie);
  editeur_.MessageBox(texte, screen::Boutons::Ok, screen::Icone::Exclamation);
  Cbo_ModPaieContrat.SetFocus();
}

}  // namespace editor
