#pragma once
// The activities that a contract can take: those of its entity that are of its kind, or those of
// its private employer that are open on its start. The list of the tab offers them.

#include <string>

#include "data/liste_codes.h"
#include "screen/field.h"

namespace editor {

class Frm_ElementsContrat;

class OffreActivites {
 public:
  // Fills `liste`.
  OffreActivites(Frm_ElementsContrat& editeur, screen::ComboBox& liste)
      : editeur_(editeur), liste_(liste) {}

  // What the entity offers: all to administrative staff, to production staff what is of the
  // contract's kind. The mark of each is its type.
  data::ListeCodes Gestion_Activite(const std::string& entite, bool particuliers) const;
  // A private employer's own activities that are open on the start of the contract.
  data::ListeCodes DeLEmployeur() const;

  void Offrir(data::ListeCodes activites);
  // What is offered now.
  const data::ListeCodes& ListeActivites() const { return ListeActivites_; }
  // The type of an activity, "M" for a private employer's; "" for one that its file does not have.
  std::string Type(const std::string& code) const;
  // Its label; the code of one that its file has lost.
  std::string Libelle(const std::string& code) const;

 private:
  Frm_ElementsContrat& editeur_;
  screen::ComboBox& liste_;
  data::ListeCodes ListeActivites_;
};

}  // namespace editor
