#pragma once
// The civil-state control: one person helped, read and corrected.

#include "composants/controle_modifiable.h"
#include "composants/fiche_aide.h"

class QComboBox;
class QLineEdit;

namespace hote {

class ControleAide : public ControleModifiable {
 public:
  static constexpr const char* Nom = "Ctr_CivilAide";

  ControleAide(Bureau& bureau, const ObjetsSuite& objets)
      : ControleModifiable(bureau, objets, {"W_Occupe", "0", "-1"}) {}

  // "init": reads the person that W_CodeAide names.
  void Appeler(const std::string& methode) override;
  std::unique_ptr<QWidget> Vue() override;

 private:
  class Saisie;
  bool Modifie() const override;
  std::string Enregistrer() const override;

  std::unique_ptr<FicheAide> fiche_;
  QPointer<Saisie> saisie_;
};

}  // namespace hote
