// The checks of the last tab: each of them, alone.

#include "editor/fin_essai.h"

namespace {

using essai::jour;
namespace C = data::Contrat;

class FinVerif : public essai::Fin {};

TEST_F(FinVerif, ChaqueVerificationARaisonDunSeulDefaut) {
  const struct {
    const char* nom;
    std::vector<std::pair<const char*, const char*>> saisies;
    std::string message;
    const char* focus;
  } cas[] = {
      {"sound", {}, "", ""},
      {"1",
       {{"DateFinContrat", ""}},
       "La date de notification est renseignée, mais pas la date de fin.\r\nVous devez supprimer "
       "la date de notification ou terminer la saisie de fin du contrat.",
       "Txt_DatNotifContrat"},
      {"2",
       {{"DateFinContrat", "29/02/2024"}},
       "La date de fin de contrat doit être supérieure à la date de début de contrat.",
       "Txt_DateFinContrat"},
      {"8",
       {{"DateFinContrat", "14/08/2026"}, {"DernJrWContrat", "10/08/2026"}},
       "La date de notification ne peut être supérieure à la date de fin de contrat.",
       "Txt_DatNotifContrat"},
      {"9",
       {{"DernJrWContrat", ""}},
       "Le dernier jour travaillé est obligatoire.",
       "Txt_DernJrWContrat"},
      {"10",
       {{"DernJrWContrat", "15/10/2026"}},
       "La date du dernier jour travaillé ne peut être supérieure à la date de fin de contrat.",
       "Txt_DernJrWContrat"},
      {"13",
       {{"DebPayeContrat", "02/10/2026"}, {"FinPayeContrat", "01/10/2026"}},
       "La date de début de préavis ne peut être supérieure à la date de fin de préavis.",
       "Txt_DebPayeContrat"},
      {"14",
       {{"DebPayeContrat", "29/02/2024"}},
       "La date de début du préavis ne peut être inférieure à la date de début de contrat.",
       "Txt_DebPayeContrat"},
      {"15",
       {{"FinPayeContrat", "15/10/2026"}},
       "La date de fin du préavis ne peut être supérieure à la date de fin de contrat.",
       "Txt_FinPayeContrat"},
      {"16",
       {{"FinPayeContrat", ""}},
       "La date de fin du préavis doit être renseignée.",
       "Txt_FinPayeContrat"},
      {"17",
       {{"DebPayeContrat", ""}},
       "La date de début du préavis doit être renseignée.",
       "Txt_DebPayeContrat"},
      {"18",
       {{"Cbo_OrgRetraite", ""}},
       "L'organisme de retraite est obligatoire.",
       "Cbo_OrgRetraite"},
  };
  for (const auto& [nom, saisies, message, focus] : cas) {
    ouvrirFin(Licencie());
    for (const auto& [champ, texte] : saisies) {
      if (std::string(champ).starts_with("Cbo_")) {
        remplir(cbo(champ + 4), texte);
      } else {
        remplir(txt(champ), texte);
      }
    }
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), message) << nom;
    EXPECT_EQ(editeur->Visible() ? actif() : "", focus) << nom;
  }
}

TEST_F(FinVerif, LaRuptureConventionnelleEstSignee) {
  const std::string debut =
      "La date de signature de convention pour le motif de fin de contrat \"Rupture "
      "conventionnelle\" ";
  const struct {
    const char *signature, *finReelle;
    std::string message;
  } cas[] = {
      {"", "", debut + "est obligatoire."},
      {"01/10/2026", "30/09/2026",
       debut + "doit être inférieure ou égale à la date de fin réelle."},
      {"15/10/2026", "", debut + "doit être inférieure ou égale à la date de fin du contrat."},
      {"15/10/2026", "31/10/2026", ""},
      {"14/10/2026", "", ""},
  };
  for (const auto& [signature, finReelle, message] : cas) {
    auto fiche = Licencie();
    fiche[C::MotifFin] = "43";
    ouvrirFin(fiche);
    remplir(txt("FinReelle"), finReelle);
    remplir(txt("DateSignConvCol"), signature);
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), message);
    EXPECT_EQ(editeur->Visible() ? actif() : "", message.empty() ? "" : "Txt_DateSignConvCol");
  }
}

TEST_F(FinVerif, LeMotifEtLaPeriodeSontObligatoires) {
  auto fiche = Licencie();
  fiche[C::MotifFin] = "";
  ouvrirFin(fiche);
  cliquer(cmd("OK"));
  EXPECT_EQ(messages() + actif(), "Le motif de fin de contrat est obligatoire.Cbo_MotifFinContrat");

  fiche = Licencie();
  fiche[C::DernierBulletin] = "";
  ouvrirFin(fiche);
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(), "La période du dernier bulletin est obligatoire.");
  auto& spin = champ<screen::UpDown>("Bdh_Bulletin");
  EXPECT_EQ(spin.Min(), -4);
  screen::User(*editeur).Barre(spin, -1);
  EXPECT_EQ(txt("DernBullContrat").Text(), "septembre 2026");

  fiche[C::DernierBulletin] = "202611";
  ouvrirFin(fiche);
  cliquer(cmd("OK"));
  EXPECT_EQ(messages(),
            "La période du dernier bulletin doit être inférieure ou égale au mois de la date de "
            "fin.");
}

}  // namespace
