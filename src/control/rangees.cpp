#include "control/rangees.h"

#include "control/lecteur_lignes.h"
#include "data/layouts/contrat.h"

namespace control {

namespace C = data::Contrat;

void Rangees::Vider() {
  colonnes_.Vider();
  cles_.SetText("");
}

void Rangees::Ajouter(const LigneContrat& ligne) {
  colonnes_.Ajouter(ligne.Textes());
  cles_.Append(ligne.cle);
}

bool Rangees::AjouterEnTete(const std::string& cle) {
  data::CItem contrat;
  if (!session_.F_CONTRAT.Lire(cle, contrat)) return false;
  colonnes_.Inserer(0, LecteurLignes(session_).Lire(contrat).Textes());
  cles_.Insert(1, cle);
  return true;
}

// A contract that was not opened from its row has none to update.
bool Rangees::Actualiser(const std::string& cle) {
  const int ligne = colonnes_.Ligne();
  data::CItem contrat;
  if (Choisie() != cle || ligne < 0 || !session_.F_CONTRAT.Lire(cle, contrat)) return false;
  if (contrat.Vue(C::Annule) == C::MarqueAnnule) {
    colonnes_.Retirer(ligne);
    cles_.Delete(ligne + 1);
    return true;
  }
  colonnes_.Remplacer(ligne, {session_.Lib.DateFromInternal(contrat.Vue(C::DateDebut)),
                              session_.Lib.DateFromInternal(contrat.Vue(C::DateFin))});
  return false;
}

}  // namespace control
