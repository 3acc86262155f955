#include "screen/headless/modales.h"

#include "screen/form.h"

namespace screen::headless {

void ModalesJouees::Attendre(Form& form) {
  const std::string nom = form.Nom();
  montrees_.push_back(nom);
  Utilisateur utilisateur = pompe_;
  if (!prevus_.empty()) {
    utilisateur = std::move(prevus_.front());
    prevus_.pop_front();
  }
  if (!utilisateur) throw FenetreInattendue("fenêtre inattendue : " + nom);
  const auto vie = form.Vie();
  utilisateur(form);
  if (!vie.expired() && form.Visible()) {
    throw FenetreInattendue("fenêtre laissée ouverte : " + nom);
  }
}

void ModalesJouees::MontrerMenu(Form&, std::string_view menu) {
  menus_.emplace_back(menu);
}

}  // namespace screen::headless
