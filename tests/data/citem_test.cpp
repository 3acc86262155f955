#include "data/citem.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace data {
namespace {

// "a|b;c.d" stands for attributes, values and subvalues.
std::string traduit(std::string_view texte, std::string_view de, std::string_view en) {
  std::string resultat(texte);
  for (char& c : resultat) {
    if (const auto i = de.find(c); i != std::string_view::npos) c = en[i];
  }
  return resultat;
}
const std::string separateurs = {SepAttribut, SepValeur, SepSousValeur};
std::string brut(std::string_view texte) {
  return traduit(texte, "|;.", separateurs);
}
std::string lisible(const CItem& item) {
  return traduit(item.Text(), separateurs, "|;.");
}

// What the random edits, in step with their model, cannot show as well or never draw.
TEST(CItem, EveryEditLeavesTheExactText) {
  struct Cas {
    const char* nom;
    const char* depart;
    std::function<void(CItem&)> acte;
    const char* attendu;
  };
  const Cas cas[] = {
      {"absent place set empty", "a", [](CItem& x) { x.Set(9, 9, 9, ""), x.Set(9, brut(";.;")); },
       "a"},
      {"no place below 1", "a",
       [](CItem& x) { x.Set(0, "k"), x.Set(-2, "k"), x.Set(1, 0, "k"), x.Set(-1, 1, "k"); }, "a"},
      {"append", "a;b", [](CItem& x) { x.Append("c"), x.Set(-1, "d"), x.Set(-1, ""); }, "a;b|c|d"},
      {"insert below 1", "a", [](CItem& x) { x.Insert(0, "k"), x.Insert(1, 0, "k"); }, "a"},
      {"delete what is absent", "a;b",
       [](CItem& x) { x.Delete(2), x.Delete(1, 3), x.Delete(1, 1, 2), x.Delete(0), x.Delete(-1); },
       "a;b"},
      {"a text taken from itself", "a|b;c|d", [](CItem& x) { x.SetText(x.Vue(2)); }, "b;c"},
      {"a place taken from itself", "a|b;c", [](CItem& x) { x.Set(1, x.Vue(2)); }, "b;c|b;c"},
      {"a value taken from itself", "a;b", [](CItem& x) { x.Insert(1, 1, x.Vue(1, 2)); }, "b;a;b"},
      {"typed set of the whole", "a", [](CItem& x) { x.SetField(-1, -1, -1, brut("b|c")); }, "b|c"},
      {"typed set of a subvalue", "a;b", [](CItem& x) { x.SetField(1, 2, 2, "c"); }, "a;b.c"}};
  for (const Cas& c : cas) {
    CItem item(brut(c.depart));
    c.acte(item);
    EXPECT_EQ(lisible(item), c.attendu) << c.nom;
  }
}

// At places that exist, reads are compared by the random edits.
TEST(CItem, ReadsNothingWhereNothingIs) {
  const CItem vide;
  EXPECT_EQ(vide(5) + vide(0) + vide(1, 1) + vide(-1) + vide.Text(), "");
  EXPECT_EQ(vide.DCount() + vide.DCount(1) + vide.DCount(0) + vide.DCount(-1), 0);
  const CItem item(brut("a;b.c;d||e"));
  EXPECT_EQ(item(1, 4) + item(1, 2, 3) + item(1, 0) + item(1, 1, -1) + item(2, 1) + item(4), "");
  EXPECT_EQ(item.GetText(-1, -1, -1), item.Text());
  EXPECT_EQ(item.GetText(1, 0, 0) + item.GetText(1, 2, 0) + item.GetText(1, 2, 1),
            brut("a;b.c;db.cb"));
}

TEST(CItem, RefusesASeparatorThatWouldMoveNeighbours) {
  CItem item(brut("a|b;c"));
  EXPECT_THROW(item.Set(1, brut("x|y")), std::invalid_argument);
  EXPECT_THROW(item.Set(1, 1, brut("x;y")), std::invalid_argument);
  EXPECT_THROW(item.Set(1, 1, 1, brut("x.y")), std::invalid_argument);
  EXPECT_THROW(item.Insert(1, brut("x|y")), std::invalid_argument);
  EXPECT_THROW(item.Insert(2, 1, brut("x;y")), std::invalid_argument);
  EXPECT_THROW(item.Insert(2, 1, 1, brut("x.y")), std::invalid_argument);
  EXPECT_THROW(item.Append(brut("|")), std::invalid_argument);
  EXPECT_EQ(lisible(item), "a|b;c");
}

}  // namespace
}  // namespace data
