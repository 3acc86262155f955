// The menus of the host window.

#include <QActionGroup>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QSplitter>
#include <QStatusBar>

#include "fenetre/aide.h"
#include "fenetre/avertir.h"
#include "fenetre/choix_serveur.h"
#include "fenetre/fenetre_hote.h"
#include "fenetre/fichier_demonstration.h"
#include "fenetre/fichiers_recents.h"
#include "fenetre/menu_contrat.h"
#include "fenetre/menu_lettres.h"
#include "fenetre/page_echeances.h"
#include "fenetre/recherche_aidant.h"
#include "liaison/bureau.h"
#include "liaison/lien.h"

namespace hote {

namespace {

constexpr const char* CleMasquer = "aidants/masquer_supprimes";

}  // namespace

void FenetreHote::FaireMenuFichier() {
  QMenu* const fichier = menuBar()->addMenu("&Fichier");
  fichier->addAction("&Ouvrir…", QKeySequence(QKeySequence::Open), this,
                     &FenetreHote::ChoisirFichier);
  fichier->addAction("Ouvrir un &serveur…", this, [this] {
    const QString adresse = ChoixServeur::Demander(this);
    if (!adresse.isEmpty()) OuvrirFichier(adresse);
  });
  recents_ = fichier->addMenu("Fichiers &récents");
  RemplirRecents();
  QAction* const demonstration = fichier->addAction(
      "&Données de démonstration", this, [this] { OuvrirFichier(fichierDemonstration()); });
  demonstration->setVisible(!fichierDemonstration().isEmpty());
  fichier->addAction("&Nouvelle fenêtre", QKeySequence(QKeySequence::New), this,
                     &FenetreHote::NouvelleFenetre);
  fichier->addSeparator();
  fichier->addAction("&Quitter", QKeySequence("Ctrl+Q"), this, &QWidget::close);
}

void FenetreHote::FaireMenus() {
  FaireMenuFichier();
  QMenu* const aidant = menuBar()->addMenu("Aidan&t");
  aidant->addAction("&Chercher un aidant", QKeySequence(QKeySequence::Find), this, [this] {
    if (partage_->sizes().constFirst() == 0) partage_->setSizes({1, 1});
    recherche_->Prendre();
  });
  aidant->addAction("&Actualiser la liste", QKeySequence("Ctrl+R"), this, &FenetreHote::Actualiser);
  QAction* const masquer = aidant->addAction("&Masquer les aidants supprimés");
  masquer->setCheckable(true);
  connect(masquer, &QAction::toggled, this, [this](bool masques) {
    bureau_.Reglages().setValue(CleMasquer, masques);
    recherche_->MasquerSupprimes(masques);
  });
  masquer->setChecked(bureau_.Reglages().value(CleMasquer).toBool());
  aidant->addAction("&Échéances", QKeySequence("Ctrl+E"), this, [this] {
    FermerAidant();
    if (ecran_ == nullptr && base_ != nullptr) Echeances().Prendre();
  });
  aidant->addAction("&Fermer l'aidant", QKeySequence("Ctrl+W"), this, &FenetreHote::FermerAidant);
  contrat_ = new MenuContrat(bureau_, this);
  menuBar()->addMenu(contrat_);
  connect(contrat_, &MenuContrat::annonce, this,
          [this](const QString& texte) { statusBar()->showMessage(texte); });
  ajouterMenuLettres(*menuBar(), bureau_);
  FaireMenuDroits();
  FaireMenuAide();
}

void FenetreHote::FaireMenuDroits() {
  struct Choix {
    const char* texte;
    int niveau;
  };
  constexpr Choix Niveaux[] = {{"Droits &complets (2)", session::Droit::Plein},
                               {"C&onsultation (1)", 1}};
  QMenu* const menu = menuBar()->addMenu("&Droits");
  droits_ = new QActionGroup(this);
  for (const Choix& choix : Niveaux) {
    QAction* const action = menu->addAction(choix.texte);
    action->setCheckable(true);
    action->setData(choix.niveau);
    action->setChecked(choix.niveau == niveau_);
    droits_->addAction(action);
    connect(action, &QAction::triggered, this,
            [this, niveau = choix.niveau] { ChangerDroits(niveau); });
  }
}

// F1 is taken from the keys, so that it works in every window; here it is only shown.
void FenetreHote::FaireMenuAide() {
  QMenu* const menu = menuBar()->addMenu("Aid&e");
  menu->addAction("&Aide sur cet écran\tF1", this, [this] {
    FenetreAide::Appeler(ecran_ != nullptr ? "Ctr_Contrat" : FenetreAide::Accueil);
  });
  menu->addAction("&Sommaire", this, [] { FenetreAide::Appeler(FenetreAide::Accueil); });
  menu->addSeparator();
  menu->addAction("À &propos", this, [this] {
    QMessageBox::about(this, "À propos",
                       "Contrats de travail des aidants, version " +
                           QApplication::applicationVersion() +
                           ".\nFenêtre d'essai de l'écran des contrats.");
  });
}

bool FenetreHote::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() != QEvent::KeyPress || !objet->isWidgetType()) return false;
  const auto& touche = static_cast<QKeyEvent&>(*evenement);
  // The toolkit's own fields would take the letter.
  if (appelleUnAcces(touche) && qobject_cast<QLineEdit*>(QApplication::focusWidget()) == objet) {
    return true;
  }
  if (touche.key() != Qt::Key_F1) return false;
  FenetreAide::Appeler(ecran_ != nullptr ? "Ctr_Contrat" : FenetreAide::Accueil);
  return true;
}

void FenetreHote::RemplirRecents() {
  recents_->clear();
  for (const QString& chemin : FichiersRecents(bureau_.Reglages()).Chemins()) {
    QAction* const action = recents_->addAction(QString(chemin).replace("&", "&&"));
    // The entries are made anew by the opening, so it waits until this one has ended.
    connect(
        action, &QAction::triggered, this, [this, chemin] { OuvrirFichier(chemin); },
        Qt::QueuedConnection);
  }
  recents_->setEnabled(!recents_->isEmpty());
}

void FenetreHote::ChoisirFichier() {
  const QString dossier = base_ != nullptr ? QFileInfo(base_->Chemin()).path() : QString();
  const QString chemin =
      QFileDialog::getOpenFileName(this, "Ouvrir un fichier de données", dossier,
                                   "Fichiers de données (*.contrats);;Tous les fichiers (*)");
  if (!chemin.isEmpty()) OuvrirFichier(chemin);
}

// One contract screen is assumed in a process: the second window is a second program.
void FenetreHote::NouvelleFenetre() {
  QStringList arguments;
  if (base_ != nullptr) arguments << base_->Chemin();
  if (!QProcess::startDetached(QApplication::applicationFilePath(), arguments)) {
    avertir("La nouvelle fenêtre ne s'ouvre pas. Lancez le programme une seconde fois.");
  }
}

}  // namespace hote
