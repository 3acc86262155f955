// Failures of the store under the open screens, through real widgets: each one is told, what was
// typed stays, and the same act passes when the store is well again. On a file and on a server.

#include <QAbstractScrollArea>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <sstream>

#include "base/executer.h"
#include "control/ctr_contrat.h"
#include "fenetre/choix_serveur.h"
#include "integration/hote_essai.h"
#include "storage/ouvrir.h"
#include "support/faulty_storage.h"
#include "support/serveur.h"
#include "widget/contrat_widget.h"

namespace {

struct Dessous {
  std::unique_ptr<data::Storage> magasin;
};

// A faulty store that owns the one below.
struct Panne : Dessous, support::FaultyStorage {
  explicit Panne(std::unique_ptr<data::Storage> sain)
      : Dessous{std::move(sain)}, FaultyStorage(*magasin) {}
};

class Pannes : public ::testing::TestWithParam<const char*> {
 protected:
  Pannes() {
    for (const std::vector<std::string>& commande :
         {std::vector<std::string>{"creer", Chemin()},
          {"importer", Chemin(), CONTRATS_SOURCE_DIR "/demo/scenarios/donnees.jsonl"}}) {
      std::istringstream entree;
      std::ostringstream sortie;
      EXPECT_EQ(base::executer(commande, entree, sortie, sortie), 0) << sortie.str();
    }
    fenetre_.show();
  }

  const std::string& Chemin() const { return chemin_; }
  static bool SurServeur() { return GetParam() == std::string("postgres"); }
  // That of a copy of the base.
  std::string Copie(int n) const {
    if (SurServeur()) return support::Serveur::Commun().Copie(Chemin());
    storage::SqliteStorage::Ouvrir(Chemin(), poste_);
    const std::string copie = Chemin() + std::to_string(n);
    EXPECT_TRUE(QFile::copy(QString::fromStdString(Chemin()), QString::fromStdString(copie)));
    return copie;
  }
  // What another program reads.
  std::string Lu(const std::string& chemin, const char* fichier, const char* cle) const {
    std::string texte = "-";
    storage::ouvrir(chemin, poste_)->Get(fichier, cle, texte);
    return texte;
  }
  // The first failing call, then ever later ones, until the act passes without meeting it.
  void ChaquePanne(const char* acte, const std::function<bool()>& passe) {
    int pannes = 0;
    for (int n = 1, suivant = 2;; n = std::exchange(suivant, n + suivant), ++pannes) {
      panne_->EchouerAppel(n);
      const bool reussi = passe();
      panne_->EchouerAppel(0);
      EXPECT_NE(lecteur_.ADit("Panne voulue"), reussi) << acte << ", call " << n;
      if (reussi) break;
    }
    EXPECT_GT(pannes, 0) << acte;
  }

  // A new contract for the carer as a clerk types it, tab by tab.
  static void Remplir(QWidget& editeur) {
    const std::vector<std::pair<const char*, const char*>> pages[] = {
        {{"Txt_ConvColContrat", "01"},
         {"Txt_AssocContrat", "001"},
         {"Txt_EmplEtabContrat", "001"},
         {"Txt_DatDebContrat", "01/12/2026"},
         {"Txt_PerEssaiContrat", "60"}},
        {{"Cbo_QualifContrat", "Agent administratif"},
         {"Txt_DureeWContrat", "20"},
         {"Cbo_FreqWContrat", "H"},
         {"Txt_TauxHorContrat", "12"}},
        {{"Txt_ProfilContrat", "101"}, {"Cbo_Activite", ""}}};
    QTabBar* const barre = editeur.findChild<QTabWidget*>("Ong_Contrat")->tabBar();
    const auto aller = [&](int onglet) {
      QTest::mouseClick(barre, Qt::LeftButton, {}, barre->tabRect(onglet).center());
    };
    for (int page = 0; const auto& saisies : pages) {
      aller(page++);
      for (const auto& [nom, texte] : saisies) {
        auto* const champ = editeur.findChild<QWidget*>(nom);
        ASSERT_NE(champ, nullptr) << nom;
        champ->setFocus();
        QTest::keyClicks(champ, texte);
        if (*texte == '\0') QTest::keyClick(champ, Qt::Key_Down);
      }
    }
    aller(0);
  }
  static std::string Texte(QWidget& fenetre, const char* champ) {
    return fenetre.findChild<QLineEdit*>(champ)->text().toStdString();
  }

  const QTemporaryDir dossier_{};
  const std::string chemin_ = SurServeur() ? support::Serveur::Commun().NouvelleBase()
                                           : dossier_.filePath("a.contrats").toStdString();
  const data::PosteFixe poste_{21511};
  hote::Bureau bureau_{&poste_, std::make_unique<QSettings>(dossier_.filePath("reglages.ini"),
                                                            QSettings::IniFormat)};
  Panne* panne_ = nullptr;
  hote::FenetreHote fenetre_{bureau_, [this](const std::string& chemin, const data::Poste& poste) {
                               auto panne =
                                   std::make_unique<Panne>(hote::ouvrirBase(chemin, poste));
                               panne_ = panne.get();
                               return panne;
                             }};
  essai::Lecteur lecteur_{};
};

TEST_P(Pannes, EveryReadThatFailsIsToldAndTheScreenGoesOn) {
  ASSERT_TRUE(fenetre_.OuvrirFichier(QString::fromStdString(Chemin())));
  ChaquePanne("carer", [&] { return fenetre_.OuvrirAidant("00001"); });
  auto* const liste = fenetre_.Ecran();
  ASSERT_NE(liste, nullptr);
  ChaquePanne("search", [&] {
    essai::cliquer(*liste, "Cmd_OK");
    essai::cliquer(*liste, "Cmd_Recherche");
    return !lecteur_.dit.contains("Panne");
  });
  ChaquePanne("editor", [&] {
    const essai::DansForme editeur(
        "Frm_ElementsContrat", {[](QWidget& fenetre) { essai::cliquer(fenetre, "Cmd_Retour"); }});
    essai::cliquer(*liste, "Cmd_Ajouter");
    return editeur.Faits() == 1;
  });
}

// The writes of a new contract: itself, the follow-up, the carer's numbers, two marks that the
// indexes exist, and one index.
TEST_P(Pannes, ASaveThatFailsAtAnyWriteKeepsWhatWasTypedAndPassesLater) {
  constexpr int Ecritures = 6;
  for (int n = 1; n <= Ecritures; ++n) {
    const std::string chemin = Copie(n);
    ASSERT_TRUE(fenetre_.OuvrirFichier(QString::fromStdString(chemin)));
    ASSERT_TRUE(fenetre_.OuvrirAidant("00002"));
    const essai::DansForme editeur("Frm_ElementsContrat",
                                   {Remplir, [&](QWidget& fenetre) {
                                      panne_->EchouerEcriture(n);
                                      essai::cliquer(fenetre, "Cmd_OK");
                                      panne_->EchouerEcriture(0);
                                      EXPECT_TRUE(lecteur_.ADit("Panne voulue")) << "write " << n;
                                      EXPECT_TRUE(fenetre.isVisible());
                                      EXPECT_EQ(Texte(fenetre, "Txt_DatDebContrat"), "01/12/2026");
                                      EXPECT_EQ(Texte(fenetre, "Txt_PerEssaiContrat"), "60");
                                      essai::cliquer(fenetre, "Cmd_OK");
                                    }});
    essai::cliquer(*fenetre_.Ecran(), "Cmd_Ajouter");
    EXPECT_EQ(editeur.Faits(), 2U);
    EXPECT_EQ(Lu(chemin, "CONTRAT", "00002001").substr(0, 26),
              "01\x1e"
              "001\x1e"
              "001001\x1eI\x1eH\x1eP\x1e"
              "21520\x1e");
    EXPECT_EQ(Lu(chemin, "CONTRAT", "00002002"), "-");
    EXPECT_EQ(Lu(chemin, "CONTRAT00101", "00002001"), "");
    EXPECT_EQ(Lu(chemin, "LIENAVENANT", "AVENANT00101"), "");
  }
}

// A clipboard with a whole report in it: each line holds what its field can, and the screen lives.
TEST_P(Pannes, APasteOfAHundredThousandCharactersIsCut) {
  static constexpr int Colles = 100000;
  static constexpr int LePlusLong = 80;
  QApplication::clipboard()->setText(QString(Colles, '7') +
                                     "\n\x1e"
                                     "fin");
  const auto coller = [](QWidget& fenetre) {
    int lignes = 0;
    for (QLineEdit* const ligne : fenetre.findChildren<QLineEdit*>()) {
      if (!ligne->isVisible() || !ligne->isEnabled()) continue;
      const QString avant = ligne->text();
      ligne->setFocus();
      ligne->selectAll();
      ligne->paste();
      EXPECT_LE(ligne->text().size(), LePlusLong) << ligne->objectName().toStdString();
      if (!ligne->text().isEmpty()) ++lignes;
      ligne->selectAll();
      ligne->insert(avant);
    }
    return lignes;
  };
  ASSERT_TRUE(fenetre_.OuvrirFichier(QString::fromStdString(Chemin())));
  ASSERT_TRUE(fenetre_.OuvrirAidant("00001"));
  EXPECT_GT(coller(fenetre_), 0);
  const essai::DansForme editeur("Frm_ElementsContrat",
                                 {[&](QWidget& fenetre) { EXPECT_GT(coller(fenetre), 3); },
                                  [](QWidget& fenetre) { essai::cliquer(fenetre, "Cmd_Retour"); }});
  QWidget* const dates =
      fenetre_.Ecran()->findChild<QAbstractScrollArea*>("Lst_DatDebContrat")->viewport();
  QTest::mouseClick(dates, Qt::LeftButton, {}, {10, 10});
  QTest::mouseDClick(dates, Qt::LeftButton, {}, {10, 10});
  EXPECT_EQ(editeur.Faits(), 2U);
}

class PannesServeur : public Pannes {};

// From the address of the dialog, with a password that somebody pasted into it.
TEST_P(PannesServeur, AServerThatGoesDuringASaveIsFoundAgainAndNoPasswordIsKept) {
  QString adresse;
  {
    hote::ChoixServeur choix(&fenetre_);
    EXPECT_EQ(choix.Adresse(), "");
    auto* const serveur = choix.findChild<QLineEdit*>("serveur");
    choix.findChild<QLineEdit*>("compte")->setText("rose");
    serveur->setText("paie:5433");
    EXPECT_EQ(choix.Adresse(), "postgresql://rose@paie:5433/contrats");
    serveur->setText(QString::fromStdString(Chemin()).replace("essai@", "essai:sesame@"));
    adresse = choix.Adresse();
  }
  EXPECT_EQ(adresse.toStdString(), Chemin());
  ASSERT_TRUE(fenetre_.OuvrirFichier(adresse.replace("essai@", "essai:sesame@")));
  ASSERT_TRUE(fenetre_.OuvrirAidant("00002"));
  auto& serveur = support::Serveur::Commun();
  const essai::DansForme editeur("Frm_ElementsContrat",
                                 {Remplir, [&](QWidget& fenetre) {
                                    serveur.Arreter();
                                    essai::cliquer(fenetre, "Cmd_OK");
                                    EXPECT_FALSE(lecteur_.dit.contains("sesame"));
                                    EXPECT_TRUE(lecteur_.ADit("aucun serveur ne répond"));
                                    EXPECT_EQ(Texte(fenetre, "Txt_PerEssaiContrat"), "60");
                                    serveur.Demarrer();
                                    essai::cliquer(fenetre, "Cmd_OK");
                                  }});
  essai::cliquer(*fenetre_.Ecran(), "Cmd_Ajouter");
  EXPECT_EQ(editeur.Faits(), 2U);
  EXPECT_NE(Lu(Chemin(), "CONTRAT", "00002001"), "-");
  EXPECT_FALSE(fenetre_.windowTitle().contains("sesame"));
  bureau_.Reglages().sync();
  QFile reglages(dossier_.filePath("reglages.ini"));
  ASSERT_TRUE(reglages.open(QIODevice::ReadOnly));
  const QByteArray gardes = reglages.readAll();
  EXPECT_TRUE(gardes.contains("postgresql:") && !gardes.contains("sesame")) << gardes.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Sur, PannesServeur, ::testing::Values("postgres"),
                         [](const auto& sur) { return std::string(sur.param); });
INSTANTIATE_TEST_SUITE_P(Sur, Pannes, ::testing::Values("fichier", "postgres"),
                         [](const auto& sur) { return std::string(sur.param); });

}  // namespace
