#include "essai_liste.h"

namespace {

namespace C = data::Contrat;

class ListeContrats : public essai::Liste {
 protected:
  ListeContrats() { article("CIVILAIDE", "00008", {{2, "ABADIE"}, {3, "Jean"}}); }

  // An open-ended contract of the first entity, or of private employer `aide`.
  void contrat(int numero, const char* debut, const char* fin, const char* aide = "",
               const char* entite = "001", const char* annule = "") {
    const bool particulier = *aide != '\0';
    Liste::contrat(numero, debut, fin,
                   {{C::Convention, particulier ? "02" : "01"},
                    {C::Association, entite},
                    {C::Employeur, particulier ? aide : std::string(entite) + "001"},
                    {C::Annule, annule}});
  }
  void cliquer(screen::Field& champ) {
    ASSERT_EQ(screen::User(*controle).Cliquer(champ), screen::Acte::Fait) << champ.Nom();
  }

  // The contract numbers in row order, as kept beside the list.
  std::string numeros() const {
    std::string texte;
    for (int i = 1; i <= controle->ClesContrats().DCount(); ++i) {
      texte += (i > 1 ? " " : "") + controle->ClesContrats()(i).substr(7);
    }
    return texte;
  }
  // Which fields take the user's acts: filters, lists, the three buttons.
  std::string mode() const {
    const auto& c = *controle;
    std::string etats;
    for (const screen::Field* f : std::initializer_list<const screen::Field*>{
             &c.Cbo_Association, &c.Opt_Actif, &c.Opt_Autres, &c.Opt_TriEmpl, nullptr,
             &c.Lst_DatDebContrat, &c.Lst_QualifContrat, nullptr, &c.Cmd_Recherche, &c.Cmd_OK,
             &c.Cmd_Ajouter}) {
      etats += f == nullptr ? '/' : f->Accessible() ? '1' : '0';
    }
    return etats;
  }
};

TEST_F(ListeContrats, FiltreParValiditeTypeEtEntite) {
  compteur("009");
  contrat(1, "01/03/2020", "");
  contrat(2, "01/03/2027", "");                     // starts next year: active
  contrat(3, "01/01/2019", "31/10/2026");           // ended before the pay period
  contrat(4, "01/01/2019", "01/11/2026");           // ended on its first day: both
  contrat(5, "01/01/2019", "22/11/2026");           // ends today: not ended yet
  contrat(6, "01/01/2019", "21/11/2026", "00007");  // ended yesterday: both
  contrat(7, "01/02/2020", "", "00008", "002");
  contrat(9, "01/02/2020", "", "", "001", "O");  // cancelled; number 8 has no record
  auto& c = ouvrir();
  EXPECT_EQ(mode(), "1111/00/101");
  c.Opt_TriCroiss.SetValue(true);
  const struct {
    const char* type;
    const char* entite;
    const char* actifs;
    const char* attendu;
  } cas[] = {
      {"", "", "A", "4 5 6 7 1 2"},     {"", "", "H", "3 4 6"},     {"", "", "Z", "3 4 5 6 7 1 2"},
      {"P", "", "A", "4 5 1 2"},        {"M", "", "A", "6 7"},      {"M", "", "H", "6"},
      {"X", "999", "A", "4 5 6 7 1 2"},  // an unknown entity leaves the filter as it stands
      {"X", "002", "A", "7"},           {"X", "001", "H", "3 4 6"},
  };
  for (const auto& [type, entite, actifs, attendu] : cas) {
    c.Affiche(type, entite, actifs);
    EXPECT_EQ(numeros(), attendu) << type << "/" << entite << "/" << actifs;
  }
  c.Effacer_Donnees();
  EXPECT_TRUE(c.Opt_Actif.Value() && c.Opt_TousType.Value() && c.Opt_TriDecroiss.Value());
  EXPECT_EQ(c.Cbo_Association.Text() + mode(), "1111/00/101");
  c.Affiche("", "", "Z");
  EXPECT_EQ(numeros(), "2 1 7 3 4 5 6");
}

TEST_F(ListeContrats, TrieEtGardeLOrdreDesNumeros) {
  compteur("8");
  contrat(1, "01/01/2022", "30/06/2022");
  contrat(2, "01/01/2018", "", "00007");
  contrat(3, "01/01/2022", "31/12/2022", "00008");
  contrat(4, "01/05/2021", "");
  contrat(5, "01/05/2021", "", "00008");
  contrat(6, "", "");  // no start date: reads as day 0, and ends every later search by date
  contrat(7, "01/01/2023", "");
  contrat(8, "01/01/2024", "31/01/2024");
  auto& c = ouvrir();
  const struct {
    screen::OptionButton* tri;
    const char* attendu;
  } cas[] = {
      // By code of character: "ABADIE" before "Aide" before "MARTIN".
      {&c.Opt_TriEmpl, "3 5 1 4 6 7 8 2"},
      // Number 6 goes on top, and number 7 before it; number 8 stops at it.
      {&c.Opt_TriCroiss, "7 8 6 2 4 5 1 3"},
      {&c.Opt_TriDecroiss, "7 4 5 2 8 6 1 3"},
  };
  for (const auto& [tri, attendu] : cas) {
    tri->SetValue(true);
    c.Affiche("", "", "");
    EXPECT_EQ(numeros(), attendu) << tri->Nom();
  }
}

TEST_F(ListeContrats, UnEmployeurSansArticleGardeLeLibelleLuAvant) {
  compteur("002");
  contrat(1, "05/01/2026", "30/11/2026");
  contrat(2, "01/01/2026", "30/11/2026", "99999");
  auto& c = ouvrir();
  cliquer(c.Cmd_Recherche);
  EXPECT_EQ(c.Lst_EmplEtabContrat.Rows(), (std::vector<std::string>{"Aide du Val", "Aide du Val"}));
  EXPECT_EQ(c.ClesContrats()(2), "00001002");
}

TEST_F(ListeContrats, RienAMontrerNEstPasUneErreur) {
  for (const char* dernier : {"", "000", "004", "999999999"}) {
    compteur(dernier);
    auto& c = ouvrir();
    cliquer(c.Cmd_Recherche);
    EXPECT_EQ(numeros(), "");
    EXPECT_EQ(mode(), "0000/11/011") << dernier;
  }
  EXPECT_EQ(hote.messages.Tous().size(), 0u);
}

TEST_F(ListeContrats, LesListesEtLaBarreVontEnsemble) {
  compteur("016");
  for (int n = 1; n <= 15; ++n) contrat(n, "01/02/2026", "");
  auto& c = ouvrir();
  cliquer(c.Cmd_Recherche);
  EXPECT_FALSE(c.Bdv_Detail.Visible());
  cliquer(c.Cmd_OK);
  contrat(16, "01/02/2026", "");
  cliquer(c.Cmd_Recherche);
  EXPECT_TRUE(c.Bdv_Detail.Visible());
  EXPECT_EQ(c.Bdv_Detail.Max(), 15);
  const std::vector<screen::ListBox*> listes{&c.Lst_DatDebContrat, &c.Lst_DatFinContrat,
                                             &c.Lst_Type, &c.Lst_EmplEtabContrat,
                                             &c.Lst_QualifContrat};
  const auto choisie = [&](int attendue) {
    for (const auto* liste : listes) EXPECT_EQ(liste->ListIndex(), attendue) << liste->Nom();
    EXPECT_EQ(c.Bdv_Detail.Value(), attendue);
  };
  screen::User user(c);
  int r = 3;
  for (auto* liste : listes) {
    EXPECT_EQ(user.Choisir(*liste, r), screen::Acte::Fait);
    choisie(r++);
  }
  EXPECT_EQ(user.Barre(c.Bdv_Detail, 15), screen::Acte::Fait);
  choisie(15);

  // A new search, shorter, selects nothing whatever the bar showed.
  c.Affiche("M", "", "");
  EXPECT_EQ(c.Lst_DatDebContrat.ListIndex(), -1);
  EXPECT_FALSE(c.Bdv_Detail.Visible());
}

TEST_F(ListeContrats, UneSeuleEntiteSeMontreSansFiltrer) {
  db.OpenFile("ASSOCIATION").DeleteItem("002");
  compteur("001");
  contrat(1, "01/02/2026", "", "", "003");
  auto& c = ouvrir();
  EXPECT_EQ(c.Cbo_Association.Text(), "Aide du Val");
  cliquer(c.Cmd_Recherche);
  EXPECT_EQ(numeros(), "1");
}

TEST_F(ListeContrats, UneErreurDuStockageMonteEtRendLEcran) {
  compteur("002");
  contrat(1, "01/02/2026", "");
  contrat(2, "01/03/2026", "");
  auto& c = ouvrir();
  int appel = 1;
  for (bool echoue = true; echoue; ++appel) {  // every read of the search in turn
    screen::User(c).Cliquer(c.Cmd_OK);
    stockage->EchouerAppel(appel);
    try {
      cliquer(c.Cmd_Recherche);
      echoue = false;
    } catch (const data::StoreError& e) {
      EXPECT_FALSE(e.Fichier().empty()) << appel;
      EXPECT_EQ(c.Lst_DatDebContrat.ListCount(), 0);  // no half list shown as whole
    }
    EXPECT_TRUE(c.Enabled() && !hote.curseur.EnAttente()) << appel;
  }
  EXPECT_GT(appel, 3);
  EXPECT_EQ(numeros(), "2 1");
}

TEST_F(ListeContrats, InitLaisseMonterCeQuiManque) {
  for (const auto& [fichier, cle] : {std::pair{"PERIODESPAIE", "1"}, {"COMPTEUR", "999"}}) {
    db.OpenFile(fichier).DeleteItem(cle);
    EXPECT_THROW(ouvrir(), data::StoreError) << fichier;
  }
}

TEST_F(ListeContrats, AideEtSortie) {
  compteur("001");
  auto& c = ouvrir();
  screen::User user(c);
  EXPECT_EQ(user.Cliquer(c.Mnu_Sommaire), screen::Acte::Inaccessible);
  user.ClicDroit();
  EXPECT_EQ(hote.modales.Menus(), std::vector<std::string>{"Mnu_Aide"});
  cliquer(c.Mnu_Sommaire);
  int sorties = 0;
  c.Sortie = [&] { ++sorties; };
  cliquer(c.Cmd_Retour);
  EXPECT_EQ(c.W_Sortir, 1);
  EXPECT_EQ(sorties, 1);
  EXPECT_FALSE(c.Visible());
  controle.reset();
  EXPECT_EQ(hote.aide.Appels(), (std::vector<std::pair<std::string, int>>{
                                    {"aide/Brivalon.HLP", 11}, {"aide/Brivalon.HLP", 2}}));
  EXPECT_EQ(hote.aide.Preparees().front().second, ">HlpWnd03");
}

}  // namespace
