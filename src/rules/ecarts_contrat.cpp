#include "rules/ecarts_contrat.h"

#include <algorithm>
#include <iterator>

#include "data/jour.h"
#include "data/nombre.h"
#include "rules/legendes_contrat.h"

namespace rules {

namespace {

namespace C = data::Contrat;

// A whole number of hundredths, thousandths... as a decimal number; any other text as it is.
std::string decimale(std::string_view texte, int echelle) {
  const bool negatif = texte.starts_with('-');
  std::string chiffres(negatif ? texte.substr(1) : texte);
  const bool entier =
      !chiffres.empty() && chiffres.find_first_not_of("0123456789") == chiffres.npos;
  if (!entier) return std::string(texte);
  const auto places = static_cast<std::size_t>(echelle);
  if (chiffres.size() <= places) chiffres.insert(0, places + 1 - chiffres.size(), '0');
  chiffres.insert(chiffres.size() - places, 1, ',');
  return (negatif ? "-" : "") + chiffres;
}

std::string enClair(const data::Lib& lib, FormeLegende forme, const std::string& texte) {
  switch (forme) {
    case FormeLegende::Jour:
      return lib.DateFromInternal(texte);
    case FormeLegende::Mois: {
      const std::string mois = data::moisAnnee(texte);
      return mois.empty() ? texte : mois;
    }
    case FormeLegende::Centiemes:
      return decimale(texte, 2);
    case FormeLegende::Milliemes:
      return decimale(texte, 3);
    case FormeLegende::DixMilliemes:
      return decimale(texte, 4);
    case FormeLegende::OuiNon:
      if (texte == "1") return "oui";
      return texte == "0" ? "non" : texte;
    case FormeLegende::Texte:
      break;
  }
  return texte;
}

// Subvalues stand in one line.
std::string valeurEnClair(const data::Lib& lib, FormeLegende forme, std::string_view valeur) {
  std::string clair;
  for (bool premiere = true;; premiere = false) {
    const auto fin = valeur.find(data::SepSousValeur);
    if (!premiere) clair += ", ";
    clair += enClair(lib, forme, std::string(valeur.substr(0, fin)));
    if (fin == std::string_view::npos) return clair;
    valeur.remove_prefix(fin + 1);
  }
}

template <std::size_t N>
bool parmi(const int (&groupe)[N], int attribut) {
  return std::find(std::begin(groupe), std::end(groupe), attribut) != std::end(groupe);
}

// Which value of an attribute that has several: the state of the contract, the month, its rank.
std::string lequel(const data::CItem& ici, const data::CItem& surFichier, int attribut, int v) {
  const auto texte = [&](int lequel) {
    return ici.Vue(lequel, v).empty() ? surFichier(lequel, v) : ici(lequel, v);
  };
  if (parmi(C::GroupeAvenant, attribut)) {
    return v == 1 ? "contrat signé" : "avenant " + texte(C::Avenant);
  }
  if (parmi(C::GroupeSuivi, attribut)) return data::moisAnnee(texte(C::SuiviPeriode));
  if (parmi(C::GroupeSuiviPrecedent, attribut)) return data::moisAnnee(texte(C::SuiviPrecPeriode));
  return "ligne " + std::to_string(v);
}

}  // namespace

std::vector<screen::Conflit::Ecart> ecartsContrat(const data::Lib& lib,
                                                  const data::CItem& surFichier,
                                                  const data::CItem& ici) {
  std::vector<screen::Conflit::Ecart> ecarts;
  const int attributs = std::max(surFichier.DCount(), ici.DCount());
  for (int a = 1; a <= attributs; ++a) {
    if (surFichier.Vue(a) == ici.Vue(a)) continue;
    const auto* const connue =
        std::find_if(std::begin(legendes::Contrat), std::end(legendes::Contrat),
                     [&](const Legende& l) { return l.attribut == a; });
    const Legende legende = connue != std::end(legendes::Contrat) ? *connue : Legende{a, nullptr};
    const std::string nom =
        legende.texte != nullptr ? legende.texte : "Attribut " + std::to_string(a);
    const int valeurs = std::max(surFichier.DCount(a), ici.DCount(a));
    for (int v = 1; v <= valeurs; ++v) {
      if (surFichier.Vue(a, v) == ici.Vue(a, v)) continue;
      ecarts.push_back({valeurs == 1 ? nom : nom + " (" + lequel(ici, surFichier, a, v) + ")",
                        valeurEnClair(lib, legende.forme, surFichier.Vue(a, v)),
                        valeurEnClair(lib, legende.forme, ici.Vue(a, v))});
    }
  }
  return ecarts;
}

std::string auteurLisible(const std::string& utilisateur, std::string_view horodatage) {
  if (horodatage.size() < 16) return utilisateur;
  const std::string date =
      std::string(horodatage.substr(8, 2)) + "/" + std::string(horodatage.substr(5, 2)) + "/" +
      std::string(horodatage.substr(0, 4)) + " à " + std::string(horodatage.substr(11, 5));
  return (utilisateur.empty() ? "" : utilisateur + ", ") + "le " + date;
}

}  // namespace rules
