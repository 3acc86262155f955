#include "widget/habit_editeur.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QResizeEvent>

#include "control/ctr_contrat.h"
#include "liaison/liaison.h"
#include "widget/frise_contrats.h"
#include "widget/habit_liste.h"

namespace hote {

namespace {

constexpr int LignesFrise = 5;
constexpr int RangsMax = 4;
// In a lower window the fields need the room.
constexpr int HauteurFrise = 560;  // pixels

}  // namespace

HabitEditeur::HabitEditeur(control::Ctr_Contrat& controle, Liaison& liaison, QSettings& reglages)
    : QObject(&liaison),
      controle_(controle),
      liaison_(liaison),
      reglages_(reglages),
      vue_(controle),
      frise_(liaison.Racine().findChild<FriseContrats*>("frise")) {
  frise_->SetLignesMax(LignesFrise);
  frise_->GarderHauteur();
  habillerFrise(*frise_, vue_, reglages);
  liaison_.Racine().installEventFilter(this);
  GuetterSaisie();
  connect(&liaison_, &Liaison::poussee, this, &HabitEditeur::Regarder);
}

bool HabitEditeur::eventFilter(QObject*, QEvent* evenement) {
  if (evenement->type() == QEvent::Resize) {
    const int hauteur = static_cast<QResizeEvent*>(evenement)->size().height();
    frise_->setVisible(hauteur >= HauteurFrise && friseVisible(reglages_));
  }
  return false;
}

void HabitEditeur::GuetterSaisie() {
  // A text is noted after the push of its own change.
  const auto noter = [this] {
    saisie_ = true;
    Marquer();
  };
  const QWidget& fenetre = liaison_.Racine();
  for (const auto* const ligne : fenetre.findChildren<QLineEdit*>()) {
    connect(ligne, &QLineEdit::textChanged, this, [ligne, noter] {
      if (ligne->hasFocus()) noter();
    });
  }
  for (const auto* const combo : fenetre.findChildren<QComboBox*>()) {
    connect(combo, &QComboBox::activated, this, noter);
  }
  for (const auto* const bouton : fenetre.findChildren<QAbstractButton*>()) {
    const bool valeur = qobject_cast<const QCheckBox*>(bouton) != nullptr ||
                        qobject_cast<const QRadioButton*>(bouton) != nullptr;
    if (valeur) connect(bouton, &QAbstractButton::clicked, this, noter);
  }
}

void HabitEditeur::Regarder() {
  if (auto enMain = controle_.EnMain(); enMain && enMain != montre_) {
    montre_ = std::move(enMain);
    frise_->Montrer(vue_.FaireFriseEnMain(RangsMax));
  }
  Marquer();
}

void HabitEditeur::Marquer() {
  liaison_.Marquer(controle_.Etat().DroitComplet() && (saisie_ || controle_.EnMainModifie()));
}

}  // namespace hote
