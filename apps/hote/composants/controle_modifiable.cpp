#include "composants/controle_modifiable.h"

#include "liaison/bureau.h"

namespace hote {

std::string ControleModifiable::Lire(const std::string& propriete) const {
  if (propriete != sortie_.propriete) return ControleVisible::Lire(propriete);
  if (!Modifie()) return sortie_.libre;
  using screen::Reponse;
  const Reponse reponse = bureau_.Plateforme().messages.Montrer(
      {"Voulez-vous enregistrer les modifications apportées à cet article ?",
       screen::Boutons::OuiNonAnnuler, screen::Icone::Question, screen::TitreMessage});
  if (reponse == Reponse::Non) return sortie_.libre;
  return reponse == Reponse::Oui && EnregistrerOuDire() ? sortie_.libre : sortie_.retenu;
}

bool ControleModifiable::EnregistrerOuDire() const {
  std::string refus;
  if (!bureau_.Proteger([&] { refus = Enregistrer(); })) return false;
  if (!refus.empty()) Dire(refus);
  return refus.empty();
}

void ControleModifiable::Dire(const std::string& texte) const {
  bureau_.Plateforme().messages.Montrer(
      {texte, screen::Boutons::Ok, screen::Icone::Exclamation, screen::TitreMessage});
}

}  // namespace hote
