#pragma once
// The desk: what a desktop host gives to the screens, whole. It owns the services of the platform,
// knows how each form's window is made and which forms are shown, and is the door at which errors
// of the handlers stop.
//
// One desk outlives the forms and binders that stand on it.

#include <QSettings>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

#include "screen/platform.h"

class QWidget;

namespace data {
class StoreError;
}

namespace hote {

class Liaison;

class Bureau {
 public:
  using Fabrique = std::function<std::unique_ptr<QWidget>()>;

  // `poste`: the workstation, this machine's own when absent. `reglages`: the settings store, the
  // user's own when absent.
  explicit Bureau(const data::Poste* poste = nullptr,
                  std::unique_ptr<QSettings> reglages = nullptr);
  ~Bureau();
  Bureau(const Bureau&) = delete;
  Bureau& operator=(const Bureau&) = delete;

  screen::Platform& Plateforme();
  QSettings& Reglages();

  // How the window of the form of that name is made. The first one told holds.
  void Enregistrer(const std::string& forme, Fabrique fabrique);
  // A new window for the form; a std::logic_error when none was registered.
  std::unique_ptr<QWidget> Construire(const std::string& forme) const;

  // A control of the suite that the screens may use by that name. The first one told holds, until
  // it is taken back, as it is before it goes.
  void Heberger(const std::string& nom, screen::ControleHeberge& controle);
  void Congedier(const screen::ControleHeberge& controle);
  // What the screens read for a setting ("section/key") that nobody has made, "" for nothing.
  void ProposerReglage(const QString& cle, std::function<QString()> trouver);

  // Help was asked for: the help file and a command of screen::Aide. Unset, nothing happens.
  std::function<void(const std::string& fichier, int commande)> SurAide;
  // A form has got its window, which is about to be shown.
  std::function<void(Liaison& liaison)> SurFenetre;
  // A document was printed to that PDF file.
  std::function<void(const QString& fichier)> SurImpression;

  void Inscrire(Liaison& liaison) { liaisons_.push_back(&liaison); }
  void Retirer(Liaison& liaison);
  // The form shown last, which has the user now; nullptr when none is shown. Help on the current
  // screen starts from its name.
  screen::Form* FormeCourante() const;
  // The window on which boxes and further forms stand: the one that was bound last, or the active
  // one. A window that comes back from under a box is active a moment too late to be asked.
  QWidget* FenetreCourante() const;
  // Shows the state of every form.
  void PousserTout();

  // Runs a part of the logic. What rises from it is told to the user; false then.
  bool Proteger(const std::function<void()>& partie);
  // Number and place of a store's error, as the user reads them to whoever helps.
  static QString Repere(const data::StoreError& erreur);

  // Pop-up menus shown so far.
  unsigned long Menus() const { return menus_; }
  void CompterMenu() { ++menus_; }

 private:
  void MontrerErreur(const QString& texte, const QString& detail);

  struct Services;
  std::unique_ptr<Services> services_;
  std::map<std::string, Fabrique> fabriques_;
  std::vector<Liaison*> liaisons_;
  unsigned long menus_ = 0;
};

}  // namespace hote
