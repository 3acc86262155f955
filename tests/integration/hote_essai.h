#pragma once
// A host window on a data file of its own, and a clerk who answers its boxes.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "fenetre/fenetre_hote.h"
#include "liaison/bureau.h"
#include "storage/sqlite.h"

namespace essai {

// A user who answers each box with its first button, and keeps what it said.
class Lecteur {
 public:
  Lecteur() {
    QObject::connect(&minuteur_, &QTimer::timeout, &minuteur_, [this] {
      auto* const boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (boite == nullptr) return;
      dit += boite->text();
      boite->buttons().constFirst()->click();
    });
    minuteur_.start(10);
  }
  // Whether it was said since the last time.
  bool ADit(const char* mot) { return std::exchange(dit, {}).contains(mot); }
  QString dit{};

 private:
  QTimer minuteur_{};
};

// Does one thing after the other in the modal form of that name, each when it stands in front.
class DansForme {
 public:
  using Acte = std::function<void(QWidget& fenetre)>;
  DansForme(const char* nom, std::vector<Acte> actes) : nom_(nom), actes_(std::move(actes)) {
    Guetter();
  }
  std::size_t Faits() const { return faits_; }

 private:
  // A new timer each time: one that is being delivered is silent in a nested loop.
  void Guetter() {
    QTimer::singleShot(10, &vie_, [this] {
      Guetter();
      QWidget* const active = QApplication::activeModalWidget();
      if (active == nullptr || active->objectName() != nom_) return;
      // A form that is shown, but not active yet, does not see its fields being left.
      if (faits_ == 0 && !active->isActiveWindow()) return;
      // A failed check must leave no loop open.
      if (faits_ >= actes_.size() && ++tours_ > 500) std::abort();
      if (faits_ < actes_.size()) actes_[faits_++](*active);
    });
  }

  QObject vie_{};
  QString nom_;
  std::vector<Acte> actes_;
  std::size_t faits_ = 0;
  int tours_ = 0;
};

inline void cliquer(QWidget& fenetre, const char* bouton) {
  fenetre.findChild<QAbstractButton*>(bouton)->click();
}

class Hote : public ::testing::Test {
 protected:
  QString Chemin(const char* nom) const { return dossier_.filePath(nom); }
  std::unique_ptr<QSettings> Reglages() const {
    return std::make_unique<QSettings>(Chemin("reglages.ini"), QSettings::IniFormat);
  }
  std::string Titre() const { return fenetre_.windowTitle().toStdString(); }

  const QTemporaryDir dossier_{};
  const data::PosteFixe poste_{21511};
  hote::Bureau bureau_{&poste_, Reglages()};
  hote::FenetreHote fenetre_{bureau_};
};

}  // namespace essai
