#pragma once
// What is due over all carers, as the host window shows it while no carer is open: by date, one
// click to the contract, on paper on demand. It is read anew each time it comes into view.

#include <QWidget>
#include <functional>
#include <vector>

#include "rules/echeances.h"

class QLabel;
class QPushButton;
class QSpinBox;
class QTreeWidget;

namespace screen {
struct Platform;
}

namespace hote {

class PageEcheances : public QWidget {
  Q_OBJECT

 public:
  explicit PageEcheances(screen::Platform& plateforme, QWidget* parent = nullptr);

  // Of which data; nullptr, and the page is empty, when no file is open.
  void Suivre(data::Db* db);
  // What there is to do next, above the list.
  void Dire(const QString& conseil);
  void Lire();
  // The keyboard to the list.
  void Prendre();

 signals:
  void choisie(const std::string& contrat);

 protected:
  void showEvent(QShowEvent* evenement) override;

 private:
  void Montrer();
  void Imprimer() const;

  screen::Platform& plateforme_;
  data::Db* db_ = nullptr;
  std::vector<rules::Echeance> echeances_;
  QLabel* conseil_;
  QSpinBox* jours_;
  QTreeWidget* liste_;
  QLabel* compte_;
  QPushButton* imprimer_;
};

// On A4 paper, with its days, its columns and page numbers. A screen::ErreurImpression rises.
void imprimerEcheances(const std::vector<rules::Echeance>& echeances, const std::string& titre,
                       screen::Platform& plateforme);

}  // namespace hote
