#include "editor/origine_codes.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"
#include "data/texte.h"
#include "dialogs/frm_civil_aide.h"
#include "editor/editeur.h"
#include "screen/attente.h"
#include "screen/touches.h"

namespace editor {

namespace {

using data::citerDebut;
namespace C = data::Contrat;

// Where the entity ends and the establishment begins in attribute 3.
constexpr int PosEtablissement = 4;

std::string nomComplet(const data::CItem& aide, int premier, int second) {
  return aide(premier) + " " + aide(second);
}

}  // namespace

CodesOrigine::CodesOrigine(Frm_ElementsContrat& editeur, screen::Frame& page,
                           session::Sourdine& sourdine)
    : editeur_(editeur), page_(page), sourdine_(sourdine) {
  Cbo_LibEmplEtabContrat.KeyPress = [this](char32_t& touche) { ChercherEmployeur(touche); };
  Cmd_DetailEmpl.Click = [this] { Cmd_DetailEmpl_Click(); };
}

session::Session& CodesOrigine::Session() const {
  return editeur_.Session();
}

session::RegleCode CodesOrigine::RegleConvention() {
  session::RegleCode regle;
  regle.longueur = LongueurConvention;
  regle.inconnu = "Cette convention collective n'existe pas.";
  regle.avant = [this] { editeur_.AnnoncerConvention(); };
  regle.incomplet = [this] {
    entite_.Vider();
    editeur_.paie.ViderActivites();
    Griser_ComboOng1();
  };
  regle.choisi = [this] { ChoisirConvention(); };
  return regle;
}

session::RegleCode CodesOrigine::RegleEntite() {
  session::RegleCode regle;
  regle.longueur = LongueurEntite;
  regle.inconnu = "Cette entité juridique n'existe pas.";
  regle.avant = [this] { ViderEntite(); };
  regle.choisi = [this] { ChoisirEntite(); };
  // An employer belongs to the entity that he was chosen under.
  regle.avantChoix = [this](const std::string& choisie) {
    if (choisie != Entite()) employeur_.Vider();
  };
  return regle;
}

session::RegleCode CodesOrigine::RegleEmployeur() {
  session::RegleCode regle;
  regle.avant = [this] { QuitterEmployeur(); };
  if (Particuliers()) {
    regle.longueur = LongueurParticulier;
    regle.inconnu = "Cet employeur n'existe pas.";
    regle.source = [this](const std::string& code) { return NomEmployeur(code); };
    regle.choisi = [this] {
      Cmd_DetailEmpl.SetEnabled(true);
      editeur_.paie.PrevoyanceEmployeur(Employeur());
    };
  } else {
    regle.longueur = LongueurEtablissement;
    regle.inconnu = "Cet établissement n'existe pas.";
    regle.source = [this](const std::string& code) { return LibelleEtablissement(code); };
  }
  return regle;
}

void CodesOrigine::Remplir_Combos() {
  using namespace data;
  entite_.Remplir(ListeCodes::DeSelection(Requete(fichier::ASSOCIATION)
                                              .Par(Association::Nom)
                                              .Lire(*Session().Db, {Cle, Association::Nom})));
  convention_.Remplir(ListeCodes::DeSelection(
      Requete(fichier::CONVENTIONCOL)
          .Par(ConventionCol::Libelle)
          .Lire(*Session().Db,
                {Cle, ConventionCol::Libelle, ConventionCol::ModeCP, ConventionCol::ModeAnciennete,
                 ConventionCol::PrevoyanceObligatoire})));
}

void CodesOrigine::Activer(bool actifs) {
  screen::Activer(
      {&Txt_AssocContrat, &Cbo_LibAssocContrat, &Txt_EmplEtabContrat, &Cbo_LibEmplEtabContrat},
      actifs);
}

void CodesOrigine::SelonConvention() {
  Etq_EmplEtabContrat.SetLibelle(Particuliers() ? "Employeur" : "Etablissement");
  Cmd_DetailEmpl.SetVisible(Particuliers());
  Cmd_DetailEmpl.SetEnabled(false);
  employeur_.Suivre(RegleEmployeur());
}

void CodesOrigine::AfficherNouveau() {
  screen::Activer({&Txt_ConvColContrat, &Cbo_LibConvColContrat}, true);
  Griser_ComboOng1();
  employeur_.Remplir({});
}

// A code that its table has lost stays in its box, without a label, rather than leave the record.
void CodesOrigine::AfficherExistant() {
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  convention_.Afficher(contrat.Vue(C::Convention),
                       convention_.Lignes().Libelle(contrat.Vue(C::Convention)));
  entite_.Afficher(contrat.Vue(C::Association),
                   entite_.Lignes().Libelle(contrat.Vue(C::Association)));
  editeur_.AnnoncerConvention();
  employeur_.Remplir({});
  const std::string cle = contrat(C::Employeur);
  if (Particuliers()) {
    data::CItem aide;
    const bool connu = Session().F_CIVILAIDE.Lire(cle, aide);
    employeur_.Afficher(
        cle, connu ? nomComplet(aide, data::CivilAide::Nom, data::CivilAide::Prenom) : "");
    Cmd_DetailEmpl.SetEnabled(connu);
  } else {
    data::CItem etablissement;
    Session().F_ETABLISSEMENT.Lire(cle, etablissement);
    employeur_.Afficher(data::milieu(cle, PosEtablissement, LongueurEtablissement),
                        etablissement.Vue(data::Etablissement::Libelle));
  }
  screen::Activer({&Txt_ConvColContrat, &Cbo_LibConvColContrat}, false);
  Griser_ComboOng1();
}

void CodesOrigine::Ecrire(data::CItem& contrat) const {
  contrat.Set(C::Convention, Convention());
  contrat.Set(C::Association, Entite());
  contrat.Set(C::Employeur, (Particuliers() ? "" : Entite()) + Employeur());
}

// All that a known agreement brings with it, then on to the next code.
void CodesOrigine::ChoisirConvention() {
  Degriser_ComboOng1();
  entite_.Vider();
  screen::Activer({&Txt_ConvColContrat, &Cbo_LibConvColContrat}, !Particuliers());
  employeur_.Remplir({});
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  const bool memeGenre = Particuliers() && data::estParticulierEmployeur(contrat);
  employeur_.Choisir(memeGenre ? contrat(C::Employeur) : "");
  editeur_.caracteristiques.ProposerSelonConvention(Convention());
  editeur_.paie.ProposerSelonConvention(Convention());
  (Txt_AssocContrat.Disponible() ? Txt_AssocContrat : Txt_EmplEtabContrat).SetFocus();
}

// An establishment belongs to its entity; a private employer stays while the entity is typed.
void CodesOrigine::ViderEntite() {
  editeur_.paie.ViderActivites();
  editeur_.fin.QuitterEntite();
  if (Particuliers()) return;
  employeur_.Vider();
  employeur_.Remplir({});
}

void CodesOrigine::ChoisirEntite() {
  if (!editeur_.paie.ChoisirEntite(Entite(), Particuliers())) {
    entite_.Refuser();
    return;
  }
  if (!Particuliers()) Remplir_Etablissements();
  editeur_.fin.ChoisirEntite(Entite(), Particuliers());
}

void CodesOrigine::Remplir_Etablissements() {
  using namespace data;
  const CItem liste = Requete(fichier::ETABLISSEMENT)
                          .Avec(Cle, "=", citerDebut(Entite()))
                          .Par(Etablissement::Libelle)
                          .Lire(*Session().Db, {Cle, Etablissement::Libelle});
  std::vector<ListeCodes::Ligne> lignes;
  for (int i = 1; i <= liste.DCount(); ++i) {
    lignes.push_back(
        {milieu(liste.Vue(i, 1), PosEtablissement, LongueurEtablissement), liste(i, 2)});
  }
  const std::string seul = lignes.size() == 1 ? lignes.front().code : "";
  employeur_.Remplir(ListeCodes(std::move(lignes)));
  employeur_.Choisir(seul);
}

void CodesOrigine::QuitterEmployeur() {
  employeur_.Montrer("");
  Cmd_DetailEmpl.SetEnabled(false);
  if (Particuliers()) editeur_.paie.OublierPrevoyance();
  editeur_.origine.RafraichirEmployeur();
}

std::optional<std::string> CodesOrigine::NomEmployeur(const std::string& code) const {
  data::CItem aide;
  if (!Session().F_CIVILAIDE.Lire(code, aide) || aide.Vue(data::CivilAide::Nom).empty()) {
    return std::nullopt;
  }
  return nomComplet(aide, data::CivilAide::Prenom, data::CivilAide::Nom);
}

std::optional<std::string> CodesOrigine::LibelleEtablissement(const std::string& code) const {
  data::CItem etablissement;
  if (!Session().F_ETABLISSEMENT.Lire(Entite() + code, etablissement)) return std::nullopt;
  return etablissement(data::Etablissement::Libelle);
}

// Enter in the label of a private employer searches for the name typed.
void CodesOrigine::ChercherEmployeur(char32_t& touche) {
  if (touche != screen::ToucheEntree || !Particuliers()) return;
  touche = 0;
  // What is left of the name inside a query: quotes and marks are no name.
  const std::string nom = data::sansBlancsAGauche(Cbo_LibEmplEtabContrat.Text());
  if (data::plier(nom).empty()) {
    editeur_.MessageBox("Au moins le premier caractère du nom doit être saisi.",
                        screen::Boutons::Ok, screen::Icone::Exclamation);
    Cbo_LibEmplEtabContrat.SetFocus();
    return;
  }
  Remplir_Aide(nom);
}

void CodesOrigine::Remplir_Aide(const std::string& nom) {
  using namespace data;
  CItem liste;
  {
    screen::Attente attente(editeur_);
    liste = Requete(fichier::CIVILAIDE)
                .Avec("NomPrenomAide", "=", citerDebut(majuscules(nom)))
                .Avec("CodeAideElts")
                .Sans(CivilAide::DateFin)
                .Par(CivilAide::Nom)
                .Lire(*Session().Db, {Cle, CivilAide::Nom, CivilAide::Prenom});
    attente.Finir();
  }
  std::vector<ListeCodes::Ligne> lignes;
  for (int i = 1; i <= liste.DCount(); ++i) {
    lignes.push_back({liste(i, 1), liste(i, 3) + " " + liste(i, 2)});
  }
  const std::string seul = lignes.size() == 1 ? lignes.front().code : "";
  const std::string saisi = Cbo_LibEmplEtabContrat.Text();
  employeur_.Remplir(ListeCodes(std::move(lignes)));
  employeur_.Montrer(saisi);
  if (!seul.empty()) employeur_.Choisir(seul);
  if (liste.Vide()) {
    editeur_.Services().indications.Montrer(
        Cbo_LibEmplEtabContrat, "Aucun employeur en activité dont le nom commence par « " + nom +
                                    " » : saisissez le début du nom de famille.");
  }
}

void CodesOrigine::Cmd_DetailEmpl_Click() {
  dialogs::Frm_CivilAide(editeur_.Services(), Employeur()).Ouvrir(editeur_);
}

}  // namespace editor
