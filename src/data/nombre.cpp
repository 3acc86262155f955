#include "data/nombre.h"

#include <algorithm>
#include <limits>

#include "data/texte.h"

namespace data {

namespace {

bool isSeparator(char c) {
  return c == ',' || c == '.';
}

void cutLeadingZeros(std::string& chiffres) {
  chiffres.erase(0, std::min(chiffres.find_first_not_of('0'), chiffres.size()));
}

bool onlyZeros(std::string_view chiffres) {
  return chiffres.find_first_not_of('0') == std::string_view::npos;
}

// Appends the digits of an integer part that may be parted by thousands; false when the blanks
// part anything else.
bool joinGroups(std::string_view partie, std::string& chiffres) {
  bool premier = true;
  for (;;) {
    const auto blanc = partie.find(' ');
    const std::string_view groupe = partie.substr(0, blanc);
    if (!std::all_of(groupe.begin(), groupe.end(), estChiffre)) return false;
    const bool seul = premier && blanc == std::string_view::npos;
    if (!seul && (premier ? groupe.empty() || groupe.size() > 3 : groupe.size() != 3)) return false;
    chiffres += groupe;
    if (blanc == std::string_view::npos) return true;
    partie.remove_prefix(blanc + 1);
    premier = false;
  }
}

// Rounded half away from zero to exactly n decimals. A number that becomes 0 loses its sign.
void roundTo(NombreEcrit& d, int n) {
  const auto taille = static_cast<std::size_t>(std::max(n, 0));
  const bool monte = d.decimales.size() > taille && d.decimales[taille] >= '5';
  d.decimales.resize(taille, '0');
  if (monte) {
    std::string chiffres = "0" + d.entiers + d.decimales;
    auto i = chiffres.rbegin();
    while (*i == '9') *i++ = '0';
    ++*i;
    d.decimales = chiffres.substr(chiffres.size() - taille);
    d.entiers = chiffres.substr(0, chiffres.size() - taille);
    cutLeadingZeros(d.entiers);
  }
  if (d.entiers.empty() && onlyZeros(d.decimales)) d.negatif = false;
}

// Nothing when it passes 64 bits.
std::optional<long long> toInteger(bool negatif, std::string_view chiffres) {
  long long valeur = 0;
  for (const char c : chiffres) {
    const int chiffre = negatif ? -(c - '0') : c - '0';
    if (__builtin_mul_overflow(valeur, 10, &valeur)) return std::nullopt;
    if (__builtin_add_overflow(valeur, chiffre, &valeur)) return std::nullopt;
  }
  return valeur;
}

}  // namespace

std::optional<NombreEcrit> lireNombre(std::string_view texte) {
  // As records hold it, without a blank of any kind: nothing is to be taken away.
  const bool serre = std::all_of(texte.begin(), texte.end(),
                                 [](char c) { return estChiffre(c) || isSeparator(c); });
  std::string reste = serre ? std::string(texte) : sansBlancs(blancsSimples(texte));
  NombreEcrit d;
  if (!reste.empty() && (reste[0] == '-' || reste[0] == '+')) {
    d.negatif = reste[0] == '-';
    reste = sansBlancsAGauche(reste.substr(1));
  }
  const auto coupe = std::find_if(reste.begin(), reste.end(), isSeparator);
  if (!joinGroups({reste.begin(), coupe}, d.entiers)) return std::nullopt;
  if (coupe != reste.end()) {
    d.separateur = *coupe;
    d.decimales.assign(coupe + 1, reste.end());
  }
  if (!std::all_of(d.decimales.begin(), d.decimales.end(), estChiffre)) return std::nullopt;
  if (d.entiers.empty() && d.decimales.empty()) return std::nullopt;
  cutLeadingZeros(d.entiers);
  return d;
}

bool estNombre(std::string_view texte) {
  return lireNombre(texte).has_value();
}

long long entier(std::string_view texte) {
  const std::string serre = sansAucunBlanc(blancsSimples(texte));
  const bool negatif = !serre.empty() && serre[0] == '-';
  const std::size_t debut = negatif || (!serre.empty() && serre[0] == '+') ? 1 : 0;
  const auto premier = serre.begin() + static_cast<std::ptrdiff_t>(debut);
  const std::string_view chiffres(premier, std::find_if_not(premier, serre.end(), estChiffre));
  using Bornes = std::numeric_limits<long long>;
  return toInteger(negatif, chiffres).value_or(negatif ? Bornes::min() : Bornes::max());
}

std::optional<long long> enUnites(std::string_view texte, int echelle) {
  auto d = lireNombre(texte);
  if (!d) return std::nullopt;
  roundTo(*d, echelle);
  return toInteger(d->negatif, d->entiers + d->decimales);
}

std::optional<std::string> formateNombre(std::string_view texte, int avant, int apres, bool signe,
                                         std::string_view separateur) {
  auto d = lireNombre(texte);
  if (!d) return std::nullopt;
  roundTo(*d, apres);
  if (d->negatif && !signe) return std::nullopt;
  if (d->entiers.empty() && avant > 0) d->entiers = "0";
  if (d->entiers.size() > static_cast<std::size_t>(std::max(avant, 0))) return std::nullopt;
  std::string resultat = completeAGauche(d->entiers, avant);
  if (!d->decimales.empty()) resultat.append(separateur).append(d->decimales);
  if (signe) resultat.insert(0, 1, d->negatif ? '-' : ' ');
  return resultat;
}

std::string formeMilliers(std::string_view nombre) {
  const auto d = lireNombre(nombre);
  if (!d) return std::string(nombre);
  std::string resultat = d->entiers.empty() ? "0" : d->entiers;
  for (std::size_t i = resultat.size(); i > 3;) resultat.insert(i -= 3, 1, ' ');
  if (d->negatif) resultat.insert(0, 1, '-');
  if (!d->decimales.empty()) resultat.append(1, d->separateur).append(d->decimales);
  return resultat;
}

}  // namespace data
