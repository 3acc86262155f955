#include "rules/reprise.h"

#include <gtest/gtest.h>

#include "data/layouts/contrat.h"

namespace {

namespace C = data::Contrat;

// Attributes: type, bonus, start, end, grid departures "a|b", its suspension, seniority departure
// and its suspension.
struct Contrat {
  const char* type = "D";
  const char* prime = "1";
  const char* debut = "1000";
  const char* fin = "2000";
  const char* grille = "900";
  const char* suspension = "";
  const char* anciennete = "950";
  const char* suspensionAnciennete = "";
};

data::CItem article(const Contrat& c) {
  data::CItem item;
  item.Set(C::Type, c.type);
  item.Set(C::PrimePrecarite, c.prime);
  item.Set(C::DateDebut, c.debut);
  item.Set(C::DateFin, c.fin);
  std::string grille = c.grille;
  for (char& signe : grille) signe = signe == '|' ? data::SepValeur : signe;
  item.Set(C::DepartGrille, grille);
  item.Set(C::JoursSuspensionGrille, c.suspension);
  item.Set(C::DateAnciennete, c.anciennete);
  item.Set(C::JoursSuspensionAnciennete, c.suspensionAnciennete);
  return item;
}

std::string texte(const rules::DepartReprise& d) {
  return d.jour + " " + d.suspension + " " + d.reference + " " + d.propose;
}

// Suspensions are hundredths of days, of which whole ones count. The contract before ends on day
// 2000: a start on day 2001 leaves no gap.
TEST(Reprise, LesDepartsSontDecalesDesSuspensionsEtDeLEcart) {
  const struct {
    Contrat precedent;
    const char* debut;
    bool grille;
    const char *attenduGrille, *attenduAnciennete;
  } cas[] = {
      {{}, "2001", true, "900   900", "950   950"},
      {{.grille = "900|1200"}, "2002", true, "1200   1201", "950   951"},
      {{.suspension = "250", .suspensionAnciennete = "399"},
       "2001",
       true,
       "900 2,5 902 902",
       "950 3,99 953 953"},
      // Three days between are the most over which seniority goes on; a grid always does.
      {{}, "2003", true, "900   902", "950   952"},
      {{}, "2004", true, "900   903", "950   "},
      // Seniority begins with the contract when nothing else was said.
      {{.anciennete = ""}, "2001", true, "900   900", "1000   1000"},
      // Without a grid on both sides nothing is asked about it.
      {{.grille = ""}, "2001", true, "   ", "950   950"},
      {{}, "2001", false, "900   ", "950   950"},
      // What is no number is shown as it is, and counts no days.
      {{.suspension = "dix", .suspensionAnciennete = "?"},
       "2001",
       true,
       "900 dix  900",
       "950 ?  950"},
  };
  for (const auto& c : cas) {
    const rules::Reprise r =
        rules::proposerReprise(article(c.precedent), article({.debut = c.debut}), c.grille);
    EXPECT_EQ(texte(r.grille), c.attenduGrille) << c.debut;
    EXPECT_EQ(texte(r.anciennete), c.attenduAnciennete) << c.debut;
    EXPECT_EQ(r.avecGrille, c.grille && *c.precedent.grille != '\0');
  }
}

TEST(Reprise, LaPrimeTombeQuandUnContratSansTermeSuit) {
  const struct {
    Contrat precedent, nouveau;
    bool tombe;
  } cas[] = {
      {{}, {.type = "I", .debut = "2003"}, true},
      {{}, {.type = "I", .debut = "2004"}, false},
      {{}, {.type = "D", .debut = "2001"}, false},
      {{.type = "I"}, {.type = "I", .debut = "2001"}, false},
      {{.prime = "0"}, {.type = "I", .debut = "2001"}, false},
      {{.prime = ""}, {.type = "I", .debut = "2001"}, false},
  };
  for (const auto& c : cas) {
    EXPECT_EQ(rules::primeTombe(article(c.precedent), article(c.nouveau)), c.tombe);
  }
}

}  // namespace
