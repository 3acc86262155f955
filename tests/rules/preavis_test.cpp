#include "rules/preavis.h"

#include <gtest/gtest.h>

#include "data/jour.h"

namespace {

using rules::Anciennete, rules::DureePreavis, rules::SituationPreavis;

long jour(const std::string& affichee) {
  return data::lireDateAffichee(affichee).value();
}

// "2 mois", "6 jours", "-" for none.
std::string ecrite(const DureePreavis& duree) {
  if (duree.mois > 0) return std::to_string(duree.mois) + " mois";
  return duree.jours > 0 ? std::to_string(duree.jours) + " jours" : "-";
}

// The notice at both sides of each bound: before 6 months, from 6 months on, just before 2 years,
// from 2 years on.
TEST(Preavis, ChaqueCaseDuBareme) {
  const struct {
    const char* convention;
    char lettre;
    bool cadre;
    const char* attendus[4];
  } cas[] = {
      {"01", 'A', false, {"6 jours", "1 mois", "1 mois", "2 mois"}},
      {"01", 'D', true, {"6 jours", "1 mois", "1 mois", "2 mois"}},
      {"01", 0, false, {"6 jours", "1 mois", "1 mois", "2 mois"}},
      {"01", 'E', false, {"1 mois", "1 mois", "1 mois", "2 mois"}},
      {"01", 'F', true, {"1 mois", "1 mois", "1 mois", "2 mois"}},
      {"01", 'G', false, {"2 mois", "2 mois", "2 mois", "4 mois"}},
      {"01", 'Z', false, {"2 mois", "2 mois", "2 mois", "4 mois"}},
      {"02", 'G', true, {"6 jours", "1 mois", "1 mois", "2 mois"}},
      {"05", 'A', true, {"4 mois", "4 mois", "4 mois", "4 mois"}},
      {"05", 'A', false, {"1 mois", "1 mois", "1 mois", "2 mois"}},
      {"06", 'A', true, {"3 mois", "3 mois", "3 mois", "3 mois"}},
      {"06", 'A', false, {"1 mois", "1 mois", "1 mois", "2 mois"}},
      {"03", 'G', true, {"-", "1 mois", "1 mois", "2 mois"}},
      {"", 0, false, {"-", "1 mois", "1 mois", "2 mois"}},
  };
  constexpr Anciennete Bornes[] = {{0, 5}, {0, 6}, {1, 11}, {2, 0}};
  for (const auto& c : cas) {
    for (int i = 0; i < 4; ++i) {
      const SituationPreavis s{c.convention, c.lettre, c.cadre, false, Bornes[i], "11"};
      EXPECT_EQ(ecrite(rules::dureePreavis(s)), c.attendus[i])
          << c.convention << c.lettre << " " << Bornes[i].ans << "/" << Bornes[i].mois;
    }
  }
}

TEST(Preavis, UnTravailleurHandicapeADroitAuDouble) {
  const struct {
    const char *convention, *motif;
    char lettre;
    bool cadre;
    Anciennete anciennete;
    const char* attendu;
  } cas[] = {
      {"01", "11", 'A', false, {0, 0}, "12 jours"},
      {"01", "11", 'A', false, {1, 0}, "2 mois"},
      // Twice two months is more than the law gives.
      {"01", "11", 'A', false, {2, 0}, "3 mois"},
      {"06", "11", 0, true, {0, 0}, "3 mois"},
      // Doubling never shortens.
      {"05", "11", 0, true, {0, 0}, "4 mois"},
      {"03", "11", 0, false, {0, 5}, "-"},
      {"01", "92", 'A', false, {2, 0}, "2 mois"},
      {"01", "92", 'A', false, {0, 0}, "6 jours"},
  };
  for (const auto& c : cas) {
    const SituationPreavis s{c.convention, c.lettre, c.cadre, true, c.anciennete, c.motif};
    EXPECT_EQ(ecrite(rules::dureePreavis(s)), c.attendu) << c.convention << c.motif << c.lettre;
  }
}

TEST(Preavis, LAncienneteSeCompteSurLeCalendrier) {
  const struct {
    const char *depart, *notification, *attendue;
  } cas[] = {
      {"15/03/2024", "15/03/2026", "2/0"},  {"15/03/2024", "14/03/2026", "1/11"},
      {"15/03/2026", "15/09/2026", "0/6"},  {"15/03/2026", "14/09/2026", "0/5"},
      {"01/12/2025", "31/05/2026", "0/5"},  {"01/12/2025", "01/06/2026", "0/6"},
      {"29/02/2024", "28/02/2026", "1/11"}, {"29/02/2024", "01/03/2026", "2/0"},
      {"31/08/2025", "28/02/2026", "0/5"},  {"10/05/2026", "10/05/2026", "0/0"},
  };
  for (const auto& c : cas) {
    const auto a = rules::ancienneteEntre(jour(c.depart), jour(c.notification));
    EXPECT_EQ(std::to_string(a.ans) + "/" + std::to_string(a.mois), c.attendue)
        << c.depart << " " << c.notification;
  }
  // Suspension can carry the departure beyond the notification.
  const SituationPreavis s{
      "01", 'A', false, false, rules::ancienneteEntre(jour("01/06/2026"), jour("15/05/2026")),
      "11"};
  EXPECT_EQ(ecrite(rules::dureePreavis(s)), "6 jours");
}

TEST(Preavis, LaFinEstLaVeilleOuLeDernierJourDuMois) {
  const struct {
    const char* notification;
    DureePreavis duree;
    const char* fin;
  } cas[] = {
      {"15/03/2026", {.mois = 2}, "14/05/2026"},
      {"15/03/2026", {.jours = 6}, "21/03/2026"},
      {"26/02/2024", {.jours = 6}, "03/03/2024"},
      // The 1st: the last day of the month where the notice ends.
      {"01/03/2026", {.mois = 1}, "30/04/2026"},
      {"01/12/2025", {.mois = 1}, "31/01/2026"},
      {"01/01/2026", {.mois = 1}, "28/02/2026"},
      {"01/12/2023", {.mois = 2}, "29/02/2024"},
      // A shorter month ends the notice on its last day.
      {"31/12/2025", {.mois = 2}, "28/02/2026"},
      {"31/12/2023", {.mois = 2}, "29/02/2024"},
      {"30/01/2024", {.mois = 1}, "29/02/2024"},
      {"31/05/2026", {.mois = 1}, "30/06/2026"},
      {"31/08/2026", {.mois = 4}, "30/12/2026"},
      {"15/11/2026", {.mois = 4}, "14/03/2027"},
      {"15/12/2026", {.jours = 20}, "04/01/2027"},
  };
  for (const auto& [notification, duree, fin] : cas) {
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
  const std::string le = "15/05/2026";
  const struct {
    const char *du, *type, *au;
    bool attendu;
  } cas[] = {
      {"15/05/2026", "01", "15/05/2026", true},  {"", "01", "15/05/2026", true},
      {"16/05/2026", "01", "31/12/2026", false}, {"01/01/2026", "01", "14/05/2026", false},
      {"01/01/2026", "01", "", false},           {"01/01/2026", "08", "31/12/2026", false},
      {"01/01/2026", "", "31/12/2026", false},
  };
  const auto texte = [](const char* date) {
    return *date == '\0' ? std::string() : std::to_string(jour(date));
  };
  for (const auto& c : cas) {
    data::CItem infos;
    infos.Set(6, texte(c.du));
    infos.Set(10, c.type);
    infos.Set(11, texte(c.au));
    EXPECT_EQ(rules::estHandicape(infos, jour(le)), c.attendu) << c.du << c.type << c.au;
  }
}

TEST(Preavis, LesMotifs) {
  const struct {
    const char* motif;
    const char* attendu;  // p: notice, i: allowance, r: hours withdrawn
  } cas[] = {{"11", "pi"}, {"33", "i"},   {"91", "i"}, {"92", "pi"}, {"43", ""},
             {"59", "r"},  {"20", "pir"}, {"", ""},    {"1", ""}};
  for (const auto& [motif, attendu] : cas) {
    EXPECT_EQ(std::string(rules::motifAvecPreavis(motif) ? "p" : "") +
                  (rules::motifAvecIndemnite(motif) ? "i" : "") +
                  (rules::motifRetireHeures(motif) ? "r" : ""),
              attendu)
        << motif;
  }
}

}  // namespace
