#include "rules/avenants.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/layouts/contrat.h"

namespace {

namespace C = data::Contrat;

std::string valeurs(std::string texte, char de = '|', char vers = data::SepValeur) {
  std::replace(texte.begin(), texte.end(), de, vers);
  return texte;
}

data::CItem contrat(const std::string& numeros) {
  data::CItem item;
  item.Set(C::DateDebut, "20000");
  item.Set(C::Avenant, valeurs(numeros));
  return item;
}

TEST(Avenants, SeSuiventParNumeroEtParPlace) {
  const struct {
    const char *numeros, *suivant;
    int place;
    const char *apres, *effet;
  } cas[] = {
      {"", "01", 2, "0", "20000"},         {"0", "01", 2, "0", ""},
      {"0|01|02", "03", 4, "0|01|02", ""}, {"0|09", "10", 3, "0|09", ""},
      {"0|99", "100", 3, "0|99", ""},
  };
  for (const auto& [numeros, suivant, place, apres, effet] : cas) {
    data::CItem item = contrat(numeros);
    EXPECT_EQ(rules::etatsContrat(item), place - 1) << numeros;
    EXPECT_EQ(rules::numeroAvenant(item), suivant) << numeros;
    EXPECT_EQ(rules::ouvrirAvenant(item), place) << numeros;
    EXPECT_EQ(valeurs(item(C::Avenant), data::SepValeur, '|') + " " + item(C::DateEffet),
              std::string(apres) + " " + effet);
  }
}

TEST(Avenants, LeDroitPublicContinueJusquAuDernier) {
  const struct {
    const char *numeros, *avant, *apres;
  } cas[] = {
      {"", "40", "40"},
      {"0", "", ""},
      {"0|01|02", "40", "40|40|40"},
      {"0|01|02", "|43", "|43|43"},
      {"0|01|02", "", ""},
      {"0|01", "40|43|40", "40|43|40"},
  };
  for (const auto& [numeros, avant, apres] : cas) {
    data::CItem item = contrat(numeros);
    for (const int a : {C::PopulationEmploi, C::PointsNBI, C::Grade}) item.Set(a, valeurs(avant));
    rules::completerDroitPublic(item);
    EXPECT_EQ(valeurs(item(C::PopulationEmploi), data::SepValeur, '|'), apres) << numeros << avant;
    EXPECT_EQ(valeurs(item(C::PointsNBI), data::SepValeur, '|'), apres) << numeros << avant;
    EXPECT_EQ(item(C::Grade), valeurs(avant)) << "labels do not go on";
  }
}

TEST(Avenants, PrennentEffetDansLOrdre) {
  const char* const precedent =
      "La date d'effet doit être supérieure à la date d'effet de l'avenant précédent.";
  const char* const debut =
      "La date d'effet doit être supérieure ou égale à la date de début du contrat.";
  const struct {
    long effet;
    const char* avant;
    const char* refus;
  } cas[] = {{20100, "20100", ""},   {20099, "20100", precedent}, {20000, "", ""},
             {19999, "", debut},     {19999, "20100", precedent}, {20000, "19000", ""},
             {19999, "19000", debut}};
  for (const auto& [effet, avant, refus] : cas) {
    EXPECT_EQ(rules::refusDateEffet(effet, avant, 20000), refus) << effet << " " << avant;
  }
}

}  // namespace
