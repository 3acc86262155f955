#include "editor/fin_initiale.h"

#include "editor/editeur.h"

namespace editor {

void FinInitiale::Retenir(const std::string& notification, const std::string& dernierJour) {
  contrat_ = editeur_.Dossier().ItemContrat;
  notification_ = notification;
  dernierJour_ = dernierJour;
  empreinte_ = Empreinte();
}

bool FinInitiale::Intact(const std::string& notification) const {
  return notification.empty() ? notification_.empty() : Empreinte() == empreinte_;
}

std::string FinInitiale::Empreinte() const {
  std::string texte;
  for (const screen::Field* const champ : editeur_.Fields()) {
    const screen::Frame* const cadre = champ->Cadre();
    if (cadre == nullptr || (cadre != &page_ && cadre->Cadre() != &page_)) continue;
    if (champ->Genre() == screen::Kind::Texte) {
      texte += static_cast<const screen::TextField*>(champ)->Text();
    } else if (champ->Genre() == screen::Kind::Deroulante) {
      texte += static_cast<const screen::ComboBox*>(champ)->Text();
    } else if (champ->Genre() == screen::Kind::Case) {
      texte += static_cast<const screen::CheckBox*>(champ)->Value() != 0 ? "1" : "0";
    } else if (champ->Genre() == screen::Kind::Option) {
      texte += static_cast<const screen::OptionButton*>(champ)->Value() ? "1" : "0";
    }
    texte += data::SepAttribut;
  }
  return texte;
}

}  // namespace editor
