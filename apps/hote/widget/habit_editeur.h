#pragma once
// What the editor's window shows beside the fields of its form: in its title, that something typed
// is not stored yet; in the strip of time, the contract in hand among the carer's others, as its
// dates are typed.

#include <QObject>
#include <optional>

#include "control/vue_contrats.h"

class FriseContrats;
class QSettings;

namespace control {
class Ctr_Contrat;
}

namespace hote {

class Liaison;

class HabitEditeur : public QObject {
 public:
  static constexpr const char* Forme = "Frm_ElementsContrat";

  // Lives as long as the binder of the editor that `controle` has open.
  HabitEditeur(control::Ctr_Contrat& controle, Liaison& liaison, QSettings& reglages);

  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  // Any of the user's ways to change a field; what the form fills in itself is none.
  void GuetterSaisie();
  void Regarder();
  void Marquer();

  const control::Ctr_Contrat& controle_;
  Liaison& liaison_;
  const QSettings& reglages_;
  control::VueContrats vue_;
  FriseContrats* frise_;
  std::optional<control::ContratAidant> montre_;
  bool saisie_ = false;
};

}  // namespace hote
