#include <algorithm>

#include "data/cles.h"
#include "data/jour.h"
#include "fenetre/page_echeances.h"
#include "screen/platform.h"

namespace hote {

namespace {

struct ColonnePapier {
  const char* titre;
  int x;        // millimetres from the left edge of the sheet
  int largeur;  // in the same, what a text may take
  std::string (*texte)(const rules::Echeance& echeance);
};

constexpr ColonnePapier Colonnes[] = {
    {"Jour", 12, 20, [](const rules::Echeance& e) { return data::dateAffichee(e.jour); }},
    {"Échéance", 34, 56, [](const rules::Echeance& e) { return e.libelle; }},
    {"Aidant", 92, 48,
     [](const rules::Echeance& e) {
       return e.contrat.substr(0, data::LongueurCodeAidant) + " " + e.aidant;
     }},
    {"Contrat", 142, 12,
     [](const rules::Echeance& e) { return e.contrat.substr(data::LongueurCodeAidant); }},
    {"Employeur", 156, 44, [](const rules::Echeance& e) { return e.employeur; }},
};

// A4, in millimetres.
constexpr const char* Police = "Arial";
constexpr double Points = 9;
constexpr double PointsTitre = 12;
constexpr int HautTitre = 12;
constexpr int HautColonnes = 22;
constexpr int HautLignes = 28;
constexpr int PasLigne = 5;
constexpr std::size_t LignesParPage = 50;
constexpr int HautPied = 284;

int twips(int millimetres) {
  return millimetres * screen::TwipsParCentimetre / 10;
}

}  // namespace

void imprimerEcheances(const std::vector<rules::Echeance>& echeances, const std::string& titre,
                       screen::Platform& plateforme) {
  screen::Imprimante& papier = plateforme.imprimante;
  // Always a PDF document, whatever else was printed before.
  papier.Choisir(0);
  const std::size_t pages =
      std::max<std::size_t>(1, (echeances.size() + LignesParPage - 1) / LignesParPage);
  for (std::size_t page = 0; page < pages; ++page) {
    papier.Police(Police, PointsTitre, true);
    papier.Texte(twips(Colonnes[0].x), twips(HautTitre), titre);
    papier.Police(Police, Points, true);
    for (const auto& c : Colonnes) papier.Texte(twips(c.x), twips(HautColonnes), c.titre);
    papier.Police(Police, Points, false);
    const std::size_t fin = std::min(echeances.size(), (page + 1) * LignesParPage);
    int haut = HautLignes;
    for (std::size_t i = page * LignesParPage; i < fin; ++i, haut += PasLigne) {
      for (const auto& c : Colonnes) {
        papier.Texte(twips(c.x), twips(haut), c.texte(echeances[i]), twips(c.largeur));
      }
    }
    papier.Texte(twips(Colonnes[0].x), twips(HautPied),
                 "Imprimé le " + data::dateAffichee(plateforme.poste.Aujourdhui()) + ", page " +
                     std::to_string(page + 1) + " sur " + std::to_string(pages));
    papier.FinPage();
  }
  papier.FinDocument();
}

}  // namespace hote
