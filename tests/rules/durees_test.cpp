#include "rules/durees.h"

#include <gtest/gtest.h>

#include "data/jour.h"

namespace {

TEST(Durees, LesDeuxJoursComptent) {
  const struct {
    const char* debut;
    const char* fin;
    const char* duree;
  } cas[] = {
      {"01/12/2026", "31/01/2027", "2 mois"},
      {"15/01/2026", "14/02/2026", "1 mois"},
      {"26/12/2025", "17/05/2026", "4 mois et 22 jours"},
      {"31/01/2026", "28/02/2026", "1 mois et 1 jour"},
      {"29/02/2024", "28/02/2025", "1 an et 1 jour"},
      {"01/01/2024", "15/03/2026", "2 ans, 2 mois et 15 jours"},
      {"01/03/2026", "01/03/2026", "1 jour"},
      {"02/03/2026", "01/03/2026", ""},
  };
  for (const auto& c : cas) {
    EXPECT_EQ(rules::dureeEnClair(*data::lireDateAffichee(c.debut), *data::lireDateAffichee(c.fin)),
              c.duree)
        << c.debut << " " << c.fin;
  }
}

}  // namespace
