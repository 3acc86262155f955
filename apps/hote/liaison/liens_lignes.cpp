// Lists and drop-downs.

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "data/texte.h"
#include "liaison/combo_deroulante.h"
#include "liaison/consultation.h"
#include "liaison/liaison.h"
#include "liaison/lien.h"
#include "liaison/textes_qt.h"
#include "screen/touches.h"

namespace hote {

namespace {

class LienListe : public Lien {
 public:
  LienListe(Liaison& liaison, screen::ListBox& champ, QListWidget& liste)
      : Lien(liaison, champ, liste), modele_(champ), liste_(liste) {
    liste_.setSelectionMode(QAbstractItemView::SingleSelection);
    liste_.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    // Lists in step look like one row only if those without the keyboard show it as strongly.
    QPalette palette = liste_.palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
      palette.setBrush(QPalette::Inactive, role, palette.brush(QPalette::Active, role));
    }
    liste_.setPalette(palette);
    connect(&liste_, &QListWidget::itemSelectionChanged, this, [this] {
      choisie_ = true;
      const auto choix = liste_.selectionModel()->selectedRows();
      if (!choix.isEmpty()) return Choisir(choix.front().row());
      // No act of the model leaves a list without a row: what it holds is shown again.
      Binder().Jouer([](screen::User&) {});
    });
    // A click on the row that is selected already is a choice too.
    connect(&liste_, &QListWidget::clicked, this, [this](const QModelIndex& index) {
      if (!choisie_) Choisir(index.row());
    });
    connect(&liste_, &QListWidget::doubleClicked, this, [this](const QModelIndex& index) {
      choisie_ = true;
      if (Fige()) return;
      const int ligne = index.row();
      Binder().Jouer([&](screen::User& user) { user.DoubleCliquer(modele_, ligne); });
    });
  }
  bool Pression(const QWidget& ou, const QMouseEvent& evenement) override {
    choisie_ = false;
    return &ou == liste_.viewport() && evenement.button() != Qt::LeftButton;
  }
  bool Touche(QKeyEvent& evenement) override {
    const char32_t touche = toucheDe(evenement);
    if (touche == screen::ToucheEntree) {
      if (!evenement.isAutoRepeat() && !Fige()) Entrer();
      return true;
    }
    if (touche != 0)
      return filtrerTouche(Binder(), modele_, modele_.KeyPress, touche, {}) != touche;
    return ChangerColonne(evenement.key()) || (modele_.ListIndex() < 0 && Entamer(evenement.key()));
  }

 protected:
  void PousserEtat() override {
    // The rows stand on the page then; they are chosen to be read on, not opened or taken out.
    liste_.viewport()->setAutoFillBackground(!Fige());
    if (modele_.Rows() != poussees_) Remplir();
    const auto choix = liste_.selectionModel()->selectedRows();
    const int ligne = choix.isEmpty() ? -1 : choix.front().row();
    if (ligne == modele_.ListIndex()) return;
    if (modele_.ListIndex() < 0) {
      liste_.setCurrentRow(-1);
      liste_.clearSelection();
      return;
    }
    liste_.setCurrentRow(modele_.ListIndex());
    liste_.scrollToItem(liste_.currentItem());
  }

 private:
  // A row that a double click opens is opened by Enter too, unless the list has keys of its own: a
  // clerk without a mouse gets everywhere.
  void Entrer() {
    Binder().Jouer([this](screen::User& user) {
      if (modele_.KeyPress || !modele_.DblClick || modele_.ListIndex() < 0) {
        user.Touche(modele_, screen::ToucheEntree);
      } else {
        user.DoubleCliquer(modele_, modele_.ListIndex());
      }
    });
  }
  // The arrows to the sides go through the columns of a table.
  bool ChangerColonne(int cle) {
    if (cle != Qt::Key_Left && cle != Qt::Key_Right) return false;
    auto colonnes = colonnesDe(modele_);
    if (cle == Qt::Key_Left) std::reverse(colonnes.begin(), colonnes.end());
    const auto ici = std::find(colonnes.begin(), colonnes.end(), &modele_);
    if (ici == colonnes.end()) return false;
    const auto voisine = std::find_if(ici + 1, colonnes.end(), [](const screen::Field* colonne) {
      return colonne->Disponible();
    });
    if (voisine == colonnes.end()) return true;
    screen::Field& cible = **voisine;
    Binder().Jouer([&](screen::User& user) { user.Focus(cible); });
    return true;
  }
  // The first arrow in a list without a row: Qt would go on from a row that it has not selected.
  bool Entamer(int cle) {
    static constexpr int Fleches[] = {Qt::Key_Down, Qt::Key_Up,       Qt::Key_Home,
                                      Qt::Key_End,  Qt::Key_PageDown, Qt::Key_PageUp};
    if (std::find(std::begin(Fleches), std::end(Fleches), cle) == std::end(Fleches)) return false;
    if (modele_.ListCount() > 0) Choisir(cle == Qt::Key_End ? modele_.ListCount() - 1 : 0);
    return true;
  }
  void Choisir(int ligne) {
    Binder().Jouer([&](screen::User& user) { user.Choisir(modele_, ligne); });
  }
  void Remplir() {
    poussees_ = modele_.Rows();
    liste_.clear();
    liste_.addItems(versQt(poussees_));
    liste_.doItemsLayout();
  }

  screen::ListBox& modele_;
  QListWidget& liste_;
  std::vector<std::string> poussees_;
  // The press under way has changed the selection.
  bool choisie_ = false;
};

class LienDeroulante : public Lien {
 public:
  LienDeroulante(Liaison& liaison, screen::ComboBox& champ, ComboDeroulante& combo)
      : Lien(liaison, champ, combo),
        modele_(champ),
        combo_(combo),
        toutes_(combo.property("toutes").toString()) {
    combo_.setEditable(champ.Saisie() && toutes_.isEmpty());
    combo_.setInsertPolicy(QComboBox::NoInsert);
    combo_.clear();
    if (QLineEdit* const ligne = combo_.lineEdit()) {
      combo_.setCompleter(nullptr);
      // The combo answers the end of an edit with a choice that nobody made.
      QObject::disconnect(ligne, SIGNAL(editingFinished()), &combo_, nullptr);
      longueurQt_ = ligne->maxLength();
      connect(ligne, &QLineEdit::textEdited, this,
              [this](const QString& texte) { Transmettre(texte); });
    }
    connect(&combo_, &QComboBox::activated, this, [this](int rang) {
      const int ligne = rang - Tete();
      Binder().Jouer([&](screen::User& user) {
        ligne < 0 ? user.Taper(modele_, "") : user.Choisir(modele_, ligne);
      });
    });
    connect(&combo_, &ComboDeroulante::aboutToShowPopup, this, [this] {
      if (!Derouler()) combo_.RefuserOuverture();
    });
  }
  bool Touche(QKeyEvent& evenement) override {
    if (Fige()) return false;
    if (evenement.key() == Qt::Key_Escape) return Renoncer();
    const char32_t touche = toucheDe(evenement);
    if (touche == 0) return Garnir(evenement.key());
    if (touche == screen::ToucheEntree) {
      Entrer();
      return true;
    }
    if (screen::estCaractere(touche) && modele_.Text().empty()) Garnir(Qt::Key_Down);
    const char32_t gardee = filtrerTouche(Binder(), modele_, modele_.KeyPress, touche, {});
    if (gardee == touche) return false;
    QLineEdit* const ligne = combo_.lineEdit();
    if (ligne != nullptr && screen::estCaractere(gardee)) {
      ligne->insert(versQt(screen::texteDe(gardee)));
    }
    return true;
  }
  QString Filtrer(const QString& texte) override {
    return filtrerTexte(Binder(), modele_, modele_.KeyPress, texte, {});
  }
  void Conclure(screen::User& user) override {
    const int ligne = std::exchange(proposee_, -1);
    if (ligne >= 0 && modele_.Text() == versModele(tape_)) user.Choisir(modele_, ligne);
  }

 protected:
  void PousserEtat() override {
    SuivreEntree();
    QLineEdit* const ligne = combo_.lineEdit();
    if (proposee_ >= 0 && modele_.Rows() == poussees_ && modele_.Text() == versModele(tape_)) {
      return;
    }
    proposee_ = -1;
    // New rows and another row rewrite the text on their way.
    const int curseur = ligne == nullptr ? 0 : ligne->cursorPosition();
    if (modele_.Rows() != poussees_) Remplir();
    const bool toutes = Tete() > 0 && modele_.Text().empty();
    const int rang = toutes ? 0 : modele_.ListIndex() < 0 ? -1 : modele_.ListIndex() + Tete();
    if (combo_.currentIndex() != rang) combo_.setCurrentIndex(rang);
    combo_.Figer(Fige());
    const QString texte = versQt(modele_.Text());
    if (ligne == nullptr) {
      // A text that is none of the rows. Setting it lays the window out anew: not for every row.
      const bool horsLignes = rang < 0 && combo_.placeholderText() != texte;
      if (!horsLignes) return;
      combo_.setPlaceholderText(texte);
      // An empty one makes the toolkit choose the first row.
      combo_.setCurrentIndex(-1);
      return;
    }
    montrerConsultation(*ligne, Fige());
    const int limite = modele_.Longueur() > 0 ? modele_.Longueur() : longueurQt_;
    const int longueur = std::max(limite, static_cast<int>(texte.size()));
    if (ligne->maxLength() != longueur) ligne->setMaxLength(longueur);
    if (ligne->text() != texte) ligne->setText(texte);
    // A text that is longer than its field shows its beginning.
    const bool dedans = modele_.Forme().Active() == &modele_;
    const int place = dedans ? std::min(curseur, static_cast<int>(texte.size())) : 0;
    if (ligne->cursorPosition() != place) ligne->setCursorPosition(place);
  }

 private:
  void Transmettre(const QString& texte) {
    const bool efface = versQt(modele_.Text()).startsWith(texte);
    proposee_ = -1;
    frappe_ = true;
    const QPointer<QLineEdit> ligne(combo_.lineEdit());
    Binder().Jouer([&](screen::User& user) { user.Coller(modele_, versModele(texte)); });
    if (ligne && !efface && ligne->text() == texte && ligne->cursorPosition() == texte.size()) {
      Proposer(*ligne, texte);
    }
  }
  // A list that answers Enter searches by what was typed: what it has found is shown, as long as
  // there is something to choose.
  void Entrer() {
    if (!modele_.KeyPress) return void(Binder().Jouer([&](screen::User& user) { Conclure(user); }));
    proposee_ = -1;
    const unsigned long interruptions = screen::Form::Interruptions();
    const QPointer<ComboDeroulante> combo(&combo_);
    Binder().Jouer([&](screen::User& user) { user.Touche(modele_, screen::ToucheEntree); });
    const bool trouve = combo && modele_.ListCount() > 1 && modele_.ListIndex() < 0 &&
                        modele_.Forme().Active() == &modele_ &&
                        screen::Form::Interruptions() == interruptions;
    if (trouve) combo_.QComboBox::showPopup();
  }
  // The first row that begins with what was typed stands behind it, selected: the next key replaces
  // it, leaving the field chooses it. The model has what was typed until then.
  void Proposer(QLineEdit& ligne, const QString& tape) {
    const std::string debut = data::plier(versModele(tape));
    for (int rang = 0; rang < modele_.ListCount(); ++rang) {
      const std::string& entier = poussees_[static_cast<std::size_t>(rang)];
      const QString libelle = versQt(entier);
      if (libelle.size() <= tape.size() || !data::plier(entier).starts_with(debut)) continue;
      proposee_ = rang;
      tape_ = tape;
      ligne.setText(tape + libelle.mid(tape.size()));
      ligne.setSelection(static_cast<int>(libelle.size()),
                         static_cast<int>(tape.size() - libelle.size()));
      return;
    }
  }
  // The first Esc takes back what was proposed, the next one what was typed and is no row; then
  // the key is the window's.
  bool Renoncer() {
    if (proposee_ >= 0) {
      proposee_ = -1;
      combo_.lineEdit()->setText(tape_);
      return true;
    }
    const std::vector<std::string>& rangs = modele_.Rows();
    if (!frappe_ || modele_.ListIndex() >= 0 || modele_.Text() == entree_) return false;
    frappe_ = false;
    const auto place = std::find(rangs.begin(), rangs.end(), entree_);
    const bool rangee = place != rangs.end();
    const int ligne = static_cast<int>(place - rangs.begin());
    // A search has other rows by now: what the field held cannot be chosen again.
    const std::string texte = modele_.KeyPress ? "" : entree_;
    Binder().Jouer([&](screen::User& user) {
      if (rangee) {
        user.Choisir(modele_, ligne);
      } else {
        user.Coller(modele_, texte);
      }
    });
    return true;
  }
  // Notes what the field holds when the user enters it.
  void SuivreEntree() {
    const bool dedans = modele_.Forme().Active() == &modele_;
    if (dedans && !dedans_) entree_ = modele_.Text();
    if (!dedans) frappe_ = false;
    dedans_ = dedans;
  }
  // The rows may be filled now. False when a refused leave or a box keeps them hidden.
  bool Derouler() {
    screen::Acte acte = screen::Acte::Avale;
    const unsigned long interruptions = screen::Form::Interruptions();
    Binder().Jouer([&](screen::User& user) { acte = user.Derouler(modele_); });
    return acte == screen::Acte::Fait && screen::Form::Interruptions() == interruptions;
  }
  // An arrow in a drop-down whose rows are filled late goes to the rows that dropping down fills.
  bool Garnir(int cle) {
    const bool fleche = cle == Qt::Key_Down || cle == Qt::Key_Up;
    return fleche && modele_.ListCount() == 0 && modele_.DropDown && !Derouler();
  }
  void Remplir() {
    poussees_ = modele_.Rows();
    combo_.clear();
    if (Tete() > 0) combo_.addItem(toutes_);
    combo_.addItems(versQt(poussees_));
  }
  int Tete() const { return toutes_.isEmpty() ? 0 : 1; }

  screen::ComboBox& modele_;
  ComboDeroulante& combo_;
  // The row that stands for no choice at all, before the others: a list with one takes none but its
  // rows, whatever the model would take.
  QString toutes_;
  std::vector<std::string> poussees_;
  int longueurQt_ = 32767;
  // The row that is proposed behind what was typed, -1 for none.
  int proposee_ = -1;
  QString tape_;
  std::string entree_;
  bool dedans_ = false;
  // What stands there was typed since the field was entered.
  bool frappe_ = false;
};

}  // namespace

std::unique_ptr<Lien> creerLienLignes(Liaison& liaison, screen::Field& champ, QWidget& widget) {
  if (champ.Genre() == screen::Kind::Liste) {
    auto* const liste = qobject_cast<QListWidget*>(&widget);
    if (liste == nullptr) return nullptr;
    return std::make_unique<LienListe>(liaison, static_cast<screen::ListBox&>(champ), *liste);
  }
  auto* const combo = qobject_cast<ComboDeroulante*>(&widget);
  if (combo == nullptr) return nullptr;
  return std::make_unique<LienDeroulante>(liaison, static_cast<screen::ComboBox&>(champ), *combo);
}

}  // namespace hote
