#include "editor/onglet_paie.h"

#include <algorithm>

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using data::citer, data::citerDebut;
using screen::Icone;

constexpr const char* ModesPaiement[] = {"Virement bancaire", "Chèque", "Espèces"};
constexpr int Virement = 0;  // row of Cbo_ModPaieContrat

// Rows that the list of activities shows at a time.
constexpr int LignesActivites = 6;
constexpr const char* PartEntiere = "100";
// The type of the activities of private employers.
constexpr const char* Mandat = "M";

constexpr const char* SansMandat =
    "L'entité juridique que vous avez sélectionnée n'a pas d'activité mandataire, veuillez en "
    "sélectionner une autre.";
constexpr const char* QueDesMandats =
    "L'entité juridique que vous avez sélectionnée ne possède que des activités mandataires, "
    "veuillez en sélectionner une autre.";

// The bar beside a list that shows `lignes` rows at a time.
void Maj_Bdv(screen::ScrollBar& barre, const screen::ListBox& liste, int lignes) {
  barre.SetMax(std::max(liste.ListCount() - 1, 0));
  barre.SetVisible(liste.ListCount() > lignes);
  barre.SetValue(0);
}

void remplir(screen::RowsField& champ, const data::ListeCodes& liste) {
  champ.Clear();
  for (const auto& ligne : liste.Lignes()) champ.AddItem(ligne.libelle);
}

}  // namespace

OngletPaie::OngletPaie(Frm_ElementsContrat& editeur) : Onglet(editeur, ElementsPaie, "Cdr_Ong3") {
  for (const char* mode : ModesPaiement) Cbo_ModPaieContrat.AddItem(mode);
  Page.SetEnabled(false);
  // Holds the periods as the record does; Cbo_PeriodeEffetAffichage shows them.
  Cbo_PeriodeEffet.SetVisible(false);
}

void OngletPaie::Afficher_Ong3() {
  const auto& origine = editeur_.origine;
  if (Creation()) {
    if (!Charge()) OublierPrevoyance();
    return;
  }
  OublierPrevoyance();
  if (!origine.Particuliers()) RemplirPrevoyance(origine.Convention());
  ListeActivites_ =
      data::ListeCodes::DeSelection(Gestion_Activite(origine.Entite(), origine.Particuliers()));
  remplir(Cbo_Activite, ListeActivites_);
}

bool OngletPaie::Ecrire_Ong3(bool verifiee) {
  return !verifiee || !RibManquant("paiement");
}

void OngletPaie::Entrer() {
  ActiverActivites();
}

void OngletPaie::SelonDroits(bool complet) {
  Cmd_OKActivite.SetVisible(complet);
}

void OngletPaie::SelonTelegestion(bool utilisee) {
  Cmd_Telegestion.SetVisible(utilisee);
  if (utilisee) Cmd_Telegestion.SetEnabled(true);
}

void OngletPaie::Vider_Ong() {
  Lst_ActiviteContrat.Clear();
  Lst_RepartActContrat.Clear();
  Cbo_Activite.Clear();
  screen::Montrer({&Txt_PrevContrat, &Cbo_LibPrevContrat}, true);
}

// Private employers each have a provident contract of their own.
void OngletPaie::SelonConvention(const std::string& convention) {
  const bool particuliers = convention == data::ConventionParticuliers;
  screen::Activer({&Cdr_RegimePrev, &Etq_PrevContrat, &Txt_PrevContrat, &Cbo_LibPrevContrat},
                  !particuliers);
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
    Cac_ProvCP.SetVisible(particuliers && !auMois);
    Cac_PaieSalContrat.SetValue(
        defauts.Vue(data::ConventionCol::PaiementParEntiteParDefaut) == "1" ? 1 : 0);
  }
  if (particuliers) return;
  OublierPrevoyance();
  RemplirPrevoyance(convention);
  if (ListePrev_.Nombre() != 1) return;
  Cbo_LibPrevContrat.SetListIndex(0);
  Txt_PrevContrat.SetText(ListePrev_.A(0).code);
}

// Activities.

// What the entity offers: all to administrative staff, to production staff what is of the
// contract's kind.
data::CItem OngletPaie::Gestion_Activite(const std::string& entite, bool particuliers) const {
  using namespace data;
  Requete requete(fichier::ACTIVITES);
  requete.Avec(Cle, "=", citerDebut(entite));
  if (!editeur_.origine.Administratif()) {
    requete.Avec(Activites::Genre, particuliers ? "=" : "<>", citer(Mandat));
  }
  return requete.Par(Activites::Libelle)
      .Lire(*Session().Db, {Cle, Activites::Libelle, Activites::Genre});
}

bool OngletPaie::ChoisirEntite(const std::string& entite, bool particuliers) {
  const session::Sourdine::Silence silence(sourdine_);
  ListeActivites_ = data::ListeCodes::DeSelection(Gestion_Activite(entite, particuliers));
  if (Creation() && ListeActivites_.Vide()) {
    Message(particuliers ? SansMandat : QueDesMandats, Icone::Exclamation);
    return false;
  }
  remplir(Cbo_Activite, ListeActivites_);
  if (ListeActivites_.Nombre() == 1) {
    Lst_ActiviteContrat.AddItem(ListeActivites_.A(0).libelle);
    if (Lst_RepartActContrat.Visible()) Lst_RepartActContrat.AddItem(PartEntiere);
  }
  return true;
}

void OngletPaie::ViderActivites() {
  const session::Sourdine::Silence silence(sourdine_);
  ListeActivites_ = data::ListeCodes();
  Cbo_Activite.Clear();
  Lst_ActiviteContrat.Clear();
  Lst_RepartActContrat.Clear();
}

void OngletPaie::SelonStatut(bool administratif, bool particuliers) {
  screen::Montrer({&Lst_RepartActContrat, &Txt_RepartActContrat, &Txt_ActiviteContrat,
                   &Etq_PeriodeEffet, &Cbo_PeriodeEffetAffichage, &Cmd_AjoutePeriodeEffet},
                  administratif && !particuliers);
}

// The activity group, by agreement, status and mode. Private employers' staff have none;
// administrative staff split their time from the start of the contract on, so that without one
// there is nothing to split yet.
void OngletPaie::ActiverActivites() {
  const auto& origine = editeur_.origine;
  const bool entite = !origine.Particuliers();
  const bool administratif = origine.Administratif();
  const bool actif = !administratif || !origine.DateDebut().empty();
  const auto periodes = {static_cast<screen::Field*>(&Cbo_PeriodeEffetAffichage),
                         static_cast<screen::Field*>(&Etq_PeriodeEffet),
                         static_cast<screen::Field*>(&Cmd_AjoutePeriodeEffet)};
  screen::Montrer(periodes, administratif && entite);
  screen::Activer(periodes, actif);
  screen::Montrer({&Cbo_Activite, &Etq_ListeActivite, &Cdr_AffectActiv}, entite);
  screen::Activer({&Cbo_Activite, &Etq_ListeActivite, &Cdr_AffectActiv}, actif);
  Cmd_OKActivite.SetVisible(entite && Session().DroitComplet());
  Cmd_AnnulerActivite.SetVisible(entite);
  screen::Activer({&Cmd_OKActivite, &Cmd_AnnulerActivite}, actif && !Creation());
  if (entite) return;
  screen::Montrer({&Lst_RepartActContrat, &Txt_RepartActContrat, &Txt_ActiviteContrat}, false);
}

// An administrative contract splits its time over its activities: one share for each of them.
void OngletPaie::MontrerParts() {
  if (Lst_ActiviteContrat.ListCount() == 0) {
    Lst_RepartActContrat.Clear();
  } else if (Lst_RepartActContrat.ListCount() == 0) {
    for (int i = 0; i < Lst_ActiviteContrat.ListCount(); ++i) Lst_RepartActContrat.AddItem("0");
  }
  screen::Montrer(
      {&Lst_RepartActContrat, &Txt_RepartActContrat, &Txt_ActiviteContrat, &Cmd_AnnulerActivite},
      true);
  Cmd_OKActivite.SetVisible(Session().DroitComplet());
  Maj_Bdv(VS_Bdv, Lst_ActiviteContrat, LignesActivites);
}

// The contract in hand answers where the list shows nothing.
std::string OngletPaie::TypeActivite() const {
  if (Lst_ActiviteContrat.ListCount() > 0) {
    const auto* const ligne = ListeActivites_.ParLibelle(Lst_ActiviteContrat.List(0));
    return ligne == nullptr || ligne->suite.empty() ? "" : ligne->suite.front();
  }
  data::CItem activite;
  Session().F_ACTIVITES.Lire(Contrat()(data::Contrat::Activites, 1), activite);
  return activite(data::Activites::Genre);
}

std::vector<std::string> OngletPaie::Activites() const {
  std::vector<std::string> libelles = Lst_ActiviteContrat.Rows();
  if (!libelles.empty()) return libelles;
  const data::CItem& contrat = Contrat();
  for (int v = 1; v <= contrat.DCount(data::Contrat::Activites); ++v) {
    libelles.push_back(ListeActivites_.Libelle(contrat(data::Contrat::Activites, v)));
  }
  return libelles;
}

// Provident scheme.

void OngletPaie::OublierPrevoyance() {
  const session::Sourdine::Silence silence(sourdine_);
  ListePrev_ = data::ListeCodes();
  PrevContratPrecedent_.clear();
  Txt_PrevContrat.SetText("");
  Cbo_LibPrevContrat.Clear();
}

void OngletPaie::RemplirPrevoyance(const std::string& convention) {
  using namespace data;
  ListePrev_ = ListeCodes::DeSelection(Requete(fichier::CONTRATSPREV)
                                           .Avec("ConvColPrev", "=", citer(convention))
                                           .Avec(Cle, "<>", citer(ContratsPrev::CleSans))
                                           .Par(ContratsPrev::Libelle)
                                           .Lire(*Session().Db, {Cle, ContratsPrev::Libelle}));
  remplir(Cbo_LibPrevContrat, ListePrev_);
}

void OngletPaie::PrevoyanceEmployeur(const std::string& employeur) {
  const session::Sourdine::Silence silence(sourdine_);
  data::CItem elements;
  Session().Db->OpenFile(data::fichier::ELTSPARTEMP).Lire(employeur, elements);
  const std::string code = elements(data::EltsPartEmp::ContratPrev);
  const auto fin = elements.Vue(data::EltsPartEmp::DateFinPrev);
  const long long limite =
      Creation() ? Session().Poste.Aujourdhui() : data::entier(Contrat().Vue(C::DateDebut));
  if (!fin.empty() && data::entier(fin) < limite) return;
  data::CItem prevoyance;
  if (!Session().F_CONTRATSPREV.Lire(code, prevoyance)) return;
  ListePrev_ = data::ListeCodes(std::vector<data::ListeCodes::Ligne>{
      {code, prevoyance(data::ContratsPrev::LibelleParticulier)}});
  remplir(Cbo_LibPrevContrat, ListePrev_);
  Cbo_LibPrevContrat.SetListIndex(0);
  Txt_PrevContrat.SetText(code);
  PrevContratPrecedent_ = code;
}

// Payment.

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
  Message("Vous ne pouvez pas sélectionner le mode de " + std::string(modePaiement) +
              " virement\r\ncar l'aidant ne possède pas de RIB.",
          Icone::Exclamation);
  editeur_.Ong_Contrat.SetTab(numero_);
  Cbo_ModPaieContrat.SetFocus();
  return true;
}

}  // namespace editor
