// The host window: finding a carer, what the title says, failures of the file, help, and what is
// remembered.

#include "fenetre/fenetre_hote.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTreeView>
#include <cstdio>

#include "control/ctr_contrat.h"
#include "fenetre/aide.h"
#include "fenetre/fichiers_recents.h"
#include "fenetre/style_hote.h"
#include "integration/hote_essai.h"
#include "liaison/textes_qt.h"
#include "screen/user.h"
#include "widget/contrat_widget.h"

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

TEST(Annuaire, TellsHomonymsApartAndLeavesDeletedCarersOut) {
  hote::Annuaire annuaire;
  annuaire.Remplir({{"00001", "DUVAL Anne", false, 4402, "Vire"},  // 19/01/1980
                    {"00002", "Duval Anné", true, 4403, "Caen"},
                    {"00003", "PETIT Luc", false, 4402, "Vire"},
                    {"00004", "PETIT Luc", false, 4402, "Caen"},
                    {"00005", "ROUX Ida", false, 4402, "Vire"}});
  const auto noms = [&] {
    std::string texte;
    for (int i = 0; i < annuaire.rowCount(); ++i) {
      texte += annuaire.index(i, hote::Annuaire::Nom).data().toString().toStdString() + "; ";
    }
    return texte + std::to_string(annuaire.Masques());
  };
  EXPECT_EQ(noms(),
            "DUVAL Anne (19/01/1980); Duval Anné (20/01/1980); PETIT Luc (Vire); "
            "PETIT Luc (Caen); ROUX Ida; 0");
  annuaire.MasquerSupprimes(true);
  annuaire.Filtrer("duv");
  EXPECT_EQ(noms(), "DUVAL Anne (19/01/1980); 1");
  annuaire.Ouvrir("00002");
  ASSERT_NE(annuaire.Trouver("00002"), nullptr);
  EXPECT_EQ(annuaire.LigneDe("00002"), -1);
}

// The title of the help page that is shown.
std::string PageAide() {
  for (QWidget* const fenetre : QApplication::topLevelWidgets()) {
    auto* const page = fenetre->findChild<QTextBrowser*>();
    if (page != nullptr) return page->documentTitle().toStdString();
  }
  return "no help";
}

class Hote : public essai::Hote {
 protected:
  Hote() { Creer(Chemin("a.contrats")); }

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
  // A letter that no menu has is no text.
  saisie->setFocus();
  QTest::keyClick(saisie, Qt::Key_Z, Qt::AltModifier);
  EXPECT_EQ(saisie->text(), "gwenaelle");
  // He stays marked whatever is typed; Esc empties the line.
  auto* const liste = fenetre_.findChild<QTreeView*>("listeAidants");
  QTest::keyClicks(saisie, "petit");
  EXPECT_EQ(fenetre_.findChild<QLabel*>("aidantOuvert")->text(),
            "Ouvert : DURAND Gwenaëlle (00001)");
  QTest::keyClick(saisie, Qt::Key_Escape);
  EXPECT_EQ(saisie->text(), "");
  EXPECT_TRUE(fenetre_.findChild<QLabel*>("aidantOuvert")->isHidden());
  EXPECT_EQ(liste->currentIndex().data(), "00001");
  // A screen of 1366x768 at a scale of one and a half, less title bar and task bar.
  EXPECT_LE(fenetre_.minimumSizeHint().width(), 904);
  EXPECT_LE(fenetre_.minimumSizeHint().height(), 442);

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

// The keys of the Contrat menu hold in the whole window.
TEST_F(Hote, TheContratMenuSearchesAndCopies) {
  storage::SqliteStorage::Ouvrir(Chemin("a.contrats").toStdString(), poste_)
      ->Put("CIVILAIDANT", "00001",
            "001MME\x1e"
            "DURAND" +
                std::string(39, '\x1e') + "001");
  storage::SqliteStorage::Ouvrir(Chemin("a.contrats").toStdString(), poste_)
      ->Put("CONTRAT", "00001001",
            "01\x1e"
            "001\x1e"
            "001001\x1eI\x1eH\x1eP\x1e"
            "21000");
  fenetre_.show();
  fenetre_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre_));
  ASSERT_TRUE(OuvrirDurand());
  control::Ctr_Contrat& liste = fenetre_.Ecran()->Controle();
  screen::User(liste).Cliquer(liste.Cmd_OK);
  EXPECT_EQ(liste.Lst_Type.ListCount(), 0);
  fenetre_.findChild<QLineEdit*>("rechercheAidant")->setFocus();
  QTest::keyClick(&fenetre_, Qt::Key_F5);
  EXPECT_EQ(liste.Lst_Type.ListCount(), 1);
  liste.Lst_Type.SetListIndex(0);
  QTest::keyClick(&fenetre_, Qt::Key_F5);
  EXPECT_EQ(liste.Lst_Type.ListIndex(), 0);
  QTest::keyClick(&fenetre_, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(
      QGuiApplication::clipboard()->text().endsWith("\r\n001\t29/06/2025\t\tI\tEntité\t\r\n"))
      << QGuiApplication::clipboard()->text().toStdString();
}

// What does not open leaves what is open, and says of which file it speaks and why.
TEST_F(Hote, KeepsWhatIsOpenWhenAnotherFileFails) {
  ASSERT_TRUE(OuvrirDurand());
  const auto ecrire = [this](const char* nom, const QByteArray& contenu) {
    QFile fichier(Chemin(nom));
    EXPECT_TRUE(fichier.open(QIODevice::WriteOnly) && fichier.write(contenu) == contenu.size());
  };
  QFile modele(Chemin("a.contrats"));
  ASSERT_TRUE(modele.open(QIODevice::ReadOnly));
  QByteArray plusRecent = modele.read(100);
  plusRecent[63] = 9;  // the low byte of the version
  ecrire("vide & creux.contrats", "");
  ecrire("été.contrats", QByteArray(5000, 'x'));
  ecrire("neuf.contrats", plusRecent);
  struct Cas {
    const char* nom;
    const char* dit;
  };
  essai::Lecteur lecteur;
  for (const Cas& cas :
       {Cas{"absent.contrats", "pas de fichier"}, Cas{".", "un dossier"},
        Cas{"vide & creux.contrats", "est vide"}, Cas{"été.contrats", "pas un fichier de données"},
        Cas{"neuf.contrats", "Installez la dernière version"}}) {
    EXPECT_FALSE(fenetre_.OuvrirFichier(Chemin(cas.nom)));
    EXPECT_TRUE(lecteur.dit.contains(cas.nom)) << cas.nom;
    EXPECT_TRUE(lecteur.ADit(cas.dit)) << cas.nom;
  }
  EXPECT_FALSE(fenetre_.OuvrirAidant("99999"));
  EXPECT_TRUE(lecteur.ADit("99999"));
  EXPECT_NE(fenetre_.Ecran(), nullptr);
  EXPECT_EQ(hote::FichiersRecents(bureau_.Reglages()).Chemins(), QStringList{Chemin("a.contrats")});
}

// The one that is moved comes back; the one that is replaced does not, and the new file is whole.
TEST_F(Hote, SaysThatTheFileHasLeftItsPlace) {
  Creer(Chemin("b.contrats"));
  const std::string la = Chemin("a.contrats").toStdString();
  const std::string ailleurs = Chemin("b.contrats").toStdString();
  essai::Lecteur lecteur;
  ASSERT_TRUE(OuvrirDurand());
  const std::string titre = Titre();
  ASSERT_EQ(std::rename(la.c_str(), (la + "2").c_str()), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return lecteur.ADit("déplacé ou supprimé"); }, 5000));
  EXPECT_NE(Titre().find("absent"), std::string::npos);
  ASSERT_EQ(std::rename((la + "2").c_str(), la.c_str()), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Titre() == titre; }, 5000));

  // The log of the former file holds a write that the new one must not take over.
  storage::SqliteStorage::Ouvrir(la, poste_)->Put("ASSOCIATION", "001", "Ancienne");
  ASSERT_EQ(std::rename(ailleurs.c_str(), la.c_str()), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Titre() == "Contrats de travail"; }, 5000));
  EXPECT_TRUE(lecteur.dit.contains("remplacé par un autre"));
  EXPECT_TRUE(lecteur.ADit("a.contrats-wal.autre-fichier1"));
  EXPECT_EQ(fenetre_.Ecran(), nullptr);
  ASSERT_TRUE(OuvrirDurand());
  std::string entite;
  storage::SqliteStorage::Ouvrir(la, poste_)->Get("ASSOCIATION", "001", entite);
  EXPECT_EQ(entite, "Entité");
}

// The window system, another part of the program or the end of a session can ask for it although
// the editor is modal.
TEST_F(Hote, StaysWhileTheEditorIsOpen) {
  fenetre_.show();
  ASSERT_TRUE(OuvrirDurand());
  essai::Lecteur lecteur;
  const essai::DansForme editeur("Frm_ElementsContrat",
                                 {[&](QWidget&) { EXPECT_FALSE(fenetre_.close()); },
                                  [](QWidget&) {
                                    // What QCoreApplication::quit does while the program runs.
                                    QEvent fin(QEvent::Quit);
                                    QCoreApplication::sendEvent(qApp, &fin);
                                  },
                                  [&](QWidget& active) {
                                    EXPECT_TRUE(lecteur.ADit("Un contrat est ouvert"));
                                    EXPECT_FALSE(fenetre_.OuvrirFichier(Chemin("a.contrats")));
                                    fenetre_.ChangerDroits(1);
                                    fenetre_.FermerAidant();
                                    EXPECT_NE(fenetre_.Ecran(), nullptr);
                                    QTest::keyClick(&active, Qt::Key_F1);
                                    EXPECT_EQ(PageAide(), "Le contrat");
                                  },
                                  [](QWidget& active) { essai::cliquer(active, "Cmd_Retour"); }});
  essai::cliquer(*fenetre_.Ecran(), "Cmd_Ajouter");
  EXPECT_EQ(editeur.Faits(), 4U);
  EXPECT_NE(Titre().find("droits complets"), std::string::npos);
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
  {
    hote::FenetreHote autre(bureau);
    EXPECT_EQ(autre.size(), QSize(1111, 666));
    autre.showMaximized();
    autre.close();
  }
  hote::FenetreHote autre(bureau);
  EXPECT_TRUE(autre.isMaximized());
  EXPECT_EQ(autre.normalGeometry().size(), QSize(1111, 666));
  autre.OuvrirDernier();
  EXPECT_EQ(autre.windowTitle().toStdString(),
            "a.contrats – droits complets – Contrats de travail");
}

TEST_F(Hote, OpensTheDemonstrationDataWhenNothingWasOpenedBefore) {
  qputenv("XDG_DATA_HOME", dossier_.path().toUtf8());
  ASSERT_TRUE(QDir(dossier_.path()).mkdir("contrats"));
  Creer(Chemin("contrats/demo.contrats"));
  fenetre_.OuvrirDernier();
  qunsetenv("XDG_DATA_HOME");
  EXPECT_EQ(Titre(), "demo.contrats – droits complets – Contrats de travail");
  EXPECT_EQ(hote::FichiersRecents(bureau_.Reglages()).Chemins(),
            QStringList{Chemin("contrats/demo.contrats")});
}

TEST_F(Hote, ItsStyleHasTheArrowOfANarrowMenuBar) {
  const hote::StyleHote style;
  const auto fleche = [](const QStyle& s) {
    return s.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton).pixmap(16).toImage();
  };
  ASSERT_FALSE(fleche(style).isNull());
  EXPECT_EQ(fleche(style), fleche(*style.baseStyle()));
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
  const QStringList formes = QDir(CONTRATS_SOURCE_DIR "/apps/hote/formes")
                                 .entryList({"Ctr_*.ui", "Frm_*.ui"}, QDir::Files);
  EXPECT_FALSE(formes.isEmpty());
  for (const QString& forme : formes) {
    const QString nom = forme.chopped(3);
    EXPECT_EQ(hote::FenetreAide::Page(nom), "qrc:/aide/" + nom + ".html");
  }
}

}  // namespace
