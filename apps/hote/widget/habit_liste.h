#pragma once
// What the list's screen shows beside the fields of its form: the line that counts the contracts,
// each number a way to its filter; the strip of time; what an empty list says; why nothing can be
// added.

#include <QObject>

#include "control/vue_contrats.h"

class FriseContrats;
class QLabel;
class QSettings;

namespace control {
class Ctr_Contrat;
}

namespace hote {

class Liaison;

class HabitListe : public QObject {
  Q_OBJECT

 public:
  // Lives as long as the binder of the list control; the control outlives it.
  HabitListe(control::Ctr_Contrat& controle, Liaison& liaison, QSettings& reglages);

  bool eventFilter(QObject* objet, QEvent* evenement) override;

 signals:
  void menuDemande(const QPoint& place);

 private:
  void LierFrise();
  void LierMenu();
  void Regarder();
  void Suivre(const QString& lien);

  control::VueContrats vue_;
  Liaison& liaison_;
  QLabel* compte_;
  QLabel* pourquoi_;
  // Over the rows that are not there.
  QLabel* vide_;
  FriseContrats* frise_;
  // The contracts have changed since they were last shown here.
  bool autres_ = true;
};

// The lines of a tooltip for that contract, "" for one that is not on file.
QString decrire(const control::VueContrats& vue, const std::string& cle);

// The strip of a window, tied to what it shows. Its context menu hides it, here and, from their
// next showing on, in the other windows.
void habillerFrise(FriseContrats& frise, const control::VueContrats& vue, QSettings& reglages);
bool friseVisible(const QSettings& reglages);
void montrerFrise(FriseContrats& frise, QSettings& reglages, bool visible);

// "3 en cours, 1 à venir, 12 terminés; prochaine fin 24/01/2027", with links for those that are not
// 0; "" without any contract.
QString ligneCompte(const control::Compte& compte);

}  // namespace hote
