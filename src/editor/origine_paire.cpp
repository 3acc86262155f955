#include "editor/origine_paire.h"

#include <algorithm>

#include "data/texte.h"
#include "session/pendant.h"

namespace editor {

void PaireCode::Remplir(std::vector<Ligne> lignes) {
  lignes_ = std::move(lignes);
  const std::string texte = libelle_.Text();
  libelle_.Clear();
  for (const Ligne& ligne : lignes_) libelle_.AddItem(ligne.libelle);
  if (!saisie_) return;
  const session::Pendant muette(muette_, true);
  libelle_.SetText(texte);
}

void PaireCode::Montrer(std::string_view libelle) {
  if (saisie_) return;
  const session::Pendant muette(muette_, true);
  const auto ligne = std::find_if(lignes_.begin(), lignes_.end(), [&](const Ligne& l) {
    return l.code == code_.Text() && l.libelle == libelle;
  });
  if (ligne == lignes_.end()) {
    libelle_.SetText(libelle);
  } else {
    libelle_.SetListIndex(static_cast<int>(ligne - lignes_.begin()));
  }
}

void PaireCode::SuivreChoix() {
  if (!muette_) code_.SetText(CodeChoisi());
}

void PaireCode::SuivreSaisie() {
  if (muette_) return;
  const session::Pendant saisie(saisie_, true);
  code_.SetText(CodeChoisi());
}

void PaireCode::Completer(int longueur) {
  if (!code_.Text().empty()) code_.SetText(data::completeAGauche(code_.Text(), longueur, '0'));
}

void PaireCode::Vider() {
  code_.SetText("");
  Montrer("");
}

void PaireCode::Refuser() {
  code_.SetText("");
  code_.SetFocus();
}

void PaireCode::Controler(const std::function<void()>& lecture) {
  try {
    lecture();
  } catch (...) {
    code_.SetText("");
    throw;
  }
}

std::string PaireCode::CodeChoisi() const {
  const int ligne = libelle_.ListIndex();
  if (ligne < 0 || ligne >= static_cast<int>(lignes_.size())) return {};
  return lignes_[static_cast<std::size_t>(ligne)].code;
}

}  // namespace editor
