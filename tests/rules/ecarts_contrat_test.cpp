#include "rules/ecarts_contrat.h"

#include <gtest/gtest.h>

#include "data/layouts/contrat.h"

namespace {

namespace C = data::Contrat;

TEST(EcartsContrat, NommentLesZonesEtMontrentLesDeuxValeurs) {
  const data::PosteFixe poste(21511, "TEST");
  const data::Lib lib(poste);
  data::CItem leur;
  leur.Set(C::DateFin, "21511");
  leur.Set(C::Avenant, 1, "0");
  leur.Set(C::Avenant, 2, "01");
  leur.Set(C::TauxHoraire, 2, "-5");
  leur.Set(C::DernierBulletin, "202602");
  leur.Set(C::ProvisionConges, "1");
  leur.Set(C::ActivitesAnterieures, 2, 1, "001DOM");
  leur.Set(C::ActivitesAnterieures, 2, 2, "001GAR");
  data::CItem notre = leur;
  notre.Set(C::DateFin, "");
  notre.Set(C::TauxHoraire, 2, "12500");
  notre.Set(C::DernierBulletin, "202612");
  notre.Set(C::ProvisionConges, "0");
  notre.Set(C::ActivitesAnterieures, "");
  notre.Set(67, "x");
  std::string lignes;
  for (const auto& [legende, surFichier, ici] : rules::ecartsContrat(lib, leur, notre)) {
    lignes += legende + " : " + surFichier + " / " + ici + "\n";
  }
  EXPECT_EQ(lignes,
            "Date de fin : 22/11/2026 / \n"
            "Taux horaire (avenant 01) : -0,005 / 12,500\n"
            "Dernier bulletin : février 2026 / décembre 2026\n"
            "Attribut 67 :  / x\n"
            "Provision de congés : oui / non\n"
            "Activités d'une autre période (ligne 2) : 001DOM, 001GAR / \n");
  EXPECT_TRUE(rules::ecartsContrat(lib, leur, leur).empty());
}

}  // namespace
