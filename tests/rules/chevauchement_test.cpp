#include "rules/chevauchement.h"

#include <gtest/gtest.h>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/poste.h"
#include "storage/memory.h"

namespace {

using rules::Dates, rules::Portee;

long jour(const std::string& affichee) {
  return data::lireDateAffichee(affichee).value();
}

// A contract on file or in hand. An empty `fin` is an open-ended one.
struct Cas {
  const char* convention;
  const char* association;
  const char* employeur;
  const char* debut;
  const char* fin;
};

class Chevauchement : public ::testing::Test {
 protected:
  void ecrire(const char* numero, const Cas& cas, const char* annule = "") {
    data::CItem item = db.OpenFile("CONTRAT").NewItem(std::string("00001") + numero);
    item.Set(data::Contrat::Convention, cas.convention);
    item.Set(data::Contrat::Association, cas.association);
    item.Set(data::Contrat::Employeur, cas.employeur);
    item.Set(data::Contrat::DateDebut, std::to_string(jour(cas.debut)));
    if (*cas.fin != '\0') item.Set(data::Contrat::DateFin, std::to_string(jour(cas.fin)));
    item.Set(data::Contrat::Annule, annule);
    item.DBWrite();
  }
  static Portee portee(const Cas& cas, const char* numero = "") {
    return {"00001", numero, cas.convention, cas.association, cas.employeur};
  }
  static Dates dates(const Cas& cas) {
    Dates d{jour(cas.debut), std::nullopt};
    if (*cas.fin != '\0') d.fin = jour(cas.fin);
    return d;
  }

  data::PosteFixe poste{21511};
  data::Db db{std::make_shared<storage::MemoryStorage>(poste)};
};

constexpr Cas entite(const char* debut, const char* fin = "") {
  return {"01", "001", "001001", debut, fin};
}
constexpr Cas particulier(const char* employeur, const char* debut) {
  return {"02", "001", employeur, debut, ""};
}
constexpr Cas Ouvert = entite("01/01/2026"), Trimestre = entite("01/01/2026", "31/03/2026");

TEST_F(Chevauchement, DeuxContratsNeCouvrentJamaisLeMemeJour) {
  constexpr Cas interne{"03", "001", "001002", "01/05/2026", "31/05/2026"};
  const struct {
    const char* nom;
    Cas present;
    Cas nouveau;
    bool conflit;
  } cas[] = {
      {"same last and first day", Trimestre, entite("31/03/2026"), true},
      {"the same pair entered the other way round", entite("31/03/2026"), Trimestre, true},
      {"next day", Trimestre, entite("01/04/2026"), false},
      {"day before", entite("01/04/2026"), Trimestre, false},
      {"two open-ended", Ouvert, entite("01/06/2026"), true},
      {"inside", entite("01/01/2026", "31/12/2026"), interne, true},
      {"another entity", Ouvert, {"01", "002", "002001", "01/06/2026", ""}, false},
      {"private employer beside the entity", Ouvert, particulier("00007", "01/06/2026"), false},
      {"entity beside a private employer", particulier("00007", "01/01/2026"), entite("01/06/2026"),
       false},
      {"two private employers", particulier("00007", "01/01/2026"),
       particulier("00008", "01/06/2026"), false},
      {"the same private employer twice", particulier("00007", "01/01/2026"),
       particulier("00007", "01/06/2026"), true},
  };
  for (const auto& [nom, present, nouveau, conflit] : cas) {
    ecrire("001", present);
    EXPECT_EQ(rules::VerifContratExist(db, portee(nouveau), dates(nouveau)).conflit.has_value(),
              conflit)
        << nom;
    ecrire("001", present, "O");
    EXPECT_FALSE(rules::VerifContratExist(db, portee(nouveau), dates(nouveau)).conflit) << nom;
  }
}

TEST_F(Chevauchement, MessageEtVoisins) {
  ecrire("001", entite("01/01/2025", "31/01/2025"));
  ecrire("002", {"01", "001", "001002", "01/03/2025", "31/03/2025"});
  ecrire("003", {"01", "001", "001003", "01/09/2025", "30/09/2025"});
  ecrire("004", {"01", "001", "001004", "01/12/2025", ""});
  const auto entre = [&](const char* debut, const char* fin) {
    const Cas cas{"01", "001", "001001", debut, fin};
    return rules::VerifContratExist(db, portee(cas, "005"), dates(cas));
  };
  // Neither the contract itself nor a quoting mark in a code makes a neighbour.
  const Cas lui{"01", "001", "001004", "01/12/2025", ""};
  EXPECT_FALSE(rules::VerifContratExist(db, portee(lui, "004"), dates(lui)).conflit);
  EXPECT_FALSE(rules::Verif_SuppDateFin(db, portee(lui, "004"), dates(lui)));
  const Cas etrange{"02", "001\" OR AVEC 2 <> \"", "x]\"", "01/01/2026", ""};
  EXPECT_FALSE(rules::VerifContratExist(db, portee(etrange), dates(etrange)).conflit);
  const auto libre = entre("01/05/2025", "31/05/2025");
  EXPECT_FALSE(libre.conflit);
  EXPECT_EQ(libre.derniereFinAvant, jour("31/03/2025"));
  EXPECT_EQ(libre.prochainDebutApres, jour("01/09/2025"));

  const auto seul = entre("01/01/2020", "31/12/2020");
  EXPECT_EQ(seul.derniereFinAvant, 0);
  EXPECT_EQ(seul.prochainDebutApres, jour("01/01/2025"));

  // The scan goes by employer and stops at the first overlap: only what stood before it counts.
  const auto avec = entre("15/09/2025", "");
  ASSERT_TRUE(avec.conflit);
  EXPECT_EQ(avec.conflit->texte,
            "Création impossible car 2 contrats ont des dates qui se chevauchent : \r\n\r\n"
            "Date début        Date Fin\r\n01/09/2025       30/09/2025");
  EXPECT_EQ(avec.finContratConflit, "30/09/2025");
  EXPECT_EQ(avec.derniereFinAvant, jour("31/03/2025"));
  EXPECT_EQ(avec.prochainDebutApres, rules::SansFin);

  const auto ouvert = entre("01/01/2026", "");
  ASSERT_TRUE(ouvert.conflit);
  EXPECT_EQ(ouvert.finContratConflit, "");
  EXPECT_TRUE(ouvert.conflit->texte.ends_with("\r\n01/12/2025       "));
}

TEST_F(Chevauchement, DateDeFinChangeeOuSupprimee) {
  const std::string suppression =
      "Suppression impossible de la date de fin car 2 contrats se retrouvent sans date de fin : "
      "\r\n\r\nDate début        Date Fin\r\n";
  const std::string modification =
      "Modification impossible de la date de fin car 2 contrats ont maintenant des dates qui se "
      "chevauchent : \r\n\r\nDate début        Date Fin\r\n";
  const struct {
    const char* nom;
    Cas autre;
    Cas contrat;
    std::string texte;
  } cas[] = {
      {"none left with an end", entite("01/01/2020"), Ouvert, suppression + "01/01/2020       "},
      {"a later one with an end", entite("01/06/2026", "30/06/2026"), Ouvert,
       suppression + "01/06/2026       "},
      {"an earlier one that ended", entite("01/01/2025", "31/12/2025"), Ouvert, ""},
      {"end after an open one's start", entite("01/06/2026"), entite("01/01/2026", "01/06/2026"),
       modification + "01/06/2026       "},
      {"end before an open one's start", entite("01/06/2026"), entite("01/01/2026", "31/05/2026"),
       ""},
      {"common days", entite("01/06/2026", "30/06/2026"), entite("01/01/2026", "15/06/2026"),
       modification + "01/06/2026       30/06/2026"},
      {"after it", entite("01/06/2026", "30/06/2026"), entite("01/07/2026", "31/07/2026"), ""},
      {"other scope", particulier("00007", "01/01/2020"), Ouvert, ""},
  };
  for (const auto& [nom, autre, contrat, texte] : cas) {
    ecrire("001", autre);
    const auto refus = rules::Verif_SuppDateFin(db, portee(contrat, "002"), dates(contrat));
    EXPECT_EQ(refus ? refus->texte : "", texte) << nom;
    EXPECT_TRUE(!refus || refus->icone == screen::Icone::Exclamation) << nom;
  }
}

}  // namespace
