// A hiring declaration brought to a PDF file, each of the two forms with its background, beside an
// empty page of the same printer; a letter merged.

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <stdexcept>

#include "data/layouts/contrat.h"
#include "documents/declaration_formulaire.h"
#include "documents/declaration_matricielle.h"
#include "lettres/lettre_odt.h"
#include "liaison/bureau.h"
#include "liaison/ecriture.h"
#include "mesures.h"

namespace bench {

namespace {

constexpr int Tours = 15;
// Attributes of a person and of an employer that the forms print.
constexpr int TextesParArticle = 30;

documents::DossierDeclaration dossier() {
  documents::DossierDeclaration d;
  data::CItem plein;
  for (int a = 1; a <= TextesParArticle; ++a) plein.Set(a, "Texte de l'article");
  d.contrat = d.association = d.aide = d.part = d.centre = d.aidant = d.etablissement = plein;
  d.paysNationalite = d.paysNaissance = d.centreMedical = plein;
  d.contrat.Set(data::Contrat::DateDebut, "21511");
  d.dossierImages = QCoreApplication::applicationDirPath().toStdString();
  for (const char* const fond : {documents::FondUrssaf, documents::FondDue}) {
    if (!QFile::exists(QString::fromStdString(d.dossierImages + "/" + fond))) {
      throw std::runtime_error(std::string(fond) + " does not stand beside the program");
    }
  }
  return d;
}

documents::DossierLettre lettre(const documents::DossierDeclaration& d) {
  documents::DossierLettre l;
  l.cle = "00031001";
  l.contrat = d.contrat;
  l.association = d.association;
  l.etablissement = d.etablissement;
  l.aidant = d.aidant;
  l.aujourdhui = 21511;
  return l;
}

using Durees = std::map<std::string, std::vector<double>>;

// The template read, merged and written, beside a file of as many bytes written.
void mesurerLettre(const documents::DossierLettre& contrat, const hote::DossierModeles& modeles,
                   const QString& dossier, Durees& durees) {
  const double debut = tempsProcesseur();
  const hote::LettreOdt faite = hote::ecrireLettre(contrat, modeles, dossier);
  durees["lettre"].push_back(tempsProcesseur() - debut);
  QFile fichier(faite.fichier);
  if (!fichier.open(QIODevice::ReadOnly)) throw std::runtime_error("no letter was written");
  const QByteArray octets = fichier.readAll();
  const double debutNu = tempsProcesseur();
  if (!hote::ecrireFichier(faite.fichier, octets)) throw std::runtime_error("no file was written");
  durees["fichierNu"].push_back(tempsProcesseur() - debutNu);
}

}  // namespace

void mesurerPapier(Medianes& medianes) {
  const QTemporaryDir maison;
  qputenv("HOME", maison.path().toUtf8());
  hote::Bureau bureau;
  const documents::DossierDeclaration d = dossier();
  Durees durees;
  const auto mesurer = [&](const char* nom, const auto& page) {
    const double debut = tempsProcesseur();
    documents::imprimer({page()}, bureau.Plateforme().imprimante);
    durees[nom].push_back(tempsProcesseur() - debut);
  };
  const documents::DossierLettre contrat = lettre(d);
  const hote::DossierModeles modeles(maison.filePath("modeles"));
  modeles.Completer();
  for (int tour = 0; tour < Tours; ++tour) {
    mesurer("pageVide", [] { return documents::Page(); });
    mesurer("declarationFormulaire", [&] { return documents::declarationFormulaire(d); });
    mesurer("declarationMatricielle", [&] { return documents::declarationMatricielle(d); });
    mesurerLettre(contrat, modeles, maison.filePath("lettres"), durees);
  }
  for (const auto& [nom, prises] : durees) medianes[nom] = mediane(prises);
}

}  // namespace bench
