#include "rules/reprise.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/layouts/contrat.h"
#include "support/table.h"

namespace {

namespace C = data::Contrat;

data::CItem contrat(const std::string& type, const std::string& prime, const std::string& debut) {
  data::CItem item;
  item.Set(C::Type, type);
  item.Set(C::PrimePrecarite, prime);
  item.Set(C::DateDebut, debut);
  item.Set(C::DateFin, "2000");
  return item;
}

std::string texte(const rules::DepartReprise& d) {
  return d.jour + "/" + d.suspension + "/" + d.reference + "/" + d.propose;
}

TEST(Reprise, LesDepartsSontDecalesDesSuspensionsEtDeLEcart) {
  for (const auto& [grille, suspension, anciennete, suspensionAnciennete, debut, grilleApres,
                    attenduGrille, attenduAnciennete] :
       support::table<8>("rules/reprise.md", "Les départs proposés")) {
    data::CItem precedent = contrat("D", "1", "1000");
    std::string departs = grille;
    std::replace(departs.begin(), departs.end(), '^', data::SepValeur);
    precedent.Set(C::DepartGrille, departs);
    precedent.Set(C::JoursSuspensionGrille, suspension);
    precedent.Set(C::DateAnciennete, anciennete);
    precedent.Set(C::JoursSuspensionAnciennete, suspensionAnciennete);
    const bool avecGrille = grilleApres == "oui";
    const rules::Reprise r =
        rules::proposerReprise(precedent, contrat("D", "1", debut), avecGrille);
    EXPECT_EQ(texte(r.grille), attenduGrille) << debut;
    EXPECT_EQ(texte(r.anciennete), attenduAnciennete) << debut;
    EXPECT_EQ(r.avecGrille, avecGrille && !grille.empty());
  }
}

TEST(Reprise, LaPrimeTombeQuandUnContratSansTermeSuit) {
  for (const auto& [type, prime, suivant, debut, tombe] :
       support::table<5>("rules/reprise.md", "La prime de fin")) {
    EXPECT_EQ(rules::primeTombe(contrat(type, prime, "1000"), contrat(suivant, "1", debut)),
              tombe == "oui")
        << type << prime << suivant << debut;
  }
}

}  // namespace
