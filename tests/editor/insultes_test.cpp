// Whatever a clerk types or pastes into any box of any tab, nothing is stored, the tab stays, and
// the box can always be cleared and left.

#include "editor/paie_essai.h"

namespace {

using screen::User;

class Insultes : public essai::Paie {
 protected:
  const std::string Textes[9] = {std::string(10000, '9'),
                                 std::string("\x01\x1c\x1d\x1e\x7f\0x", 7),
                                 "]\"[",
                                 "0\" OR AVEC 0 = \"",
                                 "99/99/9999",
                                 "-,",
                                 "-,-",
                                 "é€𝄞\xc3",
                                 "33,333"};
};

TEST_F(Insultes, NImporteQuoiDansChaqueChampNeCasseRien) {
  contrat("00001001", complet({{essai::C::Convention, "03"}}));
  const auto nouveau = [&] { origine("01/12/2026", "02", ""); };
  const auto existant = [&] { ouvrir("00001001"); };
  const auto repartie = [&] { creerPaie(true); };
  const struct {
    const char* nom;
    int onglet;
    std::function<void()> ouvrir;
    const char* bouton;
    int champs;  // at least
  } cas[] = {
      {"codes of a private employer", editor::Origine, nouveau, "Opt_Determine", 6},
      {"a fixed term on file", editor::Origine, existant, "Opt_Determine", 5},
      {"new state", editor::Caracteristiques, nouveau, nullptr, 12},
      {"state on file", editor::Caracteristiques, existant, nullptr, 12},
      {"amendment", editor::Caracteristiques, existant, "Cmd_AjoutAvenant", 12},
      {"pay of a split", editor::ElementsPaie, repartie, nullptr, 10},
      {"pay on file", editor::ElementsPaie, existant, nullptr, 10},
      {"leave on file", editor::DroitsConges, existant, nullptr, 10},
      {"end", editor::FinContrat, existant, nullptr, 1},
  };
  for (const auto& [nom, numero, preparer, bouton, champs] : cas) {
    editeur.reset();
    preparer();
    onglet(numero);
    if (bouton != nullptr) cliquer(*editeur->Find(bouton));
    stockage->EchouerEcriture(0);
    int essayes = 0;
    for (screen::Field* champ : editeur->Fields()) {
      const bool saisie =
          champ->Genre() == screen::Kind::Texte || champ->Genre() == screen::Kind::Deroulante;
      if (!saisie || !champ->Accessible()) continue;
      ++essayes;
      for (const std::string& texte : Textes) {
        User user(*editeur);
        user.Taper(*champ, texte);
        user.Touche(*champ, screen::ToucheEntree);
        user.Quitter();
        user.Coller(*champ, texte);
        user.Quitter();
        if (!champ->Accessible()) break;
        user.Taper(*champ, "");
        EXPECT_EQ(user.Quitter(), essai::Acte::Fait) << champ->Nom() << " " << nom;
        EXPECT_EQ(editeur->Ong_Contrat.Tab(), numero) << champ->Nom() << " " << nom;
      }
    }
    EXPECT_GE(essayes, champs) << nom;
    EXPECT_EQ(stockage->Ecritures(), 0) << nom;
  }
}

}  // namespace
