// The hiring declarations on paper: what stands in the PDF file, and where.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QXmlStreamReader>
#include <cmath>

#include "documents/essai_declaration.h"
#include "integration/hote_essai.h"
#include "screen/platform.h"

namespace {

struct Mot {
  QString texte;
  double x = 0;  // centimetres, left end
  double y = 0;  // top of the line
  double xFin = 0;
};

using Declaration = essai::Hote;

// The words of one page of a PDF file.
std::vector<Mot> mots(const QString& pdf, int page) {
  QProcess lecture;
  const QString numero = QString::number(page);
  lecture.start("pdftotext", {"-bbox", "-f", numero, "-l", numero, pdf, "-"});
  EXPECT_TRUE(lecture.waitForFinished()) << "pdftotext";
  QXmlStreamReader xml(lecture.readAllStandardOutput());
  std::vector<Mot> lus;
  constexpr double Point = 2.54 / 72;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"word") continue;
    const auto place = xml.attributes();
    const auto cm = [&](const char* nom) {
      return place.value(QLatin1String(nom)).toDouble() * Point;
    };
    const double x = cm("xMin"), y = cm("yMin"), xFin = cm("xMax");
    lus.push_back({xml.readElementText(), x, y, xFin});
  }
  return lus;
}

bool porte(const std::vector<Mot>& mots, const char* texte, double x, double y) {
  return std::any_of(mots.begin(), mots.end(), [&](const Mot& mot) {
    return mot.texte.startsWith(texte) && std::abs(mot.x - x) < 0.06 && std::abs(mot.y - y) < 0.1;
  });
}

TEST_F(Declaration, TheTextsStandAtTheirPlaces) {
  qputenv("HOME", dossier_.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", dossier_.path().toUtf8());
  documents::DossierDeclaration d = essai::declaration();
  d.dossierImages = QCoreApplication::applicationDirPath().toStdString();
  // Longer than its place, which ends at 7.3: drawn narrower, as typed.
  const std::string nom = "L'Écuyer & \"<Dubois>\" de La Rochefoucauld-Montbel";
  d.aidant.Set(2, nom);
  essai::Lecteur lecteur;
  documents::imprimer(documents::pagesDeclaration(d, false), bureau_.Plateforme().imprimante);
  EXPECT_TRUE(lecteur.ADit(".pdf"));
  const QDir documents(dossier_.filePath("Documents"));
  const QStringList fichiers = documents.entryList({"*.pdf"}, QDir::Files);
  ASSERT_EQ(fichiers.size(), 1);
  const QString pdf = documents.filePath(fichiers[0]);

  const auto matricielle = mots(pdf, 1);
  for (const auto& [texte, x, y] : {std::tuple{"Siège", 7.1, 4.5},
                                    {"9", 4.25, 5.25},
                                    {"LEROY", 4.4 + 12 * 0.2328, 10.1},
                                    {"001", 5.6, 17.7}}) {
    EXPECT_TRUE(porte(matricielle, texte, x, y)) << texte;
  }
  const auto formulaire = mots(pdf, 2);
  for (const auto& [texte, x, y] : {std::tuple{"URSSAF", 4.3, 1.4},
                                    {"MARTIN", 5.6, 6.7},
                                    {"Rose", 15.2, 6.7},
                                    {"L'Écuyer", 2.5, 9.2},
                                    {"LEROY", 10.0, 9.2},
                                    {"Garde-malade", 2.0, 11.3},
                                    {"X", 13.0, 11.6},
                                    {"Fougères", 3.0, 27.2}}) {
    EXPECT_TRUE(porte(formulaire, texte, x, y)) << texte;
  }
  QString lu;
  for (const Mot& mot : formulaire) {
    if (std::abs(mot.y - 9.2) > 0.1 || mot.x < 2.4 || mot.x > 7.3) continue;
    lu += (lu.isEmpty() ? "" : " ") + mot.texte;
    EXPECT_LT(mot.xFin, 7.35) << mot.texte.toStdString();
  }
  EXPECT_EQ(lu.toStdString(), nom);
}

// A form that is not there leaves the paper without background.
TEST_F(Declaration, AMissingPictureLeavesTheTexts) {
  qputenv("HOME", dossier_.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", dossier_.path().toUtf8());
  documents::DossierDeclaration d = essai::declaration();
  d.dossierImages = dossier_.path().toStdString();
  d.signature = dossier_.filePath("absente.png").toStdString();
  essai::Lecteur lecteur;
  documents::imprimer(documents::pagesDeclaration(d, true), bureau_.Plateforme().imprimante);
  const QDir documents(dossier_.filePath("Documents"));
  ASSERT_EQ(documents.entryList({"*.pdf"}, QDir::Files).size(), 1);
  const QString pdf = documents.filePath(documents.entryList({"*.pdf"}, QDir::Files)[0]);
  EXPECT_TRUE(porte(mots(pdf, 1), "MARTIN", 5.6, 6.7));
  QFile fichier(pdf);
  ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
  EXPECT_FALSE(fichier.readAll().contains("/Subtype /Image"));
}

}  // namespace
