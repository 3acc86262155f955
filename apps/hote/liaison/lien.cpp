#include "liaison/lien.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <array>
#include <utility>

#include "liaison/consultation.h"
#include "liaison/liaison.h"
#include "liaison/textes_qt.h"
#include "screen/animation.h"
#include "screen/form.h"
#include "screen/touches.h"

namespace hote {

namespace {

// A label, whose text is data as often as a caption.
class LienEtiquette : public Lien {
 public:
  using Lien::Lien;

 protected:
  void PousserEtat() override {
    auto& etiquette = static_cast<QLabel&>(Widget());
    const QString texte = versQt(Champ().Libelle());
    if (etiquette.text() == texte) return;
    etiquette.setTextFormat(Qt::PlainText);
    etiquette.setText(texte);
    // One that takes what room is left may show the beginning only.
    const auto place = etiquette.sizePolicy().horizontalPolicy();
    if (place == QSizePolicy::Ignored) etiquette.setToolTip(texte.toHtmlEscaped());
  }
};

// A bar that runs to and fro while its animation is active: the toolkit's sign of work whose end is
// not known.
class LienAnimation : public Lien {
 public:
  LienAnimation(Liaison& liaison, screen::Animation& champ, QProgressBar& barre)
      : Lien(liaison, champ, barre), modele_(champ), barre_(barre) {}

 protected:
  void PousserEtat() override {
    const int etendue = modele_.Active() ? 0 : 1;
    if (barre_.maximum() != etendue) barre_.setRange(0, etendue);
  }

 private:
  screen::Animation& modele_;
  QProgressBar& barre_;
};

// The page of a tab, in the area in which it scrolls.
bool estPage(const QWidget& widget) {
  const QWidget* const vue = widget.parentWidget();
  const auto* const zone =
      vue == nullptr ? nullptr : qobject_cast<const QScrollArea*>(vue->parentWidget());
  return zone != nullptr && zone->widget() == &widget && zone->parentWidget() != nullptr &&
         qobject_cast<const QTabWidget*>(zone->parentWidget()->parentWidget()) != nullptr;
}

// A frame: a box with a caption, a plain one, or the page of a tab, which the tabs show and hide.
class LienCadre : public Lien {
 public:
  LienCadre(Liaison& liaison, screen::Field& champ, QWidget& widget)
      : Lien(liaison, champ, widget),
        boite_(qobject_cast<QGroupBox*>(&widget)),
        page_(estPage(widget)) {}

 protected:
  void PousserEtat() override {
    const QString texte = versQt(Champ().Libelle());
    if (boite_ != nullptr && boite_->title() != texte) boite_->setTitle(texte);
  }
  void PousserDisponibilite() override {
    if (!page_) return Lien::PousserDisponibilite();
    const bool bloquee = Widget().testAttribute(Qt::WA_ForceDisabled);
    if (Champ().Enabled() == bloquee) Widget().setEnabled(Champ().Enabled());
  }

 private:
  QGroupBox* boite_;
  bool page_;
};

class LienOnglets : public Lien {
 public:
  LienOnglets(Liaison& liaison, screen::TabStrip& champ, QTabWidget& onglets)
      : Lien(liaison, champ, onglets), modele_(champ), onglets_(onglets) {
    onglets_.tabBar()->setFocusPolicy(Qt::StrongFocus);
    onglets_.installEventFilter(this);
    connect(&onglets_, &QTabWidget::currentChanged, this, [this](int onglet) {
      // Into the page that a screen reader shows comes the focus that stood on the one before.
      Binder().OublierFocus(onglets_);
      Binder().Jouer([&](screen::User& user) { user.Onglet(modele_, onglet); });
    });
  }
  QWidget& CibleFocus() override { return *onglets_.tabBar(); }
  // A page that shows or hides a field lays itself out anew and asks the tabs to do so too, which
  // then paint all that stands in them: for nothing, as long as they need no other size.
  bool eventFilter(QObject* /*objet*/, QEvent* evenement) override {
    if (evenement->type() != QEvent::LayoutRequest) return false;
    const std::array<QSize, 3> tailles{onglets_.minimumSizeHint(), onglets_.sizeHint(),
                                       onglets_.tabBar()->sizeHint()};
    return std::exchange(tailles_, tailles) == tailles;
  }

 protected:
  void PousserEtat() override {
    const auto& titres = modele_.Onglets();
    for (int i = 0; i < onglets_.count() && i < static_cast<int>(titres.size()); ++i) {
      const QString titre = versQt(titres[static_cast<std::size_t>(i)]);
      if (onglets_.tabText(i) != titre) onglets_.setTabText(i, titre);
    }
    if (onglets_.currentIndex() != modele_.Tab()) onglets_.setCurrentIndex(modele_.Tab());
  }
  // The pages have an availability of their own.
  void PousserDisponibilite() override {
    QTabBar& barre = *onglets_.tabBar();
    if (barre.isEnabled() != modele_.Enabled()) barre.setEnabled(modele_.Enabled());
    if (onglets_.isHidden() == modele_.Visible()) onglets_.setVisible(modele_.Visible());
  }

 private:
  screen::TabStrip& modele_;
  QTabWidget& onglets_;
  std::array<QSize, 3> tailles_;
};

// A bar or a pair of arrows: both hold a number between two bounds.
template <typename Plage>
class LienPlage : public Lien {
 public:
  LienPlage(Liaison& liaison, screen::RangeField& champ, Plage& plage)
      : Lien(liaison, champ, plage), modele_(champ), plage_(plage) {
    connect(&plage_, &Plage::valueChanged, this, [this](int valeur) {
      Binder().Jouer([&](screen::User& user) { user.Barre(modele_, valeur); });
    });
  }

 protected:
  void PousserEtat() override {
    const int min = std::min(modele_.Min(), modele_.Max());
    const int max = std::max(modele_.Min(), modele_.Max());
    if (plage_.minimum() != min || plage_.maximum() != max) plage_.setRange(min, max);
    if (plage_.value() != modele_.Value()) plage_.setValue(modele_.Value());
  }

 private:
  screen::RangeField& modele_;
  Plage& plage_;
};

// A pair of arrows. Qt puts a number before them, which no field of the model has: nothing is typed
// into it.
class LienFleches : public LienPlage<QSpinBox> {
 public:
  LienFleches(Liaison& liaison, screen::RangeField& champ, QSpinBox& fleches)
      : LienPlage(liaison, champ, fleches) {
    if (auto* const nombre = fleches.findChild<QLineEdit*>()) nombre->setReadOnly(true);
  }

 protected:
  void PousserDisponibilite() override {
    LienPlage::PousserDisponibilite();
    Widget().setEnabled(Champ().Enabled() && !Fige());
  }
};

}  // namespace

bool Lien::Fige() const {
  return liaison_.Consultation() && !widget_.property(ProprieteConsultable).toBool();
}

void Lien::Pousser() {
  PousserEtat();
  PousserDisponibilite();
}

// The widget's own flags are compared: those that count its parents change with them.
void Lien::PousserDisponibilite() {
  const bool bloque = widget_.testAttribute(Qt::WA_ForceDisabled);
  if (champ_.Enabled() == bloque) widget_.setEnabled(champ_.Enabled());
  if (widget_.isHidden() == champ_.Visible()) widget_.setVisible(champ_.Visible());
}

std::unique_ptr<Lien> creerLien(Liaison& liaison, screen::Field& champ, QWidget& widget) {
  using screen::Kind;
  switch (champ.Genre()) {
    case Kind::Texte:
      return creerLienSaisie(liaison, champ, widget);
    case Kind::Deroulante:
    case Kind::Liste:
      return creerLienLignes(liaison, champ, widget);
    case Kind::Bouton:
    case Kind::Option:
    case Kind::Case:
      return creerLienBouton(liaison, champ, widget);
    case Kind::Cadre:
      return std::make_unique<LienCadre>(liaison, champ, widget);
    case Kind::Etiquette:
      if (qobject_cast<QLabel*>(&widget) == nullptr) return nullptr;
      return std::make_unique<LienEtiquette>(liaison, champ, widget);
    case Kind::Image:
      if (auto* animation = dynamic_cast<screen::Animation*>(&champ)) {
        auto* barre = qobject_cast<QProgressBar*>(&widget);
        if (barre == nullptr) return nullptr;
        return std::make_unique<LienAnimation>(liaison, *animation, *barre);
      }
      return std::make_unique<Lien>(liaison, champ, widget);
    case Kind::Onglets:
      if (auto* onglets = qobject_cast<QTabWidget*>(&widget)) {
        return std::make_unique<LienOnglets>(liaison, static_cast<screen::TabStrip&>(champ),
                                             *onglets);
      }
      return nullptr;
    case Kind::UpDown:
      if (auto* fleches = qobject_cast<QSpinBox*>(&widget)) {
        return std::make_unique<LienFleches>(liaison, static_cast<screen::RangeField&>(champ),
                                             *fleches);
      }
      return nullptr;
    case Kind::Barre:
      if (auto* barre = qobject_cast<QScrollBar*>(&widget)) {
        return std::make_unique<LienPlage<QScrollBar>>(
            liaison, static_cast<screen::RangeField&>(champ), *barre);
      }
      return nullptr;
    case Kind::Menu:
      return nullptr;
  }
  return nullptr;
}

std::vector<screen::Field*> colonnesDe(const screen::Field& champ) {
  std::vector<screen::Field*> listes;
  bool barre = false;
  for (screen::Field* const voisin : champ.Forme().Fields()) {
    if (voisin->Cadre() != champ.Cadre()) continue;
    barre = barre || voisin->Genre() == screen::Kind::Barre;
    if (voisin->Genre() == screen::Kind::Liste) listes.push_back(voisin);
  }
  return barre ? listes : std::vector<screen::Field*>();
}

char32_t toucheDe(const QKeyEvent& evenement) {
  switch (evenement.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return screen::ToucheEntree;
    case Qt::Key_Backspace:
      return screen::ToucheRetour;
    default:
      break;
  }
  // Alt alone asks for an access key and Ctrl alone for a command, whatever text comes with them;
  // both are the third level of a French keyboard.
  const bool alt = evenement.modifiers().testFlag(Qt::AltModifier);
  if (alt != evenement.modifiers().testFlag(Qt::ControlModifier)) return 0;
  const QList<uint> points = evenement.text().toUcs4();
  return points.size() == 1 && screen::estCaractere(points.front()) ? points.front() : 0;
}

bool appelleUnAcces(const QKeyEvent& evenement) {
  return evenement.modifiers().testFlag(Qt::AltModifier) &&
         !evenement.modifiers().testFlag(Qt::ControlModifier) && !evenement.text().isEmpty();
}

char32_t filtrerTouche(Liaison& liaison, screen::Field& champ, const screen::KeyHandler& filtre,
                       char32_t touche, const QString& horsSelection) {
  if (!filtre) return touche;
  char32_t gardee = 0;
  const std::string reste = versModele(horsSelection);
  liaison.Jouer([&](screen::User& user) { gardee = user.Filtrer(champ, touche, reste); });
  return gardee;
}

QString filtrerTexte(Liaison& liaison, screen::Field& champ, const screen::KeyHandler& filtre,
                     const QString& texte, const QString& horsSelection) {
  if (!filtre) return texte;
  QString garde;
  for (const uint point : texte.toUcs4()) {
    const char32_t touche = filtrerTouche(liaison, champ, filtre, point, horsSelection + garde);
    if (screen::estCaractere(touche)) garde += versQt(screen::texteDe(touche));
  }
  return garde;
}

}  // namespace hote
