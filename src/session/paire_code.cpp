#include "session/paire_code.h"

#include "data/texte.h"
#include "screen/form.h"

namespace session {

PaireCode::PaireCode(screen::TextField& code, screen::ComboBox& libelle, Sourdine& sourdine,
                     RegleCode regle)
    : code_(code), libelle_(libelle), sourdine_(sourdine), regle_(std::move(regle)) {
  code_.Change = sourdine_.SiAudible([this] { Suivi(); });
  code_.LostFocus = [this] { Completer(); };
  libelle_.Click = sourdine_.SiAudible([this] {
    if (muette_) return;
    const std::string choisi = CodeChoisi();
    if (regle_.avantChoix) regle_.avantChoix(choisi);
    code_.SetText(choisi);
  });
  libelle_.Change = sourdine_.SiAudible([this] {
    if (!muette_) LibelleTape();
  });
  libelle_.LostFocus = [this] { QuitterLibelle(); };
}

void PaireCode::LibelleTape() {
  const Pendant saisie(saisie_, true);
  const std::string& texte = libelle_.Text();
  if (regle_.tape == RegleCode::SansCode) code_.SetText(CodeChoisi());
  if (regle_.tape == RegleCode::Nomme) code_.SetText(lignes_.Code(texte));
  if (regle_.tape == RegleCode::Cherche && texte.empty()) code_.SetText("");
}

void PaireCode::QuitterLibelle() {
  if (regle_.tape == RegleCode::Cherche && valide_ && libelle_.Text() != montre_) Montrer(montre_);
  if (regle_.tape == RegleCode::Nomme && code_.Text().empty()) Montrer("");
}

void PaireCode::Suivi() {
  valide_ = false;
  try {
    Lire();
  } catch (...) {
    if (regle_.tape != RegleCode::Cherche) code_.SetText("");
    throw;
  }
}

void PaireCode::Lire() {
  if (regle_.avant) regle_.avant();
  const std::string code = code_.Text();
  if (code.empty() || data::longueur(code) < regle_.longueur) {
    Montrer("");
    if (regle_.incomplet) regle_.incomplet();
    return;
  }
  std::optional<std::string> libelle;
  if (regle_.source) {
    libelle = regle_.source(code);
  } else if (const auto* const ligne = lignes_.ParCode(code)) {
    libelle = ligne->libelle;
  }
  if (!libelle && regle_.inconnu == nullptr) return;
  const char* const refus = !libelle ? regle_.inconnu : regle_.refus ? regle_.refus(code) : nullptr;
  if (refus != nullptr) {
    code_.Forme().MessageBox(refus, screen::Boutons::Ok, regle_.icone);
    Refuser();
    return;
  }
  Montrer(*libelle);
  montre_ = libelle_.Text();
  if (regle_.choisi) regle_.choisi();
  valide_ = true;
}

void PaireCode::Remplir(data::ListeCodes lignes) {
  lignes_ = std::move(lignes);
  const std::string texte = libelle_.Text();
  libelle_.Clear();
  for (const auto& ligne : lignes_.Lignes()) libelle_.AddItem(ligne.libelle);
  if (!saisie_) return;
  const Pendant muette(muette_, true);
  libelle_.SetText(texte);
}

void PaireCode::Montrer(std::string_view libelle) {
  if (saisie_) return;
  const Pendant muette(muette_, true);
  for (int rang = 0; rang < lignes_.Nombre(); ++rang) {
    const auto& ligne = lignes_.A(rang);
    if (ligne.code != code_.Text() || ligne.libelle != libelle) continue;
    libelle_.SetListIndex(rang);
    return;
  }
  libelle_.SetText(libelle);
}

void PaireCode::Afficher(std::string_view code, std::string_view libelle) {
  const Sourdine::Silence silence(sourdine_);
  code_.SetText(code);
  Montrer(libelle);
}

void PaireCode::Vider() {
  code_.SetText("");
  Montrer("");
}

void PaireCode::Refuser() {
  code_.SetText("");
  code_.SetFocus();
}

bool PaireCode::Completer() {
  if (code_.Text().empty()) return true;
  const std::string complet = regle_.completee == RegleCode::AGauche
                                  ? data::completeAGauche(code_.Text(), regle_.longueur, '0')
                                  : data::completeADroite(code_.Text(), regle_.longueur, '0');
  if (complet != code_.Text()) {
    code_.SetText(complet);
  } else if (!valide_ && regle_.tape == RegleCode::Cherche) {
    Suivi();
  }
  return valide_;
}

std::string PaireCode::CodeChoisi() const {
  return lignes_.A(libelle_.ListIndex()).code;
}

}  // namespace session
