// The controls of the suite that this host brings along.

#include <QLineEdit>
#include <QTreeWidget>

#include "composants/controle_aide.h"
#include "composants/fiche_aide.h"
#include "composants/suite.h"
#include "composants/table_codes.h"
#include "data/layouts/voisins.h"
#include "dialogs/frm_civil_aide.h"
#include "dialogs/frm_detail_conges_del_prev.h"
#include "dialogs/frm_periode_conges.h"
#include "dialogs/frm_tps_indem.h"
#include "dialogs/frm_ventilation.h"
#include "dialogs/frm_vespamoi.h"
#include "essai.h"
#include "storage/memory.h"
#include "widget/formes.h"

namespace {

class Composants : public ::testing::Test {
 protected:
  Composants() {
    hote::enregistrerFormes(bureau);
    suite.Objets().Db = &db;
    suite.Objets().W_Droits = &droits;
    ecrire("TABLES", "QUALIF", {{2, {"Aide à domicile", "Agent"}}, {4, {"10", "40"}}});
    ecrire("TABLES", "MOTIFEMBAUCHE", {{1, {"01", "02"}}, {2, {"Remplacement", "Surcroît"}}});
    ecrire("CIVILAIDE", "00007", {{2, {"DUPONT"}}, {10, {"35300"}}, {20, {"21511"}}});
    ecrire("CONTRAT", "00001001", {{16, {"Agent", "Aide à domicile"}}, {113, {"02"}}});
  }
  void ecrire(const char* fichier, const char* cle,
              const std::map<int, std::vector<const char*>>& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, valeurs] : attributs) {
      for (int v = 0; const char* const valeur : valeurs) item.Set(a, ++v, valeur);
    }
    item.DBWrite();
  }
  std::string lu(const char* fichier, const char* cle, int attribut) {
    std::string texte = db.OpenFile(fichier).Read(cle)(attribut);
    std::replace(texte.begin(), texte.end(), data::SepValeur, '|');
    return texte;
  }

  data::PosteFixe poste{21511};
  QTemporaryDir dossier{};
  hote::Bureau bureau{
      &poste, std::make_unique<QSettings>(dossier.filePath("reglages.ini"), QSettings::IniFormat)};
  data::Db db{std::make_shared<storage::MemoryStorage>(poste)};
  session::DroitsUniformes droits{2};
  hote::Suite suite{bureau};
};

TEST_F(Composants, ATableKeepsWhatContractsUse) {
  hote::TableCodes qualifs(db, *hote::genreTable("QUALIF"));
  EXPECT_EQ(qualifs.Ajouter({"", "Infirmière", "10"}), "");
  EXPECT_EQ(qualifs.Ajouter({"", "aide a domicile", ""}),
            "Le libellé « Aide à domicile » existe déjà.");
  EXPECT_EQ(qualifs.Ajouter({"", "", ""}), "Le libellé est obligatoire.");
  // A contract holds the label itself: it can neither go nor change.
  EXPECT_EQ(qualifs.Retirer(0),
            "Un contrat emploie « Aide à domicile » : cette ligne ne peut pas être retirée.");
  EXPECT_NE(qualifs.Changer(0, {"", "Aide", "10"}), "");
  EXPECT_EQ(qualifs.Changer(0, {"", "Aide à domicile", "40"}), "");
  EXPECT_EQ(qualifs.Changer(2, {"", "Infirmier", "40"}), "");
  EXPECT_EQ(lu("TABLES", "QUALIF", 2), "Aide à domicile|Agent");
  EXPECT_EQ(qualifs.Enregistrer(), "");
  EXPECT_EQ(lu("TABLES", "QUALIF", 2), "Aide à domicile|Agent|Infirmier");
  EXPECT_EQ(lu("TABLES", "QUALIF", 4), "40|40|40");

  hote::TableCodes motifs(db, *hote::genreTable("MOTIFEMBAUCHE"));
  EXPECT_EQ(motifs.Ajouter({"01", "Saison", ""}), "Le code « 01 » existe déjà.");
  EXPECT_NE(motifs.Ajouter({"é", "Saison", ""}), "");
  // Contracts hold the code: its label may change, the line stays.
  EXPECT_EQ(motifs.Changer(1, {"02", "Accroissement", ""}), "");
  EXPECT_NE(motifs.Retirer(1), "");
  EXPECT_EQ(motifs.Retirer(0), "");
  ecrire("CONTRAT", "00002001", {{113, {"01"}}});
  EXPECT_TRUE(motifs.Enregistrer().starts_with("Un contrat emploie désormais « 01 »"));
  ecrire("TABLES", "MOTIFEMBAUCHE", {{1, {"09"}}, {2, {"Autre poste"}}});
  EXPECT_TRUE(motifs.Enregistrer().starts_with("Un autre poste a modifié cette table"));
  EXPECT_EQ(lu("TABLES", "MOTIFEMBAUCHE", 2), "Autre poste");
}

TEST_F(Composants, ACivilStateIsCheckedBeforeItIsStored) {
  hote::FicheAide fiche(db, "00007", 2026);
  const struct {
    int attribut;
    const char* texte;
    const char* refus;
    const char* enregistre;
  } cas[] = {{2, " L'HÔTE & <Fils> ", "", "L'HÔTE & <Fils>"},
             {2, " ", "« Nom » est obligatoire.", nullptr},
             {10, "3530", "Le code postal a cinq chiffres.", nullptr},
             {20, "31/02/1950", "« 31/02/1950 » n'est pas une date.", nullptr},
             {20, "01/05/38", "« 01/05/2038 » est à venir : donnez les quatre chiffres de l'année.",
              nullptr},
             {20, "1/1/1968", "", "1"},
             {5, "1234567", "« N° » a plus de 6 caractères.", nullptr}};
  for (const auto& c : cas) {
    const auto& places = hote::FicheAide::Places();
    const auto place = std::find_if(places.begin(), places.end(),
                                    [&](const auto& p) { return p.attribut == c.attribut; });
    EXPECT_EQ(fiche.Ecrire(*place, c.texte), c.refus);
  }
  EXPECT_EQ(fiche.Enregistrer(), "");
  for (const auto& c : cas) {
    if (c.enregistre == nullptr) continue;
    EXPECT_EQ(lu("CIVILAIDE", "00007", c.attribut), c.enregistre);
  }
  EXPECT_EQ(lu("CIVILAIDE", "00007", 10), "35300");
}

// What was typed is asked about; Annuler keeps the window.
TEST_F(Composants, AChangedCivilStateIsNotLeftUnasked) {
  essai::Frm_Essai appelante(bureau.Plateforme());
  dialogs::Frm_CivilAide forme(bureau.Plateforme(), "00007");
  const auto cliquer = [](const QWidget& fenetre, const char* texte) {
    for (QAbstractButton* const bouton : fenetre.findChildren<QAbstractButton*>()) {
      if (bouton->text() == texte) return bouton->click();
    }
    ADD_FAILURE() << texte;
  };
  const essai::Apres clerc([&](QWidget& fenetre) {
    if (auto* const boite = qobject_cast<QMessageBox*>(&fenetre)) {
      EXPECT_TRUE(boite->text().startsWith("Voulez-vous enregistrer"));
      return cliquer(*boite, "Annuler");
    }
    auto* const nom = fenetre.findChild<QLineEdit*>("place_2");
    ASSERT_NE(nom, nullptr);
    QTest::keyClick(nom, Qt::Key_End);
    QTest::keyClicks(nom, "-X");
    QTest::keyClick(nom, Qt::Key_Tab);
    EXPECT_TRUE(fenetre.findChild<QLineEdit*>("place_3")->hasFocus());
    fenetre.close();
    EXPECT_TRUE(forme.Visible());
    EXPECT_EQ(lu("CIVILAIDE", "00007", 2), "DUPONT");
    cliquer(fenetre, "&Enregistrer");
    EXPECT_FALSE(forme.Visible());
  });
  EXPECT_TRUE(forme.Ouvrir(appelante));
  EXPECT_EQ(clerc.Fois(), 2);
  EXPECT_EQ(lu("CIVILAIDE", "00007", 2), "DUPONT-X");
}

TEST_F(Composants, AnAbsentControlShowsWhatItWasGivenAndCloses) {
  ecrire("PERIODESPAIE", "1", {{1, {"202611"}}});
  session::Session session(poste);
  session.Db = &db;
  session.OuvrirFichiers();
  const session::Dossier contrat(session);
  screen::Platform& p = bureau.Plateforme();
  dialogs::Frm_Ventilation decompte(p, {"00001", "A & B", "001", "Aide du Val", "00001001"});
  dialogs::Frm_VESPAMOI telegestion(p, {});
  dialogs::Frm_DetailCongesDelPrev detail(p, {});
  dialogs::Frm_PeriodeConges periode(p);
  dialogs::Frm_TpsIndem indemnisation(p, contrat, "");
  const struct {
    dialogs::FormeHebergee& forme;
    int proprietes;
  } cas[] = {{decompte, 9}, {telegestion, 7}, {detail, 7}, {periode, 2}, {indemnisation, 7}};
  essai::Frm_Essai appelante(p);
  for (const auto& c : cas) {
    const essai::Apres clerc([&](QWidget& fenetre) {
      EXPECT_EQ(fenetre.objectName().toStdString(), c.forme.Nom());
      const auto* const recues = fenetre.findChild<QTreeWidget*>();
      ASSERT_NE(recues, nullptr);
      EXPECT_EQ(recues->topLevelItemCount(), c.proprietes);
      QTest::keyClick(&fenetre, Qt::Key_Escape);
    });
    EXPECT_TRUE(c.forme.Ouvrir(appelante));
    EXPECT_EQ(clerc.Fois(), 1) << c.forme.Nom();
  }
}

}  // namespace
