#include "screen/user.h"

#include "data/texte.h"
#include "screen/touches.h"

namespace screen {

namespace {

constexpr char32_t Blanc = U' ';

// A field into which a text can be typed, whichever its kind; without one, nothing is typed.
struct Saisie {
  TextField* texte = nullptr;
  ComboBox* deroulante = nullptr;

  explicit Saisie(Field& champ) {
    if (champ.Genre() == Kind::Texte) texte = static_cast<TextField*>(&champ);
    if (champ.Genre() != Kind::Deroulante) return;
    auto& combo = static_cast<ComboBox&>(champ);
    if (combo.Saisie()) deroulante = &combo;
  }
  bool Existe() const { return texte != nullptr || deroulante != nullptr; }
  bool Multiligne() const { return texte != nullptr && texte->Multiligne(); }
  int Longueur() const { return texte != nullptr ? texte->Longueur() : deroulante->Longueur(); }
  const std::string& Texte() const { return texte != nullptr ? texte->Text() : deroulante->Text(); }
  void Ecrire(std::string_view nouveau) const {
    if (texte != nullptr) {
      texte->SetText(nouveau);
    } else {
      deroulante->SetText(nouveau);
    }
  }
};

RowsField* rowsOf(Field& champ) {
  const bool lignes = champ.Genre() == Kind::Liste || champ.Genre() == Kind::Deroulante;
  return lignes ? static_cast<RowsField*>(&champ) : nullptr;
}

const KeyHandler* keyPressOf(Field& champ) {
  if (champ.Genre() == Kind::Texte) return &static_cast<TextField&>(champ).KeyPress;
  RowsField* const lignes = rowsOf(champ);
  return lignes != nullptr ? &lignes->KeyPress : nullptr;
}

bool pressable(Kind genre) {
  return genre == Kind::Bouton || genre == Kind::Case || genre == Kind::Option;
}

// What a paste leaves of a text: characters, and line ends where the field takes them. Control
// characters and bytes that belong to no character go, which no store would take.
std::string pastable(std::string_view texte, bool multiligne) {
  std::string resultat;
  for (const char32_t touche : touchesDe(texte)) {
    if (estCaractere(touche) || (multiligne && touche == U'\n')) resultat += texteDe(touche);
  }
  return resultat;
}

}  // namespace

bool User::Presente() const {
  return !vie_.expired() && form_.Visible() && form_.Enabled();
}

Acte User::Entrer(Field& champ) {
  if (!champ.Accessible()) return Acte::Inaccessible;
  if (!champ.Focalisable()) return Acte::Fait;
  if (!form_.MoveFocus(champ) || !Presente() || !champ.Accessible()) return Acte::Avale;
  return Acte::Fait;
}

Acte User::Focus(Field& champ) {
  if (!champ.Focalisable()) return Acte::Inaccessible;
  return Entrer(champ);
}

Acte User::Quitter() {
  if (!Presente()) return Acte::Inaccessible;
  return form_.MoveFocusNext() ? Acte::Fait : Acte::Avale;
}

// Shows a key of the active field to its KeyPress. What is left of it.
char32_t User::Montrer(Field& champ, char32_t touche, std::string_view horsSelection) {
  const KeyHandler* const keyPress = keyPressOf(champ);
  if (keyPress == nullptr) return 0;
  TextField* const texte = champ.Genre() == Kind::Texte ? static_cast<TextField*>(&champ) : nullptr;
  if (texte != nullptr) {
    texte->horsSelection_ = horsSelection;
    texte->selection_ = true;
  }
  fire(*keyPress, touche);
  if (texte != nullptr && !vie_.expired()) texte->selection_ = false;
  return Presente() && champ.Accessible() && form_.Active() == &champ ? touche : 0;
}

char32_t User::Filtrer(Field& champ, char32_t touche, std::string_view horsSelection) {
  return Entrer(champ) == Acte::Fait ? Montrer(champ, touche, horsSelection) : 0;
}

// One key into the active field. True when it went into the text.
bool User::Presser(Field& champ, char32_t touche, bool remplacer) {
  const auto reste = [&] {
    const Saisie saisie(champ);
    return remplacer || !saisie.Existe() ? std::string() : saisie.Texte();
  };
  touche = Montrer(champ, touche, reste());
  if (touche == 0) return false;
  const Saisie saisie(champ);
  if (!saisie.Existe()) return false;
  const std::string avant = reste();
  if (touche == ToucheRetour) {
    saisie.Ecrire(data::gauche(avant, data::longueur(avant) - 1));
    return true;
  }
  const bool saut = touche == ToucheEntree && saisie.Multiligne();
  if (!saut && !estCaractere(touche)) return false;
  if (saisie.Longueur() > 0 && data::longueur(avant) >= saisie.Longueur()) return false;
  saisie.Ecrire(avant + (saut ? "\n" : texteDe(touche)));
  return true;
}

Acte User::Taper(Field& champ, std::string_view texte) {
  if (!Saisie(champ).Existe()) return Acte::Inaccessible;
  if (const Acte entree = Entrer(champ); entree != Acte::Fait) return entree;
  if (texte.empty()) {
    Saisie(champ).Ecrire("");
    return Acte::Fait;
  }
  const unsigned long interruptions = Form::Interruptions();
  bool remplacer = true;
  for (char32_t touche : touchesDe(texte)) {
    if (!Presente() || Form::Interruptions() != interruptions) return Acte::Avale;
    Field* const cible = form_.Active();
    if (cible == nullptr) return Acte::Avale;
    if (cible != &champ) remplacer = false;
    const bool saut = touche == U'\n' && Saisie(*cible).Multiligne();
    if (!saut && !estCaractere(touche)) continue;
    if (saut) touche = ToucheEntree;
    if (Presser(*cible, touche, remplacer)) remplacer = false;
  }
  return Acte::Fait;
}

Acte User::Touche(Field& champ, char32_t touche) {
  const bool pressee = pressable(champ.Genre());
  if (!pressee && keyPressOf(champ) == nullptr) return Acte::Inaccessible;
  if (const Acte entree = Entrer(champ); entree != Acte::Fait) return entree;
  if (pressee) {
    const bool enfonce =
        touche == Blanc || (touche == ToucheEntree && champ.Genre() == Kind::Bouton);
    return enfonce ? Cliquer(champ) : Acte::Fait;
  }
  Presser(champ, touche, false);
  return Acte::Fait;
}

Acte User::Coller(Field& champ, std::string_view texte) {
  const Saisie saisie(champ);
  if (!saisie.Existe()) return Acte::Inaccessible;
  if (const Acte entree = Entrer(champ); entree != Acte::Fait) return entree;
  std::string nouveau = pastable(texte, saisie.Multiligne());
  if (saisie.Longueur() > 0) nouveau = data::gauche(nouveau, saisie.Longueur());
  saisie.Ecrire(nouveau);
  return Acte::Fait;
}

Acte User::Cliquer(Field& champ) {
  if (RowsField* const lignes = rowsOf(champ)) return Choisir(champ, lignes->ListIndex());
  const Kind genre = champ.Genre();
  if (!pressable(genre) && genre != Kind::Menu && genre != Kind::Texte) return Acte::Inaccessible;
  if (const Acte entree = Entrer(champ); entree != Acte::Fait) return entree;
  if (genre == Kind::Bouton) fire(static_cast<Button&>(champ).Click);
  if (genre == Kind::Menu) fire(static_cast<MenuItem&>(champ).Click);
  if (genre == Kind::Option) static_cast<OptionButton&>(champ).SetValue(true);
  if (genre == Kind::Case) {
    auto& coche = static_cast<CheckBox&>(champ);
    coche.SetValue(1 - coche.Value());
  }
  return Acte::Fait;
}

Acte User::Choisir(Field& champ, int ligne) {
  RowsField* const lignes = rowsOf(champ);
  const auto existe = [&] { return ligne >= 0 && ligne < lignes->ListCount(); };
  if (lignes == nullptr || !existe()) return Acte::Inaccessible;
  if (const Acte entree = Entrer(champ); entree != Acte::Fait) return entree;
  if (!existe()) return Acte::Avale;
  if (lignes->ListIndex() == ligne) {
    fire(lignes->Click);
  } else {
    lignes->SetListIndex(ligne);
  }
  return Acte::Fait;
}

Acte User::Derouler(ComboBox& champ) {
  if (const Acte entree = Entrer(champ); entree != Acte::Fait) return entree;
  fire(champ.DropDown);
  return Acte::Fait;
}

Acte User::DoubleCliquer(Field& champ, int ligne) {
  if (champ.Genre() != Kind::Liste) return Acte::Inaccessible;
  const unsigned long interruptions = Form::Interruptions();
  if (const Acte choix = Choisir(champ, ligne); choix != Acte::Fait) return choix;
  const bool la = Presente() && champ.Accessible();
  // A box or a form that came with the first click takes the second one.
  if (!la || Form::Interruptions() != interruptions) return Acte::Avale;
  fire(rowsOf(champ)->DblClick);
  return Acte::Fait;
}

Acte User::Onglet(TabStrip& onglets, int onglet) {
  if (onglet < 0 || onglet >= static_cast<int>(onglets.Onglets().size())) {
    return Acte::Inaccessible;
  }
  if (const Acte entree = Entrer(onglets); entree != Acte::Fait) return entree;
  onglets.SetTab(onglet);
  return Acte::Fait;
}

Acte User::Barre(RangeField& barre, int valeur) {
  if (const Acte entree = Entrer(barre); entree != Acte::Fait) return entree;
  barre.SetValue(valeur);
  return Acte::Fait;
}

Acte User::ClicDroit() {
  if (!Presente()) return Acte::Inaccessible;
  form_.MouseDown(2);
  return Acte::Fait;
}

Acte User::Fermer() {
  if (!Presente()) return Acte::Inaccessible;
  return form_.Close() ? Acte::Fait : Acte::Avale;
}

}  // namespace screen
