#pragma once
// A small chart beneath a table of the annual follow-up: the cumulated difference and the balance
// over its months. It follows the lists that it draws and takes neither keys nor clicks; whoever
// cannot see it misses nothing, the numbers stand in the table.

#include <QStringList>
#include <QWidget>
#include <vector>

class QListWidget;

class CourbeSuivi : public QWidget {
  Q_OBJECT

 public:
  explicit CourbeSuivi(QWidget* parent = nullptr);

  // The lists are those of one table; they outlive the chart.
  void Suivre(const QListWidget& periodes, const QListWidget& cumul, const QListWidget& solde);

  // The numbers drawn, as the lists say them when the chart is painted; 0 for what is none.
  const std::vector<double>& Cumul() const { return cumul_; }
  const std::vector<double>& Solde() const { return solde_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evenement) override;

 private:
  void Relire();
  // Hours from the least to the greatest, zero among them.
  void Mesurer();
  QPointF Point(const QRectF& cadre, std::size_t mois, double heures) const;
  void TracerRepere(QPainter& pinceau, const QRectF& cadre) const;
  enum class Trait { Cumul, Solde };
  void TracerSerie(QPainter& pinceau, const QRectF& cadre, const std::vector<double>& serie,
                   Trait trait) const;
  void TracerLegende(QPainter& pinceau, const QRectF& cadre) const;
  QPen Plume(Trait trait) const;
  static void Marquer(QPainter& pinceau, const QPointF& place, Trait trait);

  const QListWidget* periodes_ = nullptr;
  const QListWidget* listeCumul_ = nullptr;
  const QListWidget* listeSolde_ = nullptr;
  QStringList mois_;
  std::vector<double> cumul_;
  std::vector<double> solde_;
  double bas_ = -1;
  double haut_ = 1;
};
