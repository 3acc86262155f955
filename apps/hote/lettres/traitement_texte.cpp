#include "lettres/traitement_texte.h"

#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include "lettres/apercu.h"
#include "lettres/archive_zip.h"
#include "lettres/modeles.h"
#include "liaison/ecriture.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

constexpr const char* Programmes[] = {"soffice", "libreoffice", "lowriter", "abiword"};
// The family of programs that makes PDF files without a window.
constexpr const char* Convertisseurs[] = {"soffice", "libreoffice", "lowriter"};
constexpr int AttenteSysteme = 3000;       // milliseconds
constexpr int AttenteConversion = 120000;  // the first one makes the program's profile

bool convertit(const QString& programme) {
  const QString nom = QFileInfo(programme).completeBaseName();
  return std::any_of(std::begin(Convertisseurs), std::end(Convertisseurs),
                     [&](const char* connu) { return nom.startsWith(connu); });
}

// Whether the desktop knows a program for such files; only a Unix desktop can be asked.
bool systemeSait() {
  const QString question = QStandardPaths::findExecutable("xdg-mime");
#ifndef Q_OS_UNIX
  return true;
#endif
  if (question.isEmpty()) return false;
  QProcess processus;
  processus.start(question, {"query", "default", "application/vnd.oasis.opendocument.text"});
  return processus.waitForFinished(AttenteSysteme) &&
         !processus.readAllStandardOutput().trimmed().isEmpty();
}

[[noreturn]] void manquer(const QString& fichier, const QString& raison) {
  throw ConversionManquee(versModele("Le fichier « " + fichier + " » n'est pas converti en PDF : " +
                                     raison + " La lettre elle-même est intacte."));
}

// Writes it beside the letter, under the letter's name.
QString ranger(const QByteArray& octets, const QString& fichier) {
  const QFileInfo document(fichier);
  const QString pdf = document.dir().filePath(document.completeBaseName() + ".pdf");
  if (!ecrireFichier(pdf, octets)) {
    manquer(fichier, "« " + pdf + " » ne s'écrit pas. Vérifiez la place sur le disque.");
  }
  return pdf;
}

// Runs until the program ends; false when the user gave up.
bool attendre(QProcess& processus, QWidget* parente) {
  QProgressDialog progres("Conversion en PDF…", "Annuler", 0, 0, parente);
  progres.setWindowTitle("Lettre");
  progres.setWindowModality(Qt::ApplicationModal);
  progres.setMinimumDuration(300);
  progres.setValue(0);
  QEventLoop boucle;
  QObject::connect(&processus, &QProcess::finished, &boucle, &QEventLoop::quit);
  QObject::connect(&processus, &QProcess::errorOccurred, &boucle, &QEventLoop::quit);
  QObject::connect(&progres, &QProgressDialog::canceled, &boucle, &QEventLoop::quit);
  QTimer::singleShot(AttenteConversion, &boucle, &QEventLoop::quit);
  if (processus.state() != QProcess::NotRunning) boucle.exec();
  if (processus.state() != QProcess::NotRunning) {
    processus.kill();
    processus.waitForFinished(AttenteSysteme);
  }
  return !progres.wasCanceled();
}

}  // namespace

QString TraitementTexte::Trouver() {
  for (const char* const programme : Programmes) {
    const QString chemin = QStandardPaths::findExecutable(programme);
    if (!chemin.isEmpty()) return chemin;
  }
  return systemeSait() ? AuSysteme : "";
}

QString TraitementTexte::Programme() const {
  const QString choisi = reglages_.value(CleChemin).toString();
  if (choisi.isEmpty() || choisi == AuSysteme)
    return reglages_.contains(CleChemin) ? "" : Trouver();
  // A name alone is looked for among the programs of the system.
  return QStandardPaths::findExecutable(choisi);
}

QString TraitementTexte::Convertisseur() const {
  const QString programme = Programme();
  if (convertit(programme)) return programme;
  for (const char* const connu : Convertisseurs) {
    const QString chemin = QStandardPaths::findExecutable(connu);
    if (!chemin.isEmpty()) return chemin;
  }
  return {};
}

bool TraitementTexte::Ouvrir(const QString& fichier) const {
  const QString programme = Programme();
  if (!programme.isEmpty() && programme != AuSysteme &&
      QProcess::startDetached(programme, {fichier})) {
    return true;
  }
  return QDesktopServices::openUrl(QUrl::fromLocalFile(fichier));
}

QString TraitementTexte::EnPdf(const QString& fichier, QWidget* parente) const {
  const QTemporaryDir sortie;
  // A profile of its own: the program converts nothing for a user who has it open.
  const QString profil =
      QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + "/conversion";
  QDir().mkpath(profil);
  QProcess processus;
  processus.setStandardOutputFile(QProcess::nullDevice());
  processus.setStandardErrorFile(QProcess::nullDevice());
  processus.start(Convertisseur(),
                  {"-env:UserInstallation=" + QUrl::fromLocalFile(profil).toString(), "--headless",
                   "--norestore", "--convert-to", "pdf", "--outdir", sortie.path(), fichier});
  if (!attendre(processus, parente)) return {};
  QFile fait(sortie.filePath(QFileInfo(fichier).completeBaseName() + ".pdf"));
  if (!fait.open(QIODevice::ReadOnly)) {
    manquer(fichier, "le traitement de texte n'a rien rendu. Ouvrez-le et exportez-le de là.");
  }
  return ranger(fait.readAll(), fichier);
}

QString TraitementTexte::EnPdfSimple(const QString& fichier) {
  QFile lettre(fichier);
  if (!lettre.open(QIODevice::ReadOnly)) manquer(fichier, lettre.errorString() + ".");
  try {
    return ranger(apercuPdf(lettre.readAll()), fichier);
  } catch (const ArchiveIllisible& erreur) {
    manquer(fichier, versQt(erreur.what()) + ".");
  }
}

}  // namespace hote
