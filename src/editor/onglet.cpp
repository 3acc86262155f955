#include "editor/onglet.h"

#include <algorithm>

#include "editor/editeur.h"

namespace editor {

namespace {

// Fields whose content is not a text that clearing the screen empties.
constexpr std::string_view PrefixesGardes[] = {"Cdr", "Cmd", "Ctr", "Etq", "Img",
                                               "Ong", "Opt", "Cac", "Bdh"};

bool garde(const screen::Field& champ) {
  const auto prefixe = std::string_view(champ.Nom()).substr(0, 3);
  return std::find(std::begin(PrefixesGardes), std::end(PrefixesGardes), prefixe) !=
         std::end(PrefixesGardes);
}

bool dans(const screen::Field& champ, const screen::Frame& page) {
  const screen::Field* ici = &champ;
  while (ici != nullptr && ici != &page) ici = ici->Cadre();
  return ici != nullptr;
}

void vider(screen::Field& champ) {
  switch (champ.Genre()) {
    case screen::Kind::Texte:
      static_cast<screen::TextField&>(champ).SetText("");
      break;
    case screen::Kind::Deroulante:
      static_cast<screen::ComboBox&>(champ).SetText("");
      break;
    case screen::Kind::Liste:
      static_cast<screen::ListBox&>(champ).Clear();
      break;
    default:
      break;
  }
}

}  // namespace

Onglet::Onglet(Frm_ElementsContrat& editeur, int numero, const char* nomPage)
    : editeur_(editeur), numero_(numero), Page(editeur, nomPage) {
  editeur.Ong_Contrat.Lier(numero, Page);
}

void Onglet::Afficher() {
  const session::Sourdine::Silence silence(sourdine_);
  Afficher_Ong();
  charge_ = true;
}

bool Onglet::Ecrire(bool verifiee) {
  if (!charge_) return !verifiee || VerifFerme();
  if (verifiee && (!Verif_Ong() || !Ecrivable_Ong())) return false;
  Ecrire_Ong();
  return true;
}

void Onglet::Vider() {
  const session::Sourdine::Silence silence(sourdine_);
  for (screen::Field* const champ : Saisies()) vider(*champ);
  Vider_Ong();
  charge_ = false;
}

const std::vector<screen::Field*>& Onglet::Saisies() {
  if (!saisies_.empty()) return saisies_;
  for (screen::Field* const champ : editeur_.Fields()) {
    if (dans(*champ, Page) && !garde(*champ)) saisies_.push_back(champ);
  }
  return saisies_;
}

session::Session& Onglet::Session() const {
  return editeur_.Session();
}

session::Dossier& Onglet::Dossier() const {
  return editeur_.Dossier();
}

void Onglet::Message(const std::string& texte, screen::Icone icone) const {
  editeur_.MessageBox(texte, screen::Boutons::Ok, icone);
}

void Onglet::Refuser(const rules::Refus& refus) const {
  editeur_.Ong_Contrat.SetTab(numero_);
  Message(refus.texte, refus.icone);
  if (screen::Field* const champ = editeur_.Find(refus.champ)) champ->SetFocus();
}

}  // namespace editor
