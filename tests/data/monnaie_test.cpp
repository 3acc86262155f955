#include "data/monnaie.h"

#include <gtest/gtest.h>

#include <climits>

#include "support/table.h"

namespace data {
namespace {

Monnaie m(std::string_view texte) {
  return Monnaie::DeTexte(texte);
}

TEST(Monnaie, ReadsEveryUnit) {
  EXPECT_EQ(Monnaie::DeCentiemes("15167"), m("151,67"));
  EXPECT_EQ(Monnaie::DeMilliemes("-11520"), m("-11,52"));
  EXPECT_EQ(Monnaie::DeDixMilliemes("5"), m("0.0005"));
  EXPECT_EQ(Monnaie::DeCentiemes("") + Monnaie::DeTexte("  "), Monnaie());
  EXPECT_EQ(m("0,00005").DixMilliemes(), 1);
  EXPECT_EQ(m("-0,00005").DixMilliemes(), -1);
  EXPECT_EQ(m("3 428,50").Centiemes(), 342850);
  EXPECT_EQ(m("1,0049").Centiemes(), 100);
  EXPECT_EQ(m("-1,005").Centiemes(), -101);
  EXPECT_EQ(m("1,0015").Milliemes(), 1002);
  EXPECT_THROW(m("12a"), NombreInvalide);
  EXPECT_THROW(Monnaie::DeCentiemes("O"), NombreInvalide);
  EXPECT_EQ(Monnaie::Valeur(" 12,5 h"), m("12,5"));
  EXPECT_EQ(Monnaie::Valeur("-1.2.3"), m("-1,2"));
  EXPECT_EQ(Monnaie::Valeur("n/a") + Monnaie::Valeur("") + Monnaie::Valeur("-"), Monnaie());
}

TEST(Monnaie, CalculatesExactly) {
  Monnaie somme;
  for (int i = 0; i < 1000; ++i) somme += m("0,1");
  EXPECT_EQ(somme, m("100"));
  EXPECT_EQ(m("1,25") * m("-1,3333"), m("-1,6666"));  // -1,666625
  EXPECT_EQ(m("0,01") * m("0,005"), m("0,0001"));     // 0,00005
  EXPECT_EQ(m("-20") / m("3"), m("-6,6667"));
  EXPECT_EQ(m("1") / m("-20000"), m("-0,0001"));  // -0,00005
  EXPECT_EQ(m("151,67") * m("12") / m("52"), m("35,0008"));
  EXPECT_LT(m("-0,0001"), Monnaie());
  EXPECT_THROW(m("1") / Monnaie(), NombreInvalide);
}

TEST(Monnaie, RoundsAndWrites) {
  for (const auto& [valeur, deux, court, plancher, demi] :
       support::table<5>("data/tables.md", "Amounts")) {
    SCOPED_TRACE(valeur);
    EXPECT_EQ(m(valeur).Texte(2), deux);
    EXPECT_EQ(m(valeur).TexteCourt(), court);
    EXPECT_EQ(m(valeur).PartieEntiere(), m(plancher));
    EXPECT_EQ(m(valeur).EntierOuDemi(), demi == "yes");
  }
  EXPECT_EQ(m("2,5").Texte(0) + m("2,5").Texte(1, "."), "32.5");
}

// At the bounds of the type every operation raises, none wraps.
TEST(Monnaie, OverflowRaises) {
  const Monnaie plus = Monnaie::DeDixMilliemes("9223372036854775807");
  const Monnaie moins = Monnaie::DeDixMilliemes("-9223372036854775808");
  EXPECT_EQ(plus.Texte(4), "922337203685477,5807");
  EXPECT_EQ(moins.TexteCourt(), "-922337203685477,5808");
  EXPECT_THROW(plus + m("0,0001"), NombreInvalide);
  EXPECT_THROW(moins - m("0,0001"), NombreInvalide);
  EXPECT_THROW(-moins, NombreInvalide);
  EXPECT_THROW(moins.Absolue(), NombreInvalide);
  EXPECT_THROW(moins * moins, NombreInvalide);
  EXPECT_THROW(moins / m("-1"), NombreInvalide);
  EXPECT_THROW(moins.PartieEntiere(), NombreInvalide);
  EXPECT_THROW(Monnaie::DeDixMilliemes("9223372036854775808"), NombreInvalide);
  EXPECT_THROW(Monnaie::Entier(LLONG_MIN), NombreInvalide);
}

}  // namespace
}  // namespace data
