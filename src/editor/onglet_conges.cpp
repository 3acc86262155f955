#include "editor/onglet_conges.h"

#include <algorithm>

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
using session::FormeNombre;

constexpr FormeNombre Jours{5, 2, false, FormeNombre::Serree};
constexpr FormeNombre JoursSignes{4, 2, true, FormeNombre::Serree};
constexpr FormeNombre JoursEntiers{5, 0, false, FormeNombre::Serree};
constexpr FormeNombre Heures{5, 2, false, FormeNombre::Serree};
constexpr FormeNombre Montant{7, 2, false, FormeNombre::Serree};
constexpr int Tel = 0;  // on file as it is typed
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

}  // namespace

OngletConges::OngletConges(Frm_ElementsContrat& editeur)
    : Onglet(editeur, DroitsConges, "Cdr_Ong4"),
      compteurs_(Session(), Compteurs()),
      delai_(Session(), CompteursDelai()),
      provisions_(Session(), Provisions()) {
  screen::Activer({&Txt_JrOuvreHContrat, &Txt_JrOuvreMContrat}, false);
  Txt_JrOuvrHContrat.Change = [this] { Ouvrer(Txt_JrOuvrHContrat, Txt_JrOuvreHContrat); };
  Txt_JrOuvrMContrat.Change = [this] { Ouvrer(Txt_JrOuvrMContrat, Txt_JrOuvreMContrat); };
  Cmd_Conges.Click = [this] { Cmd_Conges_Click(); };
  Cmd_Detail.Click = [this] { Cmd_Detail_Click(); };
}

std::vector<Compteur> OngletConges::Compteurs() {
  return {
      {Txt_CPConsoAcqContrat, C::CPAcquis, Jours, Centiemes, Acquis, &Txt_CPConsoAcqContrat},
      {Txt_CPRestConsoContrat, C::CPRestants, JoursSignes, Centiemes, Restants,
       &Txt_CPRestConsoContrat},
      {Txt_CFConsoAcqContrat, C::FractionnementAcquis, JoursEntiers, Tel},
      {Txt_CFRestConsoContrat, C::FractionnementRestants, Jours, Centiemes, Restants,
       &Txt_CFRestConsoContrat},
      {Txt_JrOuvrHContrat, C::ValeurJourHeures, Heures},
      {Txt_JrOuvrMContrat, C::ValeurJourMontant, Heures},
      {Txt_CPCoursJContrat, C::CPEnCoursJours, JoursEntiers},
      {Txt_CPCoursHContrat, C::CPEnCoursHeures, Heures},
      {Txt_CPCoursMContrat, C::CPEnCoursMontant, Montant},
      {Txt_CAncAcqContrat, C::AncienneteAcquis, JoursEntiers, Tel},
      {Txt_CAncRestContrat, C::AncienneteRestants, Jours, Centiemes, EnCours, &Txt_CAncRestContrat},
      {Txt_JourAnticipation, C::JoursAnticipation, Jours, Centiemes, Anticipation,
       &Txt_JourAnticipation, [this] { QuitterAnticipation(); }}};
}

// A refused rest of notice-period leave sends back to that of seniority leave: users know it so.
std::vector<Compteur> OngletConges::CompteursDelai() {
  return {{Txt_CDPRestants, C::DelaiPrevRestants, Jours, Centiemes, EnCours, &Txt_CAncRestContrat},
          {Txt_CDPAcquis, C::DelaiPrevAcquis, JoursEntiers, Tel}};
}

std::vector<Compteur> OngletConges::Provisions() {
  return {{Txt_ProvisionCP, C::ProvisionCP, Montant},
          {Txt_ProvisionCours, C::ProvisionEnCours, Montant}};
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
  for (CompteursConges* const groupe : {&compteurs_, &delai_, &provisions_}) {
    groupe->Montrer(montre_);
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

void OngletConges::QuitterAnticipation() {
  if (Valeur(Txt_JourAnticipation).PartieEntiere() <= Valeur(Txt_CPCoursJContrat).PartieEntiere()) {
    return;
  }
  Message(TropDAnticipation, screen::Icone::Exclamation);
  Txt_JourAnticipation.SetText("");
  Txt_JourAnticipation.SetFocus();
}

void OngletConges::MettreZero() {
  for (const CompteursConges* const groupe : {&compteurs_, &delai_, &provisions_}) {
    groupe->MettreZero();
  }
}

// Writing.

void OngletConges::Ecrire_Ong4() {
  MettreZero();
  std::vector<const CompteursConges*> groupes{&compteurs_};
  if (Cdr_DelaiPrev.Enabled()) groupes.push_back(&delai_);
  if (Txt_ProvisionCP.Visible()) groupes.push_back(&provisions_);
  data::CItem& contrat = Contrat();
  for (const auto* const groupe : groupes) groupe->Ecrire(contrat);
  if (!Creation()) EcrireLiens();
  const auto touche = [&](const auto* groupe) { return groupe->Touches(contrat, montre_); };
  if (!Creation() && std::none_of(groupes.begin(), groupes.end(), touche)) return;
  for (const auto* const groupe : groupes) groupe->Completer(contrat);
}

// Dialogs.

void OngletConges::Cmd_Conges_Click() {
  const auto nomme = editeur_.origine.Codes().Nomme();
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
