#pragma once
// The list control on a store in memory and a host without a display: one carer, two entities and
// November 2026 as the pay period; the day is 22/11/2026. The tests add contracts and open it.

#include <gtest/gtest.h>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"
#include "support/faulty_storage.h"

namespace essai {

namespace C = data::Contrat;
using screen::Acte;

class Liste : public ::testing::Test {
 protected:
  using Attributs = std::map<int, std::string>;

  Liste() {
    article("COMPTEUR", "999", {{18, "1"}});
    article("PERIODESPAIE", "1", {{1, "202611"}});
    article("ASSOCIATION", "001", {{1, "Aide du Val"}});
    article("CONVENTIONCOL", "01", {{1, "Branche"}});
  }

  void article(const char* fichier, const std::string& cle, const Attributs& attributs) {
    data::CItem item = db.OpenFile(fichier).NewItem(cle);
    for (const auto& [a, texte] : attributs) item.Set(a, texte);
    item.DBWrite();
  }
  // Internal day of a displayed date; "" stays.
  static std::string jour(const std::string& affichee) {
    return affichee.empty() ? "" : std::to_string(data::lireDateAffichee(affichee).value());
  }
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

  screen::headless::Hote hote{21511};
  storage::MemoryStorage memoire{hote.poste};
  std::shared_ptr<support::FaultyStorage> stockage =
      std::make_shared<support::FaultyStorage>(memoire);
  data::Db db{stockage};
  session::DroitsUniformes droits{2};
  std::unique_ptr<control::Ctr_Contrat> controle;
};

}  // namespace essai
