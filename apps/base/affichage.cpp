#include "base/affichage.h"

#include <algorithm>

#include "data/citem.h"

namespace base {
namespace {

void ecrireControle(std::string& sortie, unsigned code) {
  constexpr char Chiffres[] = "0123456789ABCDEF";
  switch (code) {
    case '\t':
      sortie += "\\t";
      return;
    case '\n':
      sortie += "\\n";
      return;
    case '\r':
      sortie += "\\r";
      return;
    default:
      sortie += "\\u00";
      sortie += Chiffres[code >> 4 & 15];
      sortie += Chiffres[code & 15];
  }
}

void ecrirePlace(std::string& sortie, int a, int v, int s, std::string_view texte) {
  if (texte.empty()) return;
  sortie += std::to_string(a);
  if (v > 0) sortie += '.' + std::to_string(v);
  if (s > 0) sortie += '.' + std::to_string(s);
  sortie += '\t';
  ecrireColonne(sortie, texte);
  sortie += '\n';
}

void ecrireLignesValeur(std::string& sortie, const data::CItem& item, int a, int v) {
  const std::string_view valeur = item.Vue(a, v);
  if (valeur.find(data::SepSousValeur) == std::string_view::npos) {
    return ecrirePlace(sortie, a, v, 0, valeur);
  }
  int s = 0;
  for (std::size_t debut = 0; debut <= valeur.size();) {
    const std::size_t fin = std::min(valeur.find(data::SepSousValeur, debut), valeur.size());
    ecrirePlace(sortie, a, v, ++s, valeur.substr(debut, fin - debut));
    debut = fin + 1;
  }
}

}  // namespace

void ecrireColonne(std::string& sortie, std::string_view texte) {
  for (std::size_t i = 0; i < texte.size(); ++i) {
    const auto octet = static_cast<unsigned char>(texte[i]);
    // C2 80 to C2 9F are the second set of control characters, which some terminals obey.
    const bool second =
        octet == 0xC2 && i + 1 < texte.size() && static_cast<unsigned char>(texte[i + 1]) < 0xA0;
    if (texte[i] == data::SepSousValeur) {
      sortie += EntreValeurs;
    } else if (second) {
      ecrireControle(sortie, static_cast<unsigned char>(texte[++i]));
    } else if (octet < 0x20 || octet == 0x7F) {
      ecrireControle(sortie, octet);
    } else {
      if (texte[i] == '\\' || texte.substr(i, EntreValeurs.size()) == EntreValeurs) sortie += '\\';
      sortie += texte[i];
    }
  }
}

void ecrireLignes(std::string& sortie, std::string_view texteItem) {
  const data::CItem item(texteItem);
  for (int a = 1; a <= item.DCount(); ++a) {
    const int valeurs = item.DCount(a);
    const bool simple = item.Vue(a).find(data::SepSousValeur) == std::string_view::npos;
    if (valeurs <= 1 && simple) {
      ecrirePlace(sortie, a, 0, 0, item.Vue(a));
    } else {
      for (int v = 1; v <= valeurs; ++v) ecrireLignesValeur(sortie, item, a, v);
    }
  }
}

}  // namespace base
