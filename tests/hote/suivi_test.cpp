// The annual follow-up on its window: how numbers are drawn, the mark of the month being paid, and
// the chart that follows the table.

#include <algorithm>

#include "data/layouts/contrat.h"
#include "dialogs/frm_contrat_annuel.h"
#include "essai.h"
#include "storage/memory.h"
#include "widget/courbe_suivi.h"
#include "widget/formes.h"
#include "widget/lignes_suivi.h"

namespace {

TEST(LignesSuivi, NumbersStandOnTheirCommas) {
  const struct {
    const char* texte;
    int decimales;
    QString dessine;
  } Cas[] = {
      {" 151,67", 0, "151,67"}, {"-  4,67 ", 0, QString::fromUtf8("\u22124,67")},
      {"0,5  ", 1, "0,5"},      {"2  ", 1, QString::fromUtf8("2\u2008\u2007")},
      {"31  ", 0, "31"},        {"", 1, ""},
  };
  for (const auto& cas : Cas) {
    EXPECT_EQ(hote::nombreAligne(cas.texte, cas.decimales), cas.dessine) << cas.texte;
  }
}

class FenetreSuivi : public ::testing::Test {
 protected:
  FenetreSuivi() {
    hote::enregistrerFormes(bureau);
    data::CItem paie = db.OpenFile("PERIODESPAIE").NewItem("1");
    paie.Set(1, "202602");
    paie.DBWrite();
    session.Db = &db;
    session.OuvrirFichiers();
    session.W_Droits = &droits;
    dossier.CleContratCourant = "00001001";
    const char* const groupes[] = {"202601|202602", "15167|15167", "0|0",
                                   "16000|14717",   "833|-450",    "0|200"};
    for (std::size_t g = 0; g < std::size(groupes); ++g) {
      std::string texte = groupes[g];
      std::replace(texte.begin(), texte.end(), '|', data::SepValeur);
      dossier.ItemContrat.Set(data::Contrat::GroupeSuivi[g], texte);
    }
    dossier.ItemContrat.Set(data::Contrat::Convention, "01");
  }
  static void peindre(QWidget& fenetre) {
    QCoreApplication::processEvents();
    fenetre.grab();
  }

  data::PosteFixe poste{21511};
  QTemporaryDir reglages;
  hote::Bureau bureau{
      &poste, std::make_unique<QSettings>(reglages.filePath("r.ini"), QSettings::IniFormat)};
  std::shared_ptr<storage::MemoryStorage> memoire = std::make_shared<storage::MemoryStorage>(poste);
  data::Db db{memoire};
  session::DroitsUniformes droits{2};
  session::Session session{poste};
  session::Dossier dossier{session};
};

TEST_F(FenetreSuivi, ChartFollowsTheTableAndCanBeHidden) {
  using Serie = std::vector<double>;
  dialogs::Frm_ContratAnnuel forme(bureau.Plateforme(), dossier, {"01", "001", "001"});
  const auto racine = bureau.Construire(forme.Nom());
  forme.Show();
  hote::Liaison liaison(forme, *racine, bureau);
  racine->show();
  liaison.Pousser();
  peindre(*racine);
  auto* const page = racine->findChild<QWidget*>("Cdr_Remunere");
  auto* const courbe = page->findChild<CourbeSuivi*>();
  EXPECT_EQ(courbe->Cumul(), (Serie{8.33, 3.83}));
  EXPECT_EQ(courbe->Solde(), (Serie{8.33, 1.83}));

  const QImage avant = courbe->grab().toImage();
  screen::User user(forme);
  user.DoubleCliquer(forme.remunere.Lst_Periode, 0);
  user.Taper(forme.remunere.Txt_Difference, "-10");
  user.Cliquer(forme.Cmd_OK);
  liaison.Pousser();
  peindre(*racine);
  EXPECT_EQ(courbe->Cumul(), (Serie{-10, -14.5}));
  EXPECT_EQ(courbe->Solde(), (Serie{-10, -16.5}));
  EXPECT_NE(courbe->grab().toImage(), avant);

  auto* const voir = page->findChild<QCheckBox*>("voirCourbe");
  EXPECT_EQ(courbe->focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(voir->focusPolicy(), Qt::NoFocus);
  QTest::mouseClick(voir, Qt::LeftButton, {}, QPoint(8, voir->height() / 2));
  EXPECT_FALSE(courbe->isVisible());
  QTest::mouseClick(voir, Qt::LeftButton, {}, QPoint(8, voir->height() / 2));
  EXPECT_TRUE(courbe->isVisible());
}

TEST_F(FenetreSuivi, TheMonthBeingPaidIsMarked) {
  dialogs::Frm_ContratAnnuel forme(bureau.Plateforme(), dossier, {"01", "001", "001"});
  const auto racine = bureau.Construire(forme.Nom());
  forme.Show();
  hote::Liaison liaison(forme, *racine, bureau);
  racine->show();
  liaison.Pousser();
  peindre(*racine);
  auto* const periodes = racine->findChild<QListWidget*>("Lst_Periode");
  const auto bord = [&](int ligne) {
    const QRect place = periodes->visualItemRect(periodes->item(ligne));
    return periodes->viewport()->grab().toImage().pixelColor(1, place.center().y());
  };
  EXPECT_EQ(bord(1), periodes->palette().color(QPalette::Highlight));
  EXPECT_EQ(bord(0), periodes->palette().color(QPalette::Base));
}

}  // namespace
