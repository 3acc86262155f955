#include "editor/editeur.h"

#include <algorithm>

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/question.h"

namespace editor {

namespace {

// Buttons that only full rights show; the last two also hang on the contract.
constexpr std::string_view BoutonsDeModification[] = {"Cmd_OK", "Cmd_OKActivite", "Cmd_OKAvenant",
                                                      "Cmd_AjoutAvenant", "Cmd_SupprimerContrat"};
constexpr std::size_t BoutonsDesDroitsSeuls = 3;

// Values of attribute 38 of an entity that uses remote time-tracking.
constexpr std::string_view ServicesTelegestion[] = {"06", "VESPARIO"};

// The entity whose settings hold for a contract not created yet.
constexpr std::string_view PremiereEntite = "001";

bool utiliseTelegestion(const data::CItem& association) {
  const auto service = association.Vue(data::Association::Telegestion);
  return std::find(std::begin(ServicesTelegestion), std::end(ServicesTelegestion), service) !=
         std::end(ServicesTelegestion);
}

}  // namespace

Frm_ElementsContrat::Frm_ElementsContrat(screen::Platform& platform, session::Session& session)
    : Form(platform, "Frm_ElementsContrat", "Contrat de travail"),
      session_(session),
      aide_(platform.aide) {
  LierChamps();
  OuvrirFichiers();
  if (session_.ModeCreation) {
    origine.Griser_ComboOng1();
  } else {
    InitElementContrat();
  }
  session_.F_TABLES.Lire(data::Tables::NatureVoie, session_.ItemTables);
}

Frm_ElementsContrat::~Frm_ElementsContrat() {
  DesinitElementContrat();
}

void Frm_ElementsContrat::LierChamps() {
  Ong_Contrat.Click = [this](int ancien) { Ong_Contrat_Click(ancien); };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  Mnu_Sommaire.Click = [this] { aide_.Sommaire(); };
  Mnu_Aide.SetEnabled(false);
  Mnu_Sommaire.SetEnabled(false);
  Cmd_ImpContrat.SetEnabled(false);
  Cmd_DPAE.SetEnabled(false);
}

void Frm_ElementsContrat::OuvrirFichiers() {
  session_.F_CIVILAIDE = session_.Db->OpenFile(data::fichier::CIVILAIDE);
  F_PCS_ = session_.Db->OpenFile(data::fichier::PCS);
  session_.F_RUBCHARGE = session_.Db->OpenFile(data::fichier::RUBCHARGE);
}

void Frm_ElementsContrat::DroitsUtilisateur(const session::Droits& droits) {
  droits_ = &droits;
  droit_ = droits.Lookup(session::DroitContrat);
}

void Frm_ElementsContrat::InitElementContrat() {
  session_.F_TABLES.Lire(data::Tables::NatureContrat, origine.ListeNatures);
  session_.F_TABLES.Lire(data::Tables::CarteOrange, ItemCarteOrange);
  session_.F_TABLES.Lire(data::Tables::FinContrat, ItemFinContrat);
  if (!session_.CombosRemplis) Remplir_CombosElement();
  Afficher_Donnees();
  if (session_.ModeCreation) {
    caracteristiques.Bdh_Avenant.SetValue(0);
  } else {
    Remplir_Activites();
  }
}

void Frm_ElementsContrat::DesinitElementContrat() {
  for (data::CItem* item : {&session_.ItemContrat, &session_.ItemAssociation,
                            &session_.ItemAidantTte, &ClesAvenants, &ListeActivites}) {
    *item = data::CItem();
  }
}

void Frm_ElementsContrat::Remplir_CombosElement() {
  origine.Remplir_Combos();
  session_.CombosRemplis = true;
}

// The activities of the entity; the private employers' ones alone for production staff.
void Frm_ElementsContrat::Remplir_Activites() {
  const std::string genre = origine.Opt_Administratif.Value() ? "" : " AND AVEC 12 = \"M\"";
  ListeActivites = session_.Db->Selectionner(
      "SSELECT ACTIVITES AVEC 0 = " + data::citerDebut(origine.Txt_AssocContrat.Text()) + genre +
          " PAR 1",
      data::fichier::ACTIVITES, "0 1 12");
  paie.Cbo_Activite.Clear();
  for (int i = 1; i <= ListeActivites.DCount(); ++i) {
    paie.Cbo_Activite.AddItem(ListeActivites.Vue(i, 2));
  }
}

void Frm_ElementsContrat::Afficher_Donnees() {
  DateFinRefusee = false;
  FermetureAutorisee = 0;
  if (session_.EtatSuppAidant) fin.Txt_DateFinContrat.SetEnabled(false);
  ClesAvenants = data::CItem();
  if (session_.ModeCreation) caracteristiques.Cmd_AjoutAvenant.SetVisible(false);
  origine.Afficher_Ong1();
  // A new contract counts as loaded everywhere.
  Ong2Charge = Ong3Charge = Ong4Charge = session_.ModeCreation;
  Ong5Charge = true;
  Services().curseur.Attente(false);
  for (screen::Label* etiquette :
       {&conges.Etq_Conges_0, &conges.Etq_Conges_1, &conges.Etq_Conges_2, &conges.Etq_Conges_3}) {
    etiquette->SetVisible(true);
  }
}

void Frm_ElementsContrat::init() {
  for (std::size_t i = 0; i < std::size(BoutonsDeModification); ++i) {
    if (!DroitComplet() || i < BoutonsDesDroitsSeuls) {
      Find(BoutonsDeModification[i])->SetVisible(DroitComplet());
    }
  }
  ValidationEnCours = false;
  EcritureVerifiee = false;
  SuiviModifie = false;
  LiensDejaCrees = false;
  enregistrement_.Commencer();
  if (session_.ItemAssociation.Vide()) {
    const std::string cle = session_.ModeCreation
                                ? std::string(PremiereEntite)
                                : session_.ItemContrat(data::Contrat::Association);
    session_.F_ASSOCIATION.Lire(cle, session_.ItemAssociation);
  }
  const bool telegestion = utiliseTelegestion(session_.ItemAssociation);
  paie.Cmd_Telegestion.SetVisible(telegestion);
  if (telegestion) paie.Cmd_Telegestion.SetEnabled(true);
  session_.ItemAidantTte = data::CItem();
  PeriodeBulletinInitiale = session_.ItemContrat(data::Contrat::DernierBulletin);
  Cmd_DPAE.SetVisible(!session_.ModeCreation);
  Cmd_DPAE.SetLibelle(data::estParticulierEmployeur(session_.ItemContrat) ? "D.E.F." : "DPAE");
}

rules::Portee Frm_ElementsContrat::Portee() const {
  const std::string numero =
      session_.ModeCreation ? enregistrement_.NumeroContrat() : origine.Txt_NumContrat.Text();
  return {Etq_CodeAidant.Libelle(), numero, origine.Txt_ConvColContrat.Text(),
          origine.Txt_AssocContrat.Text(), origine.Txt_EmplEtabContrat.Text()};
}

rules::Dates Frm_ElementsContrat::Dates() const {
  rules::Dates dates;
  dates.debut = session_.Lib.LireDate(origine.Txt_DatDebContrat.Text()).value_or(0);
  const auto finSurFichier = session_.ItemContrat.Vue(data::Contrat::DateFin);
  if (!finSurFichier.empty()) dates.fin = data::entier(finSurFichier);
  return dates;
}

bool Frm_ElementsContrat::ConventionParticuliers() const {
  return origine.Txt_ConvColContrat.Text() == data::ConventionParticuliers;
}

bool Frm_ElementsContrat::AccepterDateFin() {
  std::optional<rules::Refus> refus;
  {
    screen::Attente attente(*this);
    DateFinRefusee = false;
    refus = rules::Verif_SuppDateFin(*session_.Db, Portee(), Dates());
    attente.Finir();
  }
  if (!refus) return true;
  DateFinRefusee = true;
  MessageBox(refus->texte, screen::Boutons::Ok, refus->icone);
  fin.Txt_DernBullContrat.SetText("");
  return false;
}

void Frm_ElementsContrat::Activate() {
  EvenementsActifs = true;
  if (origine.Txt_ConvColContrat.Enabled()) origine.Txt_ConvColContrat.SetFocus();
}

void Frm_ElementsContrat::MouseDown(int bouton) {
  if (bouton != session::BoutonDroit) return;
  Mnu_Aide.SetEnabled(true);
  Mnu_Sommaire.SetEnabled(true);
  Services().modales.MontrerMenu(*this, Mnu_Aide.Nom());
}

}  // namespace editor
