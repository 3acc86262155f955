// The first codes of the first tab, agreement and entity, and what each of them means for the other
// tabs.

#include <algorithm>

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/question.h"
#include "data/texte.h"
#include "editor/editeur.h"
#include "editor/origine_listes.h"

namespace editor {

namespace {

using screen::Boutons, screen::Icone;

// Agreements with an entry rule of their own.
constexpr std::string_view ConventionContrepartie = "01";
constexpr std::string_view ConventionsDroitPublic[] = {"07", "08", "09"};

// The profession proposed: home help, for an entity or for a private employer.
constexpr const char* CategoriePCS = "56";
constexpr const char* FonctionEntite = "563b";
constexpr const char* FonctionParticulier = "563c";

// The one retirement body of private employers' staff, which is its own code.
constexpr const char* RetraiteParticuliers = "IRCEM";

constexpr const char* PartEntiere = "100";

}  // namespace

void OngletOrigine::Griser_ComboOng1() {
  ActiverCodes(false);
}

void OngletOrigine::Degriser_ComboOng1() {
  ActiverCodes(true);
}

void OngletOrigine::ActiverCodes(bool actifs) {
  for (screen::Field* champ :
       std::initializer_list<screen::Field*>{&Txt_AssocContrat, &Cbo_LibAssocContrat,
                                             &Txt_EmplEtabContrat, &Cbo_LibEmplEtabContrat}) {
    champ->SetEnabled(actifs);
  }
}

// Agreement.

void OngletOrigine::Txt_ConvColContrat_Change() {
  if (!editeur_.EvenementsActifs) return;
  convention_.Controler([this] {
    const std::string& code = Txt_ConvColContrat.Text();
    MontrerSelonConvention();
    if (data::longueur(code) < LongueurConvention) {
      convention_.Montrer("");
      entite_.Vider();
      editeur_.paie.Lst_ActiviteContrat.Clear();
      editeur_.paie.Lst_RepartActContrat.Clear();
      Griser_ComboOng1();
      return;
    }
    const int ligne = Liste::chercher(ListeConvCol, code);
    if (ligne == 0) {
      editeur_.MessageBox("Cette convention collective n'existe pas.", Boutons::Ok,
                          Icone::Information);
      convention_.Refuser();
      return;
    }
    convention_.Montrer(ListeConvCol.Vue(ligne, Liste::Libelle));
    ChoisirConvention();
  });
}

// All that a known agreement brings with it, then on to the next code.
void OngletOrigine::ChoisirConvention() {
  Degriser_ComboOng1();
  entite_.Vider();
  AdapterConvention();
  Txt_ConvColContrat.SetEnabled(!Particuliers());
  Cbo_LibConvColContrat.SetEnabled(!Particuliers());
  Proposer_PCS();
  if (Session().ModeCreation) Proposer_Conges();
  employeur_.Remplir({});
  const data::CItem& contrat = Session().ItemContrat;
  const bool memeGenre = Particuliers() && data::estParticulierEmployeur(contrat);
  Txt_EmplEtabContrat.SetText(memeGenre ? contrat(data::Contrat::Employeur) : "");
  Remplir_Grilles();
  if (!Particuliers()) Proposer_Prevoyance();
  const bool entite = Session().ModeCreation && Txt_AssocContrat.Disponible();
  (entite ? Txt_AssocContrat : Txt_EmplEtabContrat).SetFocus();
}

// Fields that some agreements alone have, whether or not the code is complete.
void OngletOrigine::MontrerSelonConvention() {
  const std::string& code = Txt_ConvColContrat.Text();
  const auto* const fin = std::end(ConventionsDroitPublic);
  editeur_.caracteristiques.Cmd_ElemDrtPub.SetVisible(
      std::find(std::begin(ConventionsDroitPublic), fin, code) != fin);
  const bool contrepartie = code == ConventionContrepartie;
  Etq_Contrepartie.SetVisible(contrepartie);
  Cbo_Contrepartie.SetVisible(contrepartie);
  if (!contrepartie) Cbo_Contrepartie.SetListIndex(-1);
}

// The looks of the editor under this agreement; no value changes.
void OngletOrigine::AdapterConvention() {
  const bool particuliers = Particuliers();
  OngletPaie& paie = editeur_.paie;
  for (screen::Field* champ :
       std::initializer_list<screen::Field*>{&paie.Cdr_RegimePrev, &paie.Etq_PrevContrat,
                                             &paie.Txt_PrevContrat, &paie.Cbo_LibPrevContrat}) {
    champ->SetEnabled(!particuliers);
  }
  paie.Cac_PaieSalContrat.SetVisible(particuliers);
  Etq_EmplEtabContrat.SetLibelle(particuliers ? "Employeur" : "Etablissement");
  Cmd_DetailEmpl.SetVisible(particuliers);
  Cmd_DetailEmpl.SetEnabled(false);
  OngletConges& conges = editeur_.conges;
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &conges.Etq_ProvisionCP, &conges.Txt_ProvisionCP, &conges.Etq_ProvisionCours,
           &conges.Txt_ProvisionCours}) {
    champ->SetVisible(particuliers);
  }
  MontrerRepartition();
}

void OngletOrigine::Proposer_PCS() {
  const data::DbFile pcs = Session().Db->OpenFile(data::fichier::PCS);
  OngletCaracteristiques& caracteristiques = editeur_.caracteristiques;
  data::CItem categorie;
  pcs.Lire(CategoriePCS, categorie);
  caracteristiques.Cbo_CategPCSContrat.SetText(categorie.Vue(data::Pcs::Libelle));
  const std::string code = Particuliers() ? FonctionParticulier : FonctionEntite;
  data::CItem fonction;
  const bool connue = pcs.Lire(code, fonction);
  caracteristiques.Txt_CodPCSContrat.SetText(connue ? code : "");
  caracteristiques.Cbo_FoncPCSContrat.SetText(fonction.Vue(data::Pcs::Libelle));
}

// The leave and payment boxes of a new contract. No agreement holds a default for leave paid
// monthly: it is not, and a private employer then provisions it.
void OngletOrigine::Proposer_Conges() {
  OngletPaie& paie = editeur_.paie;
  paie.Cac_CPMoisContrat.SetValue(0);
  paie.Cac_ProvCP.SetValue(0);
  paie.Cac_ProvCP.SetVisible(Particuliers());
  data::CItem& convention = Session().ItemConventionCol;
  const bool parEntite = Particuliers() &&
                         Session().F_CONVENTIONCOL.Lire(data::ConventionParticuliers, convention) &&
                         convention.Vue(data::ConventionCol::VirementParDefaut) == "1";
  paie.Cac_PaieSalContrat.SetValue(parEntite ? 1 : 0);
}

void OngletOrigine::Remplir_Grilles() {
  Liste::remplir(
      editeur_.caracteristiques.Cbo_GrilleContrat,
      Session().Db->Selectionner(
          "SSELECT GRILLESCC AVEC 0 = " + data::citerDebut(Txt_ConvColContrat.Text()) + " PAR 1",
          data::fichier::GRILLESCC, "0 1"));
}

// The provident contracts of the agreement. Private employers each have their own.
void OngletOrigine::Remplir_Prevoyance() {
  ListePrev = Session().Db->Selectionner(
      "SSELECT CONTRATSPREV AVEC ConvColPrev = " + data::citer(Txt_ConvColContrat.Text()) +
          " AND AVEC 0 <> \"99\"   PAR 1",
      data::fichier::CONTRATSPREV, "0 1");
  Liste::remplir(editeur_.paie.Cbo_LibPrevContrat, ListePrev);
}

void OngletOrigine::Proposer_Prevoyance() {
  ViderPrevoyance();
  Remplir_Prevoyance();
  if (ListePrev.DCount() != 1) return;
  editeur_.paie.Cbo_LibPrevContrat.SetListIndex(0);
  editeur_.paie.Txt_PrevContrat.SetText(ListePrev.Vue(1, Liste::Code));
}

void OngletOrigine::ViderPrevoyance() {
  ListePrev = data::CItem();
  PrevContratPrecedent.clear();
  editeur_.paie.Txt_PrevContrat.SetText("");
  editeur_.paie.Cbo_LibPrevContrat.Clear();
}

// Entity.

void OngletOrigine::Txt_AssocContrat_Change() {
  if (!editeur_.EvenementsActifs) return;
  entite_.Controler([this] {
    ViderEntite();
    const std::string& code = Txt_AssocContrat.Text();
    if (data::longueur(code) < LongueurEntite) return;
    const int ligne = Liste::chercher(ListeAssociations, code);
    if (ligne == 0) {
      editeur_.MessageBox("Cette entité juridique n'existe pas.", Boutons::Ok, Icone::Information);
      entite_.Refuser();
      return;
    }
    entite_.Montrer(ListeAssociations.Vue(ligne, Liste::Libelle));
    if (!Remplir_Activites()) return;
    if (!Particuliers()) Remplir_Etablissements();
    Remplir_OrgRetraite();
    editeur_.fin.Cbo_OrgRetraite.SetListIndex(0);
    editeur_.fin.Txt_OrgRetraite.SetText(ListeOrgRetraite.Vue(1, Liste::Code));
  });
}

void OngletOrigine::ViderEntite() {
  entite_.Montrer("");
  editeur_.ListeActivites = data::CItem();
  editeur_.paie.Cbo_Activite.Clear();
  editeur_.paie.Lst_ActiviteContrat.Clear();
  editeur_.paie.Lst_RepartActContrat.Clear();
  ListeOrgRetraite = data::CItem();
  editeur_.fin.Cbo_OrgRetraite.Clear();
  editeur_.fin.Txt_OrgRetraite.SetText("");
  employeur_.Vider();
  if (!Particuliers()) employeur_.Remplir({});
}

std::string OngletOrigine::QuestionActivites() const {
  std::string genre;
  if (!Opt_Administratif.Value()) {
    genre = Particuliers() ? " AND AVEC 12 = \"M\"" : " AND AVEC 12 <> \"M\"";
  }
  return "SSELECT ACTIVITES AVEC 0 = " + data::citerDebut(Txt_AssocContrat.Text()) + genre +
         " PAR 1";
}

// The entity's activities of the contract's kind. False when a new contract finds none: the entity
// is refused.
bool OngletOrigine::Remplir_Activites() {
  data::CItem& activites = editeur_.ListeActivites;
  activites = Session().Db->Selectionner(QuestionActivites(), data::fichier::ACTIVITES, "0 1 12");
  if (Session().ModeCreation && activites.Vide()) {
    editeur_.MessageBox(Particuliers()
                            ? "L'entité juridique que vous avez sélectionnée n'a pas d'activité "
                              "mandataire, veuillez en sélectionner une autre."
                            : "L'entité juridique que vous avez sélectionnée ne possède que des "
                              "activités mandataires, veuillez en sélectionner une autre.",
                        Boutons::Ok, Icone::Exclamation);
    entite_.Refuser();
    return false;
  }
  OngletPaie& paie = editeur_.paie;
  Liste::remplir(paie.Cbo_Activite, activites);
  if (activites.DCount() == 1) {
    paie.Lst_ActiviteContrat.AddItem(activites.Vue(1, Liste::Libelle));
    if (paie.Lst_RepartActContrat.Visible()) paie.Lst_RepartActContrat.AddItem(PartEntiere);
  }
  return true;
}

void OngletOrigine::Remplir_Etablissements() {
  const data::CItem liste = Session().Db->Selectionner(
      "SSELECT ETABLISSEMENT AVEC 0 = " + data::citerDebut(Txt_AssocContrat.Text()) + " PAR 1",
      data::fichier::ETABLISSEMENT, "0 1");
  std::vector<PaireCode::Ligne> lignes;
  for (int i = 1; i <= liste.DCount(); ++i) {
    lignes.push_back(
        {data::milieu(liste.Vue(i, Liste::Code), LongueurEntite + 1, LongueurEtablissement),
         liste(i, Liste::Libelle)});
  }
  const std::string seul = lignes.size() == 1 ? lignes.front().code : "";
  employeur_.Remplir(std::move(lignes));
  Txt_EmplEtabContrat.SetText(seul);
}

void OngletOrigine::Remplir_OrgRetraite() {
  ListeOrgRetraite =
      Particuliers()
          ? Liste::uneLigne(RetraiteParticuliers, RetraiteParticuliers)
          : Session().Db->Selectionner(
                "SSELECT ORGANISMESOCIAL AVEC 0 = " + data::citerDebut(Txt_AssocContrat.Text()) +
                    " AND AVEC 3 = " + data::citer(data::OrganismeSocial::GenreRetraite) + " PAR 1",
                data::fichier::ORGANISMESOCIAL, "0 1");
  Liste::remplir(editeur_.fin.Cbo_OrgRetraite, ListeOrgRetraite);
  editeur_.fin.Cbo_OrgRetraite.SetEnabled(!Particuliers());
}

}  // namespace editor
