#include "editor/onglet_paie.h"

#include <algorithm>

#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Icone;

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

}  // namespace

OngletPaie::OngletPaie(Frm_ElementsContrat& editeur)
    : Onglet(editeur, ElementsPaie, "Cdr_Ong3"),
      zones_({session::texte(profils_.Premier(), C::Profil),
              session::texte(profils_.Second(), C::Profil2),
              session::ligne(paiement_.Mode(), C::ModePaiement),
              session::drapeau(paiement_.ParEntite(), C::PaiementParEntite),
              session::texte(cotisations_.Prevoyance(), C::ContratPrevoyance),
              session::drapeau(paiement_.CongesAuMois(), C::CongesAuMois),
              session::nombre(cotisations_.PartSalariale(), C::MutuelleSalariale, Montant, 2),
              session::nombre(cotisations_.PartPatronale(), C::MutuellePatronale, Montant, 2),
              session::texte(cotisations_.Charge(), C::ChargeMutuelle),
              session::texte(Txt_IdentCRCContrat, C::IdentificationCRC),
              session::code(Cbo_CartOrangContrat, C::ZoneTransport, zonesTransport_),
              session::nombre(Txt_PlafSecu, C::PlafondSecu, Plafond, 2),
              session::nombre(Txt_AssietteSecu, C::AssietteSecu, Plafond, 2),
              session::drapeau(paiement_.Provision(), C::ProvisionConges)}) {
  Lier();
}

void OngletPaie::Lier() {
  zones_.Lier(Session());
  Cbo_CartOrangContrat.DropDown = [this] {
    if (Cbo_CartOrangContrat.ListCount() > 0) return;
    for (const auto& zone : zonesTransport_.Lignes()) Cbo_CartOrangContrat.AddItem(zone.libelle);
  };
  Cbo_CartOrangContrat.LostFocus = [this] { Cbo_CartOrangContrat_LostFocus(); };
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
    paiement_.Oublier();
    zones_.Oublier();
  }
  if (origine.Particuliers()) profils_.Proposer(origine.Employeur());
  paiement_.ProposerMode();
  activites_.AfficherNouveau();
}

void OngletPaie::AfficherExistant() {
  zones_.Montrer(Session().Lib, Contrat());
  profils_.Afficher();
  cotisations_.Afficher();
  activites_.Afficher();
  paiement_.MontrerProvision();
  zones_.Retenir(Contrat());
}

void OngletPaie::Entrer() {
  profils_.ProfilContrat();
  activites_.Activer();
}

void OngletPaie::Vider_Ong() {
  activites_.Oublier();
  cotisations_.Vider();
}

void OngletPaie::SelonConvention(const std::string& convention) {
  const bool particuliers = convention == data::ConventionParticuliers;
  cotisations_.SelonConvention(particuliers);
  paiement_.SelonConvention(particuliers);
}

void OngletPaie::ProposerSelonConvention(const std::string& convention) {
  const session::Sourdine::Silence silence(sourdine_);
  if (Creation()) paiement_.ProposerSelonConvention(convention);
  profils_.ChangerConvention();
  if (convention != data::ConventionParticuliers) cotisations_.Proposer(convention);
}

// A contract on file that has the other status is shown anew, as a contract of that status.
void OngletPaie::ChangerStatut() {
  const std::string statut = editeur_.origine.Genre().Administratif() ? "A" : "P";
  if (!Creation() && Charge() && Contrat().Vue(C::Statut) != statut) {
    profils_.ProfilContrat();
    Afficher();
  } else {
    activites_.ChangerStatut();
  }
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

// Transport zone.

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

std::string OngletPaie::TypeActivite() const {
  if (Charge()) return activites_.Type();
  data::CItem activite;
  Session().F_ACTIVITES.Lire(Contrat()(C::Activites, 1), activite);
  return activite(data::Activites::Genre);
}

std::vector<std::string> OngletPaie::Activites() const {
  std::vector<std::string> libelles;
  for (const auto& activite : activites_.Activites()) libelles.push_back(activite.libelle);
  return libelles;
}

// Writing.

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
