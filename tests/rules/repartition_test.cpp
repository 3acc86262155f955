#include "rules/repartition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "data/layouts/contrat.h"

namespace {

namespace C = data::Contrat;
using rules::Repartition;

constexpr int Attributs[] = {C::Activites,
                             C::PartsActivites,
                             C::PeriodeEffet,
                             C::PeriodesEffetAnterieures,
                             C::ActivitesAnterieures,
                             C::PartsAnterieures};

// A contract of those six attributes, parted by blanks; "-" none, "|" values, "," subvalues.
data::CItem contrat(const std::string& texte) {
  data::CItem item;
  std::size_t debut = 0;
  for (const int a : Attributs) {
    const std::size_t fin = texte.find(' ', debut);
    std::string attribut = texte.substr(debut, fin - debut);
    debut = fin == std::string::npos ? texte.size() : fin + 1;
    for (char& c : attribut) {
      c = c == '|' ? data::SepValeur : c == ',' ? data::SepSousValeur : c;
    }
    if (attribut != "-") item.Set(a, attribut);
  }
  return item;
}

std::string lisible(const data::CItem& item) {
  std::string texte;
  for (const int a : Attributs) {
    std::string attribut = item(a).empty() ? "-" : item(a);
    for (char& c : attribut) {
      c = c == data::SepValeur ? '|' : c == data::SepSousValeur ? ',' : c;
    }
    texte += (texte.empty() ? "" : " ") + attribut;
  }
  return texte;
}

std::string ecrit(const Repartition& r) {
  data::CItem item;
  r.Ecrire(item);
  return lisible(item);
}

// "A 6000,B 4000"
Repartition::Parts parts(const std::string& texte) {
  Repartition::Parts resultat;
  for (std::size_t debut = 0; debut < texte.size();) {
    const std::size_t fin = std::min(texte.find(',', debut), texte.size());
    const std::size_t blanc = texte.find(' ', debut);
    resultat.push_back(
        {texte.substr(debut, blanc - debut), texte.substr(blanc + 1, fin - blanc - 1)});
    debut = fin + 1;
  }
  return resultat;
}

TEST(Repartition, GardeCeQuElleLit) {
  const struct {
    const char* contrat;
    const char* periodes;  // the latest, then the earlier ones
    const char* garde;     // nullptr: as read
  } cas[] = {
      {"A|B 6000|4000 202611 - - -", "202611", nullptr},
      {"A 10000 202611 202607|202601 A,B|C 5000,5000|10000", "202611 202607 202601", nullptr},
      // Shares that are missing or wrong stay with their activity.
      {"A|B|C 6000||x 202611 - - -", "202611", nullptr},
      {"A - - - - -", "", nullptr},
      // Without activities the period of the latest split says nothing.
      {"- - 202611 202607 A 10000", " 202607", "- - - 202607 A 10000"},
      // An earlier split ends at its first empty code.
      {"A 10000 202611 202607 A,,B 6000,1000,4000", "202611 202607",
       "A 10000 202611 202607 A 6000"},
      {"- - - - - -", "", nullptr},
  };
  for (const auto& [texte, periodes, garde] : cas) {
    const Repartition r = Repartition::DuContrat(contrat(texte));
    std::string lues = r.Derniere();
    for (const auto& periode : r.Anterieures()) lues += " " + periode;
    EXPECT_EQ(lues, periodes) << texte;
    EXPECT_EQ(ecrit(r), garde == nullptr ? texte : garde);
  }
}

TEST(Repartition, PrendUneAutreRepartition) {
  const char* const depart = "A 10000 202611 202607|202601 A,B|C 5000,5000|10000";
  const struct {
    char acte;  // "R" replaces, "A" adds
    const char* periode;
    const char* parts;
    const char* apres;  // nullptr: refused
  } cas[] = {
      {'R', "202611", "B 3333,C 3333,A 3334",
       "B|C|A 3333|3333|3334 202611 202607|202601 A,B|C 5000,5000|10000"},
      {'R', "202607", "C 10000", "A 10000 202611 202607|202601 C|C 10000|10000"},
      {'R', "202608", "C 10000", nullptr},
      {'R', "", "C 10000", nullptr},
      {'R', "202611", "A 10001", nullptr},
      {'R', "202611", "A 5000,B 4999", nullptr},
      {'R', "202611", "", nullptr},
      {'A', "202612", "A 2500,B 7500",
       "A|B 2500|7500 202612 202611|202607|202601 A|A,B|C 10000|5000,5000|10000"},
      {'A', "202609", "C 10000",
       "A 10000 202611 202609|202607|202601 C|A,B|C 10000|5000,5000|10000"},
      {'A', "202602", "D 10000",
       "A 10000 202611 202607|202602|202601 A,B|D|C 5000,5000|10000|10000"},
      // Before the first period there is nothing to put it before.
      {'A', "202512", "D 10000", nullptr},
      {'A', "202611", "D 10000", nullptr},
      {'A', "202601", "D 10000", nullptr},
      {'A', "202613", "D 10000", nullptr},
      {'A', "", "D 10000", nullptr},
      {'A', "202612", "A 9999", nullptr},
  };
  for (const auto& [acte, periode, nouvelles, apres] : cas) {
    Repartition r = Repartition::DuContrat(contrat(depart));
    const bool fait =
        acte == 'R' ? r.Remplacer(periode, parts(nouvelles)) : r.Ajouter(periode, parts(nouvelles));
    EXPECT_EQ(fait, apres != nullptr) << acte << periode << nouvelles;
    EXPECT_EQ(ecrit(r), apres == nullptr ? depart : apres);
  }
  // The first period of a contract, of one that was never split and of one without a period.
  for (const char* texte : {"- - - - - -", "A - - - - -"}) {
    Repartition r = Repartition::DuContrat(contrat(texte));
    EXPECT_TRUE(r.Ajouter("202611", parts("B 10000")));
    EXPECT_EQ(ecrit(r), "B 10000 202611 - - -") << texte;
  }
}

// The shares of a split: as many as asked for, adding up, or off by one.
Repartition::Parts auHasard(std::mt19937& alea, bool juste) {
  Repartition::Parts resultat;
  long long reste = Repartition::Tout + (juste ? 0 : 1);
  const int nombre = std::uniform_int_distribution(1, 6)(alea);
  for (int i = 0; i < nombre; ++i) {
    const long long part =
        i + 1 == nombre ? reste : std::uniform_int_distribution<long long>(0, reste)(alea);
    reste -= part;
    resultat.push_back({"ACT" + std::to_string(100 + i), std::to_string(part)});
  }
  return resultat;
}

void verifier(const Repartition& r) {
  std::vector<std::string> periodes = r.Anterieures();
  if (!r.Derniere().empty()) periodes.insert(periodes.begin(), r.Derniere());
  EXPECT_TRUE(std::is_sorted(periodes.rbegin(), periodes.rend()));
  EXPECT_EQ(std::adjacent_find(periodes.begin(), periodes.end()), periodes.end());
  data::CItem item;
  r.Ecrire(item);
  EXPECT_EQ(Repartition::DuContrat(item), r);
  EXPECT_EQ(item.DCount(C::Activites), item.DCount(C::PartsActivites));
  for (std::size_t k = 0; k < periodes.size(); ++k) {
    EXPECT_EQ(Repartition::Total(r.A(periodes[k])), Repartition::Tout);
    if (k == 0) continue;
    int s = 1;
    while (!item.Vue(C::ActivitesAnterieures, static_cast<int>(k), s).empty()) {
      EXPECT_NE(item.Vue(C::PartsAnterieures, static_cast<int>(k), s), "");
      ++s;
    }
    EXPECT_EQ(item.Vue(C::PartsAnterieures, static_cast<int>(k), s), "");
  }
}

TEST(Repartition, ToutesSesPeriodesFontCentApresNImporteQuelleSuite) {
  for (unsigned graine = 1; graine <= 40; ++graine) {
    SCOPED_TRACE(graine);
    std::mt19937 alea(graine);
    Repartition r;
    for (int acte = 0; acte < 60; ++acte) {
      const int mois = std::uniform_int_distribution(0, 13)(alea);
      const std::string periode = std::to_string(202500 + mois);
      const bool juste = std::uniform_int_distribution(0, 3)(alea) > 0;
      const Repartition avant = r;
      const auto nouvelles = auHasard(alea, juste);
      const bool ajoute = std::uniform_int_distribution(0, 1)(alea) == 1;
      const bool fait = ajoute ? r.Ajouter(periode, nouvelles) : r.Remplacer(periode, nouvelles);
      EXPECT_TRUE(fait ? r.A(periode) == nouvelles : r == avant);
      EXPECT_FALSE(fait && (!juste || mois == 0 || mois == 13));
      verifier(r);
    }
  }
}

}  // namespace
