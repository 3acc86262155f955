#include "editor/origine_employeur.h"

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

EmployeurOrigine::EmployeurOrigine(Frm_ElementsContrat& editeur, const CodesOrigine& codes,
                                   screen::Frame& page, session::Sourdine& sourdine)
    : editeur_(editeur), codes_(codes), page_(page), sourdine_(sourdine) {
  Cbo_LibEmplEtabContrat.KeyPress = [this](char32_t& touche) { Chercher(touche); };
  Cmd_DetailEmpl.Click = [this] {
    dialogs::Frm_CivilAide(editeur_.Services(), Code()).Ouvrir(editeur_);
  };
}

session::Session& EmployeurOrigine::Session() const {
  return editeur_.Session();
}

session::RegleCode EmployeurOrigine::Regle() {
  session::RegleCode regle;
  regle.avant = [this] { Quitter(); };
  if (codes_.Particuliers()) {
    regle.longueur = LongueurParticulier;
    regle.inconnu = "Cet employeur n'existe pas.";
    regle.source = [this](const std::string& code) { return NomParticulier(code); };
    regle.choisi = [this] {
      Cmd_DetailEmpl.SetEnabled(true);
      editeur_.paie.Cotisations().PrevoyanceEmployeur(Code());
    };
  } else {
    regle.longueur = LongueurEtablissement;
    regle.inconnu = "Cet établissement n'existe pas.";
    regle.source = [this](const std::string& code) { return LibelleEtablissement(code); };
  }
  return regle;
}

void EmployeurOrigine::SelonConvention() {
  Etq_EmplEtabContrat.SetLibelle(codes_.Particuliers() ? "Employeur" : "Etablissement");
  Cmd_DetailEmpl.SetVisible(codes_.Particuliers());
  Cmd_DetailEmpl.SetEnabled(false);
  employeur_.Suivre(Regle());
}

void EmployeurOrigine::Afficher() {
  employeur_.Remplir({});
  const std::string cle = editeur_.Dossier().ItemContrat(C::Employeur);
  if (codes_.Particuliers()) {
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
}

void EmployeurOrigine::Reprendre() {
  employeur_.Remplir({});
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  const bool memeGenre = codes_.Particuliers() && data::estParticulierEmployeur(contrat);
  employeur_.Choisir(memeGenre ? contrat(C::Employeur) : "");
}

void EmployeurOrigine::Quitter() {
  employeur_.Montrer("");
  Cmd_DetailEmpl.SetEnabled(false);
  if (codes_.Particuliers()) editeur_.paie.Cotisations().PrevoyanceEmployeur("");
  editeur_.origine.RafraichirEmployeur();
}

// Establishments.

void EmployeurOrigine::Remplir_Etablissements() {
  using namespace data;
  const CItem liste = Requete(fichier::ETABLISSEMENT)
                          .Avec(Cle, "=", citerDebut(codes_.Entite()))
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

std::optional<std::string> EmployeurOrigine::LibelleEtablissement(const std::string& code) const {
  data::CItem etablissement;
  if (!Session().F_ETABLISSEMENT.Lire(codes_.Entite() + code, etablissement)) return std::nullopt;
  return etablissement(data::Etablissement::Libelle);
}

// Private employers.

std::optional<std::string> EmployeurOrigine::NomParticulier(const std::string& code) const {
  data::CItem aide;
  if (!Session().F_CIVILAIDE.Lire(code, aide) || aide.Vue(data::CivilAide::Nom).empty()) {
    return std::nullopt;
  }
  return nomComplet(aide, data::CivilAide::Prenom, data::CivilAide::Nom);
}

// Enter in the label of a private employer searches for the name typed.
void EmployeurOrigine::Chercher(char32_t& touche) {
  if (touche != screen::ToucheEntree || !codes_.Particuliers()) return;
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

void EmployeurOrigine::Remplir_Aide(const std::string& nom) {
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

}  // namespace editor
