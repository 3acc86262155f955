// The letters as documents: what a template becomes, and what is said of a template that cannot
// serve.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QTextBrowser>
#include <QXmlStreamReader>

#include "composants/controle_lettres.h"
#include "composants/suite.h"
#include "data/layouts/contrat.h"
#include "documents/essai_declaration.h"
#include "integration/hote_essai.h"
#include "lettres/archive_zip.h"
#include "lettres/lettre_odt.h"
#include "lettres/modele_odt.h"
#include "lettres/traitement_texte.h"
#include "liaison/ecriture.h"
#include "screen/platform.h"
#include "storage/memory.h"

namespace {

namespace C = data::Contrat;

// Of every kind of character that a document or a program could take for its own.
const std::string NomDifficile =
    "L'Écuyer & \"<Dubois>\"  de ]]> La Rochefoucauld–Montbel 💐 " + std::string(140, 'W');

documents::DossierLettre contrat() {
  const documents::DossierDeclaration d = essai::declaration();
  documents::DossierLettre l;
  l.cle = "00031002";
  l.contrat = d.contrat;
  l.contrat.Set(C::Convention, "01");
  l.association = d.association;
  l.etablissement = d.etablissement;
  l.aidant = d.aidant;
  l.aide = d.aide;
  l.reference = d.part;
  l.naturesVoie = d.naturesVoie;
  l.aujourdhui = 21511;
  return l;
}

std::string contenu(const QString& fichier, const char* partie = "content.xml") {
  QFile odt(fichier);
  EXPECT_TRUE(odt.open(QIODevice::ReadOnly)) << fichier.toStdString();
  hote::ArchiveZip archive(odt.readAll());
  return archive.Trouver(partie)->toStdString();
}

class Lettres : public ::testing::Test {
 protected:
  hote::LettreOdt ecrire(const documents::DossierLettre& d) {
    return hote::ecrireLettre(d, modeles, dossier.filePath("lettres"));
  }
  std::string refus(const documents::DossierLettre& d) {
    try {
      ecrire(d);
      return "";
    } catch (const screen::ErreurImpression& erreur) {
      return erreur.what();
    }
  }
  QStringList lettres() const { return QDir(dossier.filePath("lettres")).entryList(QDir::Files); }
  void poser(const char* modele, const QByteArray& octets) {
    QDir().mkpath(modeles.Dossier());
    ASSERT_TRUE(hote::ecrireFichier(modeles.Dossier() + "/" + modele, octets));
  }

  QTemporaryDir dossier{};
  hote::DossierModeles modeles{dossier.filePath("modèles & co")};
};

// Of a part of the document: what a reader sees, and what the elements between say.
std::string lu(const QString& fichier) {
  QString texte;
  QXmlStreamReader xml(QByteArray::fromStdString(contenu(fichier)));
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isCharacters()) texte += xml.text();
    if (xml.isStartElement() && xml.qualifiedName() == u"text:s") texte += ' ';
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return texte.toStdString();
}

TEST_F(Lettres, TextsComeOutAsTyped) {
  documents::DossierLettre d = contrat();
  d.aidant.Set(2, NomDifficile);
  const hote::LettreOdt lettre = ecrire(d);
  const std::string texte = lu(lettre.fichier);
  EXPECT_NE(texte.find("Madame Anne " + NomDifficile + ", 3 ter avenue du Parc"), std::string::npos)
      << texte;
  EXPECT_NE(contenu(lettre.fichier, "styles.xml").find(">Aide du Val — page "), std::string::npos);
  EXPECT_EQ(contenu(lettre.fichier).find("user-field"), std::string::npos);
  EXPECT_EQ(QFileInfo(lettre.fichier).fileName(), "Contrat 00031002 du 2026-11-22.odt");
}

TEST_F(Lettres, EveryTemplateNamesKnownFields) {
  for (const documents::ModeleLettre& modele : documents::modelesLettres()) {
    const auto champs = hote::ModeleOdt(hote::modeleInitial(modele.fichier)).Champs();
    EXPECT_GT(champs.size(), 10U) << modele.fichier;
    for (const std::string& champ : champs) {
      EXPECT_NE(documents::champLettre(champ), nullptr) << modele.fichier << ": " << champ;
    }
  }
}

// What the clerk has changed serves; a name that no letter has is told, and leaves no mark.
TEST_F(Lettres, AnUnknownFieldIsReportedByName) {
  hote::ArchiveZip modele(hote::modeleInitial("cdi"));
  QByteArray& xml = *modele.Trouver("content.xml");
  xml.replace("</office:text>",
              "<text:p>Prime : <text:user-field-get text:name=\"prime\">12 &amp; "
              "</text:user-field-get>!</text:p></office:text>");
  poser("cdi.odt", modele.Octets());
  documents::DossierLettre d = contrat();
  d.aidant.Set(27, "");
  const hote::LettreOdt lettre = ecrire(d);
  EXPECT_EQ(lettre.inconnus, QStringList{"prime"});
  EXPECT_NE(lu(lettre.fichier).find("Prime : !"), std::string::npos);
  EXPECT_TRUE(lettre.Reserves().contains("cdi.odt » nomme des champs qui n'existent pas : prime."));
  EXPECT_TRUE(lettre.Reserves().contains("salarie_naissance_lieu (le lieu de naissance)"));
}

// The template is named, and nothing half-written is left.
TEST_F(Lettres, ATemplateThatCannotServeMakesNoLetter) {
  hote::ArchiveZip tableur(hote::modeleInitial("cdi"));
  *tableur.Trouver("mimetype") = "application/vnd.oasis.opendocument.spreadsheet";
  hote::ArchiveZip coupe(hote::modeleInitial("cdi"));
  coupe.Trouver("content.xml")->chop(40);
  const QByteArray entier = hote::modeleInitial("cdi");
  const struct {
    QByteArray octets;
    const char* raison;
  } cas[] = {{"", "ce n'est pas un texte OpenDocument"},
             {"un texte", "ce n'est pas un document"},
             {entier.left(entier.size() / 2), "ce n'est pas un document"},
             {tableur.Octets(), "ce n'est pas un texte OpenDocument"},
             {coupe.Octets(), "ce n'est pas un texte OpenDocument"}};
  for (const auto& c : cas) {
    poser("cdi.odt", c.octets);
    const std::string dit = refus(contrat());
    EXPECT_NE(dit.find("modèles & co/cdi.odt"), std::string::npos) << dit;
    EXPECT_NE(dit.find(c.raison), std::string::npos) << dit;
  }
  EXPECT_EQ(lettres(), QStringList());
}

TEST_F(Lettres, ALetterIsNeverWrittenOverNorHalfWritten) {
  const hote::LettreOdt premiere = ecrire(contrat());
  const std::string avant = contenu(premiere.fichier);
  documents::DossierLettre d = contrat();
  d.aidant.Set(2, "AUTRE");
  EXPECT_TRUE(ecrire(d).fichier.endsWith("Contrat 00031002 du 2026-11-22 (2).odt"));
  EXPECT_EQ(contenu(premiere.fichier), avant);
  // A key of another making reaches no other folder.
  d.cle = "../../x'; $(Y)";
  EXPECT_TRUE(ecrire(d).fichier.endsWith("/lettres/Contrat Y du 2026-11-22.odt"));
  QDir(dossier.filePath("lettres")).removeRecursively();
  ASSERT_TRUE(hote::ecrireFichier(dossier.filePath("lettres"), "in the way"));
  EXPECT_NE(refus(contrat()).find("lettres/Contrat 00031002 du 2026-11-22.odt » ne peut pas"),
            std::string::npos);
}

// The control as the editor drives it: the contract by its key, the amendment at the head of the
// document's name.
TEST_F(Lettres, TheControlShowsTheLetterOfTheContractOrOfItsAmendment) {
  qputenv("HOME", dossier.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", dossier.path().toUtf8());
  const data::PosteFixe poste{21511};
  hote::Bureau bureau(
      &poste, std::make_unique<QSettings>(dossier.filePath("reglages.ini"), QSettings::IniFormat));
  data::Db db(std::make_shared<storage::MemoryStorage>(poste));
  hote::Suite suite(bureau);
  suite.Objets().Db = &db;
  data::CItem article = db.OpenFile("CONTRAT").NewItem("00031002");
  article.SetText(contrat().contrat.Text());
  for (const int v : {1, 2, 3}) article.Set(C::Avenant, v, v == 1 ? "0" : v == 2 ? "01" : "02");
  article.DBWrite();
  screen::ControleHeberge& controle = *bureau.Plateforme().controles.Trouver("Ctr_Edit");
  controle.Regler("W_CodeContrat", "00031002");
  const struct {
    const char* document;
    const char* titre;
    const char* fichier;
  } cas[] = {{"01", "Contrat de travail à durée indéterminée", "Contrat 00031002 du"},
             {"02001", "Avenant n° 02 au contrat", "Contrat 00031002 avenant 02 du"}};
  for (const auto& c : cas) {
    std::string lettre;
    const essai::DansForme clerc(
        "Lettres", {[&](QWidget& fenetre) {
          lettre = fenetre.findChild<QTextBrowser*>()->toPlainText().toStdString();
          EXPECT_NE(fenetre.findChild<QLabel*>("reserves"), nullptr);
          essai::cliquer(fenetre, "fermer");
        }});
    controle.Regler("W_Document", c.document);
    controle.Appeler("Imprimer");
    EXPECT_TRUE(lettre.starts_with(c.titre)) << lettre;
    EXPECT_EQ(QDir(hote::dossierLettres()).entryList({QString(c.fichier) + "*"}).size(), 1);
  }
  controle.Regler("W_Document", "07001");
  EXPECT_THROW(controle.Appeler("Imprimer"), screen::ErreurImpression);
}

// A word processor of the test's own, first on the path: it notes its arguments and renders what
// the document holds, or nothing.
TEST_F(Lettres, APdfIsMadeByTheWordProcessorOrItsFailureIsTold) {
  const QByteArray chemin = qgetenv("PATH");
  const QString notes = dossier.filePath("arguments");
  const auto installer = [&](const QByteArray& suite) {
    const QString programme = dossier.filePath("bin/soffice");
    QDir().mkpath(dossier.filePath("bin"));
    ASSERT_TRUE(hote::ecrireFichier(
        programme, "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"" + notes.toUtf8() + "\"\n" + suite));
    QFile(programme).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  };
  qputenv("XDG_CACHE_HOME", dossier.path().toUtf8());
  qputenv("PATH", dossier.filePath("bin").toUtf8() + ":" + chemin);
  const QSettings reglages(dossier.filePath("reglages.ini"), QSettings::IniFormat);
  const hote::TraitementTexte traitement(reglages);
  const QString lettre = dossier.filePath("lettre $(x) ; 'y'.odt");
  ASSERT_TRUE(hote::ecrireFichier(lettre, "texte"));
  const QString pdf = dossier.filePath("lettre $(x) ; 'y'.pdf");

  installer("exit 1\n");
  EXPECT_EQ(hote::TraitementTexte::Trouver(), dossier.filePath("bin/soffice"));
  try {
    traitement.EnPdf(lettre, nullptr);
    ADD_FAILURE() << "no PDF file was made, and nobody said so";
  } catch (const hote::ConversionManquee& erreur) {
    EXPECT_NE(std::string(erreur.what()).find(lettre.toStdString()), std::string::npos);
  }
  EXPECT_FALSE(QFile::exists(pdf));

  installer(
      "while [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && sortie=$2; shift; done\n"
      "cp \"$1\" \"$sortie/$(basename \"$1\" .odt).pdf\"\n");
  EXPECT_EQ(traitement.EnPdf(lettre, nullptr), pdf);
  QFile arguments(notes);
  ASSERT_TRUE(arguments.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(arguments.readAll()).trimmed().section('\n', -1), lettre);
  QFile fait(pdf);
  ASSERT_TRUE(fait.open(QIODevice::ReadOnly));
  EXPECT_EQ(fait.readAll(), "texte");
  qputenv("PATH", chemin);
}

// Without any program: every character as typed, and the foot on the page.
TEST_F(Lettres, APdfIsMadeWithoutAWordProcessor) {
  documents::DossierLettre d = contrat();
  const std::string nom =
      "L'Écuyer & \"<Dubois>\" 100%1 de La Rochefoucauld Œlleville" + std::string(160, 'W');
  d.aidant.Set(2, nom);
  const QString pdf = hote::TraitementTexte::EnPdfSimple(ecrire(d).fichier);
  QProcess lecture;
  lecture.start("pdftotext", {pdf, "-"});
  ASSERT_TRUE(lecture.waitForFinished()) << "pdftotext";
  QString texte = QString::fromUtf8(lecture.readAllStandardOutput()).simplified();
  EXPECT_TRUE(texte.contains("Aide du Val — page 1 sur ")) << texte.toStdString();
  // Wherever the lines were broken.
  const QString attendu = QString::fromStdString("Madame Anne " + nom + ", 3 ter avenue du Parc");
  EXPECT_TRUE(texte.remove(' ').contains(QString(attendu).remove(' '))) << texte.toStdString();

  QFile::remove(pdf);
  QDir().mkpath(pdf + "/taken");
  const QString lettre = QString(pdf).replace(".pdf", ".odt");
  EXPECT_THROW(hote::TraitementTexte::EnPdfSimple(lettre), hote::ConversionManquee);
  ASSERT_TRUE(hote::ecrireFichier(lettre, "no letter"));
  EXPECT_THROW(hote::TraitementTexte::EnPdfSimple(lettre), hote::ConversionManquee);
}

// The clerk's page names every field with its meaning, and no other.
TEST(Modeles, TheClerksPageListsTheFields) {
  QFile page(CONTRATS_SOURCE_DIR "/docs/modeles.md");
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  const QString texte = QString::fromUtf8(page.readAll()).section("## Les champs", 1);
  qsizetype lignes = 0;
  for (const documents::ThemeLettre& theme : documents::champsLettres()) {
    EXPECT_TRUE(texte.contains(QString("### ") + theme.titre)) << theme.titre;
    for (const documents::ChampLettre& champ : theme.champs) {
      const QString vide = champ.facultatif ? " *" : "";
      const QString ligne = QString("| `%1`%2 | %3 |").arg(champ.nom, vide, champ.sens);
      EXPECT_TRUE(texte.contains(ligne)) << ligne.toStdString();
      ++lignes;
    }
  }
  EXPECT_EQ(texte.count("\n| `"), lignes);
}

}  // namespace
