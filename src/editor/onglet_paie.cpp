#include "editor/onglet_paie.h"

#include <algorithm>

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Icone;

constexpr const char* ModesPaiement[] = {"Virement bancaire", "Chèque", "Espèces"};
constexpr int Virement = 0;  // row of Cbo_ModPaieContrat
constexpr int Cheque = 1;

// Closed while a split is being entered, so that it is finished first.
constexpr const char* HorsActivites[] = {"Cbo_PeriodeEffet",
                                         "Cbo_PeriodeEffetAffichage",
                                         "Cdr_Mutuelle",
                                         "Cdr_RegimePrev",
                                         "Cmd_OK",
                                         "Cmd_Retour",
                                         "Ong_Contrat",
                                         "Cmd_AjoutePeriodeEffet",
                                         "Cmd_Telegestion",
                                         "Cmd_Comment",
                                         "Cmd_RubSaisie",
                                         "Cmd_ImpContrat",
                                         "Txt_PlafSecu",
                                         "Txt_AssietteSecu",
                                         "Cac_CPMoisContrat",
                                         "Cac_ProvCP",
                                         "Txt_ProfilContrat",
                                         "Cbo_LibProfilContrat",
                                         "Txt_ProfilContrat2",
                                         "Cbo_LibProfilContrat2",
                                         "Cbo_ModPaieContrat",
                                         "Cac_PaieSalContrat"};

// A text typed into a list is one of its rows, which is chosen, or nothing. False when it is not.
bool reconnaitre(screen::ComboBox& champ) {
  if (champ.Text().empty() || champ.ListIndex() >= 0) return true;
  const auto& lignes = champ.Rows();
  const auto trouvee = std::find(lignes.begin(), lignes.end(), champ.Text());
  if (trouvee == lignes.end()) return false;
  champ.SetListIndex(static_cast<int>(trouvee - lignes.begin()));
  return true;
}

}  // namespace

OngletPaie::OngletPaie(Frm_ElementsContrat& editeur)
    : Onglet(editeur, ElementsPaie, "Cdr_Ong3"),
      zones_({session::texte(profils_.Premier(), C::Profil),
              session::texte(profils_.Second(), C::Profil2),
              session::ligne(Cbo_ModPaieContrat, C::ModePaiement),
              session::drapeau(Cac_PaieSalContrat, C::PaiementParEntite),
              session::texte(cotisations_.Prevoyance(), C::ContratPrevoyance),
              session::drapeau(Cac_CPMoisContrat, C::CongesAuMois),
              session::nombre(cotisations_.PartSalariale(), C::MutuelleSalariale, Montant, 2),
              session::nombre(cotisations_.PartPatronale(), C::MutuellePatronale, Montant, 2),
              session::texte(cotisations_.Charge(), C::ChargeMutuelle),
              session::texte(Txt_IdentCRCContrat, C::IdentificationCRC),
              session::code(Cbo_CartOrangContrat, C::ZoneTransport, zonesTransport_),
              session::nombre(Txt_PlafSecu, C::PlafondSecu, Plafond, 2),
              session::nombre(Txt_AssietteSecu, C::AssietteSecu, Plafond, 2),
              session::drapeau(Cac_ProvCP, C::ProvisionConges)}) {
  for (const char* mode : ModesPaiement) Cbo_ModPaieContrat.AddItem(mode);
  Lier();
  LierDialogues();
}

void OngletPaie::Lier() {
  zones_.Lier(Session());
  Cbo_ModPaieContrat.LostFocus = [this] { Cbo_ModPaieContrat_LostFocus(); };
  Cbo_CartOrangContrat.DropDown = [this] {
    if (Cbo_CartOrangContrat.ListCount() > 0) return;
    for (const auto& zone : zonesTransport_.Lignes()) Cbo_CartOrangContrat.AddItem(zone.libelle);
  };
  Cbo_CartOrangContrat.LostFocus = [this] { Cbo_CartOrangContrat_LostFocus(); };
  Cac_CPMoisContrat.Click = sourdine_.SiAudible([this] { MontrerProvision(); });
}

// Display.

void OngletPaie::Afficher_Ong3() {
  if (!Charge()) {
    data::CItem zones;
    Session().F_TABLES.Lire(data::Tables::CarteOrange, zones);
    zonesTransport_ = data::ListeCodes::DeTable(zones);
    Cbo_CartOrangContrat.Clear();
  }
  Creation() ? AfficherNouveau() : AfficherExistant();
}

void OngletPaie::AfficherNouveau() {
  const auto& origine = editeur_.origine;
  if (!Charge()) {
    cotisations_.OublierPrevoyance();
    for (auto* const boite : {&Cac_PaieSalContrat, &Cac_CPMoisContrat, &Cac_ProvCP}) {
      boite->SetValue(0);
    }
    Cac_ProvCP.SetVisible(false);
    modePropose_.clear();
    zones_.Oublier();
  }
  if (origine.Particuliers()) profils_.Proposer(origine.Employeur());
  ProposerModePaiement();
  activites_.AfficherNouveau();
}

void OngletPaie::AfficherExistant() {
  zones_.Montrer(Session().Lib, Contrat());
  profils_.Afficher();
  cotisations_.Afficher();
  activites_.Afficher();
  MontrerProvision();
  zones_.Retenir(Contrat());
}

// What is chosen by hand stays; otherwise a carer with an account is paid by transfer, where the
// entity pays or the agreement of private employers says so.
void OngletPaie::ProposerModePaiement() {
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

void OngletPaie::Entrer() {
  profils_.ProfilContrat();
  activites_.Activer();
}

void OngletPaie::SelonTelegestion(bool utilisee) {
  Cmd_Telegestion.SetVisible(utilisee);
  if (utilisee) Cmd_Telegestion.SetEnabled(true);
}

void OngletPaie::Vider_Ong() {
  activites_.Oublier();
  cotisations_.Vider();
}

void OngletPaie::SelonConvention(const std::string& convention) {
  const bool particuliers = convention == data::ConventionParticuliers;
  cotisations_.SelonConvention(particuliers);
  Cac_PaieSalContrat.SetVisible(particuliers);
}

// The boxes of a new contract of private employers are what the agreement says; their leave is
// provisioned unless it is paid monthly.
void OngletPaie::ProposerSelonConvention(const std::string& convention) {
  const session::Sourdine::Silence silence(sourdine_);
  const bool particuliers = convention == data::ConventionParticuliers;
  if (Creation()) {
    data::CItem defauts;
    if (particuliers) Session().F_CONVENTIONCOL.Lire(convention, defauts);
    const bool auMois = defauts.Vue(data::ConventionCol::CongesAuMoisParDefaut) == "1";
    Cac_CPMoisContrat.SetValue(auMois ? 1 : 0);
    Cac_ProvCP.SetValue(0);
    Cac_PaieSalContrat.SetValue(
        defauts.Vue(data::ConventionCol::PaiementParEntiteParDefaut) == "1" ? 1 : 0);
    MontrerProvision();
  }
  profils_.ChangerConvention();
  if (!particuliers) cotisations_.Proposer(convention);
}

// A contract on file that has the other status is shown anew, as a contract of that status.
void OngletPaie::ChangerStatut() {
  const std::string statut = editeur_.origine.Administratif() ? "A" : "P";
  if (!Creation() && Charge() && Contrat().Vue(C::Statut) != statut) {
    profils_.ProfilContrat();
    Afficher();
  } else {
    activites_.ChangerStatut();
  }
}

// Leave is provisioned for private employers alone, unless it is paid monthly.
void OngletPaie::MontrerProvision() {
  const bool provision = editeur_.origine.Particuliers() && Cac_CPMoisContrat.Value() == 0;
  Cac_ProvCP.SetVisible(provision);
  if (!provision) Cac_ProvCP.SetValue(0);
}

void OngletPaie::GriserSaufActivite(bool actif) {
  if (actif == !grise_) return;
  grise_ = !actif;
  if (grise_) fermes_.clear();
  for (const char* const nom : HorsActivites) {
    screen::Field& champ = *editeur_.Find(nom);
    if (grise_ && !champ.Enabled()) fermes_.push_back(&champ);
    const bool ferme = std::find(fermes_.begin(), fermes_.end(), &champ) != fermes_.end();
    champ.SetEnabled(actif && !ferme);
  }
}

// Payment.

void OngletPaie::Cbo_ModPaieContrat_LostFocus() {
  if (reconnaitre(Cbo_ModPaieContrat)) return;
  Message("Le mode de paiement saisi n'existe pas, veuillez le ressaisir.", Icone::Exclamation);
  Cbo_ModPaieContrat.SetText("");
  editeur_.Ong_Contrat.SetTab(numero_);
  Cbo_ModPaieContrat.SetFocus();
}

void OngletPaie::Cbo_CartOrangContrat_LostFocus() {
  if (Cbo_CartOrangContrat.Text().empty() ||
      zonesTransport_.ParLibelle(Cbo_CartOrangContrat.Text()) != nullptr) {
    return;
  }
  Message("La zone carte orange saisie n'existe pas, veuillez la ressaisir.", Icone::Exclamation);
  Cbo_CartOrangContrat.SetText("");
  editeur_.Ong_Contrat.SetTab(numero_);
  Cbo_CartOrangContrat.SetFocus();
}

bool OngletPaie::ProvisionFacturee() const {
  return Cac_PaieSalContrat.Value() != 0 && Cac_ProvCP.Value() != 0;
}

bool OngletPaie::ModePaiementChange() const {
  return Dossier().Initial.Vue(C::ModePaiement) !=
         std::to_string(Cbo_ModPaieContrat.ListIndex() + 1);
}

bool OngletPaie::RibManquant(const char* modePaiement) {
  if (Cbo_ModPaieContrat.ListIndex() != Virement) return false;
  data::CItem rib;
  if (Session().F_RIBAIDANT.Lire(Session().CodeAidant, rib)) return false;
  editeur_.Ong_Contrat.SetTab(numero_);
  Message("Vous ne pouvez pas sélectionner le mode de " + std::string(modePaiement) +
              " virement\r\ncar l'aidant ne possède pas de RIB.",
          Icone::Exclamation);
  Cbo_ModPaieContrat.SetFocus();
  return true;
}

// Writing.

bool OngletPaie::Ecrire_Ong(bool) {
  Ecrire_Ong3();
  return true;
}

// A mutual insurance part that is left empty is none; one that is empty on file stays so.
void OngletPaie::Ecrire_Ong3() {
  const session::Sourdine::Silence silence(sourdine_);
  const std::pair<screen::TextField&, int> parts[] = {
      {cotisations_.PartSalariale(), C::MutuelleSalariale},
      {cotisations_.PartPatronale(), C::MutuellePatronale}};
  for (const auto& [champ, attribut] : parts) {
    const bool surFichier = !Dossier().Initial.Vue(attribut).empty();
    if (champ.Text().empty() && (Creation() || surFichier)) champ.SetText("0");
  }
  data::CItem& contrat = Contrat();
  zones_.Ecrire(Session().Lib, contrat);
  if (editeur_.origine.Particuliers()) {
    contrat.Set(C::ContratPrevoyance, cotisations_.ContratPrevoyance());
  } else {
    contrat.Set(C::PaiementParEntite, "1");
  }
  contrat.Set(C::ConstanteB, "B");
  activites_.Ecrire(contrat);
}

}  // namespace editor
