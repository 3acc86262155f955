#pragma once
// The host window: a data file, its carers, and the contract screen of one of them.
//
//   hote::FenetreHote fenetre(bureau);
//   fenetre.show();
//   fenetre.OuvrirFichier("paie.contrats");
//
// No failure of the store ends the program: it is told, and what was open or typed stays as far as
// the store allows. What the screens have stored is stored; the window writes nothing itself.

#include <QMainWindow>
#include <memory>
#include <string>

#include "fenetre/annuaire.h"
#include "fenetre/base_ouverte.h"
#include "session/droits.h"
#include "session/session.h"

class ContratWidget;
class QActionGroup;
class QSessionManager;
class QSplitter;
class QStackedWidget;

namespace hote {

class Accueil;
class Bureau;
class MenuContrat;
class PageEcheances;
class RechercheAidant;

class FenetreHote : public QMainWindow {
  Q_OBJECT

 public:
  // `bureau` outlives the window. `ouvrir`: how a data file is opened.
  explicit FenetreHote(Bureau& bureau, Ouvreur ouvrir = ouvrirBase);
  ~FenetreHote() override;

  // False, after a message, when it does not open; what was open before stays open then.
  bool OuvrirFichier(const QString& chemin);
  // The file opened last, else the demonstration data, whichever stands.
  void OuvrirDernier();
  // Shows the contracts of a carer of the file; false, after a message, when that fails.
  // `contrat`: the key of one that opens in the editor straight away, or "".
  bool OuvrirAidant(const Aidant& aidant, const std::string& contrat = {});
  // The carer of that code; false, after a message, when the file has none.
  bool OuvrirAidant(const std::string& code, const std::string& contrat = {});
  void FermerAidant();
  // 2 full, 1 consultation; the carer's screen begins anew.
  void ChangerDroits(int niveau);

  // The contract screen, nullptr when no carer is open.
  ContratWidget* Ecran() const { return ecran_; }

 signals:
  // The first picture of the window is drawn: a large file does not hold it back.
  void peinte();

 protected:
  void closeEvent(QCloseEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void FaireCentre();
  void FaireMenus();
  void FaireMenuFichier();
  void FaireMenuDroits();
  void FaireMenuAide();
  void RemplirRecents();
  void RemplirAccueil();
  // What the right side shows while no carer is open.
  void MontrerVide();
  PageEcheances& Echeances();
  void ChoisirFichier();
  void NouvelleFenetre();
  void Actualiser();
  void Titrer();
  void BaseDisparue();
  void AttendreRetour();
  void Oublier();
  bool EditionEnCours();
  void FinDeSession(QSessionManager& gestion);
  void RetenirPlace();
  void RetrouverPlace();

  Bureau& bureau_;
  const Ouvreur ouvrir_;
  session::Client client_;
  const session::DroitsUniformes complets_{session::Droit::Plein};
  const session::DroitsUniformes consultation_{1};
  int niveau_ = session::Droit::Plein;

  std::unique_ptr<BaseOuverte> base_;
  Aidant aidant_;
  ContratWidget* ecran_ = nullptr;
  // The file no longer stands under its name. It may come back.
  bool perdue_ = false;
  bool prevenu_ = false;
  bool dessinee_ = false;

  QSplitter* partage_;
  RechercheAidant* recherche_;
  QStackedWidget* centre_;
  Accueil* accueil_;
  // Made when a file is open: the first picture of the window does not wait for it.
  PageEcheances* echeances_ = nullptr;
  QMenu* recents_ = nullptr;
  MenuContrat* contrat_ = nullptr;
  QActionGroup* droits_ = nullptr;
};

}  // namespace hote
