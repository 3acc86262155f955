#include "editor/etat_enregistre.h"

namespace editor {

namespace {

std::string creation(const session::Dossier& dossier) {
  const std::string cle = dossier.Session.CodeAidant + dossier.Tente.numero;
  data::CItem contrat;
  if (dossier.Tente.numero.empty() || !dossier.Session.F_CONTRAT.Lire(cle, contrat)) {
    return "Rien n'a été enregistré de ce contrat.";
  }
  return "Le contrat " + cle +
         " est dans le fichier, avec le compteur de l'aidant ; la suite de cet enregistrement n'y "
         "est pas encore. Enregistrez de nouveau pour la compléter, ou quittez la création pour "
         "l'annuler.";
}

std::string modification(const session::Dossier& dossier) {
  const std::string& cle = dossier.CleContratCourant;
  data::CItem contrat;
  const bool ecrit =
      dossier.Session.F_CONTRAT.Lire(cle, contrat) && contrat.Text() == dossier.ItemContrat.Text();
  if (!ecrit) return "Le contrat " + cle + " reste tel qu'il était dans le fichier.";
  return "Le contrat " + cle +
         " est dans le fichier tel qu'à l'écran ; la suite de cet enregistrement n'y est pas "
         "encore. Enregistrez de nouveau pour la compléter.";
}

std::string ceQuiReste(const session::Dossier& dossier) {
  data::Route::Interrompre();
  try {
    return "\r\n\r\n" + (dossier.ModeCreation ? creation(dossier) : modification(dossier));
  } catch (const data::StoreError&) {
    return {};
  }
}

}  // namespace

void DireCeQuiReste(const session::Dossier& dossier, const std::function<void()>& ecritures) {
  try {
    ecritures();
  } catch (const data::StoreError& erreur) {
    throw data::StoreError(erreur.Numero(), erreur.what() + ceQuiReste(dossier), erreur.Fichier(),
                           erreur.Cle());
  }
}

}  // namespace editor
