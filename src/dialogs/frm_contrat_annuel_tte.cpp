#include "dialogs/frm_contrat_annuel_tte.h"

#include "data/jour.h"
#include "data/texte.h"
#include "dialogs/frm_contrat_annuel_saisie.h"
#include "rules/suivi_annuel_mois.h"
#include "rules/suivi_annuel_nombre.h"
#include "screen/touches.h"

namespace dialogs {

namespace {

using data::Monnaie;
using rules::Annee, rules::SuiviTte, rules::TempsMois;
using session::FormeNombre;

constexpr FormeNombre JoursEntiers{.avant = 2, .apres = 0, .affichage = FormeNombre::Serree};
constexpr FormeNombre Jours{.avant = 2, .apres = 2, .signe = true};
constexpr FormeNombre HeuresJour{.avant = 2, .apres = 2, .signe = true};
constexpr FormeNombre HeuresMois{.avant = 3, .apres = 2, .signe = true};
constexpr FormeNombre HeuresAnnee{.avant = 4, .apres = 2, .signe = true};

// A number of a column, with the blanks that part it from the next.
std::string colonne(Monnaie valeur, int avant, int apres, int blancs = 0) {
  return rules::formeSuivi(valeur, avant, apres) +
         std::string(static_cast<std::size_t>(blancs), ' ');
}

Monnaie heures(long long centiemes) {
  return Monnaie::DeCentiemes(std::to_string(centiemes));
}

}  // namespace

SuiviEnTempsEffectif::SuiviEnTempsEffectif(screen::Form& forme, screen::TabStrip& onglets,
                                           session::Dossier& dossier)
    : PageSuivi(forme, onglets, 1, "Cdr_TTE", dossier),
      champs_{{Txt_HresParContratTTE, HeuresJour, Champ::EnForme},
              {Txt_SDTTE, JoursEntiers, Champ::EnJours},
              {Txt_FerieTTE, JoursEntiers, Champ::EnJours},
              {Txt_CongeTTE, Jours, Champ::EnNombre},
              {Txt_MalTTE, Jours, Champ::EnJours},
              {Txt_AutreTTE, Jours, Champ::EnNombre},
              {Txt_TTE, HeuresMois, Champ::EnNombre},
              {Txt_RegulTTE, HeuresAnnee, Champ::EnNombre}} {
  lignes_.SurDoubleClic = [this](int ligne) { ModifTTE(ligne); };
  Cbo_PeriodeTTE.Click = [this] { Cbo_PeriodeTTE_Click(); };
  for (const Champ& champ : champs_) Lier(champ);
}

void SuiviEnTempsEffectif::Lier(const Champ& champ) {
  if (champ.genre == Champ::EnJours) {
    champ.champ.KeyPress = screen::chiffresSeuls;
  } else {
    filtrerNombre(session_, champ.champ, true);
  }
  champ.champ.LostFocus = [this, &champ] {
    if (Quitter(champ)) RecalculTTE();
  };
}

// The record under its own key: carer, contract and year. An absent one is an empty follow-up.
data::CItem SuiviEnTempsEffectif::ArticleDe(int annee) const {
  const std::string cle = dossier_.CleContratCourant + std::to_string(annee);
  data::CItem article = session_.F_AIDANTTTE.NewItem(cle);
  session_.F_AIDANTTTE.Lire(cle, article);
  return article;
}

void SuiviEnTempsEffectif::Ouvrir(int annee) {
  const std::string enAttente = dossier_.ItemAidantTte(0);
  if (enAttente.empty()) {
    anneeSuivi_ = annee;
    article_ = ArticleDe(annee);
  } else {
    anneeSuivi_ =
        static_cast<int>(data::entier(enAttente.substr(dossier_.CleContratCourant.size())));
    article_ = dossier_.ItemAidantTte;
  }
  enCours_.Lire(article_);
}

const SuiviTte& SuiviEnTempsEffectif::Suivi() const {
  return annee_ == Annee::EnCours ? enCours_ : precedente_;
}

// The balance is that of the record.
void SuiviEnTempsEffectif::Montrer() {
  const bool enCours = annee_ == Annee::EnCours;
  if (!enCours) precedente_.Lire(ArticleDe(anneeSuivi_ - 1));
  lignes_.Vider();
  const rules::TableSuivi& table = Suivi().Table();
  int i = 0;
  for (const rules::CalculTemps& calcul : Suivi().Calculs()) {
    const TempsMois& temps = calcul.temps;
    lignes_.Ajouter({rules::etiquetteMois(table.Periode(i)), colonne(temps.heuresJour, 2, 2),
                     temps.joursMois + "  ", temps.samDim + "  ", temps.feries + "  ",
                     colonne(temps.conges, 2, 1, 1), temps.maladie.TexteCourt() + "  ",
                     colonne(temps.autres, 2, 1, 1), colonne(calcul.joursPotentiels, 3, 2),
                     colonne(calcul.heuresPotentielles, 3, 2), colonne(temps.effectif, 3, 2, 2),
                     colonne(heures(calcul.difference), 4, 2),
                     colonne(heures(calcul.cumul), 4, 2, 1), colonne(temps.regul, 4, 2, 1),
                     colonne(table.Centiemes(i, SuiviTte::Solde), 4, 2, 1)});
    ++i;
  }
  mois_ = rules::moisDeLAnnee(enCours ? anneeSuivi_ : anneeSuivi_ - 1);
  Cbo_PeriodeTTE.Clear();
  for (const std::string& periode : mois_) Cbo_PeriodeTTE.AddItem(rules::etiquetteMois(periode));
}

// A previous year is only looked at.
void SuiviEnTempsEffectif::Activer(LigneEnMain enMain, bool modifiable) {
  lignes_.Activer(enMain == LigneEnMain::Aucune && annee_ == Annee::EnCours);
  const bool saisie = modifiable && enMain != LigneEnMain::Aucune;
  Cbo_PeriodeTTE.SetEnabled(saisie && enMain == LigneEnMain::Creation);
  for (const Champ& champ : champs_) champ.champ.SetEnabled(saisie);
  screen::Activer({&Txt_MoisTTE, &Txt_PotentielJrsTTE, &Txt_PotentielHresTTE, &Txt_DiffMoisTTE,
                   &Txt_DiffCumulTTE, &Txt_SoldeTTE},
                  false);
}

void SuiviEnTempsEffectif::Vider_Texte() {
  Cbo_PeriodeTTE.SetText("");
  for (const Champ& champ : champs_) champ.champ.SetText("");
  for (screen::TextField* const champ : {&Txt_MoisTTE, &Txt_PotentielJrsTTE, &Txt_PotentielHresTTE,
                                         &Txt_DiffMoisTTE, &Txt_DiffCumulTTE, &Txt_SoldeTTE}) {
    champ->SetText("");
  }
  ligneCourante_ = -1;
  lignes_.Choisir(-1);
}

void SuiviEnTempsEffectif::ModifTTE(int ligne) {
  ligneCourante_ = ligne;
  Cbo_PeriodeTTE.SetText(Lst_PeriodeTTE.List(ligne));
  const struct {
    screen::TextField& champ;
    const screen::ListBox& liste;
  } Champs[] = {{Txt_HresParContratTTE, Lst_HresParContratTTE},
                {Txt_MoisTTE, Lst_MoisTTE},
                {Txt_SDTTE, Lst_SDTTE},
                {Txt_FerieTTE, Lst_FerieTTE},
                {Txt_CongeTTE, Lst_CongeTTE},
                {Txt_MalTTE, Lst_MalTTE},
                {Txt_AutreTTE, Lst_AutreTTE},
                {Txt_PotentielJrsTTE, Lst_PotentielJrsTTE},
                {Txt_PotentielHresTTE, Lst_PotentielHresTTE},
                {Txt_TTE, Lst_TTE},
                {Txt_DiffMoisTTE, Lst_DiffMoisTTE},
                {Txt_DiffCumulTTE, Lst_DiffCumulTTE},
                {Txt_RegulTTE, Lst_RegulTTE},
                {Txt_SoldeTTE, Lst_SoldeTTE}};
  for (const auto& [champ, liste] : Champs) {
    champ.SetText(data::sansBlancs(data::CadrerMontant(liste.List(ligne), true)));
  }
  SurDescente();
}

// The edit line.

void SuiviEnTempsEffectif::Cbo_PeriodeTTE_Click() {
  const auto dernier = data::dernierJour(Periode());
  Txt_MoisTTE.SetText(dernier ? std::to_string(data::dateDe(*dernier).jour) : "");
}

std::string SuiviEnTempsEffectif::Periode() const {
  if (ligneCourante_ >= 0) return Suivi().Table().Periode(ligneCourante_);
  const int choisi = Cbo_PeriodeTTE.ListIndex();
  return choisi < 0 ? "" : mois_[static_cast<std::size_t>(choisi)];
}

// A text that is no number keeps the focus. Only the hours of a day are put in form, and whole days
// lose their leading zeros; the rest stays as it was typed.
bool SuiviEnTempsEffectif::Quitter(const Champ& champ) {
  if (champ.champ.Text().empty()) champ.champ.SetText("0");
  const std::string tape = champ.champ.Text();
  if (!session::QuitterNombre(session_, champ.champ, champ.forme)) return false;
  const bool enForme = champ.genre == Champ::EnForme || champ.forme.apres == 0;
  if (!enForme) champ.champ.SetText(tape);
  return true;
}

// The line as it is typed; an empty field counts as 0.
TempsMois SuiviEnTempsEffectif::Saisis() const {
  const auto nombre = [](const screen::TextField& champ) { return rules::lireForme(champ.Text()); };
  return {
      Txt_MoisTTE.Text(),   Txt_SDTTE.Text(),   Txt_FerieTTE.Text(),  nombre(Txt_HresParContratTTE),
      nombre(Txt_CongeTTE), nombre(Txt_MalTTE), nombre(Txt_AutreTTE), nombre(Txt_TTE),
      nombre(Txt_RegulTTE)};
}

// The first calculation that misses a number leaves the following fields as they are.
void SuiviEnTempsEffectif::RecalculTTE() {
  const std::string periode = Periode();
  const TempsMois temps = Saisis();
  if (periode.empty() || !VerifJoursTTE(temps)) return;
  const auto poser = [this](screen::TextField& champ, Monnaie valeur) {
    champ.SetText(valeur.TexteCourt(session_.Lib.DecimalSeparator()));
  };
  poser(Txt_PotentielJrsTTE, temps.JoursPotentiels());
  if (Txt_HresParContratTTE.Text().empty()) return;
  poser(Txt_PotentielHresTTE, temps.HeuresPotentielles());
  if (Txt_TTE.Text().empty()) return;
  poser(Txt_DiffMoisTTE, heures(temps.Difference()));
  const auto provisoire = Suivi().PendantLaSaisie(periode, temps);
  poser(Txt_DiffCumulTTE, heures(provisoire.cumul));
  if (!Txt_RegulTTE.Text().empty()) poser(Txt_SoldeTTE, heures(provisoire.solde));
}

// Too many days are told, not refused.
bool SuiviEnTempsEffectif::VerifJoursTTE(const TempsMois& temps) {
  if (temps.JoursOtes() <= rules::entierLu(temps.joursMois)) return true;
  Message("Nombre de jour total saisie supérieur au nombre de jours du mois.");
  return false;
}

// Confirming.

bool SuiviEnTempsEffectif::Confirmer(LigneEnMain enMain) {
  if (!Trier_ListeTTE(enMain)) return false;
  Vider_Texte();
  Montrer();
  return true;
}

const rules::Verification<SuiviEnTempsEffectif> SuiviEnTempsEffectif::Verifications[2] = {
    {[](SuiviEnTempsEffectif& s) { return s.Periode().empty(); }, "Vous devez saisir une période.",
     screen::Icone::Exclamation, "Cbo_PeriodeTTE",
     [](SuiviEnTempsEffectif& s) { s.Cbo_PeriodeTTE.SetListIndex(-1); }},
    {[](SuiviEnTempsEffectif& s) { return s.enCours_.Table().Contient(s.Periode()); },
     PeriodeExistante, screen::Icone::Exclamation, "Cbo_PeriodeTTE",
     [](SuiviEnTempsEffectif& s) { s.Cbo_PeriodeTTE.SetListIndex(-1); }},
};

bool SuiviEnTempsEffectif::Trier_ListeTTE(LigneEnMain enMain) {
  const bool creation = enMain == LigneEnMain::Creation;
  const std::string periode = Periode();
  if (creation && !Verifier<SuiviEnTempsEffectif>(Verifications, *this)) return false;
  for (const Champ& champ : champs_) {
    if (champ.champ.Text().empty()) champ.champ.SetText("0");
  }
  if (creation) {
    enCours_.Ajouter(periode, Saisis());
  } else {
    enCours_.Corriger(ligneCourante_, Corriges());
  }
  return true;
}

// What still says what the line shows is what the line holds.
TempsMois SuiviEnTempsEffectif::Corriges() const {
  const TempsMois avant = enCours_.Temps(ligneCourante_);
  TempsMois temps = Saisis();
  const struct {
    Monnaie TempsMois::*valeur;
    const screen::TextField& champ;
    const screen::ListBox& liste;
  } Champs[] = {{&TempsMois::heuresJour, Txt_HresParContratTTE, Lst_HresParContratTTE},
                {&TempsMois::conges, Txt_CongeTTE, Lst_CongeTTE},
                {&TempsMois::maladie, Txt_MalTTE, Lst_MalTTE},
                {&TempsMois::autres, Txt_AutreTTE, Lst_AutreTTE},
                {&TempsMois::effectif, Txt_TTE, Lst_TTE},
                {&TempsMois::regul, Txt_RegulTTE, Lst_RegulTTE}};
  for (const auto& [valeur, champ, liste] : Champs) {
    temps.*valeur = reprise(champ.Text(), liste.List(ligneCourante_), avant.*valeur);
  }
  return temps;
}

void SuiviEnTempsEffectif::SupprimerLigne() {
  enCours_.Retirer(ligneCourante_);
  Vider_Texte();
  Montrer();
}

void SuiviEnTempsEffectif::SupprimerTout() {
  enCours_.Vider();
  Montrer();
}

void SuiviEnTempsEffectif::Enregistrer() {
  if (!Modifiee()) return;
  enCours_.Ecrire(article_);
  dossier_.ItemAidantTte = article_;
}

}  // namespace dialogs
