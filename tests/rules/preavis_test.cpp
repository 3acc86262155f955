#include "rules/preavis.h"

#include <gtest/gtest.h>

#include "data/jour.h"
#include "support/jour.h"
#include "support/table.h"

namespace {

using rules::Anciennete, rules::DureePreavis, rules::SituationPreavis;
using support::jour;

// "2 mois", "6 jours", "-" for none.
std::string ecrite(const DureePreavis& duree) {
  if (duree.mois > 0) return std::to_string(duree.mois) + " mois";
  return duree.jours > 0 ? std::to_string(duree.jours) + " jours" : "-";
}

char lettre(const std::string& cellule) {
  return cellule.empty() ? '\0' : cellule[0];
}

TEST(Preavis, ChaqueCaseDuBareme) {
  constexpr Anciennete Bornes[] = {{0, 5}, {0, 6}, {1, 11}, {2, 0}};
  for (const auto& rangee : support::table<7>("rules/preavis.md", "Le barème")) {
    for (std::size_t i = 0; i < std::size(Bornes); ++i) {
      const SituationPreavis s{rangee[0], lettre(rangee[1]), rangee[2] == "oui",
                               false,     Bornes[i],         "11"};
      EXPECT_EQ(ecrite(rules::dureePreavis(s)), rangee[3 + i]) << rangee[0] << rangee[1] << i;
    }
  }
}

TEST(Preavis, UnTravailleurHandicapeADroitAuDouble) {
  for (const auto& [convention, motif, grille, cadre, ans, mois, preavis] :
       support::table<7>("rules/preavis.md", "Un travailleur handicapé")) {
    const Anciennete anciennete{std::stoi(ans), std::stoi(mois)};
    const SituationPreavis s{convention, lettre(grille), cadre == "oui", true, anciennete, motif};
    EXPECT_EQ(ecrite(rules::dureePreavis(s)), preavis) << convention << motif << grille;
  }
}

TEST(Preavis, LAncienneteSeCompteSurLeCalendrier) {
  for (const auto& [depart, notification, attendue, preavis] :
       support::table<4>("rules/preavis.md", "L'ancienneté")) {
    const auto a = rules::ancienneteEntre(jour(depart), jour(notification));
    if (!attendue.empty()) {
      EXPECT_EQ(std::to_string(a.ans) + "/" + std::to_string(a.mois), attendue) << depart;
    }
    const SituationPreavis s{"01", 'A', false, false, a, "11"};
    EXPECT_EQ(ecrite(rules::dureePreavis(s)), preavis) << depart << " " << notification;
  }
}

TEST(Preavis, LaFinEstLaVeilleOuLeDernierJourDuMois) {
  for (const auto& [notification, mois, jours, fin] :
       support::table<4>("rules/preavis.md", "La fin du préavis")) {
    const DureePreavis duree{.mois = std::stoi(mois), .jours = std::stoi(jours)};
    EXPECT_EQ(data::dateAffichee(rules::finPreavis(jour(notification), duree)), fin)
        << notification << " + " << ecrite(duree);
  }
}

TEST(Preavis, CeQuiFaitLaSituation) {
  for (const auto& [texte, lettre] : {std::pair{"A", 'A'}, {"e2", 'E'}, {"", 0}, {"1A", 0}}) {
    EXPECT_EQ(rules::lettreGrille(texte), static_cast<char>(lettre)) << texte;
  }
  for (const auto& [code, cadre] :
       {std::pair{"372c", true}, {"233a", true}, {"563b", false}, {"043a", false}, {"", false}}) {
    EXPECT_EQ(rules::estCadre(code), cadre) << code;
  }
  const auto texte = [](const std::string& date) {
    return date.empty() ? date : std::to_string(jour(date));
  };
  for (const auto& [du, type, au, attendu] :
       support::table<4>("rules/preavis.md", "Handicapé le 15/05/2026")) {
    data::CItem infos;
    infos.Set(6, texte(du));
    infos.Set(10, type);
    infos.Set(11, texte(au));
    EXPECT_EQ(rules::estHandicape(infos, jour("15/05/2026")), attendu == "oui") << du << type << au;
  }
}

TEST(Preavis, LesMotifs) {
  for (const auto& [motif, preavis, indemnite, retrait] :
       support::table<4>("rules/preavis.md", "Les motifs")) {
    EXPECT_EQ(rules::motifAvecPreavis(motif), preavis == "oui") << motif;
    EXPECT_EQ(rules::motifAvecIndemnite(motif), indemnite == "oui") << motif;
    EXPECT_EQ(rules::motifRetireHeures(motif), retrait == "oui") << motif;
  }
}

}  // namespace
