#pragma once
// What the five tabs of the contract editor share: the page that their fields stand on and the
// editor, through which they reach the session and each other.

#include "screen/field.h"
#include "screen/platform.h"
#include "session/session.h"

namespace editor {

class Frm_ElementsContrat;

class Onglet {
 public:
  Onglet(const Onglet&) = delete;
  Onglet& operator=(const Onglet&) = delete;

  // The page's frame; visible while its tab is shown.
  screen::Frame Page;

 protected:
  // `numero`: the tab's place on Ong_Contrat, from 0.
  Onglet(Frm_ElementsContrat& editeur, int numero, const char* nomPage);
  ~Onglet() = default;

  session::Session& Session() const;
  // Shows `texte`, then this tab, and gives `champ` the focus: the way in which every check of a
  // tab refuses.
  void Refuser(const std::string& texte, screen::Icone icone, screen::Field* champ);

  Frm_ElementsContrat& editeur_;
  const int numero_;
};

}  // namespace editor
