#include "widget/frise_contrats.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "data/jour.h"
#include "widget/apparence.h"

using control::Barre;
using control::EtatContrat;

namespace {

constexpr int Air = 3;             // pixels round the picture
constexpr int RangIdeal = 16;      // pixels, of a row
constexpr int RangMin = 4;         // below which the strip grows past its greatest height
constexpr int LargeurMin = 4;      // pixels, of a bar, so that a single day can be seen and clicked
constexpr int PartNoms = 6;        // of the width, for the names of the bands
constexpr int NomsMax = 190;       // pixels
constexpr int JoursParMois = 550;  // an axis shorter than this is marked by months
constexpr int Proche = 2;          // pixels, beside a bar, that a click may miss

QColor melange(const QColor& a, const QColor& b, double part) {
  return QColor::fromRgbF(static_cast<float>(a.redF() + (b.redF() - a.redF()) * part),
                          static_cast<float>(a.greenF() + (b.greenF() - a.greenF()) * part),
                          static_cast<float>(a.blueF() + (b.blueF() - a.blueF()) * part));
}

class FriseAccessible : public QAccessibleWidget {
 public:
  explicit FriseAccessible(FriseContrats* frise)
      : QAccessibleWidget(frise, QAccessible::Graphic), frise_(frise) {}

  QString text(QAccessible::Text texte) const override {
    if (texte == QAccessible::Name) return "Frise des contrats";
    if (texte == QAccessible::Description || texte == QAccessible::Value) return frise_->Resume();
    return QAccessibleWidget::text(texte);
  }

 private:
  const FriseContrats* frise_;
};

QAccessibleInterface* fabriquer(const QString& classe, QObject* objet) {
  auto* const frise = qobject_cast<FriseContrats*>(objet);
  return frise != nullptr && classe == "FriseContrats" ? new FriseAccessible(frise) : nullptr;
}

}  // namespace

// The days at which the axis is marked, and the words at them.
struct FriseContrats::Graduation {
  struct Trait {
    long jour;
    QString texte;
  };
  std::vector<Trait> traits;
};

FriseContrats::FriseContrats(QWidget* parent) : QWidget(parent) {
  static const bool fabrique = (QAccessible::installFactory(fabriquer), true);
  Q_UNUSED(fabrique);
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  setMouseTracking(false);
}

void FriseContrats::Montrer(control::Frise frise) {
  const int rangs = gardeHauteur_ ? std::max(frise.rangs, rangs_) : frise.rangs;
  frise_ = std::move(frise);
  noms_.clear();
  for (const control::Bande& bande : frise_.bandes) {
    noms_.push_back(NommerBande ? NommerBande(bande.portee) : QString());
  }
  if (std::exchange(rangs_, rangs) != rangs) updateGeometry();
  update();
}

void FriseContrats::Choisir(const std::string& cle) {
  if (cle == choisie_) return;
  choisie_ = cle;
  update();
  if (!QAccessible::isActive()) return;
  QAccessibleEvent annonce(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&annonce);
}

QString FriseContrats::Resume() const {
  const auto nombre = frise_.barres.size();
  QStringList phrases{nombre == 1 ? "1 contrat" : QString("%1 contrats").arg(nombre)};
  for (const Barre& barre : frise_.barres) {
    if (!DireBarre) break;
    const bool choisie = !choisie_.empty() && barre.cle == choisie_;
    if (choisie || barre.enMain) {
      phrases << (barre.enMain ? "en saisie : " : "choisi : ") + DireBarre(barre);
    } else if (barre.chevauche) {
      phrases << DireBarre(barre);
    }
  }
  return phrases.join("; ");
}

void FriseContrats::SetLignesMax(int lignes) {
  lignesMax_ = lignes;
  updateGeometry();
}

// Geometry.

QSize FriseContrats::sizeHint() const {
  if (rangs_ == 0) return minimumSizeHint();
  const int ligne = fontMetrics().height();
  const int place = std::min(rangs_ * RangIdeal, lignesMax_ * ligne - ligne);
  return {fontMetrics().averageCharWidth() * 60,
          std::max(place, rangs_ * RangMin) + ligne + 3 * Air};
}

// On a low screen the list needs the room more.
QSize FriseContrats::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 20, 0};
}

// A strip that is pressed together keeps its rows rather than its years.
bool FriseContrats::AvecAxe() const {
  return height() - fontMetrics().height() - 2 * Air >= frise_.rangs * RangMin;
}

QRect FriseContrats::Cadre() const {
  const int noms = std::min(width() / PartNoms, NomsMax);
  const int axe = AvecAxe() ? fontMetrics().height() : 0;
  return QRect(noms, Air, width() - noms - Air, height() - axe - 2 * Air);
}

double FriseContrats::HauteurRang() const {
  return std::min<double>(RangIdeal, Cadre().height() / static_cast<double>(std::max(rangs_, 1)));
}

double FriseContrats::X(long jour) const {
  const QRect cadre = Cadre();
  const auto duree = static_cast<double>(std::max(frise_.au - frise_.du, 1L));
  const double part = static_cast<double>(jour - frise_.du) / duree;
  return cadre.left() + std::clamp(part, 0.0, 1.0) * cadre.width();
}

QRect FriseContrats::Place(const Barre& barre) const {
  const double rang = HauteurRang();
  if (rang < 2) return {};
  const double gauche = X(barre.debut);
  const double largeur = std::max<double>(X(barre.fin + 1) - gauche, LargeurMin);
  const double marge = rang > 8 ? 2 : rang > 4 ? 1 : 0.5;
  return QRectF(gauche, Cadre().top() + barre.rang * rang + marge, largeur, rang - 2 * marge)
      .toAlignedRect();
}

// What was drawn last lies on top.
const Barre* FriseContrats::BarreEn(const QPoint& place) const {
  for (auto barre = frise_.barres.rbegin(); barre != frise_.barres.rend(); ++barre) {
    if (Place(*barre).adjusted(-Proche, -1, Proche, 1).contains(place)) return &*barre;
  }
  return nullptr;
}

FriseContrats::Graduation FriseContrats::Graduer() const {
  Graduation graduation;
  const bool parMois = frise_.au - frise_.du < JoursParMois;
  const QLocale francais(QLocale::French);
  const data::Date premier = data::dateDe(frise_.du);
  int pas = 1;
  const double parAn = Cadre().width() / (static_cast<double>(frise_.au - frise_.du) / 365.25);
  const int texte = fontMetrics().horizontalAdvance(parMois ? "sept. 2026 " : "2026 ");
  const double unite = parMois ? parAn / 12 : parAn;
  while (pas * unite < texte && pas < 100) ++pas;
  for (int i = 0;; ++i) {
    const int mois = parMois ? premier.mois - 1 + i * pas : 0;
    const data::Date date{premier.annee + (parMois ? mois / 12 : i * pas), mois % 12 + 1, 1};
    const long jour = data::jourDe(date).value_or(frise_.au + 1);
    if (jour > frise_.au) break;
    if (jour < frise_.du) continue;
    const QString annee = QString::number(date.annee);
    graduation.traits.push_back(
        {jour,
         parMois ? francais.monthName(date.mois, QLocale::ShortFormat) + " " + annee : annee});
  }
  return graduation;
}

// Drawing.

void FriseContrats::paintEvent(QPaintEvent*) {
  if (frise_.barres.empty() || HauteurRang() < 2) return;
  QPainter pinceau(this);
  TracerBandes(pinceau);
  TracerAxe(pinceau);
  for (const Barre& barre : frise_.barres) TracerBarre(pinceau, barre);
  TracerAujourdhui(pinceau);
}

void FriseContrats::TracerBandes(QPainter& pinceau) const {
  const QRect cadre = Cadre();
  const double rang = HauteurRang();
  pinceau.fillRect(QRectF(cadre.left(), cadre.top(), cadre.width(), frise_.rangs * rang),
                   palette().color(QPalette::Base));
  for (std::size_t i = 0; i < frise_.bandes.size(); ++i) {
    const control::Bande& bande = frise_.bandes[i];
    const QRectF place(0, cadre.top() + bande.rang * rang, cadre.left(), bande.rangs * rang);
    if (i % 2 == 1) {
      pinceau.fillRect(QRectF(cadre.left(), place.top(), cadre.width(), place.height()),
                       palette().color(QPalette::AlternateBase));
    }
    if (place.height() < fontMetrics().ascent()) continue;
    pinceau.setPen(palette().color(QPalette::WindowText));
    pinceau.drawText(place.adjusted(0, 0, -2 * Air, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(noms_[i], Qt::ElideRight, cadre.left() - 2 * Air));
  }
}

void FriseContrats::TracerAxe(QPainter& pinceau) const {
  const QRect cadre = Cadre();
  const double bas = cadre.top() + frise_.rangs * HauteurRang();
  const QColor discret =
      melange(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.2);
  double libre = cadre.left();
  for (const auto& trait : Graduer().traits) {
    const double x = X(trait.jour);
    pinceau.setPen(discret);
    pinceau.drawLine(QPointF(x, cadre.top()), QPointF(x, bas + Air));
    const int largeur = fontMetrics().horizontalAdvance(trait.texte);
    if (!AvecAxe() || x < libre || x + largeur > width()) continue;
    pinceau.setPen(palette().color(QPalette::WindowText));
    pinceau.drawText(QPointF(x, bas + fontMetrics().ascent() + 1), trait.texte);
    libre = x + largeur + Air;
  }
}

void FriseContrats::TracerAujourdhui(QPainter& pinceau) const {
  const QRect cadre = Cadre();
  const double x = X(frise_.aujourdhui);
  const double bas = cadre.top() + frise_.rangs * HauteurRang();
  const QColor couleur = palette().color(QPalette::Text);
  pinceau.setPen(QPen(couleur, 1));
  pinceau.drawLine(QPointF(x, 0), QPointF(x, bas));
  pinceau.setPen(Qt::NoPen);
  pinceau.setBrush(couleur);
  pinceau.drawPolygon(QPolygonF{{x - 4, 0}, {x + 4, 0}, {x, 5}});
  pinceau.setBrush(Qt::NoBrush);
}

// A red that reads on this ground.
QColor FriseContrats::Alerte() const {
  const QColor fond = palette().color(QPalette::Base);
  const QColor sombre(0xb0, 0x10, 0x10);
  return hote::contraste(sombre, fond) >= hote::ContrasteLisible ? sombre
                                                                 : QColor(0xff, 0x80, 0x80);
}

void FriseContrats::TracerBarre(QPainter& pinceau, const Barre& barre) const {
  const QRect place = Place(barre);
  if (place.isEmpty()) return;
  QRectF corps(place);
  const bool mince = barre.etat == EtatContrat::Termine || barre.etat == EtatContrat::Annule;
  if (mince) corps.adjust(0, corps.height() * 0.2, 0, -corps.height() * 0.2);
  TracerCorps(pinceau, barre, corps);
  TracerSignes(pinceau, barre, corps);
}

void FriseContrats::TracerCorps(QPainter& pinceau, const Barre& barre, const QRectF& corps) const {
  const QColor fond = palette().color(QPalette::Base);
  const QColor vif = palette().color(QPalette::Active, QPalette::Highlight);
  const QColor passe = melange(palette().color(QPalette::Text), fond, 0.45);
  const QColor couleur =
      barre.etat == EtatContrat::EnCours || barre.etat == EtatContrat::AVenir ? vif : passe;
  QRectF sure = corps;
  if (barre.certaine < barre.fin) {
    sure.setRight(std::max(corps.left(), X(barre.certaine + 1)));
    pinceau.setPen(QPen(couleur, 1, Qt::DashLine));
    pinceau.setBrush(barre.etat == EtatContrat::AVenir ? QBrush(couleur, Qt::BDiagPattern)
                                                       : QBrush(Qt::NoBrush));
    pinceau.drawRect(corps.adjusted(0, 0, -1, -1));
  }
  if (sure.width() < 1) return;
  switch (barre.etat) {
    case EtatContrat::EnCours:
    case EtatContrat::Termine:
      pinceau.fillRect(sure, couleur);
      return;
    case EtatContrat::AVenir:
      pinceau.setPen(couleur);
      pinceau.setBrush(QBrush(couleur, Qt::BDiagPattern));
      break;
    case EtatContrat::Annule:
      pinceau.setPen(QPen(couleur, 1, Qt::DotLine));
      pinceau.setBrush(Qt::NoBrush);
      break;
  }
  pinceau.drawRect(sure.adjusted(0, 0, -1, -1));
  if (barre.etat != EtatContrat::Annule) return;
  pinceau.setPen(couleur);
  pinceau.drawLine(QPointF(corps.left(), corps.center().y()),
                   QPointF(corps.right(), corps.center().y()));
}

// What lies over a bar: its number, that it has no end, overlaps, is selected or in hand.
void FriseContrats::TracerSignes(QPainter& pinceau, const Barre& barre, const QRectF& corps) const {
  pinceau.setBrush(Qt::NoBrush);
  if (barre.sansFin) {
    const double pointe = corps.height() / 2;
    const QPolygonF fleche{{corps.right() - pointe, corps.top()},
                           {corps.right(), corps.center().y()},
                           {corps.right() - pointe, corps.bottom()}};
    pinceau.setPen(QPen(palette().color(QPalette::Base), 1.5));
    pinceau.drawPolyline(fleche);
  }
  if (barre.chevauche) {
    pinceau.setPen(QPen(Alerte(), 2));
    pinceau.setBrush(QBrush(Alerte(), Qt::DiagCrossPattern));
    pinceau.drawRect(corps.adjusted(1, 1, -1, -1));
    pinceau.setBrush(Qt::NoBrush);
  }
  const bool choisie = barre.enMain || (!choisie_.empty() && barre.cle == choisie_);
  if (choisie) {
    pinceau.setPen(QPen(palette().color(QPalette::Text), 2));
    pinceau.drawRect(corps.adjusted(-1, -1, 1, 1));
  }
  QFont petite = font();
  petite.setPixelSize(std::max(static_cast<int>(corps.height()) - 2, 1));
  const bool plein = barre.etat == EtatContrat::EnCours && barre.certaine == barre.fin;
  const QString numero = QString::fromStdString(barre.cle).right(3);
  const bool tient = petite.pixelSize() >= 8 && plein && !barre.chevauche &&
                     QFontMetrics(petite).horizontalAdvance(numero) + 4 < corps.width();
  if (!tient) return;
  pinceau.save();
  pinceau.setFont(petite);
  pinceau.setPen(palette().color(QPalette::Active, QPalette::HighlightedText));
  pinceau.drawText(corps.adjusted(4, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, numero);
  pinceau.restore();
}

// The mouse.

void FriseContrats::mousePressEvent(QMouseEvent* evenement) {
  const Barre* const barre = BarreEn(evenement->pos());
  if (evenement->button() != Qt::LeftButton || barre == nullptr) return;
  emit choisi(QString::fromStdString(barre->cle));
}

void FriseContrats::mouseDoubleClickEvent(QMouseEvent* evenement) {
  const Barre* const barre = BarreEn(evenement->pos());
  if (evenement->button() != Qt::LeftButton || barre == nullptr) return;
  emit ouvert(QString::fromStdString(barre->cle));
}

bool FriseContrats::event(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip) return QWidget::event(evenement);
  const auto& aide = static_cast<QHelpEvent&>(*evenement);
  if (const Barre* const barre = BarreEn(aide.pos()); barre != nullptr && Infobulle) {
    QToolTip::showText(aide.globalPos(), Infobulle(*barre), this, Place(*barre));
  } else {
    QToolTip::showText(aide.globalPos(), NomEn(aide.pos()), this);
  }
  return true;
}

// The whole name of a band, which may have no room; empty elsewhere.
QString FriseContrats::NomEn(const QPoint& place) const {
  if (place.x() >= Cadre().left() || HauteurRang() < 2) return {};
  const int rang = static_cast<int>((place.y() - Cadre().top()) / HauteurRang());
  for (std::size_t i = 0; i < frise_.bandes.size(); ++i) {
    const control::Bande& bande = frise_.bandes[i];
    if (rang >= bande.rang && rang < bande.rang + bande.rangs) return noms_[i];
  }
  return {};
}
