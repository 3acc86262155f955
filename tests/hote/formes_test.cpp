// The forms of the component on their real windows.

#include <QAccessible>
#include <QDir>
#include <QProgressBar>
#include <QToolTip>

#include "control/ctr_contrat.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "dialogs/frm_anim.h"
#include "dialogs/frm_anomalies_ajoutgraph.h"
#include "dialogs/frm_comment_bull.h"
#include "dialogs/frm_contrat_annuel.h"
#include "dialogs/frm_elem_droit_public.h"
#include "dialogs/frm_impression_a4.h"
#include "dialogs/frm_motif_cdd.h"
#include "dialogs/frm_motifs_embauche.h"
#include "dialogs/frm_qualif_pro.h"
#include "dialogs/frm_reprise.h"
#include "dialogs/frm_rub_saisie.h"
#include "dialogs/frm_stage.h"
#include "dialogs/frm_tps_indem.h"
#include "dialogs/frm_vespamoi.h"
#include "editor/editeur.h"
#include "essai.h"
#include "storage/memory.h"
#include "support/table.h"
#include "widget/contrat_widget.h"
#include "widget/formes.h"
#include "widget/frise_contrats.h"

namespace {

using essai::Apres;

// 22/11/2026, in the pay period of November 2026.
constexpr long Aujourdhui = 21511;

class Formes : public ::testing::Test {
 protected:
  Formes() {
    hote::enregistrerFormes(bureau);
    for (const auto& [fichier, cle, attributs] :
         support::table<3>("hote/parcours.md", "Les articles des formes")) {
      article(fichier, cle, attributs);
    }
  }
  void article(const std::string& fichier, const std::string& cle, const std::string& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : support::attributs(attributs)) item.Set(a, texte);
    item.DBWrite();
  }
  std::unique_ptr<ContratWidget> ouvrir() {
    auto widget = std::make_unique<ContratWidget>(bureau);
    widget->TheDatabase(db);
    widget->W_Code = "00001";
    widget->W_NomPrenom = "DURAND Anne";
    widget->DroitsUtilisateur(droits);
    widget->init();
    widget->show();
    widget->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget.get()));
    return widget;
  }
  std::string ecarts(screen::Form& forme) {
    const std::unique_ptr<QWidget> racine = bureau.Construire(forme.Nom());
    const hote::Liaison liaison(forme, *racine, bureau);
    return liaison.Ecarts().join("\n").toStdString();
  }

  data::PosteFixe poste{Aujourdhui};
  QTemporaryDir dossier;
  hote::Bureau bureau{
      &poste, std::make_unique<QSettings>(dossier.filePath("reglages.ini"), QSettings::IniFormat)};
  std::shared_ptr<storage::MemoryStorage> memoire = std::make_shared<storage::MemoryStorage>(poste);
  data::Db db{memoire};
  session::DroitsUniformes droits{2};
};

TEST_F(Formes, NoFieldLacksAWidgetNorWidgetAField) {
  session::Session session(poste);
  session.Db = &db;
  session.OuvrirFichiers();
  session::Dossier dossierContrat(session);
  control::Ctr_Contrat liste(bureau.Plateforme());
  editor::Frm_ElementsContrat editeur(bureau.Plateforme(), session);
  dialogs::Frm_MotifCDD motif(bureau.Plateforme(), dossierContrat, "", {});
  dialogs::Frm_MotifsEmbauche motifs(bureau.Plateforme());
  dialogs::Frm_Stage stage(bureau.Plateforme(), dossierContrat);
  dialogs::Frm_Reprise reprise(bureau.Plateforme(), dossierContrat);
  dialogs::Frm_QualifPro qualif(bureau.Plateforme());
  dialogs::Frm_ElemDroitPublic droitPublic(bureau.Plateforme(), dossierContrat, 1);
  dialogs::Frm_RubSaisie rubriques(bureau.Plateforme(), dossierContrat, {});
  dialogs::Frm_CommentBull commentaires(bureau.Plateforme(), dossierContrat);
  dialogs::Frm_TpsIndem indemnisation(bureau.Plateforme(), dossierContrat, "");
  dialogs::Frm_VESPAMOI telegestion(bureau.Plateforme(), {});
  dialogs::Frm_ContratAnnuel suivi(bureau.Plateforme(), dossierContrat, {});
  dialogs::Frm_AnomaliesAjoutgraph anomalies(bureau.Plateforme(), dossierContrat, {});
  dialogs::Frm_ImpressionA4 impression(bureau.Plateforme());
  dialogs::Frm_Anim attente(bureau.Plateforme());
  for (screen::Form* forme : std::initializer_list<screen::Form*>{
           &liste, &editeur, &motif, &motifs, &stage, &reprise, &qualif, &droitPublic, &rubriques,
           &commentaires, &indemnisation, &telegestion, &suivi, &anomalies, &impression,
           &attente}) {
    EXPECT_EQ(ecarts(*forme), "") << forme->Nom();
  }
  // What stands while one waits moves from the load on, until it is stopped.
  const std::unique_ptr<QWidget> fenetre = bureau.Construire(attente.Nom());
  hote::Liaison liaison(attente, *fenetre, bureau);
  const auto* const barre = fenetre->findChild<QProgressBar*>("Ani_Attente");
  liaison.Pousser();
  EXPECT_EQ(barre->maximum(), 0);
  attente.Ani_Attente.Arreter();
  liaison.Pousser();
  EXPECT_EQ(barre->maximum(), 1);
}

// Keys alone: the filters, Ajouter, the codes, the dates, OK, and the list again.
TEST_F(Formes, WholeCreationByKeyboard) {
  const auto ecran = ouvrir();
  QString avis;
  QObject::connect(ecran.get(), &ContratWidget::annonce,
                   [&](const QString& texte) { avis += texte; });
  screen::Form* forme = &ecran->Controle();
  const auto touche = [](Qt::Key cle) {
    QTest::keyClick(QApplication::focusWidget(), cle);
    QCoreApplication::processEvents();
  };
  const auto aller = [&](const std::string& nom) {
    for (int i = 0; i < 80; ++i) {
      if (forme->Active() != nullptr && forme->Active()->Nom() == nom) return;
      touche(Qt::Key_Tab);
    }
    ADD_FAILURE() << "Tab does not reach " << nom;
  };
  const auto remplir = [&](const std::string& nom, const char* texte) {
    aller(nom);
    QTest::keyClicks(QApplication::focusWidget(), texte);
  };
  // Each field and what is typed there, a key by its name in back quotes.
  const auto suivre = [&](const char* titre) {
    for (const auto& [nom, frappe] : support::table<2>("hote/parcours.md", titre)) {
      if (!frappe.starts_with('`')) {
        remplir(nom, frappe.c_str());
        continue;
      }
      aller(nom);
      touche(QKeySequence(QString::fromStdString(support::code(frappe)))[0].key());
    }
  };
  Apres clerc([&](QWidget& fenetre) {
    if (auto* boite = qobject_cast<QMessageBox*>(&fenetre)) {
      if (!boite->text().startsWith("Etes-vous sûr de vouloir quitter")) {
        ADD_FAILURE() << boite->text().toStdString();
      }
      QTest::keyClick(boite, Qt::Key_Return);
      return;
    }
    forme = bureau.FormeCourante();
    ASSERT_EQ(forme->Nom(), "Frm_ElementsContrat");
    EXPECT_EQ(fenetre.windowTitle(), "Nouveau contrat (création)");
    suivre("Une création au clavier");
    EXPECT_EQ(fenetre.windowTitle(), "* Nouveau contrat (création)");
    // Whoever stays after all is where he was.
    aller("Txt_DatDebContrat");
    touche(Qt::Key_Escape);
    EXPECT_EQ(forme->Active()->Nom(), "Txt_DatDebContrat");
    // What is no date holds the keyboard, and says what one is.
    remplir("Txt_DatDebContrat", "31/11/26");
    touche(Qt::Key_Tab);
    EXPECT_EQ(forme->Active()->Nom(), "Txt_DatDebContrat");
    EXPECT_TRUE(QToolTip::text().contains("JJ/MM/AAAA"));
    EXPECT_TRUE(QToolTip::isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    suivre("Une création corrigée");
    forme = &ecran->Controle();
  });
  // The keyboard goes where work goes on, in the model and in the widgets.
  const auto clavier = [&] {
    return forme->Active()->Nom() + " " + QApplication::focusWidget()->objectName().toStdString();
  };
  aller("Cmd_Recherche");
  touche(Qt::Key_Space);
  EXPECT_EQ(clavier(), "Lst_DatDebContrat Lst_DatDebContrat");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(clavier(), "Opt_Actif Opt_Actif");
  touche(Qt::Key_F5);
  aller("Cmd_Ajouter");
  touche(Qt::Key_Return);
  EXPECT_EQ(clavier(), "Lst_DatDebContrat Lst_DatDebContrat");
  EXPECT_EQ(avis, "Contrat 001 enregistré");
  EXPECT_EQ(clerc.Fois(), 2);
  data::CItem contrat;
  ASSERT_TRUE(db.OpenFile("CONTRAT").Lire("00001001", contrat));
  namespace C = data::Contrat;
  EXPECT_EQ(contrat(C::Convention) + " " + contrat(C::Association) + " " + contrat(C::Employeur) +
                " " + contrat(C::DateDebut) + " " + contrat(C::Nature) + " " +
                contrat(C::DureeTravail) + " " + contrat(C::Frequence),
            "01 001 001001 21520 CDI 2000 1");
  auto* const debuts = ecran->findChild<QListWidget*>("Lst_DatDebContrat");
  ASSERT_EQ(debuts->count(), 1);
  EXPECT_EQ(debuts->item(0)->text(), "01/12/2026");
}

// The strip leads into the list, says in words what it shows, and shows an overlap as it is typed.
TEST_F(Formes, TheStripOfTimeFollowsListAndEditor) {
  article("CONTRAT", "00001001", "1=01; 2=001; 3=001001; 4=I; 5=H; 6=P; 7=21000");
  article("CIVILAIDANT", "00001", "2=DURAND; 3=Anne; 41=001");
  const auto ecran = ouvrir();
  ecran->resize(1000, 700);
  ecran->Affiche("", "", "H");
  auto* const frise = ecran->findChild<FriseContrats*>("frise");
  const QAccessibleInterface* const lecteur = QAccessible::queryAccessibleInterface(frise);
  EXPECT_EQ(lecteur->text(QAccessible::Description), "1 contrat");
  ASSERT_EQ(frise->Contenu().barres.size(), 1U);
  const auto barre = [&] {
    const QPoint place = frise->Place(frise->Contenu().barres.front()).center();
    return frise->mapTo(ecran.get(), place);
  };
  QPoint menu;
  QObject::connect(ecran.get(), &ContratWidget::menuDemande, [&](const QPoint& p) { menu = p; });
  // The filters leave nothing: the click lifts them.
  QTest::mouseClick(ecran->windowHandle(), Qt::LeftButton, {}, barre());
  QCoreApplication::processEvents();
  EXPECT_EQ(lecteur->text(QAccessible::Description),
            "1 contrat; choisi : Contrat 001, depuis le 29/06/2025, en cours");
  auto* const types = ecran->findChild<QListWidget*>("Lst_Type");
  EXPECT_EQ(types->currentRow(), 0);
  // A right click selects its row before the menu is asked for.
  ecran->Affiche("", "", "");
  EXPECT_EQ(types->currentRow(), -1);
  const QPoint ligne = types->visualItemRect(types->item(0)).center();
  QTest::mouseClick(ecran->windowHandle(), Qt::RightButton, {},
                    types->viewport()->mapTo(ecran.get(), ligne));
  EXPECT_EQ(types->currentRow(), 0);
  EXPECT_EQ(menu, types->viewport()->mapToGlobal(ligne));

  std::vector<std::string> vues;
  const Apres clerc([&](QWidget& fenetre) {
    if (qobject_cast<QMessageBox*>(&fenetre) != nullptr) {
      QTest::keyClick(&fenetre, Qt::Key_O, Qt::AltModifier);
      return;
    }
    const auto* const saisie = fenetre.findChild<FriseContrats*>("frise");
    const auto voir = [&] { vues.push_back(saisie->Resume().toStdString()); };
    voir();
    if (vues.size() > 1) {
      for (const auto& [champ, texte] :
           {std::pair("Txt_ConvColContrat", "01"), std::pair("Txt_AssocContrat", "001"),
            std::pair("Txt_DatDebContrat", "1/12/26")}) {
        fenetre.findChild<QWidget*>(champ)->setFocus();
        QTest::keyClicks(QApplication::focusWidget(), texte);
      }
      voir();
    }
    fenetre.findChild<QPushButton*>("Cmd_Retour")->click();
  });
  QTest::mouseDClick(ecran->windowHandle(), Qt::LeftButton, {}, barre());
  EXPECT_TRUE(QTest::qWaitFor([&] { return vues.size() == 1 && !ecran->Occupe(); }, 2000));
  QTest::keyClick(ecran->windowHandle(), Qt::Key_Insert);
  EXPECT_EQ(vues,
            (std::vector<std::string>{
                "1 contrat; en saisie : Contrat 001, depuis le 29/06/2025, en cours", "1 contrat",
                "2 contrats; Contrat 001, depuis le 29/06/2025, en cours, chevauche un autre "
                "contrat; en saisie : Nouveau contrat, à partir du 01/12/2026, à venir, "
                "chevauche un autre contrat"}));
}

// Retour tells the host once, when the widget may be deleted.
TEST_F(Formes, LeavingLetsTheHostDeleteTheWidget) {
  auto ecran = ouvrir();
  auto* const retour = ecran->findChild<QPushButton*>("Cmd_Retour");
  int sorties = 0;
  QObject::connect(ecran.get(), &ContratWidget::sortie, ecran.get(), [&] {
    ++sorties;
    EXPECT_EQ(ecran->W_Sortir(), 1);
    EXPECT_FALSE(ecran->Occupe());
    ecran.reset();
  });
  const QPoint place = retour->mapTo(ecran.get(), retour->rect().center());
  QTest::mouseClick(ecran->windowHandle(), Qt::LeftButton, {}, place);
  EXPECT_TRUE(QTest::qWaitFor([&] { return sorties > 0; }, 2000));
  EXPECT_EQ(sorties, 1);
}

// A contract asked for beforehand: init returns when its editor has closed, and the widget, a
// window of its own here, stays until then.
TEST_F(Formes, InitWithAContractIsBusyUntilItsEditorCloses) {
  article("CONTRAT", "00001001", "1=01; 2=001; 3=001001; 4=I; 5=H; 6=P; 7=21000");
  article("CIVILAIDANT", "00001", "2=DURAND; 3=Anne; 41=001");
  ContratWidget ecran(bureau);
  ecran.TheDatabase(db);
  ecran.W_Code = "00001";
  ecran.W_CodeContrat = "00001001";
  ecran.DroitsUtilisateur(droits);
  ecran.show();
  const Apres clerc([&](QWidget& fenetre) {
    EXPECT_EQ(fenetre.objectName(), "Frm_ElementsContrat");
    EXPECT_TRUE(ecran.Occupe());
    EXPECT_FALSE(ecran.close());
    fenetre.findChild<QPushButton*>("Cmd_Retour")->click();
  });
  ecran.init();
  EXPECT_EQ(clerc.Fois(), 1);
  EXPECT_FALSE(ecran.Occupe());
  EXPECT_TRUE(ecran.close());
}

}  // namespace
