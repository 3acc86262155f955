#include "dialogs/frm_contrat_annuel_remunere.h"

#include "dialogs/frm_contrat_annuel_saisie.h"
#include "rules/suivi_annuel_nombre.h"

namespace dialogs {

namespace {

using data::Monnaie;
using rules::Annee;

std::string colonne(Monnaie heures) {
  return rules::formeSuivi(heures, 4, 2);
}

}  // namespace

SuiviEnRemunere::SuiviEnRemunere(screen::Form& forme, screen::TabStrip& onglets,
                                 session::Dossier& dossier)
    : PageSuivi(forme, onglets, 0, "Cdr_Remunere", dossier) {
  // Kept beside the difference for the users' lists, never shown.
  Lst_CopieDiff.SetVisible(false);
  lignes_.SurDoubleClic = [this](int ligne) { Descendre_Liste(ligne); };
  enCours_.Lire(dossier_.ItemContrat, Annee::EnCours);
  precedente_.Lire(dossier_.ItemContrat, Annee::Precedente);
  Lier();
}

void SuiviEnRemunere::Lier() {
  const struct {
    screen::TextField& champ;
    bool signe;
    void (SuiviEnRemunere::*quitter)();
  } Liens[] = {
      {Txt_HresParContrat, false, &SuiviEnRemunere::Txt_HresParContrat_LostFocus},
      {Txt_HresAbs, false, &SuiviEnRemunere::Txt_HresAbs_LostFocus},
      {Txt_HresReel, false, &SuiviEnRemunere::Txt_HresReel_LostFocus},
      {Txt_Difference, true, &SuiviEnRemunere::Txt_Difference_LostFocus},
  };
  for (const auto& lien : Liens) {
    filtrerNombre(session_, lien.champ, lien.signe);
    lien.champ.LostFocus = [this, quitter = lien.quitter] { (this->*quitter)(); };
  }
  filtrerNombre(session_, Txt_Regul, true);
  Txt_Regul.LostFocus = [this] { Quitter(Txt_Regul, Signee); };
}

void SuiviEnRemunere::Remplir_Periode(const std::vector<std::string>& periodes) {
  periodes_ = periodes;
  Cbo_Periode.Clear();
  for (const auto& periode : periodes_) Cbo_Periode.AddItem(rules::etiquetteMois(periode));
}

const rules::SuiviRemunere& SuiviEnRemunere::Suivi() const {
  return annee_ == Annee::EnCours ? enCours_ : precedente_;
}

void SuiviEnRemunere::Montrer() {
  lignes_.Vider();
  int ligne = 0;
  for (const rules::CalculMois& calcul : Suivi().Calculs()) {
    const rules::HeuresMois& heures = calcul.heures;
    const std::string difference = colonne(heures.difference);
    lignes_.Ajouter({rules::etiquetteMois(Suivi().Table().Periode(ligne)), colonne(heures.contrat),
                     colonne(heures.absences), colonne(calcul.forfait), colonne(heures.reel),
                     difference, difference, colonne(calcul.cumul), colonne(heures.regul),
                     colonne(calcul.solde)});
    ++ligne;
  }
}

// Cumulated difference and balance follow from the table, the forfait from the hours.
void SuiviEnRemunere::Activer(LigneEnMain enMain, bool modifiable) {
  const bool corrigee = modifiable && enMain == LigneEnMain::Modification;
  const bool nouvelle = modifiable && enMain == LigneEnMain::Creation;
  lignes_.Activer(enMain == LigneEnMain::Aucune);
  Cbo_Periode.SetEnabled(nouvelle);
  Txt_HresParContrat.SetEnabled(nouvelle || corrigee);
  screen::Activer({&Txt_HresAbs, &Txt_HresReel, &Txt_Difference, &Txt_Regul}, corrigee);
  screen::Activer({&Txt_HresForfait, &Txt_DiffCumul, &Txt_Solde}, false);
}

void SuiviEnRemunere::Vider_Texte() {
  Cbo_Periode.SetText("");
  for (screen::TextField* const champ :
       {&Txt_HresParContrat, &Txt_HresAbs, &Txt_HresForfait, &Txt_HresReel, &Txt_Difference,
        &Txt_DiffCumul, &Txt_Regul, &Txt_Solde}) {
    champ->SetText("");
  }
  ligneCourante_ = -1;
  lignes_.Choisir(-1);
}

void SuiviEnRemunere::Descendre_Liste(int ligne) {
  ligneCourante_ = ligne;
  Cbo_Periode.SetText(Lst_Periode.List(ligne));
  const struct {
    screen::TextField& champ;
    const screen::ListBox& liste;
  } Champs[] = {{Txt_HresParContrat, Lst_HresParContrat},
                {Txt_HresAbs, Lst_HresAbs},
                {Txt_HresForfait, Lst_HresForfait},
                {Txt_HresReel, Lst_HresReel},
                {Txt_Difference, Lst_Difference},
                {Txt_DiffCumul, Lst_DiffCumul},
                {Txt_Regul, Lst_Regul},
                {Txt_Solde, Lst_Solde}};
  for (const auto& [champ, liste] : Champs) {
    champ.SetText(data::CadrerMontant(liste.List(ligne), true));
  }
  SurDescente();
  Txt_Difference.SetFocus();
}

// The edit line.

bool SuiviEnRemunere::Quitter(screen::TextField& champ, const session::FormeNombre& forme) {
  if (champ.Text().empty()) champ.SetText("0");
  return session::QuitterNombre(session_, champ, forme);
}

// A result that passes the field's width is shown as it is.
void SuiviEnRemunere::Calculer(screen::TextField& champ, Monnaie valeur) {
  const std::string texte = valeur.Texte(2, session_.Lib.DecimalSeparator());
  champ.SetText(session::formater(session_.Lib, texte, Signee).value_or(texte));
}

void SuiviEnRemunere::Txt_HresParContrat_LostFocus() {
  if (!Quitter(Txt_HresParContrat, Saisie) || !Quitter(Txt_Regul, Signee)) return;
  if (Txt_HresAbs.Text().empty()) Txt_HresAbs.SetText("0");
  Calculer(Txt_HresForfait,
           rules::lireForme(Txt_HresParContrat.Text()) - rules::lireForme(Txt_HresAbs.Text()));
}

void SuiviEnRemunere::Txt_HresAbs_LostFocus() {
  if (!Quitter(Txt_HresAbs, Saisie) || Txt_HresParContrat.Text().empty()) return;
  Calculer(Txt_HresForfait,
           rules::lireForme(Txt_HresParContrat.Text()) - rules::lireForme(Txt_HresAbs.Text()));
  Txt_HresReel_LostFocus();
}

void SuiviEnRemunere::Txt_HresReel_LostFocus() {
  if (!Quitter(Txt_HresReel, Saisie)) return;
  Calculer(Txt_Difference,
           rules::lireForme(Txt_HresReel.Text()) - rules::lireForme(Txt_HresForfait.Text()));
}

// Only a difference without sign is put in form: a negative one stays as it was typed.
void SuiviEnRemunere::Txt_Difference_LostFocus() {
  const std::string tape = Txt_Difference.Text();
  const bool negative = rules::lireForme(tape) < Monnaie();
  if (Quitter(Txt_Difference, negative ? Signee : SansSigne) && negative) {
    Txt_Difference.SetText(tape);
  }
}

// Confirming.

// The hours of the edit line; what still says what the line shows is what the line holds.
rules::HeuresMois SuiviEnRemunere::Saisies(int ligne) const {
  const rules::HeuresMois avant = enCours_.Heures(ligne);
  const auto saisie = [](const screen::TextField& champ, Monnaie tenue) {
    return reprise(champ.Text(), colonne(tenue), tenue);
  };
  return {saisie(Txt_HresParContrat, avant.contrat), saisie(Txt_HresAbs, avant.absences),
          saisie(Txt_HresReel, avant.reel), saisie(Txt_Difference, avant.difference),
          saisie(Txt_Regul, avant.regul)};
}

bool SuiviEnRemunere::Confirmer(LigneEnMain enMain) {
  if (enMain == LigneEnMain::Creation) {
    if (!Recherche_Periode()) return false;
  } else {
    enCours_.Corriger(ligneCourante_, Saisies(ligneCourante_));
  }
  Vider_Texte();
  Montrer();
  return true;
}

const std::string& SuiviEnRemunere::Periode() const {
  return periodes_[static_cast<std::size_t>(Cbo_Periode.ListIndex())];
}

const rules::Verification<SuiviEnRemunere> SuiviEnRemunere::Verifications[2] = {
    {[](SuiviEnRemunere& s) {
       return s.Cbo_Periode.ListIndex() < 0 || s.Txt_HresParContrat.Text().empty();
     },
     "La période ainsi que les heures mensuelles sont obligatoires."},
    {[](SuiviEnRemunere& s) { return s.enCours_.Table().Contient(s.Periode()); }, PeriodeExistante,
     screen::Icone::Exclamation, "Cbo_Periode",
     [](SuiviEnRemunere& s) { s.Cbo_Periode.SetListIndex(-1); }},
};

bool SuiviEnRemunere::Recherche_Periode() {
  if (!Verifier<SuiviEnRemunere>(Verifications, *this)) return false;
  enCours_.Ajouter(Periode(), rules::lireForme(Txt_HresParContrat.Text()),
                   rules::lireForme(Txt_Regul.Text()));
  return true;
}

void SuiviEnRemunere::SupprimerLigne() {
  enCours_.Retirer(ligneCourante_);
  Vider_Texte();
  Montrer();
}

void SuiviEnRemunere::SupprimerTout() {
  enCours_.Vider();
  Montrer();
}

}  // namespace dialogs
