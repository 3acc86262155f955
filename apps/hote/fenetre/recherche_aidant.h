#pragma once
// The left side of the host window: a line to type in and the carers that fit. Arrows move in the
// list while one types; Enter or a double click chooses.

#include <QWidget>

#include "fenetre/annuaire.h"

class QLabel;
class QLineEdit;
class QTreeView;

namespace hote {

class RechercheAidant : public QWidget {
  Q_OBJECT

 public:
  explicit RechercheAidant(QWidget* parent = nullptr);

  // What was typed stays and filters the new carers.
  void Remplir(std::vector<Aidant> aidants);
  // Makes that carer's row the current one, if it is among those shown.
  void Designer(const std::string& code);
  // The keyboard to the line, its text selected.
  void Prendre();

 signals:
  void choisi(const hote::Aidant& aidant);

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Filtrer();
  void Choisir();

  Annuaire annuaire_;
  QLineEdit* saisie_;
  QTreeView* liste_;
  QLabel* compte_;
};

}  // namespace hote
