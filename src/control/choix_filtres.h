#pragma once
// What a user chooses above the list: legal entity, validity, kind of employer, order. The fields
// are the control's own; what they come to is a value, see filtre.h and placement.h.

#include <string>
#include <string_view>

#include "control/filtre.h"
#include "control/placement.h"
#include "data/liste_codes.h"

namespace control {

class Ctr_Contrat;

class ChoixFiltres {
 public:
  explicit ChoixFiltres(Ctr_Contrat& liste) : liste_(liste) {}

  void Lier();
  // The legal entities on file; a single one is shown at once.
  void Remplir_Association();
  void ParDefaut();
  // As the host words them, see Ctr_Contrat::Affiche.
  void Prendre(std::string_view typeAct, std::string_view codeAsso, std::string_view actifs);
  void Activer(bool actifs);

  FiltreContrats Filtre() const;
  Tri TriChoisi() const;

 private:
  void Cbo_Association_Click();

  Ctr_Contrat& liste_;
  // The rows of the filter of legal entities.
  data::ListeCodes associations_;
  // The legal entity that the list is restricted to; "" for all.
  std::string codeAssocFiltre_;
};

}  // namespace control
