#include "fenetre/avertir.h"

#include <QApplication>
#include <QMessageBox>

#include "data/store_error.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

void montrer(const QString& texte, QMessageBox::Icon icone) {
  QMessageBox boite(QApplication::activeModalWidget() != nullptr ? QApplication::activeModalWidget()
                                                                 : QApplication::activeWindow());
  boite.setWindowTitle("Contrats de travail");
  boite.setIcon(icone);
  boite.setTextFormat(Qt::PlainText);
  boite.setText(texte);
  boite.addButton("OK", QMessageBox::AcceptRole);
  boite.exec();
}

}  // namespace

void informer(const QString& texte) {
  montrer(texte, QMessageBox::Information);
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
