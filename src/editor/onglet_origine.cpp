// The fields of the first tab and their handlers, those of the codes apart: options, nature, dates,
// buttons.

#include "editor/onglet_origine.h"

#include <algorithm>
#include <utility>

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "dialogs/frm_motif_cdd.h"
#include "dialogs/frm_stage.h"
#include "editor/editeur.h"
#include "editor/origine_civil_aide.h"
#include "session/saisie.h"

namespace editor {

namespace {

// Most characters that can be typed.
constexpr int LongueurDate = 10;
constexpr int LongueurTexte = 30;
constexpr int LongueurLibelle = 60;

// Row n is stored as n + 1.
constexpr const char* Contreparties[] = {"Amplitude journée limitée à 11 heures",
                                         "2 jours de repos", "Paiement des inter-vacations"};

bool estChiffre(char32_t touche) {
  return touche >= U'0' && touche <= U'9';
}

}  // namespace

OngletOrigine::OngletOrigine(Frm_ElementsContrat& editeur)
    : Onglet(editeur, Origine, "Cdr_Ong1"),
      Etq_NumContrat(editeur, "Etq_NumContrat", "N° Contrat", &Page),
      Txt_NumContrat(editeur, "Txt_NumContrat", 3, &Page),
      Etq_ConvColContrat(editeur, "Etq_ConvColContrat", "Conv. Coll.", &Page),
      Txt_ConvColContrat(editeur, "Txt_ConvColContrat", LongueurConvention, &Page),
      Cbo_LibConvColContrat(editeur, "Cbo_LibConvColContrat", true, &Page, LongueurLibelle),
      Etq_AssocContrat(editeur, "Etq_AssocContrat", "Entité juridique", &Page),
      Txt_AssocContrat(editeur, "Txt_AssocContrat", LongueurEntite, &Page),
      Cbo_LibAssocContrat(editeur, "Cbo_LibAssocContrat", true, &Page, LongueurLibelle),
      Etq_EmplEtabContrat(editeur, "Etq_EmplEtabContrat", "Etablissement", &Page),
      Txt_EmplEtabContrat(editeur, "Txt_EmplEtabContrat", LongueurParticulier, &Page),
      Cbo_LibEmplEtabContrat(editeur, "Cbo_LibEmplEtabContrat", true, &Page, LongueurLibelle),
      Cmd_DetailEmpl(editeur, "Cmd_DetailEmpl", "Détail employeur", &Page),
      Cdr_Type(editeur, "Cdr_Type", "Type ", &Page),
      Opt_Indetermine(editeur, "Opt_Indetermine", "Indéterminé", &Cdr_Type),
      Opt_Determine(editeur, "Opt_Determine", "Déterminé", &Cdr_Type),
      Cdr_Salaire(editeur, "Cdr_Salaire", "Salaire ", &Page),
      Opt_Horaire(editeur, "Opt_Horaire", "Horaire", &Cdr_Salaire),
      Opt_Mensuel(editeur, "Opt_Mensuel", "Mensualisé", &Cdr_Salaire),
      Cdr_Fonction(editeur, "Cdr_Fonction", "Statut ", &Page),
      Opt_Administratif(editeur, "Opt_Administratif", "Adm / Ssiad", &Cdr_Fonction),
      Opt_Production(editeur, "Opt_Production", "Production", &Cdr_Fonction),
      Etq_DatDebContrat(editeur, "Etq_DatDebContrat", "Date début", &Page),
      Txt_DatDebContrat(editeur, "Txt_DatDebContrat", LongueurDate, &Page),
      Etq_DatFinContrat(editeur, "Etq_DatFinContrat", "Date fin présumée", &Page),
      Txt_DatFinContrat(editeur, "Txt_DatFinContrat", LongueurDate, &Page),
      Etq_PerEssaiContrat(editeur, "Etq_PerEssaiContrat", "Période Essai", &Page),
      Txt_PerEssaiContrat(editeur, "Txt_PerEssaiContrat", LongueurTexte, &Page),
      Etq_JoursEssai(editeur, "Etq_JoursEssai", "jours", &Page),
      Cac_RenouvEssaiContrat(editeur, "Cac_RenouvEssaiContrat", "Renouvelable", &Page),
      Etq_DureeMinContrat(editeur, "Etq_DureeMinContrat", "Durée minimale", &Page),
      Txt_DureeMinContrat(editeur, "Txt_DureeMinContrat", LongueurTexte, &Page),
      Etq_NatureContrat(editeur, "Etq_NatureContrat", "Nature", &Page),
      Cbo_NatureContrat(editeur, "Cbo_NatureContrat", true, &Page, LongueurLibelle),
      Cmd_Stage(editeur, "Cmd_Stage", "Détails convention stage", &Page),
      Cmd_MotifCDD(editeur, "Cmd_MotifCDD", "Motif C.D.D.", &Page),
      Etq_DateSignConvEmplAide(editeur, "Etq_DateSignConvEmplAide",
                               "Date signature convention emploi aidé", &Page),
      Txt_DateSignConvEmplAide(editeur, "Txt_DateSignConvEmplAide", LongueurDate, &Page),
      Etq_NumRef(editeur, "Etq_NumRef", "N° de référence", &Page),
      Txt_NumRef(editeur, "Txt_NumRef", LongueurTexte, &Page),
      Etq_Contrepartie(editeur, "Etq_Contrepartie", "Contrepartie pour interruption", &Page),
      Cbo_Contrepartie(editeur, "Cbo_Contrepartie", false, &Page) {
  Txt_NumContrat.SetEnabled(false);
  for (const char* contrepartie : Contreparties) Cbo_Contrepartie.AddItem(contrepartie);
  // Before the handlers are tied: the other tabs, which these follow, do not stand yet.
  Opt_Indetermine.SetValue(true);
  Opt_Horaire.SetValue(true);
  Opt_Production.SetValue(true);
  LierCodes();
  LierOptions();
  LierSaisies();
}

void OngletOrigine::LierCodes() {
  Txt_ConvColContrat.Change = [this] { Txt_ConvColContrat_Change(); };
  Txt_AssocContrat.Change = [this] { Txt_AssocContrat_Change(); };
  Txt_EmplEtabContrat.Change = [this] { Txt_EmplEtabContrat_Change(); };
  Txt_ConvColContrat.LostFocus = [this] { convention_.Completer(LongueurConvention); };
  Txt_AssocContrat.LostFocus = [this] { entite_.Completer(LongueurEntite); };
  Txt_EmplEtabContrat.LostFocus = [this] { employeur_.Completer(LongueurEmployeur()); };
  LierListe(Cbo_LibConvColContrat, convention_);
  LierListe(Cbo_LibAssocContrat, entite_);
  LierListe(Cbo_LibEmplEtabContrat, employeur_);
  Cbo_LibEmplEtabContrat.KeyPress = [this](char32_t& touche) {
    Cbo_LibEmplEtabContrat_KeyPress(touche);
  };
  Cmd_DetailEmpl.Click = [this] { Cmd_DetailEmpl_Click(); };
}

void OngletOrigine::LierListe(screen::ComboBox& liste, PaireCode& paire) {
  liste.Click = [this, &paire] {
    if (editeur_.EvenementsActifs) paire.SuivreChoix();
  };
  liste.Change = [this, &paire] {
    if (editeur_.EvenementsActifs) paire.SuivreSaisie();
  };
}

void OngletOrigine::LierOptions() {
  Opt_Determine.Click = [this] { Opt_Determine_Click(); };
  Opt_Indetermine.Click = [this] { MontrerTerme(false); };
  Opt_Horaire.Click = [this] { Opt_Horaire_Click(); };
  Opt_Mensuel.Click = [this] { MontrerLissage(); };
  Opt_Production.Click = [this] { Opt_Fonction_Click(); };
  Opt_Administratif.Click = [this] { Opt_Fonction_Click(); };
}

void OngletOrigine::LierSaisies() {
  Txt_DatDebContrat.LostFocus = [this] { Txt_DatDebContrat_LostFocus(); };
  for (screen::TextField* date : {&Txt_DatFinContrat, &Txt_DateSignConvEmplAide}) {
    date->LostFocus = [this, date] { session::QuitterDate(Session(), *date); };
  }
  Txt_DateSignConvEmplAide.Change = [this] {
    if (editeur_.EvenementsActifs) AdapterReference();
  };
  // Whole days by the keys; a text that stands there, or is pasted, is kept as it is.
  Txt_PerEssaiContrat.KeyPress = [](char32_t& touche) {
    if (touche >= U' ' && !estChiffre(touche)) touche = 0;
  };
  Cbo_NatureContrat.DropDown = [this] { Cbo_NatureContrat_DropDown(); };
  Cbo_NatureContrat.LostFocus = [this] { Cbo_NatureContrat_LostFocus(); };
  Cbo_NatureContrat.Click = [this] { MontrerStage(); };
  Cbo_NatureContrat.Change = [this] { MontrerStage(); };
  Cmd_Stage.Click = [this] { Cmd_Stage_Click(); };
  Cmd_MotifCDD.Click = [this] { Cmd_MotifCDD_Click(); };
}

bool OngletOrigine::Particuliers() const {
  return Txt_ConvColContrat.Text() == data::ConventionParticuliers;
}

// What only a fixed term has.
void OngletOrigine::MontrerTerme(bool determine) {
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &Etq_DatFinContrat, &Txt_DatFinContrat, &Etq_DureeMinContrat, &Txt_DureeMinContrat}) {
    champ->SetVisible(determine);
  }
  OngletFin& fin = editeur_.fin;
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &fin.Etq_DatNotifContrat, &fin.Txt_DatNotifContrat, &fin.Etq_DateFinContrat}) {
    champ->SetEnabled(true);
  }
  fin.Cac_PrecaLibContrat.SetEnabled(determine);
  fin.Cac_PrecaLibContrat.SetValue(determine ? 1 : 0);
}

// Back to a fixed term after a copy made it open-ended: the end that was emptied then comes back.
void OngletOrigine::Opt_Determine_Click() {
  MontrerTerme(true);
  const std::string fin = std::exchange(finAvant_, {});
  if (Txt_DatFinContrat.Text().empty()) Txt_DatFinContrat.SetText(fin);
}

void OngletOrigine::Opt_Horaire_Click() {
  editeur_.caracteristiques.Cac_Lissage.SetValue(0);
  MontrerLissage();
}

// Hours that are paid as they are worked are not evened out, nor are those of administrative staff.
void OngletOrigine::MontrerLissage() {
  const bool lissage = Opt_Mensuel.Value() && Opt_Production.Value();
  editeur_.caracteristiques.Cdr_Lissage.SetVisible(lissage);
  editeur_.caracteristiques.Cmd_SuiviAnnuel.SetVisible(lissage);
}

// Opt_Production_Click and Opt_Administratif_Click.
void OngletOrigine::Opt_Fonction_Click() {
  MontrerRepartition();
  MontrerLissage();
}

// Administrative staff alone split their time over activities by share and period.
void OngletOrigine::MontrerRepartition() {
  const bool parts = Opt_Administratif.Value() && !Particuliers();
  OngletPaie& paie = editeur_.paie;
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &paie.Lst_RepartActContrat, &paie.Txt_RepartActContrat, &paie.Txt_ActiviteContrat,
           &paie.Etq_PeriodeEffet, &paie.Cbo_PeriodeEffetAffichage, &paie.Cmd_AjoutePeriodeEffet}) {
    champ->SetVisible(parts);
  }
}

void OngletOrigine::ChargerNatures() {
  if (ListeNatures.Vide()) Session().F_TABLES.Lire(data::Tables::NatureContrat, ListeNatures);
}

// Natures that can be chosen, and the one that a contract on file has already.
void OngletOrigine::Cbo_NatureContrat_DropDown() {
  if (Cbo_NatureContrat.ListCount() > 0) return;
  ChargerNatures();
  const std::string actuelle =
      Session().ModeCreation ? "" : Session().ItemContrat(data::Contrat::Nature);
  for (int v = 1; v <= ListeNatures.DCount(data::Tables::Codes); ++v) {
    const auto code = ListeNatures.Vue(data::Tables::Codes, v);
    const bool choisissable = ListeNatures.Vue(data::Tables::NatureChoisissables, v) == "O";
    if (choisissable || (!code.empty() && code == actuelle)) {
      Cbo_NatureContrat.AddItem(ListeNatures.Vue(data::Tables::Libelles, v));
    }
  }
}

void OngletOrigine::Cbo_NatureContrat_LostFocus() {
  if (Cbo_NatureContrat.Text().empty()) return;
  Cbo_NatureContrat_DropDown();
  const auto& natures = Cbo_NatureContrat.Rows();
  if (std::find(natures.begin(), natures.end(), Cbo_NatureContrat.Text()) != natures.end()) return;
  editeur_.MessageBox("La nature saisie n'existe pas, veuillez la ressaisir.", screen::Boutons::Ok,
                      screen::Icone::Exclamation);
  Cbo_NatureContrat.SetText("");
  editeur_.Ong_Contrat.SetTab(numero_);
  Cbo_NatureContrat.SetFocus();
}

void OngletOrigine::MontrerStage() {
  Cmd_Stage.SetVisible(Cbo_NatureContrat.Text() == NatureStagiaire);
}

// A subsidised employment has a reference; without its date there is nothing to refer to.
void OngletOrigine::AdapterReference() {
  const bool aide = !Txt_DateSignConvEmplAide.Text().empty();
  if (!aide) Txt_NumRef.SetText("");
  Etq_NumRef.SetEnabled(aide);
  Txt_NumRef.SetEnabled(aide);
}

void OngletOrigine::Txt_DatDebContrat_LostFocus() {
  if (!session::QuitterDate(Session(), Txt_DatDebContrat)) return;
  if (Session().ModeCreation) {
    OngletCaracteristiques& caracteristiques = editeur_.caracteristiques;
    caracteristiques.Txt_DatEffetContrat.SetText(Txt_DatDebContrat.Text());
    caracteristiques.Txt_DatEffetContrat.SetEnabled(false);
    caracteristiques.Txt_AvenantContrat.SetText("0");
    return;
  }
  const auto debut = Session().Lib.LireDate(Txt_DatDebContrat.Text());
  const auto avenant = Session().ItemContrat.Vue(data::Contrat::DateEffet, 2);
  if (!debut || avenant.empty() || *debut < data::entier(avenant)) return;
  editeur_.MessageBox(
      "La date de début de contrat doit être inférieure à la date d'effet du 1er avenant.",
      screen::Boutons::Ok, screen::Icone::Exclamation);
  Txt_DatDebContrat.SetText("");
  Txt_DatDebContrat.SetFocus();
}

void OngletOrigine::Cmd_DetailEmpl_Click() {
  Frm_CivilAide detail(editeur_.Services());
  if (detail.Demarrer(Txt_EmplEtabContrat.Text())) detail.ShowModal();
}

void OngletOrigine::Cmd_MotifCDD_Click() {
  dialogs::Frm_MotifCDD motif(editeur_.Services(), Session());
  motif.DroitsUtilisateur(editeur_.Droits());
  motif.Etq_CodeAidant.SetLibelle(editeur_.Etq_CodeAidant.Libelle());
  motif.Etq_NomPrenomAidant.SetLibelle(editeur_.Etq_NomPrenomAidant.Libelle());
  motif.DateDebut = Txt_DatDebContrat.Text();
  motif.Contexte = {Txt_ConvColContrat.Text(), Txt_AssocContrat.Text(), Txt_EmplEtabContrat.Text()};
  motif.init();
  motif.ShowModal();
}

void OngletOrigine::Cmd_Stage_Click() {
  RendreStage();
  dialogs::Frm_Stage stage(editeur_.Services(), Session());
  stage.DroitsUtilisateur(editeur_.Droits());
  stage.Etq_Aidant.SetLibelle(editeur_.Etq_CodeAidant.Libelle() + " " +
                              editeur_.Etq_NomPrenomAidant.Libelle());
  stage.init();
  stage.ShowModal();
}

}  // namespace editor
