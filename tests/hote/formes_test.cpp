// The forms of the component on their real windows.

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
#include "widget/contrat_widget.h"
#include "widget/formes.h"

namespace {

using essai::Apres;

// 22/11/2026, in the pay period of November 2026.
constexpr long Aujourdhui = 21511;

class Formes : public ::testing::Test {
 protected:
  using Attributs = std::vector<std::pair<int, std::string>>;

  Formes() {
    hote::enregistrerFormes(bureau);
    article("COMPTEUR", "999", {{18, "1"}});
    article("PERIODESPAIE", "1", {{1, "202611"}});
    article("CIVILAIDANT", "00001", {{2, "DURAND"}, {3, "Anne"}, {41, "000"}});
    article("ASSOCIATION", "001", {{1, "Aide du Val"}});
    article("ASSOCIATION", "002", {{1, "Bien Chez Soi"}});
    article("CONVENTIONCOL", "01", {{1, "Branche"}});
    article("ETABLISSEMENT", "001001", {{1, "Siège"}});
    article("ETABLISSEMENT", "001002", {{1, "Antenne"}});
    article("ACTIVITES", "001DOM", {{1, "Domicile"}, {12, "P"}});
    article("PROFIL", "P01", {{1, "Intervenant"}, {4, "0"}});
    article("GRILLESCC", "01A", {{1, "Grille A"}});
    article("CONTRATSPREV", "10", {{1, "Cadres"}, {3, "01"}});
    article("PCS", "563b", {{1, "Aide à domicile"}});
    article("PCS", "56", {{1, "Services"}});
    article("CONSTANTESPAIE", "1", {{10, "4800"}});
    data::CItem natures = db.OpenFile("TABLES").NewItem("NATURECONTRAT");
    natures.Set(2, 1, "CDI");
    natures.Set(3, 1, "Normal");
    natures.Set(6, 1, "O");
    natures.DBWrite();
  }
  void article(const char* fichier, const std::string& cle, const Attributs& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : attributs) item.Set(a, texte);
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
  // Where the pictures of a run go, for whoever wants to see them; nowhere otherwise.
  static void capturer(QWidget& fenetre, const char* nom) {
    const QString captures = qEnvironmentVariable("CONTRATS_CAPTURES");
    if (!captures.isEmpty()) fenetre.grab().save(QDir(captures).filePath(nom));
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
  Apres clerc([&](QWidget& fenetre) {
    if (auto* boite = qobject_cast<QMessageBox*>(&fenetre)) {
      ADD_FAILURE() << boite->text().toStdString();
      QTest::keyClick(boite, Qt::Key_Return);
      return;
    }
    forme = bureau.FormeCourante();
    ASSERT_EQ(forme->Nom(), "Frm_ElementsContrat");
    remplir("Txt_ConvColContrat", "01");
    remplir("Txt_AssocContrat", "1");
    touche(Qt::Key_Tab);
    remplir("Txt_EmplEtabContrat", "001");
    // What is no date holds the keyboard, and says what one is.
    remplir("Txt_DatDebContrat", "31/11/26");
    touche(Qt::Key_Tab);
    EXPECT_EQ(forme->Active()->Nom(), "Txt_DatDebContrat");
    EXPECT_TRUE(QToolTip::text().contains("JJ/MM/AAAA"));
    EXPECT_TRUE(QToolTip::isVisible());
    capturer(fenetre, "indication.png");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    remplir("Txt_DatDebContrat", "1/12/26");
    remplir("Txt_PerEssaiContrat", "60");
    aller("Cac_RenouvEssaiContrat");
    touche(Qt::Key_Space);
    remplir("Cbo_NatureContrat", "Normal");
    aller("Ong_Contrat");
    touche(Qt::Key_Right);
    remplir("Cbo_QualifContrat", "Agent");
    remplir("Txt_DureeWContrat", "20");
    aller("Cbo_FreqWContrat");
    touche(Qt::Key_Down);
    remplir("Txt_TauxHorContrat", "12,02");
    // The pay tab: the only activity has been taken.
    aller("Ong_Contrat");
    touche(Qt::Key_Right);
    remplir("Txt_ProfilContrat", "P01");
    aller("Cmd_OK");
    capturer(fenetre, "creation.png");
    touche(Qt::Key_Return);
    forme = &ecran->Controle();
  });
  aller("Cmd_Recherche");
  touche(Qt::Key_Space);
  aller("Cmd_Ajouter");
  touche(Qt::Key_Return);
  EXPECT_EQ(clerc.Fois(), 1);
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
  capturer(*ecran, "liste.png");
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
  article("CONTRAT", "00001001",
          {{1, "01"}, {2, "001"}, {3, "001001"}, {4, "I"}, {5, "H"}, {6, "P"}, {7, "21000"}});
  article("CIVILAIDANT", "00001", {{2, "DURAND"}, {3, "Anne"}, {41, "001"}});
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
