#pragma once
// The retirement body of the carer: one of those of the entity, or for the staff of private
// employers the one there is. Its code stands beside its label and is not typed.

#include <string>

#include "session/paire_code.h"
#include "session/session.h"

namespace editor {

class RetraiteFin {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  RetraiteFin(session::Session& session, screen::Frame& page, session::Sourdine& sourdine);

  // The bodies of the entity, and the one on file among them.
  void Afficher(const std::string& entite, bool particuliers, const std::string& code);
  // The bodies of the entity: the first one is chosen.
  void Choisir(const std::string& entite, bool particuliers);
  void Vider();

  bool Vide() const { return Cbo_OrgRetraite.Text().empty(); }
  // The code shown; the first one of the list when there is none.
  std::string Code() const;

 private:
  void Remplir(const std::string& entite, bool particuliers);

  session::Session& session_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;

  screen::Label Etq_OrgRetraite{page_, "Etq_OrgRetraite", "Organisme de retraite"};
  screen::TextField Txt_OrgRetraite{page_, "Txt_OrgRetraite", 0};
  screen::ComboBox Cbo_OrgRetraite{page_, "Cbo_OrgRetraite", true};

  session::PaireCode organisme_{
      Txt_OrgRetraite, Cbo_OrgRetraite, sourdine_, {.tape = session::RegleCode::Nomme}};
};

}  // namespace editor
