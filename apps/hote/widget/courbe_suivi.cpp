#include "widget/courbe_suivi.h"

#include <QListWidget>
#include <QPainter>
#include <algorithm>

#include "data/monnaie.h"

namespace {

constexpr int RangeesHautes = 6;  // of text
constexpr double RayonMarque = 2.5;
constexpr int LettresMois = 4;
// Beyond two years the marks would hide the lines.
constexpr std::size_t MoisMarques = 24;

// Hours of a column, blanks and all.
double nombre(const QString& texte) {
  return static_cast<double>(data::Monnaie::Valeur(texte.toStdString()).DixMilliemes()) / 10000.0;
}

std::vector<double> nombres(const QListWidget& liste) {
  std::vector<double> valeurs;
  for (int i = 0; i < liste.count(); ++i) valeurs.push_back(nombre(liste.item(i)->text()));
  return valeurs;
}

QString heures(double valeur) {
  return QString::number(valeur, 'f', 1).replace('.', ',').replace('-', QChar(0x2212)) + " h";
}

}  // namespace

CourbeSuivi::CourbeSuivi(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName("Différence cumulée et solde, mois par mois");
}

void CourbeSuivi::Suivre(const QListWidget& periodes, const QListWidget& cumul,
                         const QListWidget& solde) {
  periodes_ = &periodes;
  listeCumul_ = &cumul;
  listeSolde_ = &solde;
  for (const QListWidget* const liste : {&periodes, &cumul, &solde}) {
    const QAbstractItemModel* const lignes = liste->model();
    for (const auto signal :
         {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
      connect(lignes, signal, this, qOverload<>(&QWidget::update));
    }
    connect(lignes, &QAbstractItemModel::dataChanged, this, qOverload<>(&QWidget::update));
    connect(lignes, &QAbstractItemModel::modelReset, this, qOverload<>(&QWidget::update));
  }
  Relire();
}

// The lists are filled one after the other: only as many months count as all of them have.
void CourbeSuivi::Relire() {
  mois_.clear();
  for (int i = 0; i < periodes_->count(); ++i) mois_ << periodes_->item(i)->text();
  cumul_ = nombres(*listeCumul_);
  solde_ = nombres(*listeSolde_);
  const auto communs =
      std::min({static_cast<std::size_t>(mois_.size()), cumul_.size(), solde_.size()});
  cumul_.resize(communs);
  solde_.resize(communs);
  Mesurer();
}

QSize CourbeSuivi::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 60, fontMetrics().height() * RangeesHautes};
}

QSize CourbeSuivi::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 30, fontMetrics().height() * RangeesHautes};
}

void CourbeSuivi::paintEvent(QPaintEvent*) {
  if (periodes_ == nullptr) return;
  Relire();
  QPainter pinceau(this);
  pinceau.setRenderHint(QPainter::Antialiasing, cumul_.size() <= MoisMarques);
  const int ligne = fontMetrics().height();
  const double marge = fontMetrics().horizontalAdvance(heures(-8888.8)) + 6;
  const QRectF cadre(marge, ligne * 1.3, width() - marge - 12.0, height() - ligne * 2.6);
  TracerLegende(pinceau, cadre);
  if (cumul_.empty()) return;
  TracerRepere(pinceau, cadre);
  // Where both run together the dashes lie over the full line.
  TracerSerie(pinceau, cadre, solde_, Trait::Solde);
  TracerSerie(pinceau, cadre, cumul_, Trait::Cumul);
}

void CourbeSuivi::Mesurer() {
  bas_ = haut_ = 0;
  for (const auto* const serie : {&cumul_, &solde_}) {
    for (const double valeur : *serie) {
      bas_ = std::min(bas_, valeur);
      haut_ = std::max(haut_, valeur);
    }
  }
  if (bas_ < haut_) return;
  // A year without any difference still has a zero line, in the middle.
  bas_ = -1;
  haut_ = 1;
}

// Each month has a part of the width; its point stands in the middle of it.
QPointF CourbeSuivi::Point(const QRectF& cadre, std::size_t mois, double valeur) const {
  const double x = (static_cast<double>(mois) + 0.5) / static_cast<double>(cumul_.size());
  return {cadre.left() + x * cadre.width(),
          cadre.bottom() - (valeur - bas_) / (haut_ - bas_) * cadre.height()};
}

void CourbeSuivi::TracerRepere(QPainter& pinceau, const QRectF& cadre) const {
  const int ligne = fontMetrics().height();
  pinceau.setPen(QPen(palette().color(QPalette::Mid), 1));
  const double zero = Point(cadre, 0, 0).y();
  pinceau.drawLine(QPointF(cadre.left(), zero), QPointF(cadre.right(), zero));
  pinceau.setPen(palette().color(QPalette::WindowText));
  double dernier = -1e9;
  for (const double valeur : {haut_, 0.0, bas_}) {
    const double y = Point(cadre, 0, valeur).y();
    if (y - dernier < ligne * 0.9) continue;
    dernier = y;
    pinceau.drawText(QRectF(0, y - ligne / 2.0, cadre.left() - 6, ligne),
                     Qt::AlignRight | Qt::AlignVCenter, heures(valeur));
  }
  const double part = cadre.width() / static_cast<double>(cumul_.size());
  const int largeur = fontMetrics().horizontalAdvance(QString(LettresMois + 1, 'M'));
  const auto pas = static_cast<std::size_t>(std::max(1.0, largeur / part + 1));
  for (std::size_t i = 0; i < cumul_.size(); i += part < largeur ? pas : 1) {
    const double x = Point(cadre, i, 0).x();
    pinceau.drawText(QRectF(x - largeur, cadre.bottom() + 2, 2.0 * largeur, ligne),
                     Qt::AlignHCenter, mois_[static_cast<qsizetype>(i)].left(LettresMois));
  }
}

// The two lines differ by stroke and mark, not by colour alone.
QPen CourbeSuivi::Plume(Trait trait) const {
  const bool cumul = trait == Trait::Cumul;
  return QPen(palette().color(cumul ? QPalette::WindowText : QPalette::Highlight), 1,
              cumul ? Qt::DashLine : Qt::SolidLine);
}

void CourbeSuivi::Marquer(QPainter& pinceau, const QPointF& place, Trait trait) {
  const QRectF marque(place.x() - RayonMarque, place.y() - RayonMarque, 2 * RayonMarque,
                      2 * RayonMarque);
  if (trait == Trait::Cumul) {
    pinceau.drawEllipse(marque);
  } else {
    pinceau.fillRect(marque, pinceau.pen().color());
  }
}

void CourbeSuivi::TracerSerie(QPainter& pinceau, const QRectF& cadre,
                              const std::vector<double>& serie, Trait trait) const {
  pinceau.setPen(Plume(trait));
  QPolygonF points;
  for (std::size_t i = 0; i < serie.size(); ++i) points << Point(cadre, i, serie[i]);
  pinceau.drawPolyline(points);
  if (serie.size() > MoisMarques) return;
  pinceau.setPen(Plume(trait).color());
  for (const QPointF& point : points) Marquer(pinceau, point, trait);
}

void CourbeSuivi::TracerLegende(QPainter& pinceau, const QRectF& cadre) const {
  const int ligne = fontMetrics().height();
  double x = cadre.left();
  for (const auto& [trait, texte] : {std::pair(Trait::Cumul, QString("Différence cumulée")),
                                     std::pair(Trait::Solde, QString("Solde"))}) {
    const double y = ligne * 0.6;
    pinceau.setPen(Plume(trait));
    pinceau.drawLine(QPointF(x, y), QPointF(x + 2 * ligne, y));
    Marquer(pinceau, {x + ligne, y}, trait);
    pinceau.setPen(palette().color(QPalette::WindowText));
    const int largeur = fontMetrics().horizontalAdvance(texte);
    x += 2 * ligne + 6;
    pinceau.drawText(QRectF(x, 0, largeur + 2, ligne * 1.2), Qt::AlignVCenter, texte);
    x += largeur + ligne;
  }
}
