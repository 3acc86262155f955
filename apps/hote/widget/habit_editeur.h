#pragma once
// What the editor's window shows beside the fields of its form: in its title, that something typed
// is not stored yet.

#include <QObject>

namespace control {
class Ctr_Contrat;
}

namespace hote {

class Liaison;

class HabitEditeur : public QObject {
 public:
  static constexpr const char* Forme = "Frm_ElementsContrat";

  // Lives as long as the binder of the editor that `controle` has open.
  HabitEditeur(const control::Ctr_Contrat& controle, Liaison& liaison);

 private:
  // Any of the user's ways to change a field; what the form fills in itself is none.
  void GuetterSaisie();
  void Regarder();

  const control::Ctr_Contrat& controle_;
  Liaison& liaison_;
  bool saisie_ = false;
};

}  // namespace hote
