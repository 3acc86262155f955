#include "base/jsonl.h"

#include <algorithm>

namespace base {
namespace {

constexpr std::size_t TailleTampon = std::size_t{64} << 10;
constexpr std::string_view MarqueOrdre = "\xEF\xBB\xBF";

bool estBlanche(std::string_view ligne) {
  return ligne.find_first_not_of(" \t\r") == std::string_view::npos;
}

}  // namespace

bool LecteurJsonl::Suivant(Enregistrement& enregistrement) {
  do {
    if (!LigneSuivante()) return false;
    VerifieLongueur();
  } while (estBlanche(ligne_));
  try {
    enregistrement = lireEnregistrement(ligne_);
  } catch (const RefusJson& refus) {
    throw RefusJson(numero_, refus.Colonne(), refus.what());
  }
  return true;
}

bool LecteurJsonl::LigneSuivante() {
  ligne_.clear();
  longueur_ = 0;
  bool finie = false;
  bool commencee = false;
  while (!finie && (lu_ < tampon_.size() || Remplir())) {
    commencee = true;
    const std::size_t fin = std::min(tampon_.find('\n', lu_), tampon_.size());
    finie = fin < tampon_.size();
    longueur_ += fin - lu_;
    const std::size_t place = longueurMaximale_ - std::min(longueurMaximale_, ligne_.size());
    ligne_.append(tampon_, lu_, std::min(fin - lu_, place));
    lu_ = finie ? fin + 1 : fin;
  }
  if (!commencee) return false;
  ++numero_;
  if (numero_ == 1 && ligne_.compare(0, MarqueOrdre.size(), MarqueOrdre) == 0) {
    ligne_.erase(0, MarqueOrdre.size());
  }
  if (!ligne_.empty() && ligne_.back() == '\r') ligne_.pop_back();
  return true;
}

bool LecteurJsonl::Remplir() {
  if (!entree_.good()) return false;
  tampon_.resize(TailleTampon);
  entree_.read(tampon_.data(), static_cast<std::streamsize>(TailleTampon));
  if (entree_.bad()) throw EntreeIllisible("La lecture s'est interrompue ; vérifiez le support.");
  tampon_.resize(static_cast<std::size_t>(entree_.gcount()));
  lu_ = 0;
  return !tampon_.empty();
}

void LecteurJsonl::VerifieLongueur() const {
  if (longueur_ <= longueurMaximale_) return;
  throw RefusJson(numero_, colonneDe(ligne_, longueurMaximale_),
                  "ligne trop longue : un enregistrement tient en " +
                      std::to_string(longueurMaximale_ >> 20) + " Mio");
}

}  // namespace base
