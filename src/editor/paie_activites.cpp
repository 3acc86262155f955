#include "editor/paie_activites.h"

#include <algorithm>

#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* PartEntiere = "100";
constexpr const char* SansMandat =
    "L'entité juridique que vous avez sélectionnée n'a pas d'activité mandataire, veuillez en "
    "sélectionner une autre.";
constexpr const char* QueDesMandats =
    "L'entité juridique que vous avez sélectionnée ne possède que des activités mandataires, "
    "veuillez en sélectionner une autre.";

}  // namespace

PaieActivites::PaieActivites(Frm_ElementsContrat& editeur, screen::Frame& page,
                             session::Sourdine& sourdine, std::function<void(bool)> griser)
    : editeur_(editeur),
      sourdine_(sourdine),
      champs_(page),
      offre_(editeur, champs_.Cbo_Activite),
      lignes_(editeur.Session().Lib, champs_.Lst_ActiviteContrat, champs_.Lst_RepartActContrat,
              champs_.VS_Bdv),
      saisie_(champs_, lignes_, offre_, editeur.Session(), sourdine, std::move(griser)) {
  champs_.Cbo_Activite.Click = sourdine_.SiAudible([this] { Cbo_Activite_Click(); });
  lignes_.Suivre(
      [this](int ligne) {
        if (champs_.Lst_RepartActContrat.Visible()) saisie_.Selectionner(ligne);
      },
      [this](int ligne) { Lst_ActiviteContrat_DblClick(ligne); });
}

bool PaieActivites::Creation() const {
  return editeur_.Dossier().ModeCreation;
}

// What is offered.

bool PaieActivites::ChoisirEntite(const std::string& entite, bool particuliers) {
  const session::Sourdine::Silence silence(sourdine_);
  data::ListeCodes offertes = offre_.Gestion_Activite(entite, particuliers);
  if (Creation() && offertes.Vide()) {
    editeur_.MessageBox(particuliers ? SansMandat : QueDesMandats, screen::Boutons::Ok,
                        screen::Icone::Exclamation);
    return false;
  }
  offre_.Offrir(std::move(offertes));
  PrendreLaSeule();
  return true;
}

void PaieActivites::Oublier() {
  const session::Sourdine::Silence silence(sourdine_);
  offre_.Offrir({});
  saisie_.Oublier();
  lignes_.Vider();
  lues_.clear();
  saisie_.Maj_Total();
}

// An activity that comes by itself, with the whole of the time where it is split.
void PaieActivites::PrendreLaSeule() {
  if (offre_.ListeActivites().Nombre() != 1) return;
  const data::ListeCodes::Ligne activite = offre_.ListeActivites().A(0);
  if (lignes_.Contient(activite.code)) return;
  const bool seule = champs_.Lst_RepartActContrat.Visible() && lignes_.Nombre() == 0;
  lignes_.Ajouter(activite.code, activite.libelle, seule ? PartEntiere : "");
}

void PaieActivites::RetirerAutres() {
  for (int i = lignes_.Nombre() - 1; i >= 0; --i) {
    const std::string code = lignes_.Codes()[static_cast<std::size_t>(i)];
    if (offre_.ListeActivites().ParCode(code) == nullptr) lignes_.Retirer(i);
  }
  saisie_.Maj_Total();
}

void PaieActivites::ChangerStatut() {
  const session::Sourdine::Silence silence(sourdine_);
  const auto& origine = editeur_.origine;
  if (origine.Entite().empty()) return;
  offre_.Offrir(offre_.Gestion_Activite(origine.Entite(), origine.Particuliers()));
  RetirerAutres();
}

// Display.

void PaieActivites::Afficher() {
  const auto& origine = editeur_.origine;
  Oublier();
  offre_.Offrir(offre_.Gestion_Activite(origine.Entite(), origine.Particuliers()));
  saisie_.SetDebut(origine.DateDebut());
  Remplir_TabActivite();
  SelonStatut(origine.Genre().Administratif(), origine.Particuliers());
}

// The contract as it was opened: what a copy of the screen has put in it meanwhile comes back.
void PaieActivites::Remplir_TabActivite() {
  saisie_.Lire(editeur_.Dossier().Initial);
  for (const auto& part : saisie_.TabActivite().EnVigueur()) {
    if (part.activite.empty()) continue;
    lignes_.Ajouter(part.activite, offre_.Libelle(part.activite), lignes_.PartAffichee(part.part));
  }
  lues_ = lignes_.Codes();
  saisie_.Maj_Total();
}

void PaieActivites::AfficherNouveau() {
  const auto& origine = editeur_.origine;
  if (origine.Particuliers() && !origine.Employeur().empty() && origine.Debut()) {
    data::ListeCodes siennes = offre_.DeLEmployeur();
    if (!siennes.Vide()) {
      offre_.Offrir(std::move(siennes));
      RetirerAutres();
      PrendreLaSeule();
    }
  }
  SuivreDebut();
}

void PaieActivites::SuivreDebut() {
  const auto& origine = editeur_.origine;
  saisie_.SetDebut(origine.DateDebut());
  if (Creation() && origine.Genre().Administratif() && !origine.Particuliers())
    saisie_.SuivreDebut();
}

void PaieActivites::SelonStatut(bool administratif, bool particuliers) {
  screen::Montrer(
      {&champs_.Lst_RepartActContrat, &champs_.Txt_RepartActContrat, &champs_.Txt_ActiviteContrat,
       &champs_.Etq_PeriodeEffet, &champs_.Cbo_PeriodeEffetAffichage,
       &champs_.Cmd_AjoutePeriodeEffet, &champs_.Etq_TotalRepart},
      administratif && !particuliers);
}

// Private employers' staff have nothing to choose, but among several activities; administrative
// staff split their time from the start of the contract on, so that without one there is nothing to
// split yet.
void PaieActivites::Activer() {
  const auto& origine = editeur_.origine;
  const bool entite = !origine.Particuliers();
  const bool administratif = origine.Genre().Administratif();
  const bool actif = !administratif || !origine.DateDebut().empty();
  const auto periodes = {static_cast<screen::Field*>(&champs_.Cbo_PeriodeEffetAffichage),
                         static_cast<screen::Field*>(&champs_.Etq_PeriodeEffet),
                         static_cast<screen::Field*>(&champs_.Cmd_AjoutePeriodeEffet)};
  screen::Montrer(periodes, administratif && entite);
  screen::Activer(periodes, actif);
  const bool choix = entite || offre_.ListeActivites().Nombre() != 1 || Manquent();
  screen::Montrer({&champs_.Cbo_Activite, &champs_.Etq_ListeActivite, &champs_.Cdr_AffectActiv},
                  choix);
  screen::Activer({&champs_.Cbo_Activite, &champs_.Etq_ListeActivite, &champs_.Cdr_AffectActiv},
                  actif);
  champs_.Cmd_OKActivite.SetVisible(entite && editeur_.Session().DroitComplet());
  champs_.Cmd_AnnulerActivite.SetVisible(entite);
  screen::Activer({&champs_.Cmd_OKActivite, &champs_.Cmd_AnnulerActivite}, actif && !Creation());
  SelonStatut(administratif, !entite);
  SuivreDebut();
}

void PaieActivites::MontrerParts() {
  bool sansPart = true;
  for (int i = 0; i < lignes_.Nombre(); ++i) sansPart = sansPart && lignes_.Part(i).empty();
  if (sansPart) lignes_.CompleterParts();
  screen::Montrer(
      {&champs_.Lst_RepartActContrat, &champs_.Txt_RepartActContrat, &champs_.Txt_ActiviteContrat,
       &champs_.Etq_TotalRepart, &champs_.Cmd_AnnulerActivite},
      true);
  champs_.Cmd_OKActivite.SetVisible(editeur_.Session().DroitComplet());
  saisie_.Maj_Total();
}

// Choice.

// Activities of two types do not mix in one contract: the second one is not taken.
void PaieActivites::Cbo_Activite_Click() {
  const int rang = champs_.Cbo_Activite.ListIndex();
  if (rang < 0) return;
  const data::ListeCodes::Ligne activite = offre_.ListeActivites().A(rang);
  const bool administratif = champs_.Txt_RepartActContrat.Visible();
  const bool autreType = !administratif && !Manquent() && Type() != offre_.Type(activite.code);
  if (lignes_.Contient(activite.code) || autreType) {
    champs_.Cbo_Activite.SetListIndex(-1);
  } else if (administratif) {
    saisie_.Entamer(activite.code, activite.libelle);
  } else {
    lignes_.Ajouter(activite.code, activite.libelle, "");
    champs_.Cbo_Activite.SetListIndex(-1);
  }
}

void PaieActivites::Lst_ActiviteContrat_DblClick(int ligne) {
  if (champs_.Txt_ActiviteContrat.Visible()) {
    saisie_.Reprendre(ligne);
  } else {
    lignes_.Retirer(ligne);
    champs_.Cbo_Activite.SetListIndex(-1);
  }
}

// What the checks ask, and writing.

bool PaieActivites::PeriodeManque() {
  SuivreDebut();
  return editeur_.origine.Genre().Administratif() && saisie_.PeriodeManque();
}

bool PaieActivites::TotalFaux() {
  return editeur_.origine.Genre().Administratif() && lignes_.Total() != rules::Repartition::Tout;
}

bool PaieActivites::RubriqueSansActivite() const {
  if (editeur_.origine.Genre().Administratif()) return false;
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  const std::vector<std::string>& codes = Codes();
  for (int v = 1; v <= contrat.DCount(C::RubriqueActivite); ++v) {
    const auto activite = contrat.Vue(C::RubriqueActivite, v);
    if (!activite.empty() && std::find(codes.begin(), codes.end(), activite) == codes.end()) {
      return true;
    }
  }
  return false;
}

std::vector<data::ListeCodes::Ligne> PaieActivites::Activites() const {
  std::vector<data::ListeCodes::Ligne> activites;
  activites.reserve(Codes().size());
  for (int i = 0; i < lignes_.Nombre(); ++i) {
    activites.push_back({Codes()[static_cast<std::size_t>(i)], lignes_.Libelle(i)});
  }
  return activites;
}

std::string PaieActivites::Type() const {
  if (!editeur_.paie.Charge()) return offre_.Type(editeur_.Dossier().ItemContrat(C::Activites, 1));
  return Codes().empty() ? "" : offre_.Type(Codes().front());
}

// Splits that nobody has changed stay as they are on file, and so does a list of activities.
void PaieActivites::Ecrire(data::CItem& contrat) {
  SuivreDebut();
  const data::CItem& initial = editeur_.Dossier().Initial;
  for (const int a : C::GroupeActivites) contrat.Set(a, initial.Vue(a));
  contrat.Set(C::PeriodeEffet, initial.Vue(C::PeriodeEffet));
  for (const int a : C::GroupePeriodesEffet) contrat.Set(a, initial.Vue(a));
  if (editeur_.origine.Genre().Administratif()) {
    const rules::Repartition& tab = saisie_.TabActivite();
    if (!(tab == rules::Repartition::DuContrat(initial))) tab.Ecrire(contrat);
    return;
  }
  rules::Repartition::Effacer(contrat);
  if (!Creation() && lues_ == lignes_.Codes()) return;
  std::string codes;
  for (const std::string& code : lignes_.Codes()) {
    codes += (codes.empty() ? std::string() : std::string(1, data::SepValeur)) + code;
  }
  contrat.Set(C::Activites, codes);
}

}  // namespace editor
