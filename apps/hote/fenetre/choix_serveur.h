#pragma once
// Asks for a base on a server: where it stands, its name, the user's account there. No password:
// libpq finds it where its user has put it, and the program keeps none.

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace hote {

class ChoixServeur : public QDialog {
 public:
  explicit ChoixServeur(QWidget* parent);

  // The address that the fields make; empty while there is no server or no base in them.
  QString Adresse() const;
  // Empty when the user gives up.
  static QString Demander(QWidget* parent);

 private:
  QLineEdit* Champ(const char* nom, const QString& exemple);
  void Montrer();

  QLineEdit* serveur_;
  QLineEdit* base_;
  QLineEdit* compte_;
  QLabel* adresse_;
  QDialogButtonBox* boutons_;
};

}  // namespace hote
