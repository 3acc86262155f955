#pragma once
// The list control on the records of the editor's tests. The tests add contracts and open it.

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "editor/editeur_essai.h"

namespace essai {

class Liste : public Editeur {
 protected:
  // Carer 00001, whose last contract number is `dernier`.
  void compteur(const char* dernier) {
    article("CIVILAIDANT", "00001", {{2, "DURAND"}, {41, dernier}});
  }
  // An open-ended contract of that carer with the first entity, but for `autres`.
  void contrat(int numero, const std::string& debut, const std::string& fin, Attributs autres) {
    autres.merge(Attributs{{C::Convention, "01"},
                           {C::Association, "001"},
                           {C::Employeur, "001001"},
                           {C::Type, "I"},
                           {C::DateDebut, jour(debut)},
                           {C::DateFin, jour(fin)}});
    article("CONTRAT", data::cleContrat("00001", numero), autres);
  }
  // With `codeContrat` that contract is opened at once, before anything is listed.
  control::Ctr_Contrat& ouvrir(const char* codeContrat = "") {
    controle = std::make_unique<control::Ctr_Contrat>(hote.platform);
    controle->TheDatabase(db);
    controle->W_Code = "00001";
    controle->W_CodeContrat = codeContrat;
    controle->W_NomPrenom = "DURAND Anne";
    controle->DroitsUtilisateur(droits);
    controle->init();
    controle->Show();
    return *controle;
  }

  std::unique_ptr<control::Ctr_Contrat> controle;
};

}  // namespace essai
