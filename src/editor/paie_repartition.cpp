#include "editor/paie_repartition.h"

#include "data/jour.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "screen/form.h"

namespace editor {

namespace {

using screen::Boutons, screen::Icone;

constexpr const char* PlusDePeriode =
    "Il n'est pas possible d'ajouter de nouvelles périodes d'effet.";
constexpr const char* QuitterAjout =
    "Etes-vous sûr de vouloir quitter l'ajout d'une nouvelle période d'effet ?";
constexpr const char* PeriodeObligatoire = "La période d'effet des activités est obligatoire.";

// The period of a displayed date; "" for what is no date.
std::string periodeDeDate(const data::Lib& lib, const std::string& date) {
  const auto jour = lib.LireDate(date);
  return jour ? data::periodeDe(*jour) : std::string();
}

}  // namespace

SaisieRepartition::SaisieRepartition(ChampsActivites& champs, LignesActivites& lignes,
                                     const OffreActivites& offre, session::Session& session,
                                     session::Sourdine& sourdine, std::function<void(bool)> griser)
    : champs_(champs),
      lignes_(lignes),
      offre_(offre),
      session_(session),
      sourdine_(sourdine),
      griser_(std::move(griser)) {
  champs_.Cbo_PeriodeEffet.SetVisible(false);
  champs_.Txt_ActiviteContrat.SetEnabled(false);
  champs_.Txt_RepartActContrat.SetEnabled(false);
  Lier();
}

void SaisieRepartition::Lier() {
  champs_.Cbo_PeriodeEffet.Click = champs_.Cbo_PeriodeEffet.Change =
      sourdine_.SiAudible([this] { Cbo_PeriodeEffet_Click(); });
  champs_.Cbo_PeriodeEffetAffichage.Click = sourdine_.SiAudible([this] {
    champs_.Cbo_PeriodeEffet.SetListIndex(champs_.Cbo_PeriodeEffetAffichage.ListIndex());
  });
  champs_.Cbo_PeriodeEffetAffichage.KeyPress = [](char32_t& touche) { touche = 0; };
  screen::TextField& part = champs_.Txt_RepartActContrat;
  part.KeyPress = [this, &part](char32_t& touche) {
    session_.Lib.FilterKey(part.HorsSelection(), touche, false);
  };
  part.Change = [this] { Maj_Total(); };
  champs_.Cmd_OKActivite.Click = [this] { Cmd_OKActivite_Click(); };
  champs_.Cmd_AnnulerActivite.Click = [this] { Cmd_AnnulerActivite_Click(); };
  champs_.Cmd_AjoutePeriodeEffet.Click = [this] { Cmd_AjoutePeriodeEffet_Click(); };
}

void SaisieRepartition::Oublier() {
  griser_(true);
  tab_ = {};
  ajoutPeriodeEnCours_ = periodeDuDebut_ = false;
  dateDebut_.clear();
  FermerLigne();
  MontrerPeriodes({}, "");
}

void SaisieRepartition::Lire(const data::CItem& contrat) {
  Oublier();
  tab_ = rules::Repartition::DuContrat(contrat);
  MontrerPeriodes(Periodes(), tab_.Derniere());
}

void SaisieRepartition::SuivreDebut() {
  if (ajoutPeriodeEnCours_ || lignes_.Nombre() == 0 || !(tab_.Vide() || periodeDuDebut_)) return;
  const std::string periode = periodeDeDate(session_.Lib, dateDebut_);
  rules::Repartition r;
  r.Ajouter(periode, lignes_.Parts());
  tab_ = r;
  periodeDuDebut_ = true;
  if (Periode() != periode) MontrerPeriodes({periode}, periode);
}

// Periods.

std::vector<std::string> SaisieRepartition::Periodes() const {
  std::vector<std::string> periodes = tab_.Anterieures();
  periodes.insert(periodes.begin(), tab_.Derniere());
  return periodes;
}

void SaisieRepartition::MontrerPeriodes(const std::vector<std::string>& periodes,
                                        const std::string& montree) {
  const session::Sourdine::Silence silence(sourdine_);
  champs_.Cbo_PeriodeEffet.Clear();
  champs_.Cbo_PeriodeEffetAffichage.Clear();
  for (const std::string& periode : periodes) {
    if (periode.empty()) continue;
    champs_.Cbo_PeriodeEffet.AddItem(periode);
    champs_.Cbo_PeriodeEffetAffichage.AddItem(data::Determinerdate(periode));
    if (periode != montree) continue;
    const int ligne = champs_.Cbo_PeriodeEffet.ListCount() - 1;
    champs_.Cbo_PeriodeEffet.SetListIndex(ligne);
    champs_.Cbo_PeriodeEffetAffichage.SetListIndex(ligne);
  }
}

void SaisieRepartition::Cbo_PeriodeEffet_Click() {
  champs_.Cbo_Activite.SetListIndex(-1);
  if (ajoutPeriodeEnCours_) {
    griser_(false);
    champs_.Cbo_Activite.SetEnabled(true);
    return;
  }
  MontrerRepartition();
}

// The split of the period shown. An activity that its file has lost shows its code.
void SaisieRepartition::MontrerRepartition() {
  FermerLigne();
  lignes_.Vider();
  const auto parts = Periode().empty() ? tab_.EnVigueur() : tab_.A(Periode());
  for (const auto& part : parts) {
    lignes_.Ajouter(part.activite, offre_.Libelle(part.activite), lignes_.PartAffichee(part.part));
  }
  Maj_Total();
}

// A line in hand.

void SaisieRepartition::Entamer(const std::string& code, const std::string& libelle) {
  choisie_ = -1;
  if (Periode().empty() && ajoutPeriodeEnCours_) {
    champs_.Cbo_Activite.SetListIndex(-1);
    champs_.Page.Forme().MessageBox(PeriodeObligatoire, Boutons::Ok, Icone::Exclamation);
    champs_.Cbo_PeriodeEffetAffichage.SetFocus();
    return;
  }
  if (Periode().empty()) CommencerPeriode({periodeDeDate(session_.Lib, dateDebut_)});
  codeEnCours_ = code;
  champs_.Txt_ActiviteContrat.SetText(libelle);
  champs_.Txt_RepartActContrat.SetEnabled(true);
  champs_.Txt_RepartActContrat.SetFocus();
  champs_.Cbo_Activite.SetEnabled(false);
  lignes_.Activer(false);
  screen::Activer({&champs_.Cmd_OKActivite, &champs_.Cmd_AnnulerActivite}, true);
}

void SaisieRepartition::Reprendre(int ligne) {
  if (Periode().empty() && !ajoutPeriodeEnCours_) {
    CommencerPeriode({periodeDeDate(session_.Lib, dateDebut_)});
  }
  choisie_ = ligne;
  codeEnCours_.clear();
  champs_.Txt_ActiviteContrat.SetText(lignes_.Libelle(ligne));
  champs_.Txt_RepartActContrat.SetEnabled(true);
  champs_.Txt_RepartActContrat.SetText(lignes_.Part(ligne));
  champs_.Cbo_Activite.SetListIndex(-1);
  champs_.Cbo_Activite.SetEnabled(false);
  griser_(false);
  screen::Activer({&champs_.Cmd_OKActivite, &champs_.Cmd_AnnulerActivite}, true);
  champs_.Cmd_AjoutePeriodeEffet.SetEnabled(false);
  lignes_.ActiverBarre(false);
  champs_.Txt_RepartActContrat.SetFocus();
}

// No line in hand any more.
void SaisieRepartition::FermerLigne() {
  codeEnCours_.clear();
  choisie_ = -1;
  champs_.Cbo_Activite.SetListIndex(-1);
  champs_.Txt_ActiviteContrat.SetText("");
  champs_.Txt_RepartActContrat.SetText("");
  champs_.Txt_RepartActContrat.SetEnabled(false);
  lignes_.Deselectionner();
  lignes_.Activer(true);
  lignes_.ActiverBarre(true);
}

// What is there of the whole, the share being typed included, and what is missing of it.
void SaisieRepartition::Maj_Total() {
  const auto tapee = data::enUnites(champs_.Txt_RepartActContrat.Text(), 2).value_or(0);
  if (lignes_.Nombre() == 0 && tapee == 0) return champs_.Etq_TotalRepart.SetLibelle("");
  long long total = lignes_.Total() + tapee;
  if (choisie_ >= 0 && champs_.Txt_RepartActContrat.Enabled()) {
    total -= data::enUnites(lignes_.Part(choisie_), 2).value_or(0);
  }
  const auto percent = [&](long long centiemes) {
    return lignes_.PartAffichee(std::to_string(centiemes)) + " %";
  };
  const long long reste = rules::Repartition::Tout - total;
  std::string texte = "Total : " + percent(total);
  if (reste > 0) texte += " (il manque " + percent(reste) + ")";
  if (reste < 0) texte += " (" + percent(-reste) + " de trop)";
  champs_.Etq_TotalRepart.SetLibelle(texte);
}

// Entry.

void SaisieRepartition::Cmd_OKActivite_Click() {
  screen::TextField& part = champs_.Txt_RepartActContrat;
  if (part.Text() == session_.Lib.DecimalSeparator()) part.SetText("");
  const bool enSelection = choisie_ >= 0;
  if (part.Text().empty() || Periode().empty() || (!enSelection && codeEnCours_.empty())) return;
  if (!session::QuitterNombre(session_, part, LignesActivites::FormePart)) return;
  if (!enSelection) {
    lignes_.Ajouter(codeEnCours_, champs_.Txt_ActiviteContrat.Text(), part.Text());
  } else if (data::enUnites(part.Text(), 2) == 0) {
    lignes_.Retirer(choisie_);
  } else {
    lignes_.ChangerPart(choisie_, part.Text());
  }
  FermerLigne();
  Maj_Total();
  if (lignes_.Total() == rules::Repartition::Tout) {
    Ranger();
    Fermer();
    return;
  }
  griser_(false);
  champs_.Cbo_Activite.SetEnabled(true);
}

// The split that stands on the screen is whole: it is kept under its period. A further period for
// which there is no place is not kept, and the one in force is shown again.
void SaisieRepartition::Ranger() {
  const std::string periode = Periode();
  const rules::Repartition::Parts parts = lignes_.Parts();
  const bool rangee =
      tab_.Connait(periode) ? tab_.Remplacer(periode, parts) : tab_.Ajouter(periode, parts);
  if (!ajoutPeriodeEnCours_) return;
  ajoutPeriodeEnCours_ = false;
  MontrerPeriodes(Periodes(), rangee ? periode : tab_.Derniere());
  if (rangee) return;
  MontrerRepartition();
  Indiquer(champs_.Cbo_PeriodeEffetAffichage,
           data::Determinerdate(periode) +
               " n'est pas gardé : cette période précède la première répartition du contrat.");
}

// Back to idle, the rest of the screen open again.
void SaisieRepartition::Fermer() {
  ajoutPeriodeEnCours_ = false;
  griser_(true);
  screen::Activer({&champs_.Cmd_OKActivite, &champs_.Cmd_AnnulerActivite}, false);
  // A contract that is not split yet can begin; another one goes on by a period or by its lines.
  champs_.Cbo_Activite.SetEnabled(tab_.Vide());
  champs_.Cmd_AjoutePeriodeEffet.SetEnabled(!Periode().empty() || tab_.Vide());
}

void SaisieRepartition::Cmd_AnnulerActivite_Click() {
  FermerLigne();
  champs_.Cbo_Activite.SetEnabled(true);
  if (!ajoutPeriodeEnCours_) {
    // Nothing that was entered since the split was whole is kept.
    // A copy: the lists are cleared meanwhile.
    MontrerPeriodes(Periodes(), std::string(Periode()));
    MontrerRepartition();
    Fermer();
    return;
  }
  if (champs_.Page.Forme().Demander(QuitterAjout, Boutons::OuiNon, Icone::Information,
                                    screen::Reponse::Non) != screen::Reponse::Oui) {
    return;
  }
  std::vector<std::string> periodes = tab_.Anterieures();
  periodes.push_back(tab_.Derniere());
  MontrerPeriodes(periodes, tab_.Derniere());
  MontrerRepartition();
  Fermer();
}

void SaisieRepartition::Cmd_AjoutePeriodeEffet_Click() {
  data::CItem periodes;
  session_.F_PERIODESPAIE.Lire(data::PeriodesPaie::Cle, periodes);
  std::vector<std::string> offertes;
  for (const int a : {data::PeriodesPaie::Courante, data::PeriodesPaie::Seconde}) {
    const std::string periode = periodes(a);
    if (!periode.empty() && !tab_.Connait(periode)) offertes.push_back(periode);
  }
  const std::string debut = periodeDeDate(session_.Lib, dateDebut_);
  if (lignes_.Nombre() == 0 && tab_.Derniere().empty() && !debut.empty()) offertes = {debut};
  if (offertes.empty()) {
    champs_.Page.Forme().MessageBox(PlusDePeriode, Boutons::Ok, Icone::Information);
    return;
  }
  FermerLigne();
  lignes_.Vider();
  Maj_Total();
  CommencerPeriode(offertes);
}

// A period that has no rival needs no choice.
void SaisieRepartition::CommencerPeriode(const std::vector<std::string>& offertes) {
  const bool seule = offertes.size() == 1;
  MontrerPeriodes(offertes, seule ? offertes.front() : "");
  ajoutPeriodeEnCours_ = true;
  periodeDuDebut_ = tab_.Vide() && offertes.front() == periodeDeDate(session_.Lib, dateDebut_);
  champs_.Cbo_Activite.SetEnabled(true);
  screen::Activer({&champs_.Cmd_OKActivite, &champs_.Cmd_AnnulerActivite}, true);
  if (seule) Cbo_PeriodeEffet_Click();
}

void SaisieRepartition::Indiquer(const screen::Field& champ, const std::string& texte) const {
  champs_.Page.Forme().Services().indications.Montrer(champ, texte);
}

}  // namespace editor
