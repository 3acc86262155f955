#pragma once
// The help window: one page a form, compiled into the program.

#include <QDialog>
#include <QString>

class QTextBrowser;

namespace hote {

class FenetreAide : public QDialog {
 public:
  // The page of the host window itself, also shown for a form without a page of its own.
  static constexpr const char* Accueil = "accueil";

  // `parente` is the window that the help is about: a window above an application-modal one must be
  // its child to take the keyboard.
  explicit FenetreAide(QWidget* parente);
  void Montrer(const QString& forme);

  // Shows the page of the active window's form in a help window of its own, the former one being
  // used again. `defaut`: the form when the active window is the host's.
  static void Appeler(const QString& defaut);
  static void Fermer();
  // The address of a form's page.
  static QString Page(const QString& forme);

 protected:
  void changeEvent(QEvent* evenement) override;

 private:
  void Colorer();

  QTextBrowser* texte_;
};

}  // namespace hote
