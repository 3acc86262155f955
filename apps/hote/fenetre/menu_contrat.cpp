#include "fenetre/menu_contrat.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMimeData>
#include <QSaveFile>
#include <QStandardPaths>
#include <stdexcept>

#include "control/ctr_contrat.h"
#include "fenetre/avertir.h"
#include "fenetre/impression_liste.h"
#include "fenetre/tableau_liste.h"
#include "liaison/bureau.h"
#include "liaison/textes_qt.h"
#include "widget/contrat_widget.h"

namespace hote {

namespace {

bool toujours(const ContratWidget&) {
  return true;
}

int ligneChoisie(const ContratWidget& ecran) {
  return ecran.Controle().Lst_DatDebContrat.ListIndex();
}

bool aUneLigne(const ContratWidget& ecran) {
  return ligneChoisie(ecran) >= 0;
}

void copier(const Tableau& tableau) {
  QGuiApplication::clipboard()->setMimeData(pourPressePapiers(tableau));
}

void ecrire(const QString& chemin, const QByteArray& contenu) {
  QSaveFile fichier(chemin);
  const bool ecrit = fichier.open(QIODevice::WriteOnly) &&
                     fichier.write(contenu) == contenu.size() && fichier.flush() &&
                     fichier.commit();
  if (!ecrit) throw std::runtime_error(versModele(fichier.errorString()));
}

}  // namespace

MenuContrat::MenuContrat(Bureau& bureau, QWidget* parent)
    : QMenu("&Contrat", parent), bureau_(bureau) {
  FaireActes();
  addSeparator();
  FaireFiltres();
  addSeparator();
  FaireCopies();
  addSeparator();
  FaireFrise();
  connect(this, &QMenu::aboutToShow, this, &MenuContrat::Preparer);
  // An entry that cannot be chosen has no key either: what it asks for is looked at anew then.
  connect(this, &QMenu::aboutToHide, this, [this] {
    for (const auto& [action, possible] : entrees_) action->setEnabled(true);
  });
}

void MenuContrat::Viser(ContratWidget* ecran) {
  ecran_ = ecran;
  if (ecran == nullptr) return;
  connect(ecran, &ContratWidget::menuDemande, this, [this](const QPoint& place) { popup(place); });
}

QAction* MenuContrat::Ajouter(QMenu& menu, const QString& texte, const QKeySequence& touche,
                              const Possible& possible, const Acte& acte) {
  QAction* const action = menu.addAction(texte);
  action->setShortcut(touche);
  entrees_.append({action, possible});
  connect(action, &QAction::triggered, this, [this, possible, acte] {
    if (ecran_ != nullptr && !ecran_->Occupe() && possible(*ecran_)) acte(*ecran_);
  });
  return action;
}

void MenuContrat::Preparer() {
  for (const auto& [action, possible] : entrees_) {
    action->setEnabled(ecran_ != nullptr && possible(*ecran_));
  }
  frise_->setChecked(ecran_ != nullptr && ecran_->FriseVisible());
}

// Keys that belong to the screen itself, and work where its keyboard is, are only shown here.
void MenuContrat::FaireActes() {
  Ajouter(*this, "&Ouvrir le contrat\tEntrée", {}, aUneLigne,
          [](ContratWidget& ecran) { ecran.OuvrirChoisi(); });
  Ajouter(
      *this, "&Ajouter un contrat\tInser", {},
      [](const ContratWidget& ecran) { return ecran.Controle().Cmd_Ajouter.Disponible(); },
      [](ContratWidget& ecran) { ecran.Ajouter(); });
  addSeparator();
  Ajouter(*this, "&Rechercher, ou relire la liste", QKeySequence("F5"), toujours,
          [](ContratWidget& ecran) { ecran.Rechercher(); });
  Ajouter(
      *this, "Choisir d'autres &filtres\tCtrl+Entrée", {},
      [](const ContratWidget& ecran) { return ecran.Controle().Cmd_OK.Disponible(); },
      [](ContratWidget& ecran) { ecran.ChoisirFiltres(); });
}

void MenuContrat::FaireFiltres() {
  using Filtre = ContratWidget::Filtre;
  QMenu* const montrer = addMenu("&Montrer");
  constexpr std::pair<const char*, Filtre> Filtres[] = {
      {"Les contrats en &cours", Filtre::EnCours},
      {"Les contrats à &venir", Filtre::AVenir},
      {"Les contrats &terminés", Filtre::Termines},
      {"T&ous les contrats", Filtre::Tous}};
  for (const auto& [texte, filtre] : Filtres) {
    Ajouter(*montrer, texte, {}, toujours,
            [filtre = filtre](ContratWidget& ecran) { ecran.Montrer(filtre); });
  }
}

void MenuContrat::FaireCopies() {
  Ajouter(
      *this, "&Copier la ligne", QKeySequence(QKeySequence::Copy), aUneLigne,
      [](const ContratWidget& ecran) { copier(tableauDe(ecran.Controle(), ligneChoisie(ecran))); });
  Ajouter(*this, "Copier la &liste", QKeySequence("Ctrl+Shift+C"), toujours,
          [this](const ContratWidget& ecran) {
            copier(tableauDe(ecran.Controle()));
            emit annonce("Liste copiée dans le presse-papiers");
          });
  Ajouter(*this, "&Exporter la liste…", {}, toujours,
          [this](const ContratWidget& ecran) { Exporter(ecran); });
  Ajouter(*this, "&Imprimer la liste", QKeySequence(QKeySequence::Print), toujours,
          [this](const ContratWidget& ecran) { Imprimer(ecran); });
}

void MenuContrat::FaireFrise() {
  frise_ = Ajouter(*this, "Afficher la fri&se", {}, toujours,
                   [](ContratWidget& ecran) { ecran.MontrerFrise(!ecran.FriseVisible()); });
  frise_->setCheckable(true);
}

void MenuContrat::Exporter(const ContratWidget& ecran) {
  const QDir dossier(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QString propose = dossier.filePath(nomFichier(ecran.Controle()) + ".csv");
  const QString chemin = QFileDialog::getSaveFileName(
      parentWidget(), "Exporter la liste", propose, "Tableaux CSV (*.csv);;Tous les fichiers (*)");
  if (chemin.isEmpty()) return;
  try {
    ecrire(chemin, enCsv(tableauDe(ecran.Controle())));
    emit annonce("Liste exportée dans « " + chemin + " »");
  } catch (const std::exception& erreur) {
    avertirErreur("La liste n'est pas exportée dans « " + chemin + " ».", erreur);
  }
}

void MenuContrat::Imprimer(const ContratWidget& ecran) {
  try {
    const control::Ctr_Contrat& liste = ecran.Controle();
    const QString fichier = imprimerListe(tableauDe(liste), nomFichier(liste));
    if (bureau_.SurImpression) bureau_.SurImpression(fichier);
  } catch (const std::exception& erreur) {
    avertirErreur("La liste n'est pas imprimée.", erreur);
  }
}

}  // namespace hote
