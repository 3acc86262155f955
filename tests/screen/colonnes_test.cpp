#include "screen/colonnes.h"

#include <gtest/gtest.h>

#include "screen/headless/hote.h"
#include "screen/user.h"

namespace screen {
namespace {

class Tableau : public Form {
 public:
  explicit Tableau(Platform& platform) : Form(platform, "Frm_Tableau") {}
  ListBox Lst_Mois{*this, "Lst_Mois"};
  ListBox Lst_Heures{*this, "Lst_Heures"};
  ScrollBar Bdv_Lignes{*this, "Bdv_Lignes"};
  Colonnes lignes{{&Lst_Mois, &Lst_Heures}, Bdv_Lignes, 2};

  // Rows, then the selected row of each list and the bar: "a1|b2 0 0 0", "-" for a hidden bar.
  std::string Etat() const {
    std::string texte;
    for (int r = 0; r < lignes.Nombre(); ++r) {
      const auto ligne = lignes.A(r);
      texte += (r > 0 ? "|" : "") + ligne[0] + ligne[1];
    }
    return texte + " " + std::to_string(Lst_Mois.ListIndex()) + " " +
           std::to_string(Lst_Heures.ListIndex()) + " " +
           (Bdv_Lignes.Visible() ? std::to_string(Bdv_Lignes.Value()) : "-");
  }
};

TEST(Colonnes, ListesEtBarreRestentSurLaMemeLigne) {
  headless::Hote hote{21511};
  Tableau t(hote.platform);
  std::string choix;
  t.lignes.SurChoix = [&](int ligne) { choix += std::to_string(ligne); };
  t.Show();
  User user(t);
  const struct {
    std::function<void()> acte;
    const char* attendu;
  } cas[] = {
      {[&] {
         t.lignes.Ajouter({"a", "1"});
       },
       "a1 -1 -1 -"},
      {[&] {
         t.lignes.Ajouter({"b", "2"}), t.lignes.Ajouter({"c"});
       },
       "a1|b2|c -1 -1 0"},
      {[&] { user.Choisir(t.Lst_Heures, 1); }, "a1|b2|c 1 1 1"},
      {[&] {
         t.lignes.Inserer(0, {"z", "0"});
       },
       "z0|a1|b2|c 2 2 2"},
      {[&] {
         t.lignes.Remplacer(2, {"b", "9"});
       },
       "z0|a1|b9|c 2 2 2"},
      {[&] { t.lignes.Retirer(0); }, "a1|b9|c 1 1 1"},
      {[&] { user.Barre(t.Bdv_Lignes, 2); }, "a1|b9|c 2 2 2"},
      // The row that goes takes the selection along.
      {[&] { t.lignes.Retirer(2); }, "a1|b9 -1 -1 -"},
      {[&] { t.lignes.Vider(); }, " -1 -1 -"},
  };
  for (const auto& [acte, attendu] : cas) {
    acte();
    EXPECT_EQ(t.Etat(), attendu);
  }
  // Filling and clearing choose nothing.
  EXPECT_EQ(choix, "12");
}

}  // namespace
}  // namespace screen
