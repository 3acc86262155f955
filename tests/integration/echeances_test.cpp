// The page of what is due: one click opens the contract, what was saved there no longer is.

#include <QLineEdit>
#include <QTreeWidget>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "integration/hote_essai.h"
#include "liaison/textes_qt.h"

namespace {

namespace C = data::Contrat;

class Echeances : public essai::Hote {
 protected:
  void Ecrire(data::Storage& stockage, std::string_view fichier, const char* cle,
              const std::vector<std::pair<int, const char*>>& attributs) {
    data::CItem item;
    for (const auto& [attribut, texte] : attributs) item.Set(attribut, texte);
    stockage.Put(fichier, cle, item.Text());
  }
  std::string Lignes() {
    QCoreApplication::processEvents();
    const auto* const liste = fenetre_.findChild<QTreeWidget*>("listeEcheances");
    std::string lignes;
    for (int i = 0; i < liste->topLevelItemCount(); ++i) {
      const QTreeWidgetItem& ligne = *liste->topLevelItem(i);
      lignes += hote::versModele(ligne.text(0) + " " + ligne.text(1) + " " + ligne.text(2)) + "\n";
    }
    return lignes;
  }
};

TEST_F(Echeances, AClickOpensTheContract) {
  const QString fichier = Chemin("a.contrats");
  {
    const auto stockage = storage::SqliteStorage::Creer(hote::versModele(fichier), poste_);
    Ecrire(*stockage, data::fichier::COMPTEUR, "999", {{1, "1"}});
    Ecrire(*stockage, data::fichier::PERIODESPAIE, "1", {{1, "202611"}});
    Ecrire(*stockage, data::fichier::CIVILAIDANT, "00001",
           {{2, "Martin"}, {3, "Rose"}, {41, "001"}});
    Ecrire(*stockage, data::fichier::CONTRAT, "00001001",
           {{C::Convention, "01"},
            {C::Type, "D"},
            {C::DateDebut, "21505"},
            {C::PeriodeEssai, "10"},
            {C::DateFinPresumee, "21530"},
            {C::DateDeclaration, "21504"}});
  }
  // Who consults leaves without a question.
  fenetre_.ChangerDroits(1);
  fenetre_.show();
  ASSERT_TRUE(fenetre_.OuvrirFichier(fichier));
  EXPECT_EQ(Lignes(),
            "25/11/2026 Fin de période d'essai Martin Rose\n"
            "11/12/2026 Fin de CDD Martin Rose\n");
  essai::Lecteur lecteur;
  const essai::DansForme editeur("Frm_ElementsContrat", {[](QWidget& forme) {
                                   auto* const jours =
                                       forme.findChild<QLineEdit*>("Txt_PerEssaiContrat");
                                   EXPECT_EQ(jours->text(), "10");
                                   essai::cliquer(forme, "Cmd_Retour");
                                 }});
  auto& liste = *fenetre_.findChild<QTreeWidget*>("listeEcheances");
  QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                    liste.visualItemRect(liste.topLevelItem(1)).center());
  EXPECT_TRUE(QTest::qWaitFor([&] { return editeur.Faits() == 1 && !liste.isVisible(); }, 3000))
      << lecteur.dit.toStdString();
  EXPECT_NE(Titre().find("Martin Rose (00001)"), std::string::npos) << Titre();
  // Another station has entered the end meanwhile.
  {
    const auto stockage = storage::SqliteStorage::Ouvrir(hote::versModele(fichier), poste_);
    Ecrire(*stockage, data::fichier::CONTRAT, "00001001",
           {{C::Type, "D"},
            {C::DateDebut, "21505"},
            {C::DateFin, "21530"},
            {C::DateDeclaration, "21504"}});
  }
  fenetre_.FermerAidant();
  EXPECT_EQ(Lignes(), "");
}

}  // namespace
