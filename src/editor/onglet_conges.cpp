#include "editor/onglet_conges.h"

#include "data/jour.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/texte.h"
#include "dialogs/frm_detail_conges_del_prev.h"
#include "dialogs/frm_ventilation.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using session::FormeNombre, session::nombre;

constexpr FormeNombre Jours{5, 2, false, FormeNombre::Serree};
constexpr FormeNombre JoursSignes{4, 2, true, FormeNombre::Serree};
constexpr FormeNombre JoursEntiers{5, 0, false, FormeNombre::Serree};
constexpr FormeNombre Heures{5, 2, false, FormeNombre::Serree};
constexpr FormeNombre Montant{7, 2, false, FormeNombre::Serree};
constexpr int Centiemes = 2;

constexpr const char* Acquis =
    "Le nombre de jours acquis ne peut être qu'un nombre de jours entier ou un nombre de "
    "demi-journées.";
constexpr const char* Restants =
    "Le nombre de jours restants ne peut être qu'un nombre de jours entier ou un nombre de "
    "demi-journées.";
constexpr const char* EnCours =
    "Le nombre de jours en cours d'acquisition ne peut être qu'un nombre de jours entier ou un "
    "nombre de demi-journées.";
constexpr const char* Anticipation =
    "Le nombre de jours pris par anticipation ne peut être qu'un nombre de jours entier ou un "
    "nombre de demi-journées.";
constexpr const char* TropDAnticipation =
    "Le nombre de jours pris par anticipation ne peut être supérieur au nombre de jours de congès "
    "en cours d'acquisition.";

// Counting modes of an agreement: five or six working days in a week.
constexpr std::string_view ModeOuvres = "1", ModeOuvrables = "2";

std::string jours(std::string_view mode) {
  return mode == ModeOuvres ? "Jours ouvrés" : "Jours ouvrables";
}

// A contract without one of its counters has none of it.
constexpr int Compteurs[] = {
    C::CPAcquis,         C::CPRestants,        C::FractionnementAcquis, C::FractionnementRestants,
    C::ValeurJourHeures, C::ValeurJourMontant, C::CPEnCoursJours,       C::CPEnCoursHeures,
    C::CPEnCoursMontant, C::AncienneteAcquis,  C::AncienneteRestants,   C::JoursAnticipation};
constexpr int Delai[] = {C::DelaiPrevRestants, C::DelaiPrevAcquis};
constexpr int Provisions[] = {C::ProvisionCP, C::ProvisionEnCours};

}  // namespace

OngletConges::OngletConges(Frm_ElementsContrat& editeur)
    : Onglet(editeur, DroitsConges, "Cdr_Ong4"),
      compteurs_({nombre(Txt_CPConsoAcqContrat, C::CPAcquis, Jours, Centiemes),
                  nombre(Txt_CPRestConsoContrat, C::CPRestants, JoursSignes, Centiemes),
                  session::texte(Txt_CFConsoAcqContrat, C::FractionnementAcquis),
                  nombre(Txt_CFRestConsoContrat, C::FractionnementRestants, Jours, Centiemes),
                  nombre(Txt_JrOuvrHContrat, C::ValeurJourHeures, Heures, Centiemes),
                  nombre(Txt_JrOuvrMContrat, C::ValeurJourMontant, Heures, Centiemes),
                  nombre(Txt_CPCoursJContrat, C::CPEnCoursJours, JoursEntiers, Centiemes),
                  nombre(Txt_CPCoursHContrat, C::CPEnCoursHeures, Heures, Centiemes),
                  nombre(Txt_CPCoursMContrat, C::CPEnCoursMontant, Montant, Centiemes),
                  session::texte(Txt_CAncAcqContrat, C::AncienneteAcquis),
                  nombre(Txt_CAncRestContrat, C::AncienneteRestants, Jours, Centiemes),
                  nombre(Txt_JourAnticipation, C::JoursAnticipation, Jours, Centiemes)}),
      delai_({nombre(Txt_CDPRestants, C::DelaiPrevRestants, Jours, Centiemes),
              session::texte(Txt_CDPAcquis, C::DelaiPrevAcquis)}),
      provisions_({nombre(Txt_ProvisionCP, C::ProvisionCP, Montant, Centiemes),
                   nombre(Txt_ProvisionCours, C::ProvisionEnCours, Montant, Centiemes)}) {
  screen::Activer({&Txt_JrOuvreHContrat, &Txt_JrOuvreMContrat}, false);
  Lier();
}

void OngletConges::Lier() {
  LierCompteur(Txt_CPConsoAcqContrat, Jours, [this] {
    QuitterDemiJournee(Txt_CPConsoAcqContrat, Acquis, Txt_CPConsoAcqContrat);
  });
  LierCompteur(Txt_CPRestConsoContrat, JoursSignes, [this] {
    QuitterDemiJournee(Txt_CPRestConsoContrat, Restants, Txt_CPRestConsoContrat);
  });
  LierCompteur(Txt_CFRestConsoContrat, Jours, [this] {
    QuitterDemiJournee(Txt_CFRestConsoContrat, Restants, Txt_CFRestConsoContrat);
  });
  LierCompteur(Txt_CAncRestContrat, Jours,
               [this] { QuitterDemiJournee(Txt_CAncRestContrat, EnCours, Txt_CAncRestContrat); });
  // A refused rest of notice-period leave sends back to that of seniority leave: users know it so.
  LierCompteur(Txt_CDPRestants, Jours,
               [this] { QuitterDemiJournee(Txt_CDPRestants, EnCours, Txt_CAncRestContrat); });
  LierCompteur(Txt_JourAnticipation, Jours, [this] { QuitterAnticipation(); });
  for (screen::TextField* const champ :
       {&Txt_CPCoursHContrat, &Txt_JrOuvrHContrat, &Txt_JrOuvrMContrat}) {
    LierCompteur(*champ, Heures);
  }
  for (screen::TextField* const champ :
       {&Txt_CPCoursMContrat, &Txt_ProvisionCP, &Txt_ProvisionCours}) {
    LierCompteur(*champ, Montant);
  }
  for (screen::TextField* const champ :
       {&Txt_CFConsoAcqContrat, &Txt_CAncAcqContrat, &Txt_CDPAcquis, &Txt_CPCoursJContrat}) {
    LierEntier(*champ);
  }
  Txt_JrOuvrHContrat.Change = [this] { Ouvrer(Txt_JrOuvrHContrat, Txt_JrOuvreHContrat); };
  Txt_JrOuvrMContrat.Change = [this] { Ouvrer(Txt_JrOuvrMContrat, Txt_JrOuvreMContrat); };
  Cmd_Conges.Click = [this] { Cmd_Conges_Click(); };
  Cmd_Detail.Click = [this] { Cmd_Detail_Click(); };
}

void OngletConges::LierCompteur(screen::TextField& champ, const FormeNombre& forme,
                                const std::function<void()>& ensuite) {
  session::LierNombre(Session(), champ, forme);
  champ.LostFocus = [this, &champ, forme, ensuite] {
    if (champ.Text().empty()) champ.SetText("0");
    if (session::QuitterNombre(Session(), champ, forme) && ensuite) ensuite();
  };
}

// What is not whole stays as it was typed: the tab's checks refuse it.
void OngletConges::LierEntier(screen::TextField& champ) {
  session::LierNombre(Session(), champ, JoursEntiers);
  champ.LostFocus = [this, &champ] {
    if (champ.Text().empty()) champ.SetText("0");
    if (!AvecSeparateur(champ)) session::QuitterNombre(Session(), champ, JoursEntiers);
  };
}

// Display.

void OngletConges::Afficher_Ong4() {
  montre_ = Contrat();
  Etq_PeriodeConges.SetLibelle(data::majuscules(data::moisAnnee(Contrat()(C::PeriodeTraitee))));
  screen::Activer({&Cmd_Conges}, !Creation());
  SelonDecompte();
  Affiche_Conges();
  if (Creation()) {
    compteurs_.Oublier();
    delai_.Oublier();
    provisions_.Oublier();
    return;
  }
  for (session::Zones* const zones : {&compteurs_, &delai_, &provisions_}) {
    zones->Montrer(Session().Lib, montre_);
  }
  MettreZero();
  for (session::Zones* const zones : {&compteurs_, &delai_, &provisions_}) {
    zones->Retenir(montre_);
  }
}

// Private employers and administrative staff have no notice-period leave.
void OngletConges::SelonDecompte() {
  data::CItem convention;
  Session().F_CONVENTIONCOL.Lire(editeur_.origine.Convention(), convention);
  const bool administratif = editeur_.origine.Genre().Administratif();
  const auto mode = [&](int attribut) {
    return administratif ? jours(ModeOuvres) : jours(convention.Vue(attribut));
  };
  const std::string payes = mode(data::ConventionCol::ModeCP);
  const std::string anciennete = mode(data::ConventionCol::ModeAnciennete);
  const auto modeDelai = convention.Vue(data::ConventionCol::ModeDelaiPrev);
  const std::string delai =
      modeDelai == ModeOuvres || modeDelai == ModeOuvrables ? jours(modeDelai) : payes;
  Etq_JOAcquis.SetLibelle(payes + " acquis");
  Etq_JORestants.SetLibelle(payes + " restants");
  Etq_CAAcquis.SetLibelle(anciennete + " acquis");
  Etq_CARestants.SetLibelle(anciennete + " restants");
  Etq_CDPAcquis.SetLibelle(delai + " acquis");
  Etq_CDPRestants.SetLibelle(delai + " restants");

  const bool avecDelai = !administratif && !editeur_.origine.Particuliers();
  Cdr_DelaiPrev.SetEnabled(avecDelai);
  Cmd_Detail.SetEnabled(avecDelai && !Creation());
  if (avecDelai) return;
  Txt_CDPAcquis.SetText("0");
  Txt_CDPRestants.SetText("0");
}

// Only a private employer provisions leave here.
void OngletConges::SelonConvention(const std::string& convention) {
  screen::Montrer({&Etq_ProvisionCP, &Txt_ProvisionCP, &Etq_ProvisionCours, &Txt_ProvisionCours},
                  convention == data::ConventionParticuliers);
}

// Agreement and status of a new contract are chosen after the tab was first prepared.
void OngletConges::Entrer() {
  SelonDecompte();
}

void OngletConges::Vider_Ong() {
  montre_ = data::CItem();
  Etq_PeriodeConges.SetLibelle("");
  Grise_Conges();
}

void OngletConges::Activer(bool actifs) {
  screen::Activer(
      {&Txt_CFConsoAcqContrat, &Txt_CPRestConsoContrat, &Txt_CFRestConsoContrat,
       &Txt_CPCoursJContrat, &Txt_CPCoursHContrat, &Txt_CPCoursMContrat, &Txt_CAncAcqContrat,
       &Txt_CAncRestContrat, &Txt_JrOuvrHContrat, &Txt_JrOuvrMContrat},
      actifs);
}

// Fields.

data::Monnaie OngletConges::Valeur(const screen::TextField& champ) const {
  return data::Monnaie::Valeur(champ.Text());
}

bool OngletConges::AvecSeparateur(const screen::TextField& champ) const {
  return champ.Text().find(Session().Lib.DecimalSeparator()) != std::string::npos;
}

void OngletConges::Ouvrer(const screen::TextField& ouvrable, screen::TextField& ouvree) const {
  if (ouvrable.Text().empty()) return;
  const data::Monnaie valeur =
      Valeur(ouvrable) * data::Monnaie::Entier(6) / data::Monnaie::Entier(5);
  ouvree.SetText(valeur.Texte(2, Session().Lib.DecimalSeparator()));
}

void OngletConges::QuitterDemiJournee(screen::TextField& champ, const char* message,
                                      screen::TextField& repris) {
  if (Valeur(champ).EntierOuDemi()) return;
  Message(message, screen::Icone::Exclamation);
  repris.SetText("");
  repris.SetFocus();
}

void OngletConges::QuitterAnticipation() {
  QuitterDemiJournee(Txt_JourAnticipation, Anticipation, Txt_JourAnticipation);
  if (Valeur(Txt_JourAnticipation).PartieEntiere() <= Valeur(Txt_CPCoursJContrat).PartieEntiere()) {
    return;
  }
  Message(TropDAnticipation, screen::Icone::Exclamation);
  Txt_JourAnticipation.SetText("");
  Txt_JourAnticipation.SetFocus();
}

void OngletConges::MettreZero() {
  const std::pair<screen::TextField*, const FormeNombre*> champs[] = {
      {&Txt_CPConsoAcqContrat, &Jours},
      {&Txt_CPRestConsoContrat, &JoursSignes},
      {&Txt_CFConsoAcqContrat, &JoursEntiers},
      {&Txt_CFRestConsoContrat, &Jours},
      {&Txt_JrOuvrHContrat, &Heures},
      {&Txt_JrOuvrMContrat, &Heures},
      {&Txt_CPCoursJContrat, &JoursEntiers},
      {&Txt_CPCoursHContrat, &Heures},
      {&Txt_CPCoursMContrat, &Montant},
      {&Txt_CAncAcqContrat, &JoursEntiers},
      {&Txt_CAncRestContrat, &Jours},
      {&Txt_JourAnticipation, &Jours},
      {&Txt_CDPAcquis, &JoursEntiers},
      {&Txt_CDPRestants, &Jours},
      {&Txt_ProvisionCP, &Montant},
      {&Txt_ProvisionCours, &Montant}};
  for (const auto& [champ, forme] : champs) {
    if (champ->Text().empty()) {
      champ->SetText(session::formater(Session().Lib, "0", *forme).value_or("0"));
    }
  }
}

// Writing.

void OngletConges::Ecrire_Ong4() {
  data::CItem& contrat = Contrat();
  MettreZero();
  const bool delai = Cdr_DelaiPrev.Enabled();
  const bool provisions = Txt_ProvisionCP.Visible();
  compteurs_.Ecrire(Session().Lib, contrat);
  if (delai) delai_.Ecrire(Session().Lib, contrat);
  if (provisions) provisions_.Ecrire(Session().Lib, contrat);
  if (!Creation()) EcrireLiens();

  const auto change = [&](std::span<const int> attributs) {
    for (const int a : attributs) {
      if (contrat.Vue(a) != montre_.Vue(a)) return true;
    }
    return false;
  };
  const bool touche = Creation() || change(Compteurs) || (delai && change(Delai)) ||
                      (provisions && change(Provisions));
  if (!touche) return;
  const auto zeros = [&](std::span<const int> attributs) {
    for (const int a : attributs) {
      if (contrat.Vue(a).empty()) contrat.Set(a, "0");
    }
  };
  zeros(Compteurs);
  if (delai) zeros(Delai);
  if (provisions) zeros(Provisions);
}

// Dialogs.

void OngletConges::Cmd_Conges_Click() {
  const auto nomme = editeur_.origine.Nomme();
  dialogs::Frm_Ventilation(editeur_.Services(),
                           {Session().CodeAidant, Session().NomPrenomAidant, nomme.code,
                            nomme.libelle, Dossier().CleContratCourant})
      .Ouvrir(editeur_);
}

void OngletConges::Cmd_Detail_Click() {
  const auto& origine = editeur_.origine;
  dialogs::Frm_DetailCongesDelPrev(
      editeur_.Services(),
      {Session().CodeAidant, origine.Entite(), origine.Employeur(), Contrat()(C::PeriodeTraitee)})
      .Ouvrir(editeur_);
}

}  // namespace editor
