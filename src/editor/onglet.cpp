#include "editor/onglet.h"

#include "editor/editeur.h"

namespace editor {

Onglet::Onglet(Frm_ElementsContrat& editeur, int numero, const char* nomPage)
    : Page(editeur, nomPage), editeur_(editeur), numero_(numero) {
  editeur.Ong_Contrat.Lier(numero, Page);
}

session::Session& Onglet::Session() const {
  return editeur_.Session();
}

void Onglet::Refuser(const std::string& texte, screen::Icone icone, screen::Field* champ) {
  editeur_.MessageBox(texte, screen::Boutons::Ok, icone);
  editeur_.Ong_Contrat.SetTab(numero_);
  if (champ != nullptr) champ->SetFocus();
}

}  // namespace editor
