#include "fenetre/fenetre_hote.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QSessionManager>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <utility>

#include "control/ctr_contrat.h"
#include "data/cles.h"
#include "data/store_error.h"
#include "fenetre/accueil.h"
#include "fenetre/aide.h"
#include "fenetre/avertir.h"
#include "fenetre/fichier_demonstration.h"
#include "fenetre/fichiers_recents.h"
#include "fenetre/menu_contrat.h"
#include "fenetre/page_echeances.h"
#include "fenetre/recherche_aidant.h"
#include "liaison/bureau.h"
#include "liaison/fenetre.h"
#include "liaison/textes_qt.h"
#include "widget/contrat_widget.h"

namespace hote {

namespace {

constexpr QSize TaillePremiere{1280, 720};
constexpr int LargeurRecherche = 260;
constexpr const char* CleFenetre = "fenetres/hote";
constexpr const char* ClePartage = "fenetres/hote_partage";

}  // namespace

FenetreHote::FenetreHote(Bureau& bureau, Ouvreur ouvrir)
    : bureau_(bureau),
      ouvrir_(std::move(ouvrir)),
      partage_(new QSplitter(this)),
      recherche_(new RechercheAidant(partage_)),
      centre_(new QStackedWidget(partage_)),
      accueil_(new Accueil(centre_)) {
  FaireCentre();
  FaireMenus();
  RetrouverPlace();
  Titrer();
  RemplirAccueil();
  bureau_.SurAide = [this](const std::string&, int commande) {
    if (commande == screen::Aide::Quitter) {
      FenetreAide::Fermer();
    } else {
      FenetreAide::Appeler(ecran_ != nullptr ? "Ctr_Contrat" : FenetreAide::Accueil);
    }
  };
  bureau_.SurImpression = annoncerDocument;
  connect(qApp, &QGuiApplication::commitDataRequest, this, &FenetreHote::FinDeSession,
          Qt::DirectConnection);
  qApp->installEventFilter(this);
}

FenetreHote::~FenetreHote() {
  delete ecran_;
  bureau_.SurAide = nullptr;
  bureau_.SurImpression = nullptr;
}

void FenetreHote::FaireCentre() {
  setCentralWidget(partage_);
  recherche_->setMinimumWidth(140);
  recherche_->setEnabled(false);
  centre_->addWidget(accueil_);
  partage_->setStretchFactor(1, 1);
  partage_->setChildrenCollapsible(true);
  partage_->setCollapsible(1, false);
  connect(recherche_, &RechercheAidant::choisi, this,
          [this](const Aidant& aidant) { OuvrirAidant(aidant); });
}

bool FenetreHote::OuvrirFichier(const QString& chemin) {
  if (EditionEnCours()) return false;
  if (base_ != nullptr) base_->EcarterJournal();
  try {
    auto base = std::make_unique<BaseOuverte>(chemin, bureau_.Plateforme().poste, ouvrir_);
    auto aidants = lireAidants(base->Db().Stockage());
    FermerAidant();
    if (echeances_ != nullptr) echeances_->Suivre(nullptr);
    base_ = std::move(base);
    recherche_->Remplir(std::move(aidants));
  } catch (const std::exception& erreur) {
    const bool serveur = surServeur(chemin);
    avertirErreur(
        (serveur ? "La base « " : "Le fichier « ") + aMontrer(chemin) + " » ne s'ouvre pas.",
        erreur);
    if (!serveur && !QFileInfo::exists(chemin)) FichiersRecents(bureau_.Reglages()).Oublier(chemin);
    RemplirRecents();
    return false;
  }
  perdue_ = false;
  connect(base_.get(), &BaseOuverte::disparue, this, &FenetreHote::BaseDisparue,
          Qt::QueuedConnection);
  FichiersRecents(bureau_.Reglages()).Noter(base_->Chemin());
  RemplirRecents();
  recherche_->setEnabled(true);
  recherche_->Prendre();
  RemplirAccueil();
  Titrer();
  return true;
}

void FenetreHote::OuvrirDernier() {
  const QStringList chemins = FichiersRecents(bureau_.Reglages()).Chemins();
  const bool dernier =
      !chemins.isEmpty() && (surServeur(chemins.first()) || QFileInfo::exists(chemins.first()));
  const QString chemin = dernier ? chemins.first() : fichierDemonstration();
  if (!chemin.isEmpty()) OuvrirFichier(chemin);
}

bool FenetreHote::OuvrirAidant(const Aidant& aidant, const std::string& contrat) {
  if (base_ == nullptr || EditionEnCours()) return false;
  FermerAidant();
  aidant_ = aidant;
  ecran_ = new ContratWidget(bureau_, centre_);
  centre_->addWidget(ecran_);
  connect(ecran_, &ContratWidget::sortie, this, &FenetreHote::FermerAidant, Qt::QueuedConnection);
  contrat_->Viser(ecran_);
  connect(ecran_, &ContratWidget::annonce, this,
          [this](const QString& texte) { statusBar()->showMessage(texte); });
  ecran_->TheDatabase(base_->Db());
  ecran_->TheClient(client_);
  ecran_->W_Code = aidant.code;
  ecran_->W_NomPrenom = aidant.nomPrenom;
  ecran_->W_EtatSuppAidant = aidant.supprime;
  ecran_->W_CodeContrat = contrat;
  ecran_->DroitsUtilisateur(niveau_ == session::Droit::Plein ? complets_ : consultation_);
  if (!contrat.empty()) centre_->setCurrentWidget(ecran_);
  try {
    ecran_->init();
    ecran_->Affiche("", "", "A");
  } catch (const std::exception& erreur) {
    FermerAidant();
    avertirErreur("Les contrats de « " + versQt(aidant.nomPrenom) + " » ne s'affichent pas.",
                  erreur);
    return false;
  }
  centre_->setCurrentWidget(ecran_);
  recherche_->Designer(aidant.code);
  // Its first showing is not the window's: an empty one asks for no bar.
  statusBar()->setSizeGripEnabled(false);
  if (auto* const liste = ecran_->findChild<QWidget*>("Lst_DatDebContrat")) liste->setFocus();
  Titrer();
  return true;
}

bool FenetreHote::OuvrirAidant(const std::string& code, const std::string& contrat) {
  if (base_ == nullptr) return false;
  try {
    for (const Aidant& aidant : lireAidants(base_->Db().Stockage())) {
      if (aidant.code == code) return OuvrirAidant(aidant, contrat);
    }
  } catch (const std::exception& erreur) {
    avertirErreur("La liste des aidants ne peut pas être lue.", erreur);
    return false;
  }
  avertir("L'aidant « " + versQt(code) +
          " » n'existe pas dans ce fichier. Cherchez-le par son nom.");
  return false;
}

void FenetreHote::FermerAidant() {
  if (ecran_ == nullptr || ecran_->Occupe()) return;
  MontrerVide();
  delete std::exchange(ecran_, nullptr);
  aidant_ = Aidant();
  recherche_->Designer("");
  statusBar()->clearMessage();
  recherche_->Prendre();
  Titrer();
}

// The screen looks its right up once, at its start.
void FenetreHote::ChangerDroits(int niveau) {
  if (niveau == niveau_ || EditionEnCours()) return;
  niveau_ = niveau;
  for (QAction* const choix : droits_->actions()) choix->setChecked(choix->data() == niveau_);
  Titrer();
  if (ecran_ != nullptr) OuvrirAidant(Aidant(aidant_));
}

void FenetreHote::Actualiser() {
  if (base_ == nullptr) return;
  try {
    recherche_->Remplir(lireAidants(base_->Db().Stockage()));
  } catch (const std::exception& erreur) {
    avertirErreur("La liste des aidants ne peut pas être lue.", erreur);
  }
}

void FenetreHote::Titrer() {
  QStringList parties;
  if (ecran_ != nullptr) {
    parties << QString("%1 (%2)").arg(versQt(aidant_.nomPrenom), versQt(aidant_.code));
  }
  if (base_ != nullptr) {
    parties << (perdue_ ? base_->Nom() + " (absent ou remplacé)" : base_->Nom());
    parties << (niveau_ == session::Droit::Plein ? "droits complets" : "consultation");
  }
  parties << "Contrats de travail";
  setWindowTitle(parties.join(" – "));
}

void FenetreHote::RemplirAccueil() {
  accueil_->Dire("Ouvrez un fichier de données par le menu Fichier.");
  if (base_ != nullptr) {
    Echeances().Suivre(&base_->Db());
  } else if (echeances_ != nullptr) {
    echeances_->Suivre(nullptr);
  }
  if (ecran_ == nullptr) MontrerVide();
}

void FenetreHote::MontrerVide() {
  centre_->setCurrentWidget(base_ == nullptr ? static_cast<QWidget*>(accueil_) : &Echeances());
}

PageEcheances& FenetreHote::Echeances() {
  if (echeances_ != nullptr) return *echeances_;
  echeances_ = new PageEcheances(bureau_.Plateforme(), centre_);
  echeances_->Dire("Tapez à gauche le nom ou le code d'un aidant, puis Entrée.");
  centre_->addWidget(echeances_);
  connect(echeances_, &PageEcheances::choisie, this, [this](const std::string& contrat) {
    OuvrirAidant(contrat.substr(0, data::LongueurCodeAidant), contrat);
  });
  return *echeances_;
}

void FenetreHote::BaseDisparue() {
  if (base_ == nullptr || perdue_) return;
  perdue_ = true;
  const QString journal = base_->EcarterJournal();
  Titrer();
  if (const QString defaut = base_->Defaut(); !defaut.isEmpty()) {
    avertir(defaut +
            "\n\nTant que ce n'est pas fait, rien ne s'enregistre ; une saisie en cours reste à "
            "l'écran." +
            (journal.isEmpty() ? ""
                               : "\n\nLes dernières écritures de l'ancien fichier sont gardées "
                                 "dans « " +
                                     journal + " »."));
  }
  AttendreRetour();
}

// A file that is gone can still be read here, perhaps here alone: it stays open. One whose name
// another file has taken does not: its data would be taken for the new ones.
void FenetreHote::AttendreRetour() {
  if (base_ == nullptr || !perdue_) return;
  if (base_->Defaut().isEmpty()) {
    perdue_ = false;
    base_->Veiller();
    Titrer();
  } else if (base_->Remplacee() && (ecran_ == nullptr || !ecran_->Occupe())) {
    Oublier();
  } else {
    QTimer::singleShot(500, this, [this] { AttendreRetour(); });
  }
}

void FenetreHote::Oublier() {
  FermerAidant();
  if (echeances_ != nullptr) echeances_->Suivre(nullptr);
  base_.reset();
  perdue_ = false;
  recherche_->Remplir({});
  recherche_->setEnabled(false);
  RemplirAccueil();
  Titrer();
}

// True, after a notice, while an editor or a box of the contract screen is open: it is modal, so
// that only the window system or the end of a session come this way.
bool FenetreHote::EditionEnCours() {
  if (ecran_ == nullptr || !ecran_->Occupe()) return false;
  if (prevenu_) return true;
  prevenu_ = true;
  avertir("Un contrat est ouvert. Terminez par OK ou Retour, puis recommencez.");
  prevenu_ = false;
  return true;
}

void FenetreHote::closeEvent(QCloseEvent* evenement) {
  if (EditionEnCours()) {
    evenement->ignore();
    return;
  }
  RetenirPlace();
  FenetreAide::Fermer();
  FermerAidant();
  evenement->accept();
}

// What was stored is safe whatever happens; what is only typed needs its user.
void FenetreHote::FinDeSession(QSessionManager& gestion) {
  RetenirPlace();
  if (ecran_ == nullptr || !ecran_->Occupe() || !gestion.allowsInteraction()) return;
  gestion.cancel();
  gestion.release();
  QTimer::singleShot(0, this, [this] { EditionEnCours(); });
}

void FenetreHote::paintEvent(QPaintEvent* evenement) {
  QMainWindow::paintEvent(evenement);
  if (std::exchange(dessinee_, true)) return;
  // The icon's format loads a reader of its own: behind the first picture.
  QTimer::singleShot(0, this, [this] {
    const QIcon icone(":/paquet/contrat-hote.svg");
    setWindowIcon(icone);
    accueil_->PoserIcone(icone);
  });
  emit peinte();
}

void FenetreHote::RetenirPlace() {
  bureau_.Reglages().setValue(CleFenetre, saveGeometry());
  bureau_.Reglages().setValue(ClePartage, partage_->saveState());
}

void FenetreHote::RetrouverPlace() {
  partage_->setSizes({LargeurRecherche, TaillePremiere.width() - LargeurRecherche});
  partage_->restoreState(bureau_.Reglages().value(ClePartage).toByteArray());
  if (restoreGeometry(bureau_.Reglages().value(CleFenetre).toByteArray())) return;
  donnerTaille(*this, TaillePremiere);
}

}  // namespace hote
