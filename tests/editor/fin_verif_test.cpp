// The checks of the last tab: each of them, alone.

#include "data/texte.h"
#include "editor/fin_essai.h"

namespace {

using essai::jour;
namespace C = data::Contrat;

class FinVerif : public essai::Fin {};

// What is typed into a sound end: "field=text", parted by blanks.
TEST_F(FinVerif, ChaqueVerificationARaisonDunSeulDefaut) {
  const char *const notif = "Txt_DatNotifContrat", *const jourTravaille = "Txt_DernJrWContrat";
  const char *const du = "Txt_DebPayeContrat", *const au = "Txt_FinPayeContrat";
  const struct {
    const char* saisies;
    const char* message;
    const char* focus;
  } cas[] = {
      {"", "", ""},
      {"Txt_DateFinContrat=",
       "La date de notification est renseignée, mais pas la date de fin.\r\nVous devez supprimer "
       "la "
       "date de notification ou terminer la saisie de fin du contrat.",
       notif},
      {"Txt_DateFinContrat=29/02/2024",
       "La date de fin de contrat doit être supérieure à la date de début de contrat.",
       "Txt_DateFinContrat"},
      {"Txt_DateFinContrat=14/08/2026 Txt_DernJrWContrat=10/08/2026",
       "La date de notification ne peut être supérieure à la date de fin de contrat.", notif},
      {"Txt_DernJrWContrat=", "Le dernier jour travaillé est obligatoire.", jourTravaille},
      {"Txt_DernJrWContrat=15/10/2026",
       "La date du dernier jour travaillé ne peut être supérieure à la date de fin de contrat.",
       jourTravaille},
      {"Txt_DebPayeContrat=02/10/2026 Txt_FinPayeContrat=01/10/2026",
       "La date de début de préavis ne peut être supérieure à la date de fin de préavis.", du},
      {"Txt_DebPayeContrat=29/02/2024",
       "La date de début du préavis ne peut être inférieure à la date de début de contrat.", du},
      {"Txt_FinPayeContrat=15/10/2026",
       "La date de fin du préavis ne peut être supérieure à la date de fin de contrat.", au},
      {"Txt_FinPayeContrat=", "La date de fin du préavis doit être renseignée.", au},
      {"Txt_DebPayeContrat=", "La date de début du préavis doit être renseignée.", du},
      {"Cbo_OrgRetraite=", "L'organisme de retraite est obligatoire.", "Cbo_OrgRetraite"},
  };
  for (const auto& [saisies, message, focus] : cas) {
    ouvrirFin(Licencie());
    for (const std::string& saisie : data::mots(saisies)) {
      const auto egal = saisie.find('=');
      remplir(*editeur->Find(saisie.substr(0, egal)), saisie.substr(egal + 1));
    }
    cliquer(cmd("OK"));
    EXPECT_EQ(messages(), message) << saisies;
    EXPECT_EQ(editeur->Visible() ? actif() : "", focus) << saisies;
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
  refuse("La période du dernier bulletin est obligatoire.");
  auto& spin = champ<screen::UpDown>("Bdh_Bulletin");
  EXPECT_EQ(spin.Min(), -4);
  screen::User(*editeur).Barre(spin, -1);
  EXPECT_EQ(txt("DernBullContrat").Text(), "septembre 2026");

  fiche[C::DernierBulletin] = "202611";
  ouvrirFin(fiche);
  refuse("La période du dernier bulletin doit être inférieure ou égale au mois de la date de fin.");
}

}  // namespace
