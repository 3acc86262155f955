#include "base/progres.h"

namespace base {
namespace {

constexpr std::chrono::milliseconds Intervalle{200};
constexpr const char* DebutDeLigne = "\r\x1b[K";

// Groups of three digits parted by one blank.
std::string milliers(long nombre) {
  std::string texte = std::to_string(nombre);
  for (std::size_t i = texte.size(); i > 3; i -= 3) texte.insert(i - 3, " ");
  return texte;
}

}  // namespace

Progres::Progres(std::ostream& terminal, bool actif, std::string libelle, Chrono chrono)
    : terminal_(terminal),
      actif_(actif),
      libelle_(std::move(libelle)),
      chrono_(std::move(chrono)),
      prochain_(chrono_() + Intervalle) {}

void Progres::Efface() {
  if (montre_) terminal_ << DebutDeLigne << std::flush;
  montre_ = false;
}

void Progres::Avance(long fait, long total) {
  if (!actif_) return;
  const auto maintenant = chrono_();
  if (maintenant < prochain_) return;
  prochain_ = maintenant + Intervalle;
  terminal_ << DebutDeLigne << libelle_ << " : " << milliers(fait);
  if (total > 0) terminal_ << " sur " << milliers(total) << " (" << fait * 100 / total << " %)";
  terminal_ << std::flush;
  montre_ = true;
}

std::chrono::milliseconds Progres::Ecoule() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace base
