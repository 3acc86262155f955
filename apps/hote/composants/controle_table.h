#pragma once
// The parameter-table control: one table of codes, its lines and what is done to them.

#include "composants/controle_modifiable.h"
#include "composants/table_codes.h"

namespace hote {

class ControleTable : public ControleModifiable {
 public:
  static constexpr const char* Nom = "Ctr_ParamTable";

  ControleTable(Bureau& bureau, const ObjetsSuite& objets)
      : ControleModifiable(bureau, objets, {"W_Sortir", "-1", "0"}) {}

  // "init": reads the table that TheCle names.
  void Appeler(const std::string& methode) override;
  // Width and Height are twips.
  std::string Lire(const std::string& propriete) const override;
  std::unique_ptr<QWidget> Vue() override;

 private:
  class Lignes;
  bool Modifie() const override { return table_ != nullptr && table_->Modifiee(); }
  std::string Enregistrer() const override { return table_->Enregistrer(); }

  std::unique_ptr<TableCodes> table_;
};

}  // namespace hote
