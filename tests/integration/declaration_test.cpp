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

bool porte(const std::vector<Mot>& mots, const QString& texte, double x, double y) {
  return std::any_of(mots.begin(), mots.end(), [&](const Mot& mot) {
    return mot.texte.startsWith(texte) && std::abs(mot.x - x) < 0.06 && std::abs(mot.y - y) < 0.1;
  });
}

// Every text of the page begins on paper where the page says. Digits in boxes side by side read as
// one word: the first one tells.
void verifier(const documents::Page& page, const std::vector<Mot>& mots) {
  int textes = 0;
  documents::Texte avant;
  for (const auto& element : page.elements) {
    const auto* const t = std::get_if<documents::Texte>(&element);
    if (t == nullptr) continue;
    const bool suite = t->y == avant.y && t->x - avant.x < 0.5;
    avant = *t;
    if (suite) continue;
    const auto debut = t->texte.find_first_not_of(' ');
    const double chasse = documents::ChasseFixe * t->police.points / documents::PointsParCentimetre;
    const QString premier = QString::fromStdString(t->texte).simplified().section(' ', 0, 0);
    EXPECT_TRUE(porte(mots, premier, t->x + static_cast<double>(debut) * chasse, t->y))
        << t->texte << " at " << t->x << " " << t->y;
    ++textes;
  }
  EXPECT_GT(textes, 20);
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

  const auto pages = documents::pagesDeclaration(d, false);
  verifier(pages[0], mots(pdf, 1));
  const auto formulaire = mots(pdf, 2);
  verifier(pages[1], formulaire);
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
