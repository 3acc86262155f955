// The workstation that a scenario is played on: its settings, and the suite's controls it has.

#include "pilote/commandes.h"
#include "pilote/pilote.h"

namespace pilote {

void regler(Pilote& pilote, const Commande& c) {
  pilote.Hote().reglages.Ecrire(c.Texte(0), c.Texte(1), c.Texte(2));
}

void installer(Pilote& pilote, const Commande& c) {
  pilote.Hote().controles.Ajouter(c.Texte(0));
}

// What was set on the control and called, in order, since the last time.
void verifierTransmis(Pilote& pilote, const Commande& c) {
  auto* const controle = static_cast<screen::headless::ControleEnregistre*>(
      pilote.Hote().controles.Trouver(c.Texte(0)));
  if (controle == nullptr) pilote.Echouer("un contrôle " + c.Texte(0), "aucun de ce nom");
  std::string transmis;
  for (const std::string& acte : controle->Prendre()) {
    transmis += (transmis.empty() ? "" : " ") + acte;
  }
  if (transmis != c.Texte(1)) pilote.Echouer(c.Texte(1), transmis);
}

}  // namespace pilote
