#include "rules/chevauchement.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "data/layouts/contrat.h"
#include "data/poste.h"
#include "data/texte.h"
#include "storage/memory.h"
#include "support/jour.h"
#include "support/table.h"

namespace {

using rules::Dates, rules::Portee;
using support::jour;

// A contract on file or in hand, in the form of the tables.
struct Cas {
  explicit Cas(const std::string& texte) {
    std::istringstream(texte) >> convention >> association >> employeur >> debut >> fin;
  }
  std::string convention, association, employeur, debut, fin;
};

class Chevauchement : public ::testing::Test {
 protected:
  void ecrire(const char* numero, const Cas& cas, const char* annule = "") {
    data::CItem item = db.OpenFile("CONTRAT").NewItem(std::string("00001") + numero);
    item.Set(data::Contrat::Convention, cas.convention);
    item.Set(data::Contrat::Association, cas.association);
    item.Set(data::Contrat::Employeur, cas.employeur);
    item.Set(data::Contrat::DateDebut, std::to_string(jour(cas.debut)));
    if (cas.fin != "-") item.Set(data::Contrat::DateFin, std::to_string(jour(cas.fin)));
    item.Set(data::Contrat::Annule, annule);
    item.DBWrite();
  }
  static Portee portee(const Cas& cas, const char* numero = "") {
    return {"00001", numero, cas.convention, cas.association, cas.employeur};
  }
  static Dates dates(const Cas& cas) {
    Dates d{jour(cas.debut), std::nullopt};
    if (cas.fin != "-") d.fin = jour(cas.fin);
    return d;
  }

  data::PosteFixe poste{21511};
  data::Db db{std::make_shared<storage::MemoryStorage>(poste)};
};

TEST_F(Chevauchement, DeuxContratsNeCouvrentJamaisLeMemeJour) {
  for (const auto& [nom, present, texte, conflit] :
       support::table<4>("rules/chevauchement.md", "Jamais le même jour")) {
    SCOPED_TRACE(nom);
    const Cas nouveau(texte);
    ecrire("001", Cas(present));
    EXPECT_EQ(rules::VerifContratExist(db, portee(nouveau), dates(nouveau)).conflit.has_value(),
              conflit == "oui");
    ecrire("001", Cas(present), "O");
    EXPECT_FALSE(rules::VerifContratExist(db, portee(nouveau), dates(nouveau)).conflit);
  }
}

TEST_F(Chevauchement, MessageEtVoisins) {
  ecrire("001", Cas("01 001 001001 01/01/2025 31/01/2025"));
  ecrire("002", Cas("01 001 001002 01/03/2025 31/03/2025"));
  ecrire("003", Cas("01 001 001003 01/09/2025 30/09/2025"));
  const Cas lui("01 001 001004 01/12/2025 -");
  ecrire("004", lui);
  const auto entre = [&](const std::string& jours) {
    const Cas cas("01 001 001001 " + jours);
    return rules::VerifContratExist(db, portee(cas, "005"), dates(cas));
  };
  // Neither the contract itself nor a quoting mark in a code makes a neighbour.
  EXPECT_FALSE(rules::VerifContratExist(db, portee(lui, "004"), dates(lui)).conflit);
  EXPECT_FALSE(rules::Verif_SuppDateFin(db, portee(lui, "004"), dates(lui)));
  Cas etrange("02 001 x]\" 01/01/2026 -");
  etrange.association = "001\" OR AVEC 2 <> \"";
  EXPECT_FALSE(rules::VerifContratExist(db, portee(etrange), dates(etrange)).conflit);
  const auto libre = entre("01/05/2025 31/05/2025");
  EXPECT_FALSE(libre.conflit);
  EXPECT_EQ(libre.derniereFinAvant, jour("31/03/2025"));
  EXPECT_EQ(libre.prochainDebutApres, jour("01/09/2025"));

  const auto seul = entre("01/01/2020 31/12/2020");
  EXPECT_EQ(seul.derniereFinAvant, 0);
  EXPECT_EQ(seul.prochainDebutApres, jour("01/01/2025"));

  // The scan goes by employer and stops at the first overlap: only what stood before it counts.
  const auto avec = entre("15/09/2025 -");
  ASSERT_TRUE(avec.conflit);
  EXPECT_EQ(avec.conflit->texte,
            "Création impossible car 2 contrats ont des dates qui se chevauchent : \r\n\r\n"
            "Date début        Date Fin\r\n01/09/2025       30/09/2025");
  EXPECT_EQ(avec.finContratConflit, "30/09/2025");
  EXPECT_EQ(avec.derniereFinAvant, jour("31/03/2025"));
  EXPECT_EQ(avec.prochainDebutApres, rules::SansFin);

  const auto ouvert = entre("01/01/2026 -");
  ASSERT_TRUE(ouvert.conflit);
  EXPECT_EQ(ouvert.finContratConflit, "");
  EXPECT_TRUE(ouvert.conflit->texte.ends_with("\r\n01/12/2025       "));
}

TEST_F(Chevauchement, DateDeFinChangeeOuSupprimee) {
  const std::string tete = "\r\n\r\nDate début        Date Fin\r\n";
  const std::map<std::string, std::string> refus{
      {"suppression",
       "Suppression impossible de la date de fin car 2 contrats se retrouvent sans date de fin : " +
           tete},
      {"modification",
       "Modification impossible de la date de fin car 2 contrats ont maintenant des dates qui se "
       "chevauchent : " +
           tete}};
  for (const auto& [nom, autre, texte, genre, jours] :
       support::table<5>("rules/chevauchement.md", "Une fin changée ou supprimée")) {
    SCOPED_TRACE(nom);
    const Cas contrat(texte);
    ecrire("001", Cas(autre));
    const auto vu = rules::Verif_SuppDateFin(db, portee(contrat, "002"), dates(contrat));
    // A missing end leaves its column blank.
    const std::string attendu = genre.empty() ? "" : refus.at(genre) + jours;
    EXPECT_EQ(vu ? data::sansBlancsADroite(vu->texte) : "", attendu);
    EXPECT_TRUE(!vu || vu->icone == screen::Icone::Exclamation);
  }
}

}  // namespace
