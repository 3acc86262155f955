// Records as JSON and JSON Lines: what is refused and where, what comes back, what is written.

#include "base/jsonl.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <sstream>

#include "base/cles_vues.h"
#include "data/citem.h"
#include "data/texte.h"
#include "support/table.h"

namespace {

using base::Enregistrement;
using base::LecteurJsonl;
using base::RefusJson;

// "column: reason", or the record written again.
std::string lecture(const std::string& ligne) {
  try {
    const Enregistrement lu = base::lireEnregistrement(ligne);
    std::string ecrit;
    base::ecrireEnregistrement(ecrit, lu.fichier, lu.cle, lu.texte);
    return ecrit;
  } catch (const RefusJson& refus) {
    return std::to_string(refus.Colonne()) + ": " + refus.what();
  }
}

std::string avecItem(const std::string& item) {
  return R"({"fichier":"PCS","cle":"1","item":)" + item + "}";
}

TEST(ArticleJson, RefuseAvecPlaceEtRaison) {
  auto cas = support::table<2>("base/refus_json.md", "Les refus");
  // Characters that no text may hold.
  for (const std::array<std::string, 2>& octets : std::initializer_list<std::array<std::string, 2>>{
           {avecItem("[\"é^\x1e\"]"), "séparateur U+001E"},
           {avecItem("[\"é^\tb\"]"),
            "caractère de contrôle U+0009 ; dans un texte il s'écrit \\u0009"},
           {avecItem("[]") + "^" + std::string(1, '\0') + "x", "caractère U+0000"},
           {avecItem("[]") + "^\xE2\x82", "octet qui n'est pas de l'UTF-8"},
       }) {
    cas.push_back(octets);
  }
  for (const auto& [cellule, debut] : cas) {
    std::string ligne = support::code(cellule);
    const std::size_t place = ligne.find('^');
    ligne.erase(place, 1);
    const std::string attendu =
        std::to_string(data::longueur(ligne.substr(0, place)) + 1) + ": " + debut;
    EXPECT_EQ(lecture(ligne).substr(0, attendu.size()), attendu) << ligne;
  }
}

TEST(ArticleJson, EcritLaFormeLaPlusCourte) {
  const struct {
    const char* item;
    const char* ecrit;
  } cas[] = {
      {R"(["a","",""])", R"(["a"])"},
      {R"([[],["",""],[["",""]],"b"])", R"(["","","","b"])"},
      {R"([["a","",["b","","c",""],""]])", R"([["a","",["b","","c"]]])"},
      {R"([[["a","b"]]])", R"([[["a","b"]]])"},
      {R"([["",["","a"]],[["b"],"c"]])", R"([["",["","a"]],["b","c"]])"},
      {R"([ "a\/\u00e9\ud83d\ude00" , "\\u001e\"" ])", R"(["a/é😀","\\u001e\""])"},
      {R"(["a\n\t\b\u007F\u0085"])", "[\"a\\u000a\\u0009\\u0008\x7F\xC2\x85\"]"},
  };
  for (const auto& c : cas) EXPECT_EQ(lecture(avecItem(c.item)), avecItem(c.ecrit)) << c.item;
  EXPECT_EQ(lecture(R"( {"item":["a"],"cle":"1", "fichier":"PCS"} )"), avecItem(R"(["a"])"));
}

// The keys that come out of the reader, "!line:column" for a refused line.
std::string cles(const std::string& entree, std::size_t limite) {
  std::istringstream flux(entree);
  LecteurJsonl lecteur(flux, limite);
  std::string suite;
  for (;;) {
    try {
      Enregistrement lu;
      if (!lecteur.Suivant(lu)) return suite;
      suite += lu.cle + '@' + std::to_string(lecteur.Ligne()) + ' ';
    } catch (const RefusJson& refus) {
      suite += '!' + std::to_string(refus.Ligne()) + ':' + std::to_string(refus.Colonne()) + ' ';
    }
  }
}

TEST(LecteurJsonl, CompteLesLignesEtReprendApresUnRefus) {
  const std::string a = R"({"fichier":"PCS","cle":"a","item":[]})";  // 37 bytes
  const std::string b = R"({"fichier":"PCS","cle":"b","item":[]})";
  EXPECT_EQ(cles("\n \t\r\n", 100), "");
  EXPECT_EQ(cles("\xEF\xBB\xBF" + a + "\r\n\r\n" + b, 100), "a@1 b@3 ");
  EXPECT_EQ(cles(a + "\nx\n" + b + "\n", 100), "a@1 !2:1 b@3 ");
  EXPECT_EQ(cles(a + "\n" + a + " \n" + b, 37), "a@1 !2:38 b@3 ");
  // An item alone may span lines.
  EXPECT_EQ(data::CItem(base::lireItem("[\n \"a\",\r\n [\"b\",\"c\"]\n]"))(2, 2), "c");
  try {
    base::lireItem("[\n \"é\", 3]");
    FAIL();
  } catch (const RefusJson& refus) {
    EXPECT_EQ(std::to_string(refus.Ligne()) + ":" + std::to_string(refus.Colonne()), "2:7");
  }
}

TEST(ClesVues, RetrouveLaPremiereLigneDeChaqueCle) {
  base::ClesVues vues;
  std::map<std::string, long> modele;
  std::mt19937 alea(3);
  for (long ligne = 1; ligne <= 20'000; ++ligne) {
    const std::string cle = std::to_string(alea() % 8000);
    const std::string fichier = alea() % 2 ? "PCS" : "PAYS";
    const auto [place, nouvelle] = modele.emplace(fichier + cle, ligne);
    ASSERT_EQ(vues.Ajoute(fichier, cle, ligne), nouvelle ? 0 : place->second);
  }
}

// Random items, written, damaged here and there, read. What is accepted must come back the same
// once written; what is refused must point into the line.
TEST(ArticleJson, TientTeteAuxLignesAbimees) {
  constexpr unsigned Graine = 20261122;
  const std::string morceaux[] = {"é",    "\"", "\\",   "[",    "]",          "{",    "}",
                                  ",",    ":",  "\x1e", "\x1d", "\\u00",      "1e9",  "null",
                                  "\xC3", "\n", " ",    "😀",    "\"item\":[", "\\ud8"};
  std::mt19937 alea(Graine);
  const auto tire = [&](std::size_t n) { return static_cast<std::size_t>(alea() % n); };
  int acceptees = 0;
  for (int tour = 0; tour < 20'000; ++tour) {
    data::CItem item;
    for (std::size_t n = tire(6); n > 0; --n) {
      const std::string texte = tire(4) == 0 ? "" : morceaux[tire(3)] + std::to_string(tire(9));
      item.Set(static_cast<int>(1 + tire(4)), static_cast<int>(1 + tire(3)),
               static_cast<int>(1 + tire(3)), texte);
    }
    std::string ligne;
    base::ecrireEnregistrement(ligne, "PCS", "é1", item.Text());
    ASSERT_EQ(base::lireEnregistrement(ligne).texte, item.Text()) << ligne;

    for (std::size_t n = 1 + tire(3); n > 0; --n) {
      const std::string morceau = tire(3) == 0 ? "" : morceaux[tire(std::size(morceaux))];
      ligne.replace(tire(ligne.size()), tire(3), morceau);
    }
    try {
      const Enregistrement lu = base::lireEnregistrement(ligne);
      ++acceptees;
      ASSERT_EQ(data::CItem(lu.texte).Text(), lu.texte) << "graine " << Graine << ": " << ligne;
      std::string encore;
      base::ecrireEnregistrement(encore, lu.fichier, lu.cle, lu.texte);
      ASSERT_EQ(base::lireEnregistrement(encore).texte, lu.texte) << ligne;
    } catch (const RefusJson& refus) {
      ASSERT_GE(refus.Colonne(), 1) << ligne;
      ASSERT_LE(refus.Colonne(), static_cast<long>(ligne.size()) + 1) << ligne;
    }
  }
  EXPECT_GT(acceptees, 100);
}

}  // namespace
