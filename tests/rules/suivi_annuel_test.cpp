// The two tables of the annual follow-up as values. The figures were worked out by hand; the random
// years beside them are followed by a small bookkeeping of whole numbers.

#include "rules/suivi_annuel.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "data/layouts/contrat.h"
#include "rules/suivi_annuel_mois.h"
#include "rules/suivi_annuel_nombre.h"
#include "rules/suivi_annuel_tte.h"
#include "support/table.h"

namespace {

using data::Monnaie, rules::SuiviRemunere, rules::SuiviTte;
namespace C = data::Contrat;

Monnaie h(const char* texte) {
  return Monnaie::DeTexte(texte);
}

std::string lisible(std::string texte) {
  for (char& c : texte) c = c == data::SepValeur ? '^' : c == data::SepAttribut ? '|' : c;
  return texte;
}

void setValeurs(data::CItem& item, int attribut, std::string texte) {
  for (char& c : texte) c = c == '^' ? data::SepValeur : c;
  item.Set(attribut, texte);
}

TEST(SuiviNombre, FormeMontree) {
  for (const auto& [valeur, avant, apres, forme] :
       support::table<4>("rules/suivi_annuel.md", "Un nombre affiché")) {
    EXPECT_EQ(
        "`" + rules::formeSuivi(Monnaie::DeTexte(valeur), std::stoi(avant), std::stoi(apres)) + "`",
        forme)
        << valeur;
  }
  EXPECT_EQ(rules::lireForme("- 12,50"), h("-12,5"));
  EXPECT_EQ(rules::lireForme("abc"), Monnaie());
  EXPECT_EQ(rules::etiquetteMois("202602"), "FÉVRIER 2026");
  EXPECT_EQ(rules::etiquetteMois("2026"), "2026");
}

TEST(SuiviMois, MoisOfferts) {
  for (const auto& [traitee, paie, decembre, particulier, cloture, premier, dernier, nombre] :
       support::table<8>("rules/suivi_annuel.md", "Les mois offerts")) {
    SCOPED_TRACE(traitee + " " + paie + " " + cloture);
    const auto mois =
        rules::moisOfferts({traitee, paie, decembre == "oui", particulier == "oui", cloture});
    ASSERT_EQ(mois.size(), std::stoul(nombre));
    if (mois.empty()) continue;
    EXPECT_EQ(mois.front() + " " + mois.back(), premier + " " + dernier);
  }
}

TEST(SuiviMois, AnneeDuTempsEffectif) {
  for (const auto& [traitee, calculee, cloture, annee] :
       support::table<4>("rules/suivi_annuel.md", "L'année du temps effectif")) {
    data::CItem contrat;
    contrat.Set(C::PeriodeTraitee, traitee);
    contrat.Set(C::DernierCalcul, calculee);
    EXPECT_EQ(rules::anneeSuivi(contrat, cloture, "202611"), std::stoi(annee))
        << traitee << "/" << calculee << "/" << cloture;
  }
}

// "forfait cumul solde" of each line.
std::string calculs(const SuiviRemunere& suivi) {
  std::string texte;
  for (const auto& c : suivi.Calculs()) {
    texte += "[" + c.forfait.Texte(2) + " " + c.cumul.Texte(2) + " " + c.solde.Texte(2) + "]";
  }
  return texte;
}

// A missing period ends the table, other missing or wrong numbers count as 0, and a visit leaves it
// all as it is. Correcting one line leaves the texts of the others.
TEST(SuiviRemunere, ArticlesInegauxOuFaux) {
  data::CItem contrat;
  setValeurs(contrat, 71, "202501");
  setValeurs(contrat, 75, "-150");
  setValeurs(contrat, 76, "202601^2026^202603^^202605");
  setValeurs(contrat, 77, "15167^abc^99999999999999999999^1^2");
  setValeurs(contrat, 80, "833");
  setValeurs(contrat, 100, "^012,5");
  const std::string avant = contrat.Text();
  SuiviRemunere suivi;
  suivi.Lire(contrat, rules::Annee::EnCours);
  EXPECT_EQ(calculs(suivi), "[151,67 8,33 8,33][0,00 8,33 8,21][0,00 8,33 8,21]");
  suivi.Corriger(0, suivi.Heures(0));
  EXPECT_EQ(suivi.Heures(1).regul, h("0,125"));
  suivi.Lire(contrat, rules::Annee::EnCours);
  suivi.Ecrire(contrat);
  EXPECT_EQ(contrat.Text(), avant);
  suivi.Corriger(0, {h("151,67"), h("0"), h("160"), h("9"), h("0")});
  suivi.Ecrire(contrat);
  EXPECT_EQ(lisible(contrat(76)), "202601^2026^202603");
  EXPECT_EQ(lisible(contrat(77)), "15167^abc^99999999999999999999");
  EXPECT_EQ(lisible(contrat(80)), "900");
  EXPECT_EQ(lisible(contrat(100)), "0^012,5");
  suivi.Lire(contrat, rules::Annee::Precedente);
  EXPECT_EQ(calculs(suivi), "[0,00 -1,50 -1,50]");
}

rules::TempsMois temps(const char* mois, const char* samDim, const char* feries, const char* heures,
                       const char* conges, const char* effectif, const char* regul) {
  return {mois, samDim, feries, h(heures), h(conges), h("0"), h("0"), h(effectif), h(regul)};
}

// "days hours difference cumulated | balance" of each line, differences in hundredths.
std::string calculs(const SuiviTte& suivi) {
  std::string texte;
  int ligne = 0;
  for (const auto& c : suivi.Calculs()) {
    texte += "[" + c.joursPotentiels.TexteCourt() + " " + c.heuresPotentielles.TexteCourt() + " " +
             std::to_string(c.difference) + " " + std::to_string(c.cumul) + "|" +
             suivi.Table().Texte(ligne++, SuiviTte::Solde) + "]";
  }
  return texte;
}

TEST(SuiviTte, DemiJoursEtFevrierBissextile) {
  SuiviTte suivi;
  // 31 - 9 - 2 = 20 days of 7,77 h: 155,40. 150,00 - 155,40 = -5,40.
  suivi.Ajouter("202803", temps("31", "9", "2", "7,77", "0", "150", "-1"));
  // 29 - 8 - 0,5 = 20,5 days of 7,77 h: 159,285. 150 - 159,285 = -9,285, that is -9,28.
  suivi.Ajouter("202802", temps("29", "8", "0", "7,77", "0,5", "150", "1"));
  // 31 - 10 - 1 - 5,5 = 14,5 days of 7,00 h: 101,50. 110,25 - 101,50 = 8,75.
  suivi.Ajouter("202801", temps("31", "10", "1", "7", "5,5", "110,25", "0"));
  EXPECT_EQ(calculs(suivi),
            "[14,5 101,5 875 875|875][20,5 159,285 -928 -53|-153][20 155,4 -540 -593|-593]");
  // The second half hundredth goes up as well: 159,285 under 159 is -0,28 and not -0,29.
  suivi.Corriger(1, temps("29", "8", "0", "7,77", "0,5", "159", "0"));
  EXPECT_EQ(calculs(suivi),
            "[14,5 101,5 875 875|875][20,5 159,285 -28 847|847][20 155,4 -540 307|407]");
  suivi.Retirer(0);
  EXPECT_EQ(calculs(suivi), "[20,5 159,285 -28 -28|-28][20 155,4 -540 -568|-468]");
}

// A balance on file is shown as it is until a line is confirmed; fields that this system does not
// know stay.
TEST(SuiviTte, UneVisiteLaisseLArticle) {
  data::CItem article;
  setValeurs(article, 1, "202601^^202603");
  setValeurs(article, 2, "700^700");
  setValeurs(article, 9, "100^200^x");
  setValeurs(article, 11, "999");
  setValeurs(article, 14, "autre");
  const std::string avant = article.Text();
  SuiviTte suivi;
  suivi.Lire(article);
  EXPECT_EQ(calculs(suivi), "[0 0 100 100|999][0 0 200 300|][0 0 0 300|]");
  suivi.Ecrire(article);
  EXPECT_EQ(article.Text(), avant);
  suivi.Retirer(1);
  suivi.Ecrire(article);
  EXPECT_EQ(lisible(article.Text()), "202601^202603|700|||||||100^x||100^100|||autre");
}

// Random years against whole numbers of hundredths, by period.

constexpr int Annees = 200, Actes = 40;

std::string periode(int mois) {
  return "2026" + std::string(mois < 10 ? "0" : "") + std::to_string(mois);
}
Monnaie deCentiemes(long n) {
  return Monnaie::DeCentiemes(std::to_string(n));
}
std::string joints(std::string texte, const std::string& valeur) {
  return texte.empty() ? valeur : texte + "^" + valeur;
}

TEST(SuiviAnnuelAlea, LesHeuresPayeesRestentUneSommeCourante) {
  std::mt19937 alea(20261123);
  const auto tirer = [&](long de, long a) {
    return std::uniform_int_distribution<long>(de, a)(alea);
  };
  for (int annee = 0; annee < Annees; ++annee) {
    SuiviRemunere suivi;
    data::CItem contrat;
    contrat.Set(C::Convention, "01");
    suivi.Lire(contrat, rules::Annee::EnCours);
    std::map<std::string, std::array<long, 5>> livre;
    for (int acte = 0; acte < Actes; ++acte) {
      const std::string mois = periode(static_cast<int>(tirer(1, 12)));
      const auto rang = static_cast<int>(std::distance(livre.begin(), livre.find(mois)));
      if (!livre.contains(mois)) {
        livre[mois] = {tirer(0, 20000), 0, 0, 0, tirer(-900, 900)};
        livre[mois][2] = livre[mois][0];
        suivi.Ajouter(mois, deCentiemes(livre[mois][0]), deCentiemes(livre[mois][4]));
      } else if (tirer(0, 3) == 0) {
        livre.erase(mois);
        suivi.Retirer(rang);
      } else {
        auto& l = livre[mois] = {tirer(0, 20000), tirer(0, 9000), tirer(0, 25000),
                                 tirer(-9000, 9000), tirer(-900, 900)};
        suivi.Corriger(rang, {deCentiemes(l[0]), deCentiemes(l[1]), deCentiemes(l[2]),
                              deCentiemes(l[3]), deCentiemes(l[4])});
      }
    }
    suivi.Ecrire(contrat);
    std::array<std::string, 6> attendus;
    long cumul = 0, solde = 0;
    SuiviRemunere relu;
    relu.Lire(contrat, rules::Annee::EnCours);
    const auto lignes = relu.Calculs();
    ASSERT_EQ(lignes.size(), livre.size()) << "year " << annee;
    auto ligne = lignes.begin();
    for (const auto& [mois, l] : livre) {
      attendus[0] = joints(attendus[0], mois);
      for (std::size_t c = 0; c < 5; ++c) {
        attendus[c + 1] = joints(attendus[c + 1], std::to_string(l[c]));
      }
      cumul += l[3];
      solde += l[3] - l[4];
      ASSERT_EQ(ligne->forfait, deCentiemes(l[0] - l[1])) << "year " << annee << " " << mois;
      ASSERT_EQ(ligne->cumul, deCentiemes(cumul)) << "year " << annee << " " << mois;
      ASSERT_EQ(ligne->solde, deCentiemes(solde)) << "year " << annee << " " << mois;
      ++ligne;
    }
    for (std::size_t c = 0; c < 6; ++c) {
      ASSERT_EQ(lisible(contrat(C::GroupeSuivi[c])), attendus[c]) << "year " << annee;
    }
    EXPECT_EQ(contrat(C::Convention), "01");
  }
}

TEST(SuiviAnnuelAlea, LeTempsEffectifResteUneSommeCourante) {
  std::mt19937 alea(20261124);
  const auto tirer = [&](long de, long a) {
    return std::uniform_int_distribution<long>(de, a)(alea);
  };
  // Hours a day, days of the month, S/D, holidays, leave, sickness, other, worked, regularisation.
  using Ligne = std::array<long, 9>;
  for (int annee = 0; annee < Annees; ++annee) {
    SuiviTte suivi;
    std::map<std::string, Ligne> livre;
    for (int acte = 0; acte < Actes; ++acte) {
      const std::string mois = periode(static_cast<int>(tirer(1, 12)));
      const auto rang = static_cast<int>(std::distance(livre.begin(), livre.find(mois)));
      if (livre.contains(mois) && tirer(0, 3) == 0) {
        livre.erase(mois);
        suivi.Retirer(rang);
        continue;
      }
      const bool nouveau = !livre.contains(mois);
      Ligne& l = livre[mois];
      l = {tirer(1, 1000),    nouveau ? tirer(28, 31) : l[1],
           tirer(0, 10),      tirer(0, 3),
           tirer(0, 20) * 50, tirer(0, 5) * 25,
           tirer(0, 300),     tirer(0, 25000),
           tirer(-900, 900)};
      const rules::TempsMois t{std::to_string(l[1]), std::to_string(l[2]), std::to_string(l[3]),
                               deCentiemes(l[0]),    deCentiemes(l[4]),    deCentiemes(l[5]),
                               deCentiemes(l[6]),    deCentiemes(l[7]),    deCentiemes(l[8])};
      if (nouveau) {
        suivi.Ajouter(mois, t);
      } else {
        suivi.Corriger(rang, t);
      }
    }
    data::CItem article;
    suivi.Ecrire(article);
    SuiviTte relu;
    relu.Lire(article);
    ASSERT_EQ(calculs(relu), calculs(suivi)) << "year " << annee;
    ASSERT_EQ(relu.Table().Nombre(), static_cast<int>(livre.size())) << "year " << annee;
    long cumul = 0, solde = 0;
    int i = 0;
    for (const auto& [mois, l] : livre) {
      // In ten-thousandths, then to the nearest hundredth, a half going up.
      const long jours = (l[1] - l[2] - l[3]) * 100 - l[4] - l[5] - l[6];
      const long exacte = l[7] * 100 - l[0] * jours + 50;
      const long difference = exacte / 100 - (exacte % 100 < 0 ? 1 : 0);
      cumul += difference;
      solde += difference - l[8];
      const std::string ou = "year " + std::to_string(annee) + " " + mois;
      ASSERT_EQ(relu.Table().Periode(i), mois) << ou;
      ASSERT_EQ(relu.Calculs()[static_cast<std::size_t>(i)].cumul, cumul) << ou;
      ASSERT_EQ(relu.Table().Texte(i, SuiviTte::Solde), std::to_string(solde)) << ou;
      ++i;
    }
  }
}

}  // namespace
