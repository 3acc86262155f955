// Paper: what is printed through the desk's printer is a PDF file in the user's documents.

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QProcess>
#include <csignal>

#include "control/ctr_contrat.h"
#include "fenetre/impression_liste.h"
#include "integration/hote_essai.h"
#include "screen/headless/hote.h"

namespace {

using Impression = essai::Hote;

QByteArray octets(const QString& chemin) {
  QFile fichier(chemin);
  EXPECT_TRUE(fichier.open(QIODevice::ReadOnly)) << chemin.toStdString();
  return fichier.readAll();
}

TEST_F(Impression, EachDocumentIsAWholePdfFileThatTheUserIsToldOf) {
  qputenv("HOME", dossier_.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", dossier_.path().toUtf8());
  essai::Lecteur lecteur;
  screen::Imprimante& papier = bureau_.Plateforme().imprimante;
  for (const int pages : {1, 3}) {
    for (int page = 1; page <= pages; ++page) {
      papier.Police("Courier New", 10, false);
      papier.Texte(567, 567, "Liste des contrats, page " + std::to_string(page));
      papier.FinPage();
    }
    papier.FinDocument();
    EXPECT_TRUE(lecteur.ADit(".pdf")) << pages;
  }
  const QDir documents(dossier_.filePath("Documents"));
  const QStringList fichiers = documents.entryList({"*.pdf"}, QDir::Files, QDir::Name);
  ASSERT_EQ(fichiers.size(), 2);
  for (int i = 0; i < 2; ++i) {
    const QByteArray pdf = octets(documents.filePath(fichiers[i]));
    EXPECT_TRUE(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
    EXPECT_EQ(pdf.count("/Type /Page\n"), i == 0 ? 1 : 3);
    // A page without text has no font.
    EXPECT_TRUE(pdf.contains("/Type /Font\n"));
  }
}

// A disk that fills on the way: the user is told, and no half document is left.
TEST_F(Impression, ADocumentThatDoesNotFitIsRefusedWhole) {
  qputenv("HOME", dossier_.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", dossier_.path().toUtf8());
  screen::Imprimante& papier = bureau_.Plateforme().imprimante;
  papier.Texte(567, 567, "Liste des contrats");
  rlimit avant{};
  getrlimit(RLIMIT_FSIZE, &avant);
  const auto signal = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit petit{100, avant.rlim_max};
  setrlimit(RLIMIT_FSIZE, &petit);
  EXPECT_THROW(papier.FinDocument(), std::runtime_error);
  setrlimit(RLIMIT_FSIZE, &avant);
  std::signal(SIGXFSZ, signal);
  EXPECT_TRUE(QDir(dossier_.filePath("Documents")).isEmpty());
}

// A list that takes more than a page, whose texts a spreadsheet would misread, and an empty one.
class ListeImprimee : public ::testing::Test {
 protected:
  ListeImprimee() {
    liste.Etq_CodeAidant.SetLibelle("00036");
    liste.Etq_NomPrenomAidant.SetLibelle("DURAND Gwenaëlle / Anne");
  }
  void ajouter(const char* debut, const char* fin, const char* employeur) {
    liste.Lst_DatDebContrat.AddItem(debut);
    liste.Lst_DatFinContrat.AddItem(fin);
    liste.Lst_Type.AddItem("I");
    liste.Lst_EmplEtabContrat.AddItem(employeur);
    liste.Lst_QualifContrat.AddItem("Branche");
  }

  screen::headless::Hote poste{21511};
  control::Ctr_Contrat liste{poste.platform};
};

TEST_F(ListeImprimee, HasItsColumnsFiltersDateAndPages) {
  const QTemporaryDir dossier;
  qputenv("HOME", dossier.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", dossier.path().toUtf8());
  const auto texte = [&](int contrats) {
    while (liste.Lst_Type.ListCount() < contrats) {
      ajouter("07/10/2019", "31/12/2019", "Présence à Domicile du Bocage et des Marches");
    }
    const QString fichier = hote::imprimerListe(hote::tableauDe(liste), hote::nomFichier(liste));
    QProcess lecture;
    lecture.start("pdftotext", {"-layout", fichier, "-"});
    EXPECT_TRUE(lecture.waitForFinished()) << "pdftotext";
    const QString lu = QString::fromUtf8(lecture.readAllStandardOutput()).simplified();
    return QFileInfo(fichier).fileName() + ": " + lu;
  };
  const QString entete =
      "Contrats de 00036 DURAND Gwenaëlle / Anne Entité Juridique : toutes; Validité : Actifs; "
      "Type : Tous; Tri des contrats : Anc. décroissante ";
  EXPECT_EQ(texte(0), "Contrats 00036 DURAND Gwenaëlle - Anne 2026-11-22.pdf: " + entete +
                          "Aucun contrat. Imprimé le 22/11/2026 Page 1 sur 1");
  const QString long_ = texte(70);
  EXPECT_TRUE(long_.startsWith("Contrats 00036 DURAND Gwenaëlle - Anne 2026-11-22 (2).pdf: " +
                               entete + "70 contrats N° Début Fin Type Employeur"))
      << long_.left(300).toStdString();
  // The captions again on each page, the rows once.
  EXPECT_EQ(long_.count("Convention Collective"), 2);
  EXPECT_EQ(long_.count("07/10/2019 31/12/2019 I Présence à Domicile du Bocage et des Marches"),
            70);
  EXPECT_TRUE(long_.contains("Page 1 sur 2") && long_.endsWith("Page 2 sur 2"));
}

TEST_F(ListeImprimee, IsATableForASpreadsheet) {
  ajouter("07/10/2019", "", "Martin; dit \"Rose\"");
  ajouter("08/10/2019", "31/12/2019", "=1+1");
  ajouter("-", "+3", "@x\ty");
  EXPECT_EQ(hote::enCsv(hote::tableauDe(liste)).toStdString(),
            "\xEF\xBB\xBFN°;Début;Fin;Type;Employeur;Convention Collective\r\n"
            ";07/10/2019;;I;\"Martin; dit \"\"Rose\"\"\";Branche\r\n"
            ";08/10/2019;31/12/2019;I;'=1+1;Branche\r\n"
            ";'-;'+3;I;'@x\ty;Branche\r\n");
  const std::unique_ptr<QMimeData> copie(hote::pourPressePapiers(hote::tableauDe(liste, 2)));
  EXPECT_EQ(copie->text(),
            "N°\tDébut\tFin\tType\tEmployeur\tConvention Collective\r\n"
            "\t'-\t'+3\tI\t'@x y\tBranche\r\n");
  EXPECT_TRUE(copie->html().contains("<td>'@x\ty</td>"));
}

}  // namespace
