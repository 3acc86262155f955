#pragma once
// The left side of the host window: a line to type in and the carers that fit. Arrows move in the
// list while one types; Enter or a double click chooses, Esc empties the line. The carer that is
// open is marked in the list, and named above it while what was typed leaves him out.

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
  // Marks that carer as the open one, "" for none, and makes his row the current one, if it is
  // among those shown.
  void Designer(const std::string& code);
  // Leaves deleted carers out of the list.
  void MasquerSupprimes(bool masques);
  // The keyboard to the line, its text selected.
  void Prendre();

 signals:
  void choisi(const hote::Aidant& aidant);

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Filtrer();
  void Choisir();
  void MontrerOuvert();
  void Compter();

  Annuaire annuaire_;
  QLineEdit* saisie_;
  QLabel* ouvert_;
  QTreeView* liste_;
  QLabel* compte_;
};

}  // namespace hote
