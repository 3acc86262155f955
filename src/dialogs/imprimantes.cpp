#include "dialogs/imprimantes.h"

#include <algorithm>

#include "data/texte.h"

namespace dialogs {

namespace {

// Twips.
constexpr int Marge = 850;
constexpr int HauteurTitre = 450;
constexpr int HauteurLigne = 270;
constexpr int BasDePage = 15900;  // A4, above the lower margin

constexpr const char* Police = "Arial";
constexpr double TailleTitre = 14;
constexpr double TailleTexte = 10;
// Characters of that size on the width of a page.
constexpr int LargeurLigne = 110;

}  // namespace

bool estMatricielle(const std::string& nom) {
  return data::majuscules(nom).find("MATRIC") != std::string::npos;
}

int PrinterIndex(const screen::Platform& platform) {
  const auto noms = platform.imprimante.Noms();
  const std::string choisie = platform.reglages.Lire("Impression", "Frm_AnomaliesAjoutgraph", "");
  const auto place = std::find(noms.begin(), noms.end(), choisie);
  if (place != noms.end()) return static_cast<int>(place - noms.begin());
  const int parDefaut = platform.imprimante.ParDefaut();
  return parDefaut < static_cast<int>(noms.size()) ? parDefaut : 0;
}

void imprimerTexte(screen::Imprimante& imprimante, bool matricielle, const std::string& titre,
                   const std::vector<std::string>& lignes) {
  int y = Marge;
  if (!matricielle) imprimante.Police(Police, TailleTitre, true);
  imprimante.Texte(Marge, y, titre);
  y += HauteurTitre;
  if (!matricielle) imprimante.Police(Police, TailleTexte, false);
  for (const std::string& ligne : lignes) {
    for (int debut = 1; debut == 1 || debut <= data::longueur(ligne); debut += LargeurLigne) {
      if (y > BasDePage) {
        imprimante.FinPage();
        y = Marge;
      }
      imprimante.Texte(Marge, y, data::milieu(ligne, debut, LargeurLigne));
      y += HauteurLigne;
    }
  }
  imprimante.FinPage();
  imprimante.FinDocument();
}

std::vector<std::string> lignesDe(const std::string& texte) {
  std::vector<std::string> lignes(1);
  for (const char c : texte) {
    if (c == '\n') {
      lignes.emplace_back();
    } else if (c != '\r') {
      lignes.back() += c;
    }
  }
  return lignes;
}

}  // namespace dialogs
