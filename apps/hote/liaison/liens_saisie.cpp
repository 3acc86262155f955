// Text fields, on one line and on several.

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "liaison/aide_date.h"
#include "liaison/consultation.h"
#include "liaison/liaison.h"
#include "liaison/lien.h"
#include "liaison/textes_qt.h"
#include "screen/touches.h"

namespace hote {

namespace {

// A piece that stands at a place of a text.
struct Insertion {
  QString texte;
  qsizetype place = 0;
};

// What `apres` holds between the beginning and the end that it shares with `avant`.
Insertion insertionDe(const QString& avant, const QString& apres) {
  const qsizetype court = std::min(avant.size(), apres.size());
  qsizetype debut = 0;
  while (debut < court && avant[debut] == apres[debut]) ++debut;
  qsizetype fin = 0;
  while (fin < court - debut && avant[avant.size() - 1 - fin] == apres[apres.size() - 1 - fin]) {
    ++fin;
  }
  return {apres.mid(debut, apres.size() - fin - debut), debut};
}

class LienSaisie : public Lien {
 public:
  LienSaisie(Liaison& liaison, screen::TextField& champ, QWidget& widget)
      : Lien(liaison, champ, widget), modele_(champ) {}

  bool Touche(QKeyEvent& evenement) override {
    if (Fige()) return false;
    if (evenement.key() == Qt::Key_Escape) return Retablir();
    const char32_t touche = toucheDe(evenement);
    if (touche == 0) return false;
    if (touche == screen::ToucheEntree && !modele_.Multiligne()) {
      Binder().Jouer([&](screen::User& user) { user.Touche(modele_, touche); });
      return true;
    }
    const char32_t gardee =
        filtrerTouche(Binder(), modele_, modele_.KeyPress, touche, HorsSelection());
    tapee_ = screen::estCaractere(gardee);
    if (gardee == touche) return screen::estCaractere(touche) && Pleine();
    if (screen::estCaractere(gardee) && !Pleine()) Inserer(versQt(screen::texteDe(gardee)));
    return true;
  }
  QString Filtrer(const QString& texte) override {
    return filtrerTexte(Binder(), modele_, modele_.KeyPress, texte, HorsSelection());
  }

 protected:
  virtual void Inserer(const QString& texte) = 0;
  virtual QString HorsSelection() const = 0;
  // No character more can be typed.
  virtual bool Pleine() const { return false; }
  // The whole text as the user has left it, by keys, a paste or an input method.
  void Transmettre(const QString& texte) {
    Binder().Jouer([&](screen::User& user) { user.Coller(modele_, versModele(texte)); });
  }
  // Whether the field is the model's active one, or has become it.
  bool Entre() {
    screen::TextField& champ = modele_;
    if (champ.Forme().Active() != &champ) {
      Binder().Jouer([&](screen::User& user) { user.Focus(champ); });
    }
    return champ.Forme().Active() == &champ;
  }
  // What a paste or a drop has brought into the field goes through its key filter, character by
  // character, as if it were typed; a key has been through it already. The text, and where the
  // cursor goes, -1 where it stays.
  Insertion Filtree(const QString& texte) {
    const bool tapee = std::exchange(tapee_, false);
    const Insertion insertion = insertionDe(versQt(modele_.Text()), texte);
    if (!modele_.KeyPress || insertion.texte.isEmpty()) return {texte, -1};
    if (tapee && insertion.texte.size() == 1) return {texte, -1};
    QString reste = texte;
    reste.remove(insertion.place, insertion.texte.size());
    const QString garde = filtrerTexte(Binder(), modele_, modele_.KeyPress, insertion.texte, reste);
    if (garde == insertion.texte) return {texte, -1};
    return {reste.insert(insertion.place, garde), insertion.place + garde.size()};
  }

  // Notes what the field holds when the user enters it.
  void SuivreEntree() {
    const bool dedans = Binder().Forme().Active() == &modele_;
    if (dedans && !dedans_) entree_ = modele_.Text();
    dedans_ = dedans;
  }

  screen::TextField& modele_;

 private:
  // The first Esc in a changed field puts back what it held; the next one is the window's.
  bool Retablir() {
    if (!dedans_ || modele_.Text() == entree_) return false;
    Transmettre(versQt(entree_));
    // A hint spoke of the text that is gone.
    QToolTip::hideText();
    return true;
  }

  std::string entree_;
  bool dedans_ = false;
  // The next change of the text is that of a key which the filter has seen.
  bool tapee_ = false;
};

class LienLigne : public LienSaisie {
 public:
  LienLigne(Liaison& liaison, screen::TextField& champ, QLineEdit& ligne)
      : LienSaisie(liaison, champ, ligne), ligne_(ligne), longueurQt_(ligne.maxLength()) {
    connect(&ligne_, &QLineEdit::textEdited, this, [this](const QString& texte) { Editer(texte); });
    if (!EstDate()) return;
    ligne_.setToolTip(ConseilDate);
    ligne_.setAccessibleDescription(ConseilDate);
  }
  bool Touche(QKeyEvent& evenement) override {
    if (EstDate() && !ligne_.isReadOnly() && AiderDate(evenement)) return true;
    return LienSaisie::Touche(evenement);
  }

 protected:
  // Signals its edit as a key does.
  void Inserer(const QString& texte) override { ligne_.insert(texte); }
  QString HorsSelection() const override {
    const qsizetype debut = ligne_.selectionStart();
    QString texte = ligne_.text();
    return debut < 0 ? texte : texte.remove(debut, ligne_.selectedText().size());
  }
  void PousserEtat() override {
    if (enEdition_) return;
    SuivreEntree();
    montrerConsultation(ligne_, Fige());
    const QString texte = versQt(modele_.Text());
    // A program may set more than the user can type.
    const int limite = modele_.Longueur() > 0 ? modele_.Longueur() : longueurQt_;
    const int longueur = std::max(limite, static_cast<int>(texte.size()));
    if (ligne_.maxLength() != longueur) ligne_.setMaxLength(longueur);
    const int curseur = ligne_.cursorPosition();
    if (ligne_.text() != texte) {
      ligne_.setText(texte);
      ligne_.setCursorPosition(std::min(curseur, static_cast<int>(texte.size())));
    }
    if (!modele_.Enabled() && ligne_.toolTip() != texte) ligne_.setToolTip(texte);
    // A text that is longer than its field shows its beginning.
    if (modele_.Forme().Active() != &modele_ && ligne_.cursorPosition() > 0) ligne_.home(false);
  }

 private:
  bool EstDate() const { return ligne_.property(ProprieteDate).toBool(); }
  bool AiderDate(const QKeyEvent& evenement) {
    const long aujourdhui = modele_.Forme().Services().poste.Aujourdhui();
    if (ouvreCalendrier(evenement)) {
      montrerCalendrier(ligne_, aujourdhui, [this](const QString& date) { Editer(date); });
      return true;
    }
    const auto date = dateParTouche(evenement, ligne_.text(), aujourdhui);
    if (date) Editer(*date);
    return date.has_value();
  }
  // The text as the user has left it. A drop comes before the focus does.
  void Editer(const QString& texte) {
    const QPointer<LienLigne> la(this);
    const int place = ligne_.cursorPosition();
    // Until the model has it, what the model holds is not shown.
    enEdition_ = true;
    const bool entre = Entre();
    const Insertion filtree = la && entre ? Filtree(texte) : Insertion{};
    if (!la) return;
    enEdition_ = false;
    if (!entre) return Binder().Pousser();
    if (ligne_.text() != filtree.texte) {
      ligne_.setText(filtree.texte);
      ligne_.setCursorPosition(filtree.place < 0 ? place : static_cast<int>(filtree.place));
    }
    Transmettre(filtree.texte);
  }

  QLineEdit& ligne_;
  int longueurQt_;
  bool enEdition_ = false;
};

class LienTexteLong : public LienSaisie {
 public:
  LienTexteLong(Liaison& liaison, screen::TextField& champ, QPlainTextEdit& page)
      : LienSaisie(liaison, champ, page), page_(page) {
    page_.setTabChangesFocus(true);
    connect(&page_, &QPlainTextEdit::textChanged, this, [this] { Transmettre(Texte()); });
  }

 protected:
  void Inserer(const QString& texte) override { page_.insertPlainText(texte); }
  QString HorsSelection() const override {
    const QTextCursor curseur = page_.textCursor();
    return Texte().remove(curseur.selectionStart(), curseur.selectedText().size());
  }
  bool Pleine() const override {
    return modele_.Longueur() > 0 && !page_.textCursor().hasSelection() &&
           Texte().toUcs4().size() >= modele_.Longueur();
  }
  // The widget knows one line end only; the records of the suite hold CR LF.
  void PousserEtat() override {
    SuivreEntree();
    montrerConsultation(page_, *page_.viewport(), Fige());
    QString texte = versQt(modele_.Text());
    texte.replace("\r\n", "\n").replace('\r', '\n');
    if (Texte() == texte) return;
    QTextCursor curseur = page_.textCursor();
    const int place = curseur.position();
    page_.setPlainText(texte);
    curseur = page_.textCursor();
    curseur.setPosition(std::min(place, static_cast<int>(texte.size())));
    page_.setTextCursor(curseur);
  }

 private:
  // The widget's plain text would turn unbreakable blanks into blanks.
  QString Texte() const {
    QString texte = page_.document()->toRawText();
    return texte.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
  }

  QPlainTextEdit& page_;
};

}  // namespace

std::unique_ptr<Lien> creerLienSaisie(Liaison& liaison, screen::Field& champ, QWidget& widget) {
  auto& modele = static_cast<screen::TextField&>(champ);
  if (auto* ligne = qobject_cast<QLineEdit*>(&widget)) {
    return std::make_unique<LienLigne>(liaison, modele, *ligne);
  }
  if (auto* page = qobject_cast<QPlainTextEdit*>(&widget)) {
    return std::make_unique<LienTexteLong>(liaison, modele, *page);
  }
  return nullptr;
}

}  // namespace hote
