#include "lettres/modeles.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <stdexcept>

#include "documents/lettre.h"
#include "lettres/archive_zip.h"
#include "lettres/modele_odt.h"
#include "liaison/ecriture.h"
#include "liaison/textes_qt.h"
#include "screen/platform.h"

// The lists stand in a static library: its resources are linked by name.
static void chargerModeles() {
  Q_INIT_RESOURCE(modeles);
}

namespace hote {

namespace {

constexpr const char* Debut =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document-content xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
    xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
    xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
    xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
    xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0" office:version="1.2">
<office:automatic-styles>
<style:style style:name="Signatures" style:family="table"><style:table-properties style:width="16.4cm"
    fo:margin-top="0.5cm" table:align="left"/></style:style>
<style:style style:name="Signatures.A" style:family="table-column"><style:table-column-properties
    style:column-width="8.2cm"/></style:style>
<style:style style:name="Signatures.1" style:family="table-row"><style:table-row-properties
    style:min-row-height="2.2cm" fo:keep-together="always"/></style:style>
</office:automatic-styles>
<office:body><office:text>
)";
constexpr const char* Fin = "</office:text></office:body></office:document-content>\n";

QByteArray ressource(const QString& nom) {
  chargerModeles();
  QFile fichier(":/modeles/" + nom);
  if (!fichier.open(QIODevice::ReadOnly)) throw std::logic_error("no such list of a letter");
  return fichier.readAll();
}

// Declared, every field is offered by the word processor, used in this template or not.
QByteArray declarations() {
  QByteArray xml = "<text:user-field-decls>";
  for (const documents::ThemeLettre& theme : documents::champsLettres()) {
    for (const documents::ChampLettre& champ : theme.champs) {
      xml +=
          QByteArray("<text:user-field-decl office:value-type=\"string\" office:string-value=\"[") +
          champ.nom + "]\" text:name=\"" + champ.nom + "\"/>";
    }
  }
  return xml + "</text:user-field-decls>\n";
}

QByteArray texte(const QString& texte) {
  static const QRegularExpression Champ("\\{([a-z_]+)\\}");
  QString xml = QString::fromUtf8(texteOdf(versModele(texte.trimmed())));
  xml.replace(Champ, "<text:user-field-get text:name=\"\\1\">[\\1]</text:user-field-get>");
  return xml.toUtf8();
}

QByteArray paragraphe(const char* style, const QString& contenu) {
  return QByteArray("<text:p text:style-name=\"") + style + "\">" + texte(contenu) + "</text:p>\n";
}

QByteArray signatures(const QString& contenu) {
  QByteArray xml =
      "<table:table table:style-name=\"Signatures\"><table:table-column "
      "table:style-name=\"Signatures.A\" table:number-columns-repeated=\"2\"/>"
      "<table:table-row table:style-name=\"Signatures.1\">";
  for (const QString& colonne : contenu.split('|')) {
    xml += "<table:table-cell office:value-type=\"string\">" + paragraphe("Standard", colonne) +
           "</table:table-cell>";
  }
  return xml + "</table:table-row></table:table>\n";
}

QByteArray ligne(const QString& genre, const QString& contenu) {
  if (genre == "titre") return paragraphe("Titre", contenu);
  if (genre == "p") return paragraphe("Paragraphe", contenu);
  if (genre == "partie") return paragraphe("Partie", contenu);
  if (genre == "signatures") return signatures(contenu);
  if (genre == "article") {
    return "<text:h text:style-name=\"Article\" text:outline-level=\"1\">" + texte(contenu) +
           "</text:h>\n";
  }
  throw std::logic_error("no such word in a letter's list: " + versModele(genre));
}

QByteArray contenu(const QString& nom) {
  QByteArray xml = Debut + declarations();
  for (const QString& lue : QString::fromUtf8(ressource(nom + ".txt")).split('\n')) {
    if (lue.isEmpty() || lue.startsWith('#')) continue;
    xml += ligne(lue.section(' ', 0, 0), lue.section(' ', 1));
  }
  return xml + Fin;
}

}  // namespace

QByteArray modeleInitial(const QString& nom) {
  ArchiveZip archive;
  archive.Ajouter("mimetype", GenreOdt);
  archive.Ajouter("content.xml", contenu(nom));
  archive.Ajouter("styles.xml", ressource("styles.xml"));
  archive.Ajouter("META-INF/manifest.xml", ressource("manifest.xml"));
  return archive.Octets();
}

QString DossierModeles::Fichier(const QString& nom) const {
  const QString fichier = QDir(dossier_).filePath(nom + ".odt");
  if (QFile::exists(fichier)) return fichier;
  QDir().mkpath(dossier_);
  if (!ecrireFichier(fichier, modeleInitial(nom))) {
    throw screen::ErreurImpression(
        versModele("Le modèle de lettre « " + fichier +
                   " » ne peut pas être créé. Vérifiez la place sur le disque et vos droits sur ce "
                   "dossier."));
  }
  return fichier;
}

void DossierModeles::Completer() const {
  for (const documents::ModeleLettre& modele : documents::modelesLettres()) {
    Fichier(modele.fichier);
  }
}

}  // namespace hote
