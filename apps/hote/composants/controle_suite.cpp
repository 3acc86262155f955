#include "composants/controle_suite.h"

namespace hote {

void ControleSuite::Regler(const std::string& propriete, const std::string& valeur) {
  std::erase_if(proprietes_, [&](const auto& p) { return p.first == propriete; });
  proprietes_.emplace_back(propriete, valeur);
}

std::string ControleSuite::Recue(const std::string& propriete) const {
  for (const auto& [nom, valeur] : proprietes_) {
    if (nom == propriete) return valeur;
  }
  return "";
}

}  // namespace hote
