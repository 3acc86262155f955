// The employer of the first tab: an establishment of the entity, or the person helped, who can be
// searched for by name.

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/question.h"
#include "data/texte.h"
#include "editor/editeur.h"
#include "editor/origine_listes.h"
#include "screen/attente.h"

namespace editor {

using screen::Boutons, screen::Icone;

int OngletOrigine::LongueurEmployeur() const {
  return Particuliers() ? LongueurParticulier : LongueurEtablissement;
}

void OngletOrigine::Txt_EmplEtabContrat_Change() {
  if (!editeur_.EvenementsActifs) return;
  employeur_.Controler([this] {
    employeur_.Montrer("");
    Cmd_DetailEmpl.SetEnabled(false);
    if (Particuliers()) ViderPrevoyance();
    if (data::longueur(Txt_EmplEtabContrat.Text()) >= LongueurEmployeur()) {
      Particuliers() ? LireParticulier() : LireEtablissement();
    }
    RafraichirEmployeur();
  });
}

void OngletOrigine::LireParticulier() {
  session::Session& s = Session();
  if (!s.F_CIVILAIDE.Lire(Txt_EmplEtabContrat.Text(), s.ItemCivilAide) ||
      s.ItemCivilAide.Vue(data::CivilAide::Nom).empty()) {
    editeur_.MessageBox("Cet employeur n'existe pas.", Boutons::Ok, Icone::Information);
    employeur_.Refuser();
    return;
  }
  employeur_.Montrer(s.ItemCivilAide(data::CivilAide::Prenom) + " " +
                     s.ItemCivilAide(data::CivilAide::Nom));
  Cmd_DetailEmpl.SetEnabled(true);
  LirePrevoyanceEmployeur();
}

void OngletOrigine::LireEtablissement() {
  session::Session& s = Session();
  const std::string cle = Txt_AssocContrat.Text() + Txt_EmplEtabContrat.Text();
  if (!s.F_ETABLISSEMENT.Lire(cle, s.ItemEtablissement)) {
    editeur_.MessageBox("Cet établissement n'existe pas.", Boutons::Ok, Icone::Information);
    employeur_.Refuser();
    return;
  }
  employeur_.Montrer(s.ItemEtablissement.Vue(data::Etablissement::Libelle));
}

// The provident contract that the private employer has, unless it has run out.
void OngletOrigine::LirePrevoyanceEmployeur() {
  session::Session& s = Session();
  data::CItem elements;
  s.Db->OpenFile(data::fichier::ELTSPARTEMP).Lire(Txt_EmplEtabContrat.Text(), elements);
  const std::string code = elements(data::EltsPartEmp::ContratPrev);
  const auto fin = elements.Vue(data::EltsPartEmp::DateFinPrev);
  const long long limite = s.ModeCreation
                               ? editeur_.Services().poste.Aujourdhui()
                               : data::entier(s.ItemContrat.Vue(data::Contrat::DateDebut));
  if (!fin.empty() && data::entier(fin) < limite) return;
  if (!s.F_CONTRATSPREV.Lire(code, s.ItemContratsPrev)) return;
  ListePrev = Liste::uneLigne(code, s.ItemContratsPrev.Vue(data::ContratsPrev::LibelleParticulier));
  Liste::remplir(editeur_.paie.Cbo_LibPrevContrat, ListePrev);
  editeur_.paie.Cbo_LibPrevContrat.SetListIndex(0);
  editeur_.paie.Txt_PrevContrat.SetText(code);
  PrevContratPrecedent = code;
}

// The dates of a contract on file are always open; those of a new one until payroll processes it.
void OngletOrigine::RafraichirEmployeur() {
  const bool libre =
      !Session().ModeCreation || Session().ItemContrat.Vue(data::Contrat::PeriodeTraitee).empty();
  Txt_DatDebContrat.SetEnabled(libre);
  Txt_DatFinContrat.SetEnabled(libre);
}

// Enter in the label of a private employer searches for the name typed.
void OngletOrigine::Cbo_LibEmplEtabContrat_KeyPress(char32_t& touche) {
  if (touche != screen::ToucheEntree || !Particuliers()) return;
  touche = 0;
  // What is left of the name inside a query: quotes and marks are no name.
  const std::string nom = data::sansBlancsAGauche(Cbo_LibEmplEtabContrat.Text());
  if (data::citerDebut(nom) == data::citerDebut("")) {
    editeur_.MessageBox("Au moins le premier caractère du nom doit être saisi.", Boutons::Ok,
                        Icone::Exclamation);
    Cbo_LibEmplEtabContrat.SetFocus();
    return;
  }
  Remplir_Aide(nom);
}

void OngletOrigine::Remplir_Aide(const std::string& nom) {
  data::CItem liste;
  {
    screen::Attente attente(editeur_);
    liste = Session().Db->Selectionner(
        "SSELECT CIVILAIDE AVEC NomPrenomAide = " + data::citerDebut(data::majuscules(nom)) +
            " AND AVEC CodeAideElts AND SANS 43 PAR 2",
        data::fichier::CIVILAIDE, "0 2 3");
    attente.Finir();
  }
  std::vector<PaireCode::Ligne> lignes;
  for (int i = 1; i <= liste.DCount(); ++i) {
    lignes.push_back({liste(i, 1), liste(i, 3) + " " + liste(i, 2)});
  }
  const std::string seul = lignes.size() == 1 ? lignes.front().code : "";
  const std::string saisi = Cbo_LibEmplEtabContrat.Text();
  employeur_.Remplir(std::move(lignes));
  employeur_.Montrer(saisi);
  if (!seul.empty()) Txt_EmplEtabContrat.SetText(seul);
}

}  // namespace editor
