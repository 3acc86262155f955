#include "fenetre/avertir.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "data/store_error.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

// True when the user chose the further button, where there is one.
bool montrer(const QString& texte, QMessageBox::Icon icone, const QString& autreBouton = {}) {
  QMessageBox boite(QApplication::activeModalWidget() != nullptr ? QApplication::activeModalWidget()
                                                                 : QApplication::activeWindow());
  boite.setWindowTitle("Contrats de travail");
  boite.setIcon(icone);
  boite.setTextFormat(Qt::PlainText);
  boite.setText(texte);
  boite.addButton("OK", QMessageBox::AcceptRole);
  const QPushButton* const autre =
      autreBouton.isEmpty() ? nullptr : boite.addButton(autreBouton, QMessageBox::ActionRole);
  boite.exec();
  return autre != nullptr && boite.clickedButton() == autre;
}

}  // namespace

void informer(const QString& texte) {
  montrer(texte, QMessageBox::Information);
}

void annoncerDocument(const QString& fichier) {
  if (montrer("Le document est prêt, dans le fichier « " + fichier + " ».",
              QMessageBox::Information, "Ouvrir le document")) {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(fichier))) {
      avertir("Aucun programme de ce poste n'ouvre le fichier « " + fichier +
              " ». Ouvrez-le depuis votre dossier de documents.");
    }
  }
}

void avertir(const QString& texte) {
  montrer(texte, QMessageBox::Warning);
}

void avertirErreur(const QString& texte, const std::exception& erreur) {
  QString detail = versQt(erreur.what());
  if (const auto* const store = dynamic_cast<const data::StoreError*>(&erreur)) {
    detail += "\n\n" + Bureau::Repere(*store);
  }
  avertir(texte + "\n\n" + detail);
}

}  // namespace hote
