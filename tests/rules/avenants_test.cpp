#include "rules/avenants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "data/layouts/contrat.h"
#include "support/table.h"

namespace {

namespace C = data::Contrat;

std::string valeurs(std::string texte, char de = '^', char vers = data::SepValeur) {
  std::replace(texte.begin(), texte.end(), de, vers);
  return texte;
}

std::string lisibles(const std::string& texte) {
  return valeurs(texte, data::SepValeur, '^');
}

data::CItem contrat(const std::string& numeros) {
  data::CItem item;
  item.Set(C::DateDebut, "20000");
  item.Set(C::Avenant, valeurs(numeros));
  return item;
}

TEST(Avenants, SeSuiventParNumeroEtParPlace) {
  for (const auto& [numeros, suivant, place, apres, effet] :
       support::table<5>("rules/avenants.md", "Leur suite")) {
    data::CItem item = contrat(numeros);
    EXPECT_EQ(rules::etatsContrat(item), std::stoi(place) - 1) << numeros;
    EXPECT_EQ(rules::numeroAvenant(item), suivant) << numeros;
    EXPECT_EQ(rules::ouvrirAvenant(item), std::stoi(place)) << numeros;
    EXPECT_EQ(lisibles(item(C::Avenant)) + " " + item(C::DateEffet), apres + " " + effet);
  }
}

TEST(Avenants, LeDroitPublicContinueJusquAuDernier) {
  for (const auto& [numeros, avant, apres] :
       support::table<3>("rules/avenants.md", "Le droit public continue")) {
    data::CItem item = contrat(numeros);
    for (const int a : {C::PopulationEmploi, C::PointsNBI, C::Grade}) item.Set(a, valeurs(avant));
    rules::completerDroitPublic(item);
    EXPECT_EQ(lisibles(item(C::PopulationEmploi)), apres) << numeros << avant;
    EXPECT_EQ(lisibles(item(C::PointsNBI)), apres) << numeros << avant;
    EXPECT_EQ(item(C::Grade), valeurs(avant)) << "labels do not go on";
  }
}

TEST(Avenants, PrennentEffetDansLOrdre) {
  const std::map<std::string, std::string> refus{
      {"", ""},
      {"précédent",
       "La date d'effet doit être supérieure à la date d'effet de l'avenant précédent."},
      {"début", "La date d'effet doit être supérieure ou égale à la date de début du contrat."}};
  for (const auto& [effet, avant, attendu] :
       support::table<3>("rules/avenants.md", "La date d'effet")) {
    EXPECT_EQ(rules::refusDateEffet(std::stol(effet), avant, 20000), refus.at(attendu))
        << effet << " " << avant;
  }
}

}  // namespace
