// The two ways from the list into the editor, and what the list shows when it comes back.

#include "essai_liste.h"

namespace {

using editor::Frm_ElementsContrat;
using essai::jour;
using screen::Acte;
namespace C = data::Contrat;

class Ouverture : public essai::Liste {
 protected:
  Ouverture() {
    compteur("003");
    for (int n = 1; n <= 3; ++n) {
      const std::string annee = std::to_string(2020 + n);
      contrat(n, "01/01/" + annee, "30/06/" + annee,
              {{C::Salaire, "H"},
               {C::Statut, "P"},
               {C::EssaiRenouvelable, "0"},
               {C::DernierBulletin, annee + "06"}});
    }
  }

  void montrer(bool chercher = true) {
    ouvrir().Opt_TousValid.SetValue(true);
    if (chercher) screen::User(*controle).Cliquer(controle->Cmd_Recherche);
  }
  // What the user of the editor does when it shows next.
  void dansLEditeur(std::function<void(Frm_ElementsContrat&, screen::User&)> actes) {
    hote.modales.Prevoir([actes](screen::Form& form) {
      screen::User user(form);
      actes(dynamic_cast<Frm_ElementsContrat&>(form), user);
    });
  }
  // What stands in a field with a text.
  static std::string texte(const Frm_ElementsContrat& f, const char* nom) {
    const screen::Field* champ = f.Find(nom);
    if (const auto* liste = dynamic_cast<const screen::ComboBox*>(champ)) return liste->Text();
    return dynamic_cast<const screen::TextField&>(*champ).Text();
  }
  // Rows as "number start end", parted by "|".
  std::string lignes() const {
    std::string texte;
    for (int r = 0; r < controle->Lst_DatDebContrat.ListCount(); ++r) {
      texte += (r > 0 ? "|" : "") + controle->ClesContrats()(r + 1).substr(5) + " " +
               controle->Lst_DatDebContrat.List(r) + " " + controle->Lst_DatFinContrat.List(r);
    }
    return texte;
  }
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
  std::string avis;
  controle->SurAvis = [&](const std::string& texte) { avis += texte; };
  for (const auto& [nom, debut, annule, apres] : cas) {
    dansLEditeur([&](Frm_ElementsContrat& f, screen::User& user) {
      EXPECT_EQ(texte(f, "Txt_NumContrat"), "002");
      data::CItem contrat = db.OpenFile("CONTRAT").Read("00001002");
      contrat.Set(C::DateDebut, jour(debut));
      contrat.Set(C::Annule, annule);
      contrat.DBWrite();
      EXPECT_EQ(user.Cliquer(f.Cmd_Retour), Acte::Fait);
    });
    EXPECT_EQ(screen::User(*controle).DoubleCliquer(controle->Lst_Type, 1), Acte::Fait) << nom;
    EXPECT_EQ(lignes(), apres) << nom;
    EXPECT_TRUE(controle->Enabled());
    EXPECT_FALSE(hote.curseur.EnAttente());
    EXPECT_EQ(avis, *annule == '\0' ? "" : "Contrat 002 supprimé") << nom;
  }
  EXPECT_EQ(hote.messages.Tous().size(), 0u);
}

TEST_F(Ouverture, UnContratDonneSOuvreDEmblee) {
  for (const char* cle : {"00001002", "00001099"}) {
    std::string montre;
    dansLEditeur([&](Frm_ElementsContrat& f, screen::User& user) {
      montre = texte(f, "Txt_NumContrat") + " " + texte(f, "Txt_DatDebContrat");
      user.Cliquer(f.Cmd_Retour);
    });
    hote.messages.Repondre(screen::Reponse::Non);
    ouvrir(cle);
    EXPECT_EQ(montre, cle == std::string("00001002") ? "002 01/01/2022" : " ");
  }
  // From then on a row opens its own contract, the first one included.
  screen::User(*controle).Cliquer(controle->Cmd_Recherche);
  dansLEditeur([&](Frm_ElementsContrat& f, screen::User& user) {
    EXPECT_EQ(texte(f, "Txt_NumContrat"), "003");
    user.Cliquer(f.Cmd_Retour);
  });
  screen::User(*controle).DoubleCliquer(controle->Lst_Type, 0);
}

}  // namespace
