#include "widget/apparence.h"

#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOptionFrame>
#include <algorithm>
#include <cmath>

#include "widget/lignes_listes.h"

namespace hote {

namespace {

constexpr const char* Caracteres = "caracteres";
constexpr const char* CaracteresMin = "caracteresMin";
constexpr const char* CaracteresMax = "caracteresMax";
constexpr const char* Rangees = "rangees";
constexpr const char* Colonne = "colonne";
constexpr const char* ChasseFixe = "chasseFixe";
// Beside the caption of a button, both sides together, in digits.
constexpr int AirBouton = 4;

// Relative luminance of an sRGB colour.
double luminance(const QColor& couleur) {
  const auto lineaire = [](double composante) {
    return composante <= 0.04045 ? composante / 12.92 : std::pow((composante + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) +
         0.0722 * lineaire(couleur.blueF());
}

QColor melanger(const QColor& texte, const QColor& fond, double part) {
  const auto entre = [part](int de, int vers) {
    return static_cast<int>(std::lround(de + (vers - de) * part));
  };
  return {entre(texte.red(), fond.red()), entre(texte.green(), fond.green()),
          entre(texte.blue(), fond.blue())};
}

int chiffres(const QFontMetrics& mesures, int nombre) {
  return mesures.horizontalAdvance(QString(nombre, '0'));
}

// One digit more than asked for, where the cursor stands.
int largeurSaisie(const QLineEdit& saisie, int caracteres) {
  QStyleOptionFrame option;
  option.initFrom(&saisie);
  option.lineWidth = saisie.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &saisie);
  const QSize texte(chiffres(saisie.fontMetrics(), caracteres + 1), saisie.fontMetrics().height());
  return saisie.style()->sizeFromContents(QStyle::CT_LineEdit, &option, texte, &saisie).width();
}

void dimensionner(QLineEdit& saisie) {
  const int exacte = saisie.property(Caracteres).toInt();
  const int moindre = saisie.property(CaracteresMin).toInt();
  if (exacte > 0) saisie.setFixedWidth(largeurSaisie(saisie, exacte));
  if (moindre > 0) saisie.setMinimumWidth(largeurSaisie(saisie, moindre));
}

// Rows of a list may stand in bold.
void dimensionner(QListWidget& liste) {
  QFont gras = liste.font();
  gras.setBold(true);
  const QFontMetrics mesures(gras);
  const int bords = 2 * (LigneListe::MargeDe(&liste) + liste.frameWidth());
  const int largeur = liste.property(Caracteres).toInt();
  const int largeurMax = liste.property(CaracteresMax).toInt();
  const int rangees = liste.property(Rangees).toInt();
  if (largeur > 0) liste.setMinimumWidth(chiffres(mesures, largeur) + bords);
  if (largeurMax > 0) liste.setMaximumWidth(chiffres(mesures, largeurMax) + bords);
  if (rangees == 0) return;
  liste.setMinimumHeight(rangees * LigneListe::Hauteur(liste.fontMetrics()) +
                         2 * liste.frameWidth());
}

class Apparence : public QObject {
 public:
  explicit Apparence(QWidget& racine) : QObject(&racine), racine_(racine) {
    for (auto* const liste : racine.findChildren<QListWidget*>()) {
      liste->setItemDelegate(new LigneListe(liste));
    }
    Colorer();
    Dimensionner();
    racine.installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* evenement) override {
    if (evenement->type() == QEvent::PaletteChange) Colorer();
    if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::StyleChange) {
      Dimensionner();
    }
    return false;
  }

 private:
  // Only what is changed is set, so that the rest goes on following the host.
  void Colorer() {
    const QPalette actuelle = racine_.palette();
    const auto active = [&](QPalette::ColorRole role) {
      return actuelle.color(QPalette::Active, role);
    };
    QPalette palette;
    bool change = false;
    const auto regler = [&](QPalette::ColorRole role, QPalette::ColorRole fond,
                            QPalette::ColorRole autre) {
      const QColor couleur = attenuer(active(role), {active(fond), active(autre)});
      change = change || actuelle.color(QPalette::Disabled, role) != couleur;
      palette.setColor(QPalette::Disabled, role, couleur);
    };
    regler(QPalette::Text, QPalette::Base, QPalette::Window);
    regler(QPalette::WindowText, QPalette::Window, QPalette::Base);
    regler(QPalette::ButtonText, QPalette::Button, QPalette::Window);
    if (change) racine_.setPalette(palette);
  }

  void Dimensionner() {
    QMap<QString, int> colonnes;
    const auto etiquettes = racine_.findChildren<QLabel*>();
    for (const QLabel* const etiquette : etiquettes) {
      int& largeur = colonnes[etiquette->property(Colonne).toString()];
      largeur = std::max(largeur, etiquette->sizeHint().width());
    }
    for (QLabel* const etiquette : etiquettes) {
      const QString colonne = etiquette->property(Colonne).toString();
      const int chiffre = etiquette->property(Caracteres).toInt();
      if (!colonne.isEmpty()) etiquette->setMinimumWidth(colonnes[colonne]);
      if (chiffre > 0) etiquette->setMinimumWidth(chiffres(etiquette->fontMetrics(), chiffre + 1));
    }
    for (auto* const saisie : racine_.findChildren<QLineEdit*>()) dimensionner(*saisie);
    for (auto* const bouton : racine_.findChildren<QPushButton*>()) {
      const QFontMetrics mesures = bouton->fontMetrics();
      const int texte = mesures.horizontalAdvance(bouton->text()) + chiffres(mesures, AirBouton);
      bouton->setMinimumWidth(
          std::max(texte, chiffres(mesures, bouton->property(Caracteres).toInt())));
    }
    for (auto* const liste : racine_.findChildren<QListWidget*>()) dimensionner(*liste);
    for (auto* const combo : racine_.findChildren<QComboBox*>()) {
      const int largeurMax = combo->property(CaracteresMax).toInt();
      if (largeurMax > 0) combo->setMaximumWidth(chiffres(combo->fontMetrics(), largeurMax));
    }
    QFont fixe = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixe.setPointSizeF(racine_.font().pointSizeF());
    for (auto* const texte : racine_.findChildren<QPlainTextEdit*>()) {
      if (texte->property(ChasseFixe).toBool()) texte->setFont(fixe);
    }
  }

  QWidget& racine_;
};

}  // namespace

double contraste(const QColor& a, const QColor& b) {
  const auto [sombre, clair] = std::minmax({luminance(a), luminance(b)});
  return (clair + 0.05) / (sombre + 0.05);
}

QColor attenuer(const QColor& texte, std::initializer_list<QColor> fonds) {
  for (int centiemes = 60; centiemes > 0; --centiemes) {
    const QColor couleur = melanger(texte, *fonds.begin(), centiemes / 100.0);
    const bool lisible = std::all_of(fonds.begin(), fonds.end(), [&](const QColor& fond) {
      return contraste(couleur, fond) >= ContrasteLisible;
    });
    if (lisible) return couleur;
  }
  return texte;
}

void appliquerApparence(QWidget& racine) {
  new Apparence(racine);
}

}  // namespace hote
