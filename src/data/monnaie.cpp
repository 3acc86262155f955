#include "data/monnaie.h"

#include <algorithm>
#include <limits>

#include "data/texte.h"

namespace data {

namespace {

__extension__ typedef __int128 Large;

constexpr int decimalesGardees = 4;
constexpr std::int64_t unite = 10000;

constexpr std::int64_t powerOfTen(int n) {
  std::int64_t p = 1;
  while (n-- > 0) p *= 10;
  return p;
}

// a / b, rounded half away from zero; b is not 0.
Large divideRounded(Large a, Large b) {
  const bool negatif = (a < 0) != (b < 0);
  const Large haut = a < 0 ? -a : a;
  const Large bas = b < 0 ? -b : b;
  const Large quotient = haut / bas + (haut % bas * 2 >= bas ? 1 : 0);
  return negatif ? -quotient : quotient;
}

std::int64_t narrowed(Large valeur) {
  using Bornes = std::numeric_limits<std::int64_t>;
  if (valeur < Bornes::min() || valeur > Bornes::max()) {
    throw NombreInvalide("Le résultat du calcul est trop grand. Vérifiez les nombres saisis.");
  }
  return static_cast<std::int64_t>(valeur);
}

std::int64_t readUnits(std::string_view texte, int echelle) {
  if (sansBlancs(texte).empty()) return 0;
  const auto unites = enUnites(texte, echelle);
  if (unites) return *unites;
  const std::string cite = "« " + std::string(texte) + " »";
  throw NombreInvalide(estNombre(texte)
                           ? "Le nombre " + cite + " est trop grand. Saisissez-le à nouveau."
                           : "Le texte " + cite + " n'est pas un nombre. Saisissez-le à nouveau.");
}

// The longest beginning that reads as a number: digits with one separator, after a sign.
std::string_view numericStart(std::string_view texte) {
  std::size_t fin = texte.starts_with('-') || texte.starts_with('+') ? 1 : 0;
  bool separateur = false;
  for (; fin < texte.size(); ++fin) {
    const char c = texte[fin];
    if (c >= '0' && c <= '9') continue;
    if (separateur || (c != ',' && c != '.')) break;
    separateur = true;
  }
  return texte.substr(0, fin);
}

}  // namespace

Monnaie Monnaie::DUnites(std::int64_t unites) {
  Monnaie m;
  m.unites_ = unites;
  return m;
}

Monnaie Monnaie::Entier(std::int64_t nombre) {
  return DUnites(narrowed(static_cast<Large>(nombre) * unite));
}

Monnaie Monnaie::DeTexte(std::string_view texte) {
  return DUnites(readUnits(texte, 4));
}
Monnaie Monnaie::DeCentiemes(std::string_view texte) {
  return DUnites(readUnits(texte, 2));
}
Monnaie Monnaie::DeMilliemes(std::string_view texte) {
  return DUnites(readUnits(texte, 1));
}
Monnaie Monnaie::DeDixMilliemes(std::string_view texte) {
  return DUnites(readUnits(texte, 0));
}

Monnaie Monnaie::Valeur(std::string_view texte) {
  const std::string serre = sansAucunBlanc(texte);
  const std::string_view debut = numericStart(serre);
  return estNombre(debut) ? DeTexte(debut) : Monnaie();
}

std::int64_t Monnaie::Centiemes() const {
  return static_cast<std::int64_t>(divideRounded(unites_, 100));
}

std::int64_t Monnaie::Milliemes() const {
  return static_cast<std::int64_t>(divideRounded(unites_, 10));
}

std::string Monnaie::Texte(int decimales, std::string_view separateur) const {
  const int n = std::clamp(decimales, 0, decimalesGardees);
  const Large arrondi = divideRounded(unites_, powerOfTen(decimalesGardees - n));
  const Large absolue = arrondi < 0 ? -arrondi : arrondi;
  // Below 2 to the power 63 in size, its magnitude fits in 64 bits without sign.
  std::string texte =
      completeAGauche(std::to_string(static_cast<std::uint64_t>(absolue)), n + 1, '0');
  if (n > 0) texte.insert(texte.size() - static_cast<std::size_t>(n), separateur);
  if (arrondi < 0) texte.insert(0, 1, '-');
  return texte;
}

std::string Monnaie::TexteCourt(std::string_view separateur) const {
  int n = decimalesGardees;
  while (n > 0 && unites_ % powerOfTen(decimalesGardees - n + 1) == 0) --n;
  return Texte(n, separateur);
}

Monnaie Monnaie::PartieEntiere() const {
  const std::int64_t reste = ((unites_ % unite) + unite) % unite;
  return DUnites(narrowed(static_cast<Large>(unites_) - reste));
}

bool Monnaie::EntierOuDemi() const {
  return unites_ % (unite / 2) == 0;
}

Monnaie operator+(Monnaie a, Monnaie b) {
  return Monnaie::DUnites(narrowed(static_cast<Large>(a.unites_) + b.unites_));
}

Monnaie operator-(Monnaie a, Monnaie b) {
  return Monnaie::DUnites(narrowed(static_cast<Large>(a.unites_) - b.unites_));
}

Monnaie operator*(Monnaie a, Monnaie b) {
  const Large produit = static_cast<Large>(a.unites_) * b.unites_;
  return Monnaie::DUnites(narrowed(divideRounded(produit, unite)));
}

Monnaie operator/(Monnaie a, Monnaie b) {
  if (b.unites_ == 0) {
    throw NombreInvalide("Division par zéro. Vérifiez les nombres saisis.");
  }
  return Monnaie::DUnites(
      narrowed(divideRounded(static_cast<Large>(a.unites_) * unite, b.unites_)));
}

}  // namespace data
