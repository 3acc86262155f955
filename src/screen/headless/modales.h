#pragma once
// Modal shows without a display: a function stands for the user of the form that is shown.

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "screen/platform.h"

namespace screen::headless {

// A form for which no user was foreseen, or that its user left open.
class FenetreInattendue : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class ModalesJouees : public Modales {
 public:
  using Utilisateur = std::function<void(Form&)>;

  // The user of the next modal form that has none yet. It must leave the form hidden.
  void Prevoir(Utilisateur utilisateur) { prevus_.push_back(std::move(utilisateur)); }
  // The user of every modal form that was not foreseen one by one.
  void SetPompe(Utilisateur pompe) { pompe_ = std::move(pompe); }

  void Attendre(Form& form) override;
  void MontrerMenu(Form& form, std::string_view menu) override;

  // The names of the forms shown and of the menus asked for, in order.
  const std::vector<std::string>& Montrees() const { return montrees_; }
  const std::vector<std::string>& Menus() const { return menus_; }

 private:
  std::deque<Utilisateur> prevus_;
  Utilisateur pompe_;
  std::vector<std::string> montrees_;
  std::vector<std::string> menus_;
};

}  // namespace screen::headless
