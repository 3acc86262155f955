#pragma once
// What the list's screen shows beside the fields of its form: the line that counts the contracts,
// each number a way to its filter; what an empty list says; why nothing can be added.

#include <QObject>

#include "control/vue_contrats.h"

class QLabel;

namespace control {
class Ctr_Contrat;
}

namespace hote {

class Liaison;

class HabitListe : public QObject {
 public:
  // Lives as long as the binder of the list control; the control outlives it.
  HabitListe(control::Ctr_Contrat& controle, Liaison& liaison);

 private:
  void Regarder();
  void Suivre(const QString& lien);

  control::VueContrats vue_;
  Liaison& liaison_;
  QLabel* compte_;
  QLabel* pourquoi_;
  // Over the rows that are not there.
  QLabel* vide_;
};

// "3 en cours, 1 à venir, 12 terminés; prochaine fin 24/01/2027", with links for those that are not
// 0; "" without any contract.
QString ligneCompte(const control::Compte& compte);

}  // namespace hote
