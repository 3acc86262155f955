#include "control/ctr_contrat.h"

#include <gtest/gtest.h>

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"

namespace {

using data::Contrat::Convention, data::Contrat::Employeur, data::Contrat::Type;

// 22/11/2026, with November 2026 as the current pay period.
constexpr long Aujourdhui = 21511;
constexpr const char* Aidant = "00001";

// Fails when a chosen record is read, as a disk would.
class StockageFragile : public storage::MemoryStorage {
 public:
  using MemoryStorage::MemoryStorage;
  std::string cleFatale;
  bool Get(std::string_view fichier, std::string_view cle, std::string& texte) override {
    if (!cleFatale.empty() && cle == cleFatale) {
      throw data::StoreError(data::NumeroErreur::EntreeSortie, "disque", std::string(fichier),
                             std::string(cle));
    }
    return MemoryStorage::Get(fichier, cle, texte);
  }
};

std::string jour(const char* affichee) {
  return *affichee == '\0' ? "" : std::to_string(data::lireDateAffichee(affichee).value());
}

class ListeContrats : public ::testing::Test {
 protected:
  ListeContrats() {
    article("COMPTEUR", "999", {{18, "1"}});
    article("PERIODESPAIE", "1", {{1, "202611"}});
    article("ASSOCIATION", "001", {{1, "Aide du Val"}});
    article("ASSOCIATION", "002", {{1, "Bien Chez Soi"}});
    article("CONVENTIONCOL", "01", {{1, "Branche"}});
    article("CONVENTIONCOL", "02", {{1, "Particuliers"}});
    article("CIVILAIDE", "00007", {{2, "MARTIN"}, {3, "Rose"}});
    article("CIVILAIDE", "00008", {{2, "ABADIE"}, {3, "Jean"}});
  }

  void article(const char* fichier, const std::string& cle,
               const std::vector<std::pair<int, std::string>>& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : attributs) item.Set(a, texte);
    item.DBWrite();
  }
  void compteur(const char* dernier) {
    article("CIVILAIDANT", Aidant, {{2, "DURAND"}, {41, dernier}});
  }
  // An open-ended contract of the first entity, or of private employer `aide`.
  void contrat(int numero, const char* debut, const char* fin, const char* aide = "",
               const char* entite = "001", const char* annule = "") {
    const bool particulier = *aide != '\0';
    article("CONTRAT", data::cleContrat(Aidant, numero),
            {{Convention, particulier ? "02" : "01"},
             {data::Contrat::Association, entite},
             {Employeur, particulier ? aide : std::string(entite) + "001"},
             {Type, "I"},
             {data::Contrat::DateDebut, jour(debut)},
             {data::Contrat::DateFin, jour(fin)},
             {data::Contrat::Annule, annule}});
  }
  control::Ctr_Contrat& ouvrir() {
    controle = std::make_unique<control::Ctr_Contrat>(hote.platform);
    controle->TheDatabase(db);
    controle->W_Code = Aidant;
    controle->W_NomPrenom = "DURAND Anne";
    controle->W_EtatSuppAidant = supprime;
    controle->DroitsUtilisateur(*droits);
    controle->init();
    controle->Show();
    return *controle;
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
  std::string ligne(int r) const {
    const auto& c = *controle;
    return "[ " + c.Lst_DatDebContrat.List(r) + " | " + c.Lst_DatFinContrat.List(r) + " | " +
           c.Lst_Type.List(r) + " | " + c.Lst_EmplEtabContrat.List(r) + " | " +
           c.Lst_QualifContrat.List(r) + " ]";
  }
  // Which fields take the user's acts: filters, lists, the three buttons.
  std::string mode() const {
    const auto& c = *controle;
    const auto etat = [](const screen::Field& f) { return f.Accessible() ? '1' : '0'; };
    return {etat(c.Cbo_Association),
            etat(c.Opt_Actif),
            etat(c.Opt_Autres),
            etat(c.Opt_TriEmpl),
            '/',
            etat(c.Lst_DatDebContrat),
            etat(c.Lst_QualifContrat),
            '/',
            etat(c.Cmd_Recherche),
            etat(c.Cmd_OK),
            etat(c.Cmd_Ajouter)};
  }

  screen::headless::Hote hote{Aujourdhui};
  std::shared_ptr<StockageFragile> stockage = std::make_shared<StockageFragile>(hote.poste);
  data::Db db{stockage};
  std::unique_ptr<session::Droits> droits = std::make_unique<session::DroitsUniformes>(2);
  bool supprime = false;
  std::unique_ptr<control::Ctr_Contrat> controle;
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

TEST_F(ListeContrats, MontreCinqColonnes) {
  compteur("003");
  contrat(1, "01/02/2026", "", "00007");
  contrat(2, "05/01/2026", "30/11/2026");
  contrat(3, "01/01/2026", "30/11/2026", "99999");  // an employer whose record is gone
  auto& c = ouvrir();
  cliquer(c.Cmd_Recherche);
  EXPECT_EQ(ligne(0), "[ 01/02/2026 |  | I | MARTIN Rose | Particuliers ]");
  EXPECT_EQ(ligne(1), "[ 05/01/2026 | 30/11/2026 | I | Aide du Val | Branche ]");
  // The label of the contract read before stays in place.
  EXPECT_EQ(ligne(2), "[ 01/01/2026 | 30/11/2026 | I | Aide du Val | Particuliers ]");
  EXPECT_EQ(c.ClesContrats()(3), "00001003");
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
  EXPECT_EQ(c.Lst_Type.ListIndex(), -1);

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
  c.Affiche("P", "", "");
  EXPECT_EQ(c.Lst_DatDebContrat.ListIndex(), -1);
}

TEST_F(ListeContrats, PasseDuChoixALaListeEtRevient) {
  compteur("001");
  contrat(1, "01/02/2026", "");
  auto& c = ouvrir();
  EXPECT_EQ(mode(), "1111/00/101");
  screen::User user(c);
  EXPECT_EQ(user.Choisir(c.Cbo_Association, 1), screen::Acte::Fait);
  cliquer(c.Opt_TousValid);
  cliquer(c.Opt_TriEmpl);
  cliquer(c.Cmd_Recherche);
  EXPECT_EQ(mode(), "0000/11/011");
  EXPECT_EQ(numeros(), "");
  EXPECT_EQ(user.Cliquer(c.Cmd_Recherche), screen::Acte::Inaccessible);
  cliquer(c.Cmd_OK);
  EXPECT_EQ(mode(), "1111/00/101");
  EXPECT_TRUE(c.Opt_Actif.Value() && c.Opt_TousType.Value() && c.Opt_TriDecroiss.Value());
  EXPECT_EQ(c.Cbo_Association.Text(), "");
  cliquer(c.Cmd_Recherche);  // the entity chosen before no longer counts
  EXPECT_EQ(numeros(), "1");
  EXPECT_FALSE(hote.curseur.EnAttente());
  EXPECT_EQ(hote.curseur.Traitements(), 2);
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

TEST_F(ListeContrats, LesDroitsEtLAidantSupprimeTiennentAjouter) {
  compteur("001");
  const struct {
    int niveau;
    bool supprime;
    bool visible;
    bool actif;
  } cas[] = {{2, false, true, true},
             {2, true, true, false},
             {1, false, false, true},
             {0, true, false, false},
             {3, false, false, true}};
  for (const auto& [niveau, etat, visible, actif] : cas) {
    droits = std::make_unique<session::DroitsUniformes>(niveau);
    supprime = etat;
    auto& c = ouvrir();
    for (int tour = 0; tour < 2; ++tour) {  // before and after a search
      EXPECT_EQ(c.Cmd_Ajouter.Visible(), visible) << niveau << etat;
      EXPECT_EQ(c.Cmd_Ajouter.Enabled(), actif) << niveau << etat;
      if (tour == 0) cliquer(c.Cmd_Recherche);
    }
  }
}

TEST_F(ListeContrats, UneErreurDuStockageMonteEtRendLEcran) {
  compteur("002");
  contrat(1, "01/02/2026", "");
  contrat(2, "01/03/2026", "");
  auto& c = ouvrir();
  stockage->cleFatale = "00001002";
  try {
    screen::User(c).Cliquer(c.Cmd_Recherche);
    FAIL() << "the error was swallowed";
  } catch (const data::StoreError& e) {
    EXPECT_EQ(e.Fichier() + " " + e.Cle(), "CONTRAT 00001002");
  }
  EXPECT_EQ(c.Lst_DatDebContrat.ListCount(), 0);  // no half list shown as whole
  EXPECT_TRUE(c.Enabled());
  EXPECT_FALSE(hote.curseur.EnAttente());
  stockage->cleFatale.clear();
  cliquer(c.Cmd_OK);
  cliquer(c.Cmd_Recherche);
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
  const std::vector<std::pair<std::string, int>> appels{{"aide/Brivalon.HLP", 11},
                                                        {"aide/Brivalon.HLP", 2}};
  EXPECT_EQ(hote.aide.Appels(), appels);
  EXPECT_EQ(hote.aide.Preparees().front().second, ">HlpWnd03");
}

}  // namespace
