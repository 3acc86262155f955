#pragma once
// The fields of a form. A field has its control's name and knows text, value, rows, selected row,
// enabled and visible, as its kind needs; it draws nothing. A setter is the program's way to change
// it and fires what the user's own act would fire, and only if something changes:
//
//   text -> Change                     check box value -> Click
//   selected row -> Click              option set -> Click; its siblings go out silently
//   bar value -> Change                tab -> Click with the former tab
//
// A drop-down's text follows its row without Change, and setting or typing another text leaves no
// row selected. Rows can be added, inserted and removed silently; the selected row stays on its
// text, or is lost with it, silently too. Clearing the rows of a drop-down empties its text as
// well, silently: a handler that refills it and wants the text kept sets it again. What the user
// does comes through screen::User alone.

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/events.h"

namespace screen {

class Form;
class Frame;

// Where a field stands: on the form itself, or in one of its frames.
struct Place {
  Place(Form& surface) : form(surface) {}
  Place(Frame& groupe);
  Form& form;
  Frame* cadre = nullptr;
};

enum class Kind {
  Texte,
  Deroulante,
  Liste,
  Bouton,
  Option,
  Case,
  Cadre,
  Etiquette,
  Onglets,
  UpDown,
  Barre,
  Menu,
  Image
};

class Field {
 public:
  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;
  virtual ~Field() = default;

  const std::string& Nom() const { return nom_; }
  Kind Genre() const { return genre_; }
  Form& Forme() const { return form_; }
  Frame* Cadre() const { return cadre_; }

  bool Enabled() const { return enabled_; }
  bool Visible() const { return visible_; }
  // A field that loses enabled or visible while it is active is no longer active; no LostFocus is
  // fired.
  void SetEnabled(bool enabled);
  void SetVisible(bool visible);
  // Enabled and visible, the frames around it included: only then the focus can stand in it.
  bool Disponible() const;
  // Disponible, in a form that is shown and enabled: only then it takes user acts.
  bool Accessible() const;
  // A field that the keyboard can reach: not a frame, label, image, menu or bar.
  bool Focalisable() const;

  const std::string& Libelle() const { return libelle_; }
  void SetLibelle(std::string libelle) { libelle_ = std::move(libelle); }

  // Makes this the active field, after LostFocus of the one that was. Inside a LostFocus handler it
  // redirects the move under way; on the field being left it keeps the focus there. Nothing happens
  // when the field is not disponible. The form may be disabled or not yet shown: a refusal during
  // long work still says where to go on.
  void SetFocus();

  Handler GotFocus;
  Handler LostFocus;

 protected:
  // Registers itself in the form; tab order is the order of declaration.
  Field(Place place, Kind genre, std::string nom, std::string libelle = {});

 private:
  Form& form_;
  Kind genre_;
  std::string nom_;
  Frame* cadre_;
  std::string libelle_;
  bool enabled_ = true;
  bool visible_ = true;
};

// Shows or hides, enables or disables, several fields as one.
void Montrer(std::initializer_list<Field*> champs, bool visibles);
void Activer(std::initializer_list<Field*> champs, bool actifs);

// A group of fields with a caption. Its enabled and visible count for all that stands in it;
// options in one frame exclude each other (options outside any frame are one group of the form).
class Frame : public Field {
 public:
  Frame(Place place, std::string nom, std::string libelle = {})
      : Field(place, Kind::Cadre, std::move(nom), std::move(libelle)) {}
};

inline Place::Place(Frame& groupe) : form(groupe.Forme()), cadre(&groupe) {}

class Label : public Field {
 public:
  Label(Place place, std::string nom, std::string libelle = {})
      : Field(place, Kind::Etiquette, std::move(nom), std::move(libelle)) {}
};

class Button : public Field {
 public:
  Button(Place place, std::string nom, std::string libelle)
      : Field(place, Kind::Bouton, std::move(nom), std::move(libelle)) {}
  Handler Click;
};

// An entry of a pop-up menu. Where `Click` is unset it only heads its entries.
class MenuItem : public Field {
 public:
  MenuItem(Form& form, std::string nom, std::string libelle)
      : Field(form, Kind::Menu, std::move(nom), std::move(libelle)) {}
  Handler Click;
};

class Image : public Field {
 public:
  Image(Place place, std::string nom) : Field(place, Kind::Image, std::move(nom)) {}
};

class TextField : public Field {
 public:
  // `longueur`: most characters that the user can type, 0 for no limit. A program may set more.
  TextField(Place place, std::string nom, int longueur = 0)
      : Field(place, Kind::Texte, std::move(nom)), longueur_(longueur) {}

  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  int Longueur() const { return longueur_; }
  // Takes line ends; every other field drops them, as it drops every control character typed or
  // pasted.
  bool Multiligne() const { return multiligne_; }
  void SetMultiligne(bool multiligne) { multiligne_ = multiligne; }
  // What the text holds beside its selection, which the key that KeyPress is shown replaces.
  const std::string& HorsSelection() const { return selection_ ? horsSelection_ : text_; }

  Handler Change;
  KeyHandler KeyPress;

 private:
  friend class User;
  std::string text_;
  std::string horsSelection_;
  bool selection_ = false;
  int longueur_;
  bool multiligne_ = false;
};

// Rows and a selected row (-1 for none): what lists and drop-downs share.
class RowsField : public Field {
 public:
  const std::vector<std::string>& Rows() const { return rows_; }
  int ListCount() const { return static_cast<int>(rows_.size()); }
  // "" beyond the ends.
  std::string List(int ligne) const;
  void SetList(int ligne, std::string_view texte);
  void AddItem(std::string_view texte) { InsertItem(ListCount(), texte); }
  // `ligne` from 0 to ListCount(); anything else adds at the end.
  void InsertItem(int ligne, std::string_view texte);
  void RemoveItem(int ligne);
  void Clear();

  int ListIndex() const { return listIndex_; }
  // A row that does not exist counts as -1, which empties a drop-down's text.
  void SetListIndex(int ligne);

  Handler Click;
  Handler DblClick;
  KeyHandler KeyPress;

 protected:
  RowsField(Place place, Kind genre, std::string nom) : Field(place, genre, std::move(nom)) {}
  // Called when the selected row or its text has changed: a drop-down's text follows.
  virtual void SuivreLigne() {}
  void PerdreLigne() { listIndex_ = -1; }

 private:
  std::vector<std::string> rows_;
  int listIndex_ = -1;
};

class ListBox : public RowsField {
 public:
  ListBox(Place place, std::string nom) : RowsField(place, Kind::Liste, std::move(nom)) {}
};

class ComboBox : public RowsField {
 public:
  // `saisie`: text can be typed; otherwise only a row can be chosen. `longueur` as for TextField.
  ComboBox(Place place, std::string nom, bool saisie = true, int longueur = 0)
      : RowsField(place, Kind::Deroulante, std::move(nom)), saisie_(saisie), longueur_(longueur) {}

  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  bool Saisie() const { return saisie_; }
  int Longueur() const { return longueur_; }

  Handler Change;
  // Fired before the rows are shown to the user, so that they can be filled late.
  Handler DropDown;

 protected:
  void SuivreLigne() override;

 private:
  std::string text_;
  bool saisie_;
  int longueur_;
};

class OptionButton : public Field {
 public:
  OptionButton(Place place, std::string nom, std::string libelle)
      : Field(place, Kind::Option, std::move(nom), std::move(libelle)) {}
  bool Value() const { return value_; }
  void SetValue(bool value);
  Handler Click;

 private:
  bool value_ = false;
};

class CheckBox : public Field {
 public:
  CheckBox(Place place, std::string nom, std::string libelle)
      : Field(place, Kind::Case, std::move(nom), std::move(libelle)) {}
  // 0 or 1.
  int Value() const { return value_; }
  void SetValue(int value);
  Handler Click;

 private:
  int value_ = 0;
};

class TabStrip : public Field {
 public:
  TabStrip(Form& form, std::string nom, std::vector<std::string> onglets)
      : Field(form, Kind::Onglets, std::move(nom)), onglets_(std::move(onglets)) {}
  const std::vector<std::string>& Onglets() const { return onglets_; }
  // From 0.
  int Tab() const { return tab_; }
  void SetTab(int onglet);
  // Ties a frame to a tab: it is visible while its tab is shown, and so takes no user act
  // otherwise.
  void Lier(int onglet, Frame& page);
  TabHandler Click;

 private:
  void MontrerPages();

  std::vector<std::string> onglets_;
  std::vector<std::pair<int, Frame*>> pages_;
  int tab_ = 0;
};

// A number held between two bounds, in either order of the bounds.
class RangeField : public Field {
 public:
  int Value() const { return value_; }
  int Min() const { return min_; }
  int Max() const { return max_; }
  void SetValue(int value);
  // A bound that passes the value moves it, with Change.
  void SetMin(int min);
  void SetMax(int max);
  Handler Change;

 protected:
  RangeField(Place place, Kind genre, std::string nom, int max)
      : Field(place, genre, std::move(nom)), max_(max) {}

 private:
  int value_ = 0;
  int min_ = 0;
  int max_;
};

class ScrollBar : public RangeField {
 public:
  // The upper bound of a bar that was never given one.
  static constexpr int MaxInitial = 32767;
  ScrollBar(Place place, std::string nom)
      : RangeField(place, Kind::Barre, std::move(nom), MaxInitial) {}
};

class UpDown : public RangeField {
 public:
  UpDown(Place place, std::string nom)
      : RangeField(place, Kind::UpDown, std::move(nom), MaxInitial) {}
  static constexpr int MaxInitial = 10;
};

}  // namespace screen
