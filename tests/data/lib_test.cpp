#include "data/lib.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>

#include "data/jour.h"
#include "support/table.h"

namespace data {
namespace {

const PosteFixe poste(21511);

// Every day of the years that can be typed follows the one before it, in the week too.
TEST(Jour, CalendarWithoutGap) {
  Date attendue{1900, 1, 1};  // a Monday
  int semaine = 0;
  for (long jour = *jourDe(attendue); attendue.annee < 2200; ++jour) {
    ASSERT_EQ(dateDe(jour), attendue);
    ASSERT_EQ(jourDe(attendue), jour);
    ASSERT_EQ(lireDateAffichee(dateAffichee(jour)), jour);
    ASSERT_EQ(jourDeSemaine(jour), semaine);
    semaine = (semaine + 1) % 7;
    if (++attendue.jour > joursDuMois(attendue.annee, attendue.mois)) {
      attendue = attendue.mois == 12 ? Date{attendue.annee + 1, 1, 1}
                                     : Date{attendue.annee, attendue.mois + 1, 1};
    }
  }
}

TEST(Jour, NumbersOfDays) {
  for (const auto& [annee, mois, jour, numero, affichee] :
       support::table<5>("data/tables.md", "Numbers of days")) {
    EXPECT_EQ(jourDe({std::stoi(annee), std::stoi(mois), std::stoi(jour)}), std::stol(numero));
    EXPECT_EQ(dateAffichee(std::stol(numero)), affichee);
  }
  const Date absentes[] = {{2100, 2, 29}, {2026, 2, 29}, {2026, 4, 31}, {2026, 13, 1},
                           {2026, 0, 1},  {2026, 1, 0},  {0, 1, 1},     {10000, 1, 1}};
  for (const Date& d : absentes) EXPECT_EQ(jourDe(d), std::nullopt) << d.annee << " " << d.mois;
  EXPECT_EQ(dateAffichee(LONG_MIN) + dateAffichee(LONG_MAX), "");
  EXPECT_EQ(dateDe(LONG_MAX), (Date{9999, 12, 31}));
  EXPECT_EQ(dateDe(LONG_MIN), (Date{1, 1, 1}));
}

TEST(Jour, Periods) {
  EXPECT_EQ(premierJour("202611"), 21490);  // 21 days before the 22nd
  EXPECT_EQ(dernierJour("202611"), 21519);
  EXPECT_EQ(periodeDe(0), "196712");
  EXPECT_EQ(decalePeriode("202611", 2), "202701");
  EXPECT_EQ(decalePeriode("202611", -23), "202412");
  EXPECT_EQ(decalePeriode("999912", 1) + decalePeriode("000101", -1), "");
  EXPECT_EQ(moisAnnee("202608") + moisAnnee("202602"), "août 2026février 2026");
  for (const char* t : {"", "202613", "202600", "2026", "20261a", "2026011", "000001"}) {
    EXPECT_EQ(premierJour(t), std::nullopt) << t;
    EXPECT_EQ(moisAnnee(t) + decalePeriode(t, 1), "") << t;
  }
}

TEST(LibDate, NormalisesWhatAClerkTypes) {
  Lib lib(poste);
  for (const auto& [saisie, attendue] :
       support::table<2>("data/tables.md", "Dates that a clerk types")) {
    EXPECT_EQ(lib.NormaliseDateText(support::code(saisie)), attendue);
    EXPECT_FALSE(lib.DateError()) << saisie;
  }
  const char* mauvais[] = {
      "",         "demain",   "29/02/2100", "31/04/2026", "1/13/2026",   "29/2",         "1/5/26/",
      "/1/5/26",  "1//5/26",  "1/5/026",    "1/1/ab",     "1/1/-26",     "0105261",      "001/5/26",
      "1/5/1899", "1/5/2200", "0x/05/2026", "1/5/20 26",  "2026-5-2026", "26-12-2026-1", "1/"};
  for (const char* t : mauvais) {
    EXPECT_EQ(lib.NormaliseDateText(t), t);
    EXPECT_TRUE(lib.DateError()) << t;
  }
}

TEST(LibDate, InternalAndBack) {
  const Lib lib(poste);
  EXPECT_EQ(lib.DateToInternal("22/11/2026"), "21511");
  EXPECT_EQ(lib.DateToInternal("14/10/2241"), "99999");
  EXPECT_EQ(lib.DateToInternal("  ") + lib.DateToInternal(""), "");
  EXPECT_THROW(lib.DateToInternal("31/02/2026"), DateInvalide);
  EXPECT_EQ(lib.LireDate("31/02/2026"), std::nullopt);
  EXPECT_EQ(lib.DateFromInternal("21511"), "22/11/2026");
  for (const char* t : {"", "CDD", "9999999"}) EXPECT_EQ(lib.DateFromInternal(t), t);
}

TEST(LibNumber, FilterKey) {
  const Lib lib(poste);
  PosteFixe posteAnglais(0);
  posteAnglais.SetSeparateurDecimal(".");
  const Lib anglais(posteAnglais);
  const struct {
    const Lib& lib;
    const char* texte;
    char32_t touche;
    bool moins;
    char32_t attendue;
  } cas[] = {{lib, "12", U'9', false, U'9'}, {lib, "", U'a', true, 0},
             {lib, "", U'é', true, 0},       {lib, "", U'+', true, 0},
             {lib, "12", U',', false, U','}, {lib, "12", U'.', false, U','},
             {lib, "1,2", U',', true, 0},    {anglais, "12", U',', false, U'.'},
             {lib, "", U'-', true, U'-'},    {lib, "", U'-', false, 0},
             {lib, "-1", U'-', true, 0},     {lib, "1,2", 8, false, 8},
             {lib, "1", 0x7F, true, 0}};
  for (const auto& c : cas) {
    char32_t touche = c.touche;
    c.lib.FilterKey(c.texte, touche, c.moins);
    EXPECT_EQ(touche, c.attendue) << c.texte << " + " << static_cast<int>(c.touche);
  }
}

TEST(LibNumber, FormatNumber) {
  const Lib lib(poste);
  for (const auto& [texte, avant, apres, signe, attendu] :
       support::table<5>("data/tables.md", "Numbers in their columns")) {
    EXPECT_EQ(
        lib.FormatNumber(support::code(texte), std::stoi(avant), std::stoi(apres), signe == "true"),
        support::code(attendu))
        << texte;
  }
  for (const char* t :
       {"", "99999,995", "123456", "12,3,4", "1 23", "12-", "-", ",", "1e3", "\xC3"}) {
    EXPECT_EQ(lib.FormatNumberField(t, 5, 2, true), std::nullopt) << t;
    EXPECT_THROW(lib.FormatNumber(t, 5, 2, true), NombreInvalide) << t;
  }
  EXPECT_EQ(lib.FormatNumberField("-1", 5, 2, false), std::nullopt);
  EXPECT_EQ(lib.FormatNumber(Monnaie::DeCentiemes("-15167"), 5, 2, true), "-  151,67");
  PosteFixe anglais(0);
  anglais.SetSeparateurDecimal(".");
  EXPECT_EQ(Lib(anglais).FormatNumber("12,5", 3, 2, false), " 12.50");
}

TEST(LibNumber, Routines) {
  EXPECT_EQ(CadrerMontant("   12,50", false), "12,50");
  EXPECT_EQ(CadrerMontant("-   12,50", true), "-12,50");
  EXPECT_EQ(CadrerMontant("-   12,50", false), "-   12,50");
  EXPECT_EQ(FormatZoneNumBis("12,349", 4, 2, false), "  12,34");
  EXPECT_EQ(FormatZoneNumBis("-7.5", 4, 2, true), "-   7,50");
  EXPECT_EQ(FormatZoneNumBis("-7,5", 4, 2, false), "   7,50");
  EXPECT_EQ(FormatZoneNumBis("3,4567", 1, 3, false), "3,450");  // two decimals kept, not three
  EXPECT_EQ(FormatZoneNumBis("2,5", 1, 0, false), "2,5");
  EXPECT_THROW(FormatZoneNumBis("", 4, 2, false), NombreInvalide);
  EXPECT_EQ(Determinerdate("202602") + Determinerdate("202608"), "février 2026aout 2026");
  EXPECT_EQ(formeMilliers("  1234567,80"), "1 234 567,80");
  EXPECT_EQ(formeMilliers("-  123"), "-123");
  // As spreadsheets part thousands.
  EXPECT_EQ(enUnites("1\u00A0234,5", 2), 123450);
  EXPECT_EQ(enUnites("\u202F1\u202F234\u00A0", 0), 1234);
  EXPECT_EQ(enUnites("1\u00A023,5", 2), std::nullopt);
  EXPECT_EQ(formeMilliers("1000.5") + formeMilliers(",5") + formeMilliers("n/a"), "1 000.50,5n/a");
  std::string lus;
  for (const char* t : {"12,5", "12.5", "-12,9", "", "abc", "0045", " 7", "12 rue", "1 234", ",9",
                        "--5", "1\u202F234\u00A0567"}) {
    lus += std::to_string(entier(t)) + " ";
  }
  EXPECT_EQ(lus, "12 12 -12 0 0 45 7 12 1234 0 0 1234567 ");
  EXPECT_EQ(entier("99999999999999999999"), LLONG_MAX);
}

TEST(LibNumber, ZoneNumCarac) {
  for (const auto& [texte, places, apres, ensuite, dit] :
       support::table<5>("data/tables.md", "A numeric zone, key by key")) {
    int avant = std::stoi(places);
    const ControleZoneNum r = ZoneNumCarac(texte, avant, std::stoi(apres), ",");
    const char* genre = r.erreur ? "erreur: " : r.information ? "information: " : "";
    EXPECT_EQ(genre + r.message, dit) << texte;
    EXPECT_EQ(r.Focus(), !r.Passe()) << texte;
    EXPECT_EQ(avant, std::stoi(ensuite)) << texte;
  }
}

TEST(Poste, NameAndClock) {
  EXPECT_EQ(poste.Horodatage(), "2026-11-22 00:00:00");
  const PosteSysteme systeme;
  // The account counts, whatever the environment pretends.
  setenv("USER", "quelqu'un d'autre", 1);
  const passwd* const compte = getpwuid(geteuid());
  ASSERT_NE(compte, nullptr);
  EXPECT_EQ(systeme.NomUtilisateur(), std::string(compte->pw_name).substr(0, 20));
  const std::string jour = dateAffichee(systeme.Aujourdhui());
  EXPECT_EQ(systeme.Horodatage().substr(0, 4), jour.substr(6));
  EXPECT_EQ(systeme.Horodatage().size(), 19u);
}

}  // namespace
}  // namespace data
