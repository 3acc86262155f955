#pragma once
// The strip of time: draws what control/frise.h lays out. A click on a bar asks for its row, a
// double click for its contract; whoever cannot see it hears how many there are, which one is
// selected and what overlaps. It takes no keys: the list beside it has the same contracts.
//
// States differ by shape, not by colour alone: what runs is full, what is to come hatched, what has
// ended thinner, what was cancelled struck through. What is only presumed has a dashed outline.

#include <QWidget>
#include <functional>

#include "control/frise.h"

class FriseContrats : public QWidget {
  Q_OBJECT

 public:
  explicit FriseContrats(QWidget* parent = nullptr);

  // The words for a bar and for a band. They are asked for while the strip is painted or pointed
  // at.
  std::function<QString(const control::Barre&)> DireBarre;
  std::function<QString(const control::Barre&)> Infobulle;
  std::function<QString(const rules::Portee&)> NommerBande;

  void Montrer(control::Frise frise);
  const control::Frise& Contenu() const { return frise_; }
  // Marks the bar of that contract, "" for none.
  void Choisir(const std::string& cle);
  // What is said in place of the picture.
  QString Resume() const;
  // Where a bar stands; empty while the strip is too low to be drawn.
  QRect Place(const control::Barre& barre) const;
  // The greatest height, in lines of text; the rows become lower before it is passed.
  void SetLignesMax(int lignes);
  // Rows that go leave their room: what stands below does not move while a date is typed.
  void GarderHauteur() { gardeHauteur_ = true; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void choisi(const QString& cle);
  void ouvert(const QString& cle);

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  void mousePressEvent(QMouseEvent* evenement) override;
  void mouseDoubleClickEvent(QMouseEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  struct Graduation;

  // The part of the widget in which bars stand, and the height of a row in it.
  QRect Cadre() const;
  bool AvecAxe() const;
  double HauteurRang() const;
  double X(long jour) const;
  const control::Barre* BarreEn(const QPoint& place) const;
  QString NomEn(const QPoint& place) const;
  Graduation Graduer() const;

  void TracerBandes(QPainter& pinceau) const;
  void TracerAxe(QPainter& pinceau) const;
  void TracerAujourdhui(QPainter& pinceau) const;
  void TracerBarre(QPainter& pinceau, const control::Barre& barre) const;
  void TracerCorps(QPainter& pinceau, const control::Barre& barre, const QRectF& corps) const;
  void TracerSignes(QPainter& pinceau, const control::Barre& barre, const QRectF& corps) const;
  QColor Alerte() const;

  control::Frise frise_;
  std::string choisie_;
  std::vector<QString> noms_;
  int lignesMax_ = 10;
  int rangs_ = 0;  // that it has room for
  bool gardeHauteur_ = false;
};
