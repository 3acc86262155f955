// contrat-hote: the contract screen in a window of its own. Its options are told by --help.

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTranslator>

#include "fenetre/base_ouverte.h"
#include "fenetre/captures.h"
#include "fenetre/fenetre_hote.h"
#include "fenetre/style_hote.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"

namespace {

int capturer(const QCommandLineParser& options) {
  QTextStream erreurs(stderr);
  // The offscreen platform warns of what nobody needs there.
  QLoggingCategory::setFilterRules("default.warning=false");
  try {
    if (options.positionalArguments().isEmpty()) {
      erreurs << "--captures : donnez le fichier de données à montrer.\n";
      return 2;
    }
    const QStringList cotes = options.value("taille").split('x');
    const QSize taille = cotes.size() == 2 ? QSize(cotes[0].toInt(), cotes[1].toInt()) : QSize();
    for (const QString& image : hote::capturerFormes(
             options.positionalArguments().constFirst(), hote::versModele(options.value("aidant")),
             options.value("captures"), taille, options.isSet("sombre"))) {
      QTextStream(stdout) << image << '\n';
    }
    return 0;
  } catch (const std::exception& erreur) {
    erreurs << hote::versQt(erreur.what()) << '\n';
    return 1;
  }
}

// A signal ends the program at once: there is nobody to ask, and what was stored is on the disk.
int montrer(const QCommandLineParser& options) {
  hote::Bureau bureau;
  hote::FenetreHote fenetre(
      bureau, options.isSet("meme-en-reseau") ? hote::ouvrirBaseEnReseau : hote::ouvrirBase);
  const auto commencer = [&] {
    const QStringList fichiers = options.positionalArguments();
    if (fichiers.isEmpty()) return fenetre.OuvrirDernier();
    const std::string aidant = hote::versModele(options.value("aidant"));
    if (fenetre.OuvrirFichier(fichiers.constFirst()) && !aidant.empty()) {
      fenetre.OuvrirAidant(aidant);
    }
  };
  QObject::connect(&fenetre, &hote::FenetreHote::peinte, &fenetre, commencer, Qt::QueuedConnection);
  fenetre.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(new hote::StyleHote);
  QApplication::setApplicationName("contrat-hote");
  QApplication::setApplicationVersion(CONTRATS_VERSION);
  QApplication::setDesktopFileName("contrat-hote");
  QLocale::setDefault(QLocale(QLocale::French));
  QTranslator textes;
  if (textes.load(QLocale(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&textes);
  }
  QCommandLineParser options;
  options.setApplicationDescription("Les contrats de travail des aidants.");
  options.addHelpOption();
  options.addVersionOption();
  options.addOption(
      {"captures", "Écrit les images des écrans dans ce dossier et s'arrête.", "dossier"});
  options.addOption(
      {"taille", "Donne aux images cette taille de fenêtre, 1024x768 par exemple.", "LxH"});
  options.addOption({"sombre", "Prend les images sur fond sombre."});
  options.addOption({"aidant", "Ouvre l'aidant de ce code.", "code"});
  options.addOption(
      {"meme-en-reseau", "Admet un fichier d'un dossier du réseau, qu'un seul poste ouvre."});
  options.addPositionalArgument("fichier",
                                "Le fichier de données, ou l'adresse postgresql:// d'un serveur ; "
                                "sinon la dernière base ouverte.");
  options.process(application);
  return options.isSet("captures") ? capturer(options) : montrer(options);
}
