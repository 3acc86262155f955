// The host window: finding a carer, what the title says, failures of the file, help, and what is
// remembered.

#include "fenetre/fenetre_hote.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeView>

#include "control/ctr_contrat.h"
#include "fenetre/aide.h"
#include "fenetre/fichiers_recents.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"
#include "screen/user.h"
#include "storage/sqlite.h"
#include "widget/contrat_widget.h"
#include "widget/formes.h"

namespace {

// The codes that a typed text keeps, in the order shown.
std::string trouves(hote::Annuaire& annuaire, const char* saisie) {
  annuaire.Filtrer(saisie);
  std::string codes;
  for (int i = 0; i < annuaire.rowCount(); ++i) codes += annuaire.Ligne(i).code + " ";
  return codes;
}

TEST(Annuaire, KeepsACarerByTheBeginningOfCodeOrName) {
  hote::Annuaire annuaire;
  annuaire.Remplir({{"00120", "DUVAL Marie-Hélène"},
                    {"00012", "Lefèvre Œnone"},
                    {"00003", "D'ALMEIDA Anne"},
                    {"00400", "DUPONT Hélène"}});
  struct Cas {
    const char* saisie;
    const char* codes;
  };
  for (const Cas& cas :
       {Cas{"", "00003 00400 00120 00012 "}, Cas{"hel", "00400 00120 "},
        Cas{"HÉLÈNE duv", "00120 "}, Cas{"marie-h", "00120 "}, Cas{"lefevre oen", "00012 "},
        Cas{"almeida", "00003 "}, Cas{"d'al", "00003 "}, Cas{"12", "00120 00012 "},
        Cas{"0012", "00120 "}, Cas{"00400", "00400 "}, Cas{"val", ""},
        Cas{"  ", "00003 00400 00120 00012 "}, Cas{"hel zz", ""}}) {
    EXPECT_EQ(trouves(annuaire, cas.saisie), cas.codes) << cas.saisie;
  }
}

// A user who answers each box with its only button, and keeps what it said.
class Lecteur {
 public:
  Lecteur() {
    QObject::connect(&minuteur_, &QTimer::timeout, &minuteur_, [this] {
      auto* const boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (boite == nullptr) return;
      dit += boite->text();
      boite->buttons().constFirst()->click();
    });
    minuteur_.start(10);
  }
  QString dit{};

 private:
  QTimer minuteur_{};
};

// The title of the help page that is shown.
std::string PageAide() {
  for (QWidget* const fenetre : QApplication::topLevelWidgets()) {
    auto* const page = fenetre->findChild<QTextBrowser*>();
    if (page != nullptr) return page->documentTitle().toStdString();
  }
  return "no help";
}

class Hote : public ::testing::Test {
 protected:
  Hote() {
    hote::enregistrerFormes(bureau_);
    Creer(Chemin("a.contrats"));
  }

  QString Chemin(const char* nom) const { return dossier_.filePath(nom); }
  std::unique_ptr<QSettings> Reglages() const {
    return std::make_unique<QSettings>(Chemin("reglages.ini"), QSettings::IniFormat);
  }

  // The carers 00001 and 00002, the second one deleted, and what the screen reads at its start.
  void Creer(const QString& chemin) const {
    const auto base = storage::SqliteStorage::Creer(chemin.toStdString(), poste_);
    base->Put("CIVILAIDANT", "00001",
              "001MME\x1e"
              "DURAND\x1e"
              "Gwenaëlle");
    std::string supprime = "001MR\x1ePETIT\x1eHervé";
    base->Put("CIVILAIDANT", "00002", supprime.append(33, '\x1e') + "20000");
    base->Put("COMPTEUR", "999", "1");
    base->Put("PERIODESPAIE", "1", "202611");
    base->Put("ASSOCIATION", "001", "Entité");
  }

  bool OuvrirDurand() {
    return fenetre_.OuvrirFichier(Chemin("a.contrats")) && fenetre_.OuvrirAidant("00001");
  }
  std::string Titre() const { return fenetre_.windowTitle().toStdString(); }

  const QTemporaryDir dossier_{};
  const data::PosteFixe poste_{21511};
  hote::Bureau bureau_{&poste_, Reglages()};
  hote::FenetreHote fenetre_{bureau_};
};

TEST_F(Hote, OpensACarerFromTheKeyboardAndSaysSo) {
  fenetre_.show();
  ASSERT_TRUE(fenetre_.OuvrirFichier(Chemin("a.contrats")));
  EXPECT_EQ(Titre(), "a.contrats – droits complets – Contrats de travail");
  auto* const saisie = fenetre_.findChild<QLineEdit*>("rechercheAidant");
  QTest::keyClicks(saisie, "gwenaelle");
  EXPECT_EQ(fenetre_.findChild<QTreeView*>("listeAidants")->model()->rowCount(), 1);
  QTest::keyClick(saisie, Qt::Key_Return);
  EXPECT_EQ(Titre(),
            "DURAND Gwenaëlle (00001) – a.contrats – droits complets – Contrats de travail");
  ASSERT_NE(fenetre_.Ecran(), nullptr);
  EXPECT_TRUE(fenetre_.Ecran()->Controle().Cmd_Ajouter.Visible());

  fenetre_.ChangerDroits(1);
  EXPECT_EQ(Titre(), "DURAND Gwenaëlle (00001) – a.contrats – consultation – Contrats de travail");
  EXPECT_FALSE(fenetre_.Ecran()->Controle().Cmd_Ajouter.Visible());

  control::Ctr_Contrat& controle = fenetre_.Ecran()->Controle();
  screen::User(controle).Cliquer(controle.Cmd_Retour);
  EXPECT_TRUE(QTest::qWaitFor([this] { return fenetre_.Ecran() == nullptr; }, 2000));
  EXPECT_EQ(Titre(), "a.contrats – consultation – Contrats de travail");
}

TEST_F(Hote, ADeletedCarerGetsNoNewContract) {
  ASSERT_TRUE(fenetre_.OuvrirFichier(Chemin("a.contrats")));
  ASSERT_TRUE(fenetre_.OuvrirAidant("00002"));
  EXPECT_FALSE(fenetre_.Ecran()->Controle().Cmd_Ajouter.Enabled());
}

TEST_F(Hote, KeepsWhatIsOpenWhenAnotherFileFails) {
  ASSERT_TRUE(OuvrirDurand());
  QFile(Chemin("faux.contrats")).open(QIODevice::WriteOnly);
  const Lecteur lecteur;
  EXPECT_FALSE(fenetre_.OuvrirFichier(Chemin("absent.contrats")));
  EXPECT_FALSE(fenetre_.OuvrirFichier(Chemin("faux.contrats")));
  EXPECT_FALSE(fenetre_.OuvrirAidant("99999"));
  for (const char* const mot : {"absent.contrats", "faux.contrats", "99999"}) {
    EXPECT_TRUE(lecteur.dit.contains(mot)) << mot;
  }
  EXPECT_NE(fenetre_.Ecran(), nullptr);
  EXPECT_EQ(hote::FichiersRecents(bureau_.Reglages()).Chemins(), QStringList{Chemin("a.contrats")});
}

// The record that the screen needs at its start is not in this file.
TEST_F(Hote, TellsWhyACarerDoesNotShow) {
  storage::SqliteStorage::Ouvrir(Chemin("a.contrats").toStdString(), poste_)
      ->Erase("COMPTEUR", "999");
  const Lecteur lecteur;
  EXPECT_FALSE(OuvrirDurand());
  EXPECT_TRUE(lecteur.dit.contains("DURAND Gwenaëlle")) << lecteur.dit.toStdString();
  EXPECT_TRUE(lecteur.dit.contains("COMPTEUR")) << lecteur.dit.toStdString();
  EXPECT_EQ(fenetre_.Ecran(), nullptr);
  EXPECT_EQ(Titre(), "a.contrats – droits complets – Contrats de travail");
}

TEST_F(Hote, LetsGoOfAFileThatIsRemoved) {
  ASSERT_TRUE(OuvrirDurand());
  const Lecteur lecteur;
  ASSERT_TRUE(QFile::remove(Chemin("a.contrats")));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Titre() == "Contrats de travail"; }, 5000));
  EXPECT_TRUE(lecteur.dit.contains("a.contrats"));
  EXPECT_EQ(fenetre_.Ecran(), nullptr);
}

// The window system or the end of a session can ask for it although the editor is modal.
TEST_F(Hote, StaysWhileTheEditorIsOpen) {
  fenetre_.show();
  ASSERT_TRUE(OuvrirDurand());
  const Lecteur lecteur;
  bool resteOuverte = false;
  QTimer minuteur;
  QObject::connect(&minuteur, &QTimer::timeout, &minuteur, [&] {
    QWidget* const active = QApplication::activeModalWidget();
    if (active == nullptr || active->objectName() != "Frm_ElementsContrat") return;
    if (!resteOuverte) {
      resteOuverte = true;
      EXPECT_FALSE(fenetre_.close());
      EXPECT_FALSE(fenetre_.OuvrirFichier(Chemin("a.contrats")));
      fenetre_.FermerAidant();
      EXPECT_NE(fenetre_.Ecran(), nullptr);
      QTest::keyClick(active, Qt::Key_F1);
      EXPECT_EQ(PageAide(), "Le contrat");
    } else {
      active->findChild<QAbstractButton*>("Cmd_Retour")->click();
    }
  });
  minuteur.start(20);
  fenetre_.Ecran()->findChild<QAbstractButton*>("Cmd_Ajouter")->click();
  minuteur.stop();
  EXPECT_TRUE(resteOuverte);
  EXPECT_TRUE(lecteur.dit.contains("Un contrat est ouvert")) << lecteur.dit.toStdString();
  EXPECT_TRUE(fenetre_.close());
}

TEST_F(Hote, RemembersFilesAndSize) {
  Creer(Chemin("b.contrats"));
  for (const char* const nom : {"a.contrats", "b.contrats", "a.contrats"}) {
    ASSERT_TRUE(fenetre_.OuvrirFichier(Chemin(nom)));
  }
  fenetre_.resize(1111, 666);
  fenetre_.show();
  fenetre_.close();
  hote::Bureau bureau(&poste_, Reglages());
  EXPECT_EQ(hote::FichiersRecents(bureau.Reglages()).Chemins(),
            (QStringList{Chemin("a.contrats"), Chemin("b.contrats")}));
  hote::FenetreHote autre(bureau);
  EXPECT_EQ(autre.size(), QSize(1111, 666));
  autre.OuvrirDernier();
  EXPECT_EQ(autre.windowTitle().toStdString(),
            "a.contrats – droits complets – Contrats de travail");
}

TEST_F(Hote, HelpIsAboutTheScreenInFront) {
  fenetre_.show();
  QTest::keyClick(&fenetre_, Qt::Key_F1);
  EXPECT_EQ(PageAide(), "Contrats de travail");
  ASSERT_TRUE(OuvrirDurand());
  QTest::keyClick(&fenetre_, Qt::Key_F1);
  EXPECT_EQ(PageAide(), "La liste des contrats");
  fenetre_.FermerAidant();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(PageAide(), "no help");
}

TEST(Aide, EveryFormHasItsPage) {
  const QStringList formes =
      QDir(CONTRATS_SOURCE_DIR "/apps/hote/formes").entryList({"*.ui"}, QDir::Files);
  EXPECT_FALSE(formes.isEmpty());
  for (const QString& forme : formes) {
    const QString nom = forme.chopped(3);
    EXPECT_EQ(hote::FenetreAide::Page(nom), "qrc:/aide/" + nom + ".html");
  }
}

}  // namespace
