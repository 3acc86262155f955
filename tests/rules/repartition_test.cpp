#include "rules/repartition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "data/layouts/contrat.h"
#include "support/table.h"

namespace {

namespace C = data::Contrat;
using rules::Repartition;

constexpr int Attributs[] = {C::Activites,
                             C::PartsActivites,
                             C::PeriodeEffet,
                             C::PeriodesEffetAnterieures,
                             C::ActivitesAnterieures,
                             C::PartsAnterieures};

// A contract of those six attributes, in the form of the tables.
data::CItem contrat(const std::string& texte) {
  data::CItem item;
  std::size_t debut = 0;
  for (const int a : Attributs) {
    const std::size_t fin = texte.find(' ', debut);
    std::string attribut = texte.substr(debut, fin - debut);
    debut = fin == std::string::npos ? texte.size() : fin + 1;
    for (char& c : attribut) {
      c = c == '^' ? data::SepValeur : c == ',' ? data::SepSousValeur : c;
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
      c = c == data::SepValeur ? '^' : c == data::SepSousValeur ? ',' : c;
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
  for (const auto& [texte, periodes, garde] :
       support::table<3>("rules/repartition.md", "Ce qui est lu")) {
    const Repartition r = Repartition::DuContrat(contrat(texte));
    std::string lues = r.Derniere();
    for (const auto& p : r.Anterieures()) lues += (lues.empty() ? "" : " ") + p;
    EXPECT_EQ(lues, periodes) << texte;
    EXPECT_EQ(ecrit(r), garde);
  }
}

TEST(Repartition, PrendUneAutreRepartition) {
  for (const auto& [avant, acte, periode, nouvelles, apres] :
       support::table<5>("rules/repartition.md", "Une autre répartition")) {
    Repartition r = Repartition::DuContrat(contrat(avant));
    const bool fait =
        acte == "R" ? r.Remplacer(periode, parts(nouvelles)) : r.Ajouter(periode, parts(nouvelles));
    EXPECT_EQ(fait, !apres.empty()) << acte << periode << nouvelles;
    EXPECT_EQ(ecrit(r), apres.empty() ? avant : apres);
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
