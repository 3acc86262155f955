#include "lettres/modele_odt.h"

#include <QXmlStreamReader>
#include <algorithm>

#include "data/texte.h"

namespace hote {

namespace {

constexpr const char* PasUnTexte = "ce n'est pas un texte OpenDocument (.odt)";
constexpr const char* Parties[] = {"content.xml", "styles.xml"};

using Valeur = ModeleOdt::Valeur;

QByteArray attributOdf(const QString& valeur) {
  QString xml = valeur.toHtmlEscaped();
  return xml.replace('\n', "&#10;").replace('\t', "&#9;").toUtf8();
}

// Copies a part of the document, its fields replaced. Without values it only collects the names.
class Copie {
 public:
  Copie(const QByteArray& xml, const Valeur& valeur) : lecteur_(xml), valeur_(valeur) {
    lecteur_.setNamespaceProcessing(false);
  }

  QByteArray Faire() {
    while (!lecteur_.atEnd()) Jeton(lecteur_.readNext());
    if (lecteur_.hasError()) throw ArchiveIllisible(PasUnTexte);
    return sortie_;
  }

 private:
  void Jeton(QXmlStreamReader::TokenType jeton) {
    switch (jeton) {
      case QXmlStreamReader::StartDocument:
        sortie_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        break;
      case QXmlStreamReader::StartElement:
        Element();
        break;
      case QXmlStreamReader::EndElement:
        sortie_ += "</" + lecteur_.qualifiedName().toUtf8() + '>';
        break;
      case QXmlStreamReader::Characters:
        sortie_ += lecteur_.text().toString().toHtmlEscaped().toUtf8();
        break;
      // A document type could name entities; no letter needs one.
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        throw ArchiveIllisible(PasUnTexte);
      default:
        break;
    }
  }

  void Element() {
    const auto nom = lecteur_.qualifiedName();
    if (nom == u"text:user-field-get" || nom == u"text:user-field-input") {
      const QString champ = lecteur_.attributes().value("text:name").toString().trimmed();
      lecteur_.skipCurrentElement();
      sortie_ += texteOdf(valeur_(champ.toStdString()));
    } else if (nom == u"text:user-field-decls") {
      lecteur_.skipCurrentElement();
    } else {
      sortie_ += '<' + nom.toUtf8();
      for (const QXmlStreamAttribute& a : lecteur_.attributes()) {
        sortie_ +=
            ' ' + a.qualifiedName().toUtf8() + "=\"" + attributOdf(a.value().toString()) + '"';
      }
      sortie_ += '>';
    }
  }

  QXmlStreamReader lecteur_;
  const Valeur& valeur_;
  QByteArray sortie_{};
};

}  // namespace

ModeleOdt::ModeleOdt(const QByteArray& octets) : archive_(octets) {
  const QByteArray* const genre = archive_.Trouver("mimetype");
  if (genre == nullptr || genre->trimmed() != GenreOdt || archive_.Trouver(Parties[0]) == nullptr) {
    throw ArchiveIllisible(PasUnTexte);
  }
}

std::vector<std::string> ModeleOdt::Champs() const {
  std::vector<std::string> noms;
  Copier([&](const std::string& nom) {
    noms.push_back(nom);
    return std::string();
  });
  return noms;
}

QByteArray ModeleOdt::Fusionner(const Valeur& valeur) const {
  return Copier(valeur).Octets();
}

ArchiveZip ModeleOdt::Copier(const Valeur& valeur) const {
  ArchiveZip copie = archive_;
  for (const char* const partie : Parties) {
    if (QByteArray* const xml = copie.Trouver(partie)) *xml = Copie(*xml, valeur).Faire();
  }
  return copie;
}

// An OpenDocument reader takes a run of blanks for one, and none at a line's ends.
QByteArray texteOdf(const std::string& texte) {
  QByteArray xml;
  bool blanc = true;
  for (std::size_t i = 0; i < texte.size(); ++i) {
    const char c = texte[i];
    if (c == '\n') {
      xml += "<text:line-break/>";
    } else if (c == '\t') {
      xml += "<text:tab/>";
    } else if (c == ' ' && (blanc || i + 1 == texte.size() || texte[i + 1] == '\n')) {
      xml += "<text:s/>";
    } else {
      const std::size_t octets = std::max<std::size_t>(1, data::octetsCaractere(texte, i));
      const std::string lettre = data::sansControles(texte.substr(i, octets));
      xml += QString::fromUtf8(lettre.data(), static_cast<qsizetype>(lettre.size()))
                 .toHtmlEscaped()
                 .toUtf8();
      i += octets - 1;
    }
    blanc = c == ' ' || c == '\n';
  }
  return xml;
}

}  // namespace hote
