// Paper: what is printed through the desk's printer is a PDF file in the user's documents.

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <csignal>

#include "control/ctr_contrat.h"
#include "data/texte.h"
#include "fenetre/impression_liste.h"
#include "integration/hote_essai.h"
#include "screen/headless/hote.h"

namespace {

using Impression = essai::Hote;

QByteArray contenu(const QString& chemin) {
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
    const QByteArray pdf = contenu(documents.filePath(fichiers[i]));
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

// 57 contracts are one more than a page holds.
TEST(ImpressionListe, PrintsTheRowsAsTheyStandUnderTheirCaptions) {
  screen::headless::Hote poste(21511);
  control::Ctr_Contrat liste(poste.platform);
  liste.Etq_CodeAidant.SetLibelle("00036");
  liste.Etq_NomPrenomAidant.SetLibelle("DURAND Gwenaëlle");
  for (int i = 0; i < 57; ++i) {
    liste.Lst_DatDebContrat.AddItem("07/10/2019");
    liste.Lst_DatFinContrat.AddItem(i == 0 ? "" : "31/12/2019");
    liste.Lst_Type.AddItem("I");
    liste.Lst_EmplEtabContrat.AddItem("Présence à Domicile du Bocage et des Marches");
    liste.Lst_QualifContrat.AddItem("Branche");
  }
  hote::imprimerListe(liste, poste.platform);
  ASSERT_EQ(poste.imprimante.Documents().size(), 1U);
  const auto& pages = poste.imprimante.Documents().front().pages;
  ASSERT_EQ(pages.size(), 2U);
  const struct {
    std::size_t page, ligne;
    const char* texte;
  } cas[] = {
      {0, 0, "Contrats de 00036 DURAND Gwenaëlle"},
      {0, 1, "Début      Fin        Type Employeur                     Convention Collective"},
      {0, 2, "22/11/2026, page 1 sur 2"},
      {0, 3, "07/10/2019            I    Présence à Domicile du Bocage Branche"},
      {0, 4, "07/10/2019 31/12/2019 I    Présence à Domicile du Bocage Branche"},
      {1, 2, "22/11/2026, page 2 sur 2"},
  };
  for (const auto& c : cas) {
    EXPECT_EQ(data::sansBlancsADroite(pages[c.page].at(c.ligne).texte), c.texte);
  }
  EXPECT_EQ(pages[0].size(), 3U + 56U);
  EXPECT_EQ(pages[1].size(), 3U + 1U);
}

}  // namespace
