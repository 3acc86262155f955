#include "rules/echeances.h"

#include <gtest/gtest.h>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "storage/memory.h"

namespace {

namespace C = data::Contrat;

// Today is 22/11/2026, day 21511.
constexpr long Aujourdhui = 21511;

struct Ecrit {
  int attribut;
  const char* texte;
};

std::string dus(const std::vector<Ecrit>& attributs) {
  data::CItem contrat;
  contrat.Set(C::DateDebut, "21000");
  contrat.Set(C::DateDeclaration, "20990");
  for (const auto& [attribut, texte] : attributs) contrat.Set(attribut, texte);
  std::string lignes;
  for (const auto& e : rules::echeancesDe("00001001", contrat.Text(), Aujourdhui, 30)) {
    lignes += std::to_string(e.jour) + " " + e.libelle + "\n";
  }
  return lignes;
}

TEST(Echeances, DUnContratAutourDuJour) {
  const struct {
    std::vector<Ecrit> contrat;
    const char* attendu;
  } cas[] = {
      {{{C::Type, "D"}, {C::DateFinPresumee, "21541"}}, "21541 Fin de CDD\n"},
      {{{C::Type, "D"}, {C::DateFinPresumee, "21542"}}, ""},
      {{{C::Type, "D"}, {C::DateFinPresumee, "21481"}}, "21481 CDD échu, fin à saisir\n"},
      {{{C::Type, "D"}, {C::DateFinPresumee, "21480"}}, ""},
      {{{C::Type, "D"}, {C::DateFinPresumee, "21541"}, {C::DateFin, "21541"}}, ""},
      {{{C::Type, "I"}, {C::DateFinPresumee, "21541"}}, ""},
      {{{C::Type, "D"}, {C::DateFinPresumee, "21541"}, {C::Annule, "O"}}, ""},
      // A trial of 60 days from 21460 lasts up to 21519.
      {{{C::DateDebut, "21460"}, {C::PeriodeEssai, "60"}}, "21519 Fin de période d'essai\n"},
      {{{C::DateDebut, "21460"}, {C::PeriodeEssai, "60"}, {C::EssaiRenouvelable, "1"}},
       "21519 Fin de période d'essai, renouvelable\n"},
      {{{C::DateDebut, "21460"}, {C::PeriodeEssai, "60"}, {C::DateFin, "21518"}}, ""},
      {{{C::DateDebut, "21451"}, {C::PeriodeEssai, "60"}}, ""},
      {{{C::DateDebut, "21519"}, {C::DateDeclaration, ""}},
       "21519 Déclaration d'embauche à imprimer\n"},
      {{{C::DateDebut, "21520"}, {C::DateDeclaration, ""}}, ""},
      {{{C::DateDebut, "21510"}, {C::DateDeclaration, ""}},
       "21510 Déclaration d'embauche non imprimée\n"},
      // Followed up to October 2025: on 01/11/2026 that is a year ago, day 21490.
      {{{C::Type, "I"}, {C::Modulation, "C"}, {C::SuiviPrecPeriode, "202510"}},
       "21490 Suivi annuel à faire\n"},
      {{{C::Type, "I"}, {C::Modulation, "C"}, {C::SuiviPeriode, "202610"}}, ""},
      {{{C::Type, "I"}, {C::SuiviPrecPeriode, "202510"}}, ""},
      // Never followed: a year after 30/11/2025, day 21154.
      {{{C::Type, "I"}, {C::Modulation, "C"}, {C::DateDebut, "21154"}},
       "21519 Suivi annuel à faire\n"},
  };
  for (const auto& c : cas) {
    std::string contrat;
    for (const auto& [attribut, texte] : c.contrat) {
      contrat += std::to_string(attribut) + "=" + texte + " ";
    }
    EXPECT_EQ(dus(c.contrat), c.attendu) << contrat;
  }
}

TEST(Echeances, DeTousLesAidantsParJour) {
  const data::PosteFixe poste(Aujourdhui, "TEST");
  data::Db db(std::make_shared<storage::MemoryStorage>(poste));
  const auto ecrire = [&](std::string_view fichier, const char* cle,
                          const std::vector<Ecrit>& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [attribut, texte] : attributs) item.Set(attribut, texte);
    item.DBWrite();
  };
  using namespace data::fichier;
  ecrire(CIVILAIDANT, "00001", {{2, "Martin"}, {3, "Rose"}});
  ecrire(CIVILAIDE, "00007", {{2, "Coutant"}, {3, "Robert"}});
  ecrire(CONTRAT, "00001001",
         {{1, "02"}, {3, "00007"}, {4, "D"}, {7, "21000"}, {60, "21530"}, {134, "1"}});
  ecrire(CONTRAT, "00002001", {{1, "01"}, {4, "D"}, {7, "21515"}, {60, "21520"}});
  // Followed up in effective time.
  for (const char* cle : {"00003001", "00003002"}) {
    ecrire(CONTRAT, cle, {{1, "01"}, {4, "I"}, {7, "21154"}, {69, "C"}, {134, "1"}});
  }
  ecrire(AIDANTTTE, "000030012026", {{1, "202601"}});
  std::string lignes;
  for (const auto& e : rules::lireEcheances(db, Aujourdhui, 30)) {
    lignes += std::to_string(e.jour) + " " + e.contrat + " " + e.aidant + "/" + e.employeur + "\n";
  }
  EXPECT_EQ(lignes,
            "21515 00002001 /\n"
            "21519 00003002 /\n"
            "21520 00002001 /\n"
            "21530 00001001 Martin Rose/Coutant Robert\n");
}

}  // namespace
