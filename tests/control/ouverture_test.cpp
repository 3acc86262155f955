// The two ways from the list into the editor, and what the list shows when it comes back.

#include <gtest/gtest.h>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"

namespace {

namespace C = data::Contrat;
using editor::Frm_ElementsContrat;
using screen::Acte;

class Ouverture : public ::testing::Test {
 protected:
  Ouverture() {
    article("COMPTEUR", "999", {{18, "1"}});
    article("PERIODESPAIE", "1", {{1, "202611"}});
    article("CIVILAIDANT", "00001", {{2, "DURAND"}, {41, "003"}});
    article("ASSOCIATION", "001", {{1, "Aide du Val"}});
    article("CONVENTIONCOL", "01", {{1, "Branche"}});
    article("ETABLISSEMENT", "001001", {{1, "Siège"}});
    article("ACTIVITES", "001DOM", {{1, "Domicile"}, {12, "P"}});
    const char* const annees[] = {"2021", "2022", "2023"};
    for (int n = 1; n <= 3; ++n) {
      const std::string annee = annees[n - 1];
      article("CONTRAT", data::cleContrat("00001", n),
              {{C::Convention, "01"},
               {C::Association, "001"},
               {C::Employeur, "001001"},
               {C::Type, "I"},
               {C::Salaire, "H"},
               {C::Statut, "P"},
               {C::EssaiRenouvelable, "0"},
               {C::DateDebut, jour("01/01/" + annee)},
               {C::DateFin, jour("30/06/" + annee)},
               {C::DernierBulletin, annee + "06"}});
    }
    controle.TheDatabase(db);
    controle.W_Code = "00001";
    controle.W_NomPrenom = "DURAND Anne";
  }

  void article(const char* fichier, const std::string& cle,
               const std::vector<std::pair<int, std::string>>& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : attributs) item.Set(a, texte);
    item.DBWrite();
  }
  static std::string jour(const std::string& affichee) {
    return std::to_string(data::lireDateAffichee(affichee).value());
  }
  void montrer(bool chercher = true) {
    controle.DroitsUtilisateur(droits);
    controle.init();
    controle.Show();
    controle.Opt_TousValid.SetValue(true);
    if (chercher) screen::User(controle).Cliquer(controle.Cmd_Recherche);
  }
  // What the user of the editor does when it shows next.
  void dansLEditeur(std::function<void(Frm_ElementsContrat&, screen::User&)> actes) {
    hote.modales.Prevoir([actes](screen::Form& form) {
      screen::User user(form);
      actes(dynamic_cast<Frm_ElementsContrat&>(form), user);
    });
  }
  // Rows as "number start end", parted by "|".
  std::string lignes() const {
    std::string texte;
    for (int r = 0; r < controle.Lst_DatDebContrat.ListCount(); ++r) {
      texte += (r > 0 ? "|" : "") + controle.ClesContrats()(r + 1).substr(5) + " " +
               controle.Lst_DatDebContrat.List(r) + " " + controle.Lst_DatFinContrat.List(r);
    }
    return texte;
  }

  screen::headless::Hote hote{21511};
  data::Db db{std::make_shared<storage::MemoryStorage>(hote.poste)};
  session::DroitsUniformes droits{2};
  control::Ctr_Contrat controle{hote.platform};
};

constexpr const char* Depart =
    "003 01/01/2023 30/06/2023|002 01/01/2022 30/06/2022|001 01/01/2021 30/06/2021";

TEST_F(Ouverture, LaLigneOuverteSuitLArticle) {
  montrer();
  ASSERT_EQ(lignes(), Depart);
  const struct {
    const char* nom;
    const char* debut;
    const char* annule;
    const char* apres;
  } cas[] = {
      {"nothing", "01/01/2022", "", Depart},
      {"moved by another station", "02/01/2022", "",
       "003 01/01/2023 30/06/2023|002 02/01/2022 30/06/2022|001 01/01/2021 30/06/2021"},
      {"cancelled", "02/01/2022", "O", "003 01/01/2023 30/06/2023|001 01/01/2021 30/06/2021"},
  };
  for (const auto& [nom, debut, annule, apres] : cas) {
    dansLEditeur([&](Frm_ElementsContrat& f, screen::User& user) {
      EXPECT_EQ(f.Etq_Aidant.Libelle(), "Aidant : 00001 DURAND Anne");
      EXPECT_EQ(f.origine.Txt_NumContrat.Text(), "002");
      EXPECT_FALSE(f.origine.Txt_ConvColContrat.Enabled());
      data::CItem contrat = db.OpenFile("CONTRAT").Read("00001002");
      contrat.Set(C::DateDebut, jour(debut));
      contrat.Set(C::Annule, annule);
      contrat.DBWrite();
      EXPECT_EQ(user.Cliquer(f.Cmd_Retour), Acte::Fait);
    });
    EXPECT_EQ(screen::User(controle).DoubleCliquer(controle.Lst_Type, 1), Acte::Fait) << nom;
    EXPECT_EQ(lignes(), apres) << nom;
    EXPECT_TRUE(controle.Enabled());
    EXPECT_FALSE(hote.curseur.EnAttente());
  }
  EXPECT_EQ(hote.messages.Tous().size(), 0u);
}

TEST_F(Ouverture, UneCreationSeMetEnTete) {
  const auto creer = [&](const char* debut, bool confirmer) {
    dansLEditeur([=, this](Frm_ElementsContrat& f, screen::User& user) {
      EXPECT_EQ(f.Active(), &f.origine.Txt_ConvColContrat);
      EXPECT_FALSE(f.origine.Txt_AssocContrat.Enabled());
      user.Taper(f.origine.Txt_ConvColContrat, "01");
      user.Taper(f.origine.Txt_AssocContrat, "001");
      user.Taper(f.origine.Txt_EmplEtabContrat, "001");
      user.Taper(f.origine.Txt_DatDebContrat, debut);
      hote.modales.Prevoir([](screen::Form& reprise) {
        screen::User(reprise).Cliquer(*reprise.Find("Cmd_Annuler"));
      });
      if (!confirmer) hote.messages.Repondre(screen::Reponse::Oui);
      EXPECT_EQ(user.Cliquer(confirmer ? f.Cmd_OK : f.Cmd_Retour), Acte::Fait);
      EXPECT_FALSE(f.Visible());
    });
    EXPECT_EQ(screen::User(controle).Cliquer(controle.Cmd_Ajouter), Acte::Fait);
  };
  // From the choice of filters: list mode, with just this contract.
  montrer(false);
  creer("01/07/2023", true);
  EXPECT_EQ(lignes(), "004 01/07/2023 ");
  EXPECT_FALSE(controle.Cmd_Recherche.Enabled());
  EXPECT_EQ(controle.Bdv_Detail.Max(), 0);
}

TEST_F(Ouverture, UneCreationQuitteeNAjouteRien) {
  montrer();
  dansLEditeur([&](Frm_ElementsContrat& f, screen::User& user) {
    hote.messages.Repondre(screen::Reponse::Oui);
    user.Cliquer(f.Cmd_Retour);
  });
  screen::User(controle).Cliquer(controle.Cmd_Ajouter);
  EXPECT_EQ(lignes(), Depart);
  EXPECT_FALSE(controle.Etat().ModeCreation);
  EXPECT_TRUE(controle.Enabled());
  EXPECT_FALSE(hote.curseur.EnAttente());

  // The editor stays loaded: an opening right after shows the contract and nothing of the creation.
  dansLEditeur([&](Frm_ElementsContrat& f, screen::User& user) {
    EXPECT_EQ(f.origine.Txt_DatDebContrat.Text(), "01/01/2023");
    EXPECT_EQ(f.origine.Txt_EmplEtabContrat.Text(), "001");
    EXPECT_EQ(f.origine.Cbo_LibEmplEtabContrat.Text(), "Siège");
    user.Cliquer(f.Cmd_Retour);
  });
  screen::User(controle).DoubleCliquer(controle.Lst_Type, 0);
  EXPECT_EQ(hote.messages.Tous().size(), 1u);
}

TEST_F(Ouverture, UnContratDonneSOuvreDEmblee) {
  for (const char* cle : {"00001002", "00001099"}) {
    controle.W_CodeContrat = cle;
    std::string montre;
    dansLEditeur([&](Frm_ElementsContrat& f, screen::User& user) {
      montre = f.origine.Txt_NumContrat.Text() + " " + f.origine.Txt_DatDebContrat.Text();
      user.Cliquer(f.Cmd_Retour);
    });
    hote.messages.Repondre(screen::Reponse::Non);
    controle.DroitsUtilisateur(droits);
    controle.init();
    EXPECT_EQ(montre, cle == std::string("00001002") ? "002 01/01/2022" : " ");
  }
}

}  // namespace
