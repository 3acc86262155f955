#include "dialogs/forme_hebergee.h"

#include "screen/attente.h"

namespace dialogs {

FormeHebergee::FormeHebergee(screen::Platform& platform, std::string nom, std::string titre,
                             const Hebergement& hebergement)
    : Form(platform, std::move(nom), std::move(titre)),
      hebergement_(hebergement),
      controle_(platform.controles.Trouver(hebergement.controle)) {}

bool FormeHebergee::Ouvrir(screen::Form& appelante) {
  if (controle_ == nullptr) {
    appelante.MessageBox(hebergement_.absent, screen::Boutons::Ok, screen::Icone::Exclamation);
    return false;
  }
  {
    screen::Attente attente(appelante);
    for (const Propriete& p : Contexte()) controle_->Regler(p.nom, p.valeur);
    controle_->Appeler("init");
    attente.Finir();
  }
  ShowModal();
  return true;
}

bool FormeHebergee::QueryUnload() {
  if (controle_ == nullptr) return true;
  const std::string reponse = controle_->Lire(hebergement_.sortie);
  return hebergement_.liberee != nullptr ? reponse == hebergement_.liberee
                                         : reponse != hebergement_.retenue;
}

}  // namespace dialogs
