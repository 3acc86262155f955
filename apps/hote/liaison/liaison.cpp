#include "liaison/liaison.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <utility>

#include "liaison/bureau.h"
#include "liaison/lien.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

// Counts up for the time of a scope, if the object that counts lives that long.
class Compte {
 public:
  Compte(QObject& hote, int& compteur) : hote_(&hote), compteur_(compteur) { ++compteur_; }
  ~Compte() {
    if (hote_) --compteur_;
  }
  Compte(const Compte&) = delete;
  Compte& operator=(const Compte&) = delete;

 private:
  QPointer<QObject> hote_;
  int& compteur_;
};

// The letters that a host's menu bar has.
QSet<QChar> lettresDuMenu(const QWidget& racine) {
  QSet<QChar> lettres;
  const auto* const fenetre = qobject_cast<const QMainWindow*>(racine.window());
  const QWidget* const barre = fenetre == nullptr ? nullptr : fenetre->menuWidget();
  if (barre == nullptr) return lettres;
  for (const QAction* const menu : barre->actions()) {
    const QString texte = menu->text();
    const qsizetype marque = texte.indexOf(u'&');
    if (marque >= 0 && marque + 1 < texte.size()) lettres.insert(texte[marque + 1].toLower());
  }
  return lettres;
}

}  // namespace

GroupeOptions::GroupeOptions(QObject* parent) : groupe_(new QButtonGroup(parent)) {}

void GroupeOptions::Ajouter(QAbstractButton& option) {
  groupe_->addButton(&option);
}

void GroupeOptions::Eteindre(QAbstractButton& option) {
  groupe_->setExclusive(false);
  option.setChecked(false);
  groupe_->setExclusive(true);
}

Liaison::Liaison(screen::Form& forme, QWidget& racine, Bureau& bureau)
    : forme_(forme),
      racine_(racine),
      bureau_(bureau),
      user_(forme),
      mnemoniques_(forme, lettresDuMenu(racine)) {
  Lier();
  LierListes();
  bureau_.Inscrire(*this);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* arrivee) { NoterFocus(arrivee); });
  qApp->installEventFilter(this);
  Pousser();
}

Liaison::~Liaison() {
  bureau_.Retirer(*this);
}

void Liaison::Lier() {
  QWidget* precedent = nullptr;
  for (screen::Field* const champ : forme_.Fields()) {
    auto* const widget = racine_.findChild<QWidget*>(nomDuWidget(champ->Nom()));
    if (widget == nullptr) continue;
    const Compte pousse(*this, poussees_);
    auto lien = creerLien(*this, *champ, *widget);
    if (lien == nullptr) continue;
    parWidget_[widget] = lien.get();
    parChamp_[champ] = lien.get();
    if (champ->Focalisable()) {
      // The wheel moves the keyboard no more than it turns a value.
      QWidget& cible = lien->CibleFocus();
      if (cible.focusPolicy() == Qt::WheelFocus) cible.setFocusPolicy(Qt::StrongFocus);
      if (precedent != nullptr) QWidget::setTabOrder(precedent, &cible);
      precedent = &cible;
    }
    liens_.push_back(std::move(lien));
  }
}

// Lists that stand in one frame with a bar are the columns of one table: they scroll as one, and
// the bar replaces their own.
void Liaison::LierListes() {
  for (const auto& barre : liens_) {
    if (barre->Champ().Genre() != screen::Kind::Barre) continue;
    std::vector<QListWidget*> colonnes;
    for (const screen::Field* const champ : colonnesDe(barre->Champ())) {
      const auto lien = parChamp_.find(champ);
      if (lien == parChamp_.end()) continue;
      colonnes.push_back(static_cast<QListWidget*>(&lien->second->Widget()));
    }
    for (QListWidget* const colonne : colonnes) {
      colonne->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
      connect(colonne->verticalScrollBar(), &QScrollBar::valueChanged, this, [colonnes](int haut) {
        for (QListWidget* const autre : colonnes) autre->verticalScrollBar()->setValue(haut);
      });
    }
  }
}

bool Liaison::Consultation() const {
  for (const char* const nom : {"Cmd_OK", "Cmd_Ok"}) {
    if (const screen::Field* const bouton = forme_.Find(nom)) return !bouton->Visible();
  }
  return false;
}

GroupeOptions& Liaison::Groupe(const screen::Frame* cadre) {
  return groupes_.try_emplace(cadre, this).first->second;
}

Lien* Liaison::LienDe(const QWidget* widget) const {
  for (; widget != nullptr && widget != &racine_; widget = widget->parentWidget()) {
    if (Lien* const lien = parWidget_.value(widget)) return lien;
    if (widget->isWindow()) return nullptr;
  }
  return nullptr;
}

// What stands in the part of a hosted control is that control's own.
bool Liaison::Contient(const QWidget& widget) const {
  for (const QWidget* w = &widget; w != &racine_; w = w->parentWidget()) {
    if (w == nullptr || w->isWindow() || w->property(ProprieteHebergee).isValid()) return false;
  }
  return true;
}

// Boxes, popups and the host's own widgets are none of the form's focus changes.
void Liaison::NoterFocus(QWidget* arrivee) {
  if (poussees_ > 0 || arrivee == nullptr || !Contient(*arrivee)) return;
  if (Lien* const lien = LienDe(arrivee); lien != nullptr && lien->Champ().Focalisable()) {
    Attendre(*lien);
  }
}

void Liaison::Attendre(Lien& lien) {
  if (&lien.Champ() == forme_.Active()) {
    enAttente_ = nullptr;
    return;
  }
  enAttente_ = &lien;
  QTimer::singleShot(0, this, [this] { Drainer(); });
}

void Liaison::OublierFocus(const QWidget& partie) {
  if (enAttente_ != nullptr && partie.isAncestorOf(&enAttente_->Widget())) enAttente_ = nullptr;
}

bool Liaison::Drainer() {
  if (enAttente_ == nullptr) return true;
  screen::Field& champ = std::exchange(enAttente_, nullptr)->Champ();
  // During long work the keyboard stays: the push at its end puts it back.
  if (!forme_.Enabled()) return false;
  if (&champ == forme_.Active()) return true;
  const QPointer<Liaison> la(this);
  const unsigned long interruptions = screen::Form::Interruptions();
  const unsigned long menus = bureau_.Menus();
  bool entre = false;
  {
    const Compte occupe(*this, occupation_);
    Conclure();
    bureau_.Proteger([&] { entre = user_.Focus(champ) == screen::Acte::Fait; });
  }
  if (!la) return false;
  Apres();
  if (la) Selectionner(interruptions);
  return la && entre && interruptions == screen::Form::Interruptions() &&
         menus == bureau_.Menus() && forme_.Active() == &champ;
}

void Liaison::Conclure() {
  const auto actif = parChamp_.find(forme_.Active());
  if (actif == parChamp_.end()) return;
  Lien& lien = *actif->second;
  bureau_.Proteger([&] { lien.Conclure(user_); });
}

bool Liaison::Jouer(const std::function<void(screen::User&)>& acte) {
  if (poussees_ > 0) return false;
  const QPointer<Liaison> la(this);
  const bool libre = Drainer();
  if (!la) return false;
  const unsigned long interruptions = screen::Form::Interruptions();
  if (libre) {
    const Compte occupe(*this, occupation_);
    bureau_.Proteger([&] { acte(user_); });
  }
  if (la) Apres();
  if (la) Selectionner(interruptions);
  return libre;
}

void Liaison::Selectionner(unsigned long interruptions) {
  if (interruptions == screen::Form::Interruptions()) return;
  const auto actif = parChamp_.find(forme_.Active());
  if (actif == parChamp_.end()) return;
  if (auto* const ligne = qobject_cast<QLineEdit*>(&actif->second->CibleFocus())) {
    ligne->selectAll();
  }
}

void Liaison::Apres() {
  bureau_.PousserTout();
}

void Liaison::Pousser() {
  {
    const Compte pousse(*this, poussees_);
    for (const auto& lien : liens_) lien->Pousser();
    PousserTitre();
  }
  if (!forme_.Visible()) {
    emit formeCachee();
    return;
  }
  PousserFocus();
  emit poussee();
}

void Liaison::PousserTitre() {
  if (!racine_.isWindow() || forme_.Titre().empty()) return;
  const QString titre = (aEnregistrer_ ? "* " : "") + versQt(forme_.Titre());
  if (racine_.windowTitle() != titre) racine_.setWindowTitle(titre);
}

void Liaison::Marquer(bool aEnregistrer) {
  if (aEnregistrer == aEnregistrer_) return;
  aEnregistrer_ = aEnregistrer;
  PousserTitre();
}

// The toolkit's focus follows the model's. Where the model has none, the field in which the toolkit
// stands will be entered.
void Liaison::PousserFocus() {
  QWidget* const focus = racine_.focusWidget();
  if (forme_.Active() == nullptr) {
    Lien* const lien = focus == nullptr || !focus->hasFocus() ? nullptr : LienDe(focus);
    if (lien != nullptr && lien != enAttente_ && lien->Champ().Focalisable() &&
        lien->Champ().Accessible()) {
      Attendre(*lien);
    }
    return;
  }
  const auto trouve = parChamp_.find(forme_.Active());
  if (trouve == parChamp_.end() || enAttente_ != nullptr) return;
  QWidget& cible = trouve->second->CibleFocus();
  if (focus != nullptr && LienDe(focus) == trouve->second) return;
  if (!cible.isEnabled() || !cible.isVisibleTo(&racine_)) return;
  const Compte pousse(*this, poussees_);
  cible.setFocus(Qt::TabFocusReason);
  for (QWidget* parent = cible.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
    if (auto* const zone = qobject_cast<QScrollArea*>(parent)) zone->ensureWidgetVisible(&cible);
  }
}

QStringList Liaison::Ecarts() const {
  static const QRegularExpression nomDeChamp(
      "^(Txt|Cbo|Lst|Cmd|Opt|Cac|Chk|Cdr|Fra|Etq|Lbl|Ong|Bd[hv]|VS|Img|Pic|Ani)_");
  QStringList ecarts;
  for (const screen::Field* const champ : forme_.Fields()) {
    if (champ->Genre() != screen::Kind::Menu && parChamp_.count(champ) == 0) {
      ecarts << "field without its widget: " + versQt(champ->Nom());
    }
  }
  for (const QWidget* const widget : racine_.findChildren<QWidget*>()) {
    if (nomDeChamp.match(widget->objectName()).hasMatch() && !parWidget_.contains(widget)) {
      ecarts << "widget without its field: " + widget->objectName();
    }
  }
  return ecarts;
}

}  // namespace hote
