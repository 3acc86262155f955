#include "fenetre/page_echeances.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <exception>

#include "data/cles.h"
#include "data/jour.h"
#include "fenetre/avertir.h"
#include "liaison/textes_qt.h"
#include "screen/platform.h"
#include "widget/apparence.h"
#include "widget/lignes_listes.h"

namespace hote {

namespace {

enum Colonne { Jour, Quoi, NomAidant, Numero, NomEmployeur, NombreColonnes };

QStringList ligne(const rules::Echeance& e) {
  return {versQt(data::dateAffichee(e.jour)), versQt(e.libelle), versQt(e.aidant),
          versQt(e.contrat.substr(data::LongueurCodeAidant)), versQt(e.employeur)};
}

QString compter(std::size_t nombre) {
  if (nombre == 0) return "Rien n'arrive à échéance.";
  return nombre == 1 ? QString("1 échéance") : QString("%1 échéances").arg(nombre);
}

}  // namespace

PageEcheances::PageEcheances(screen::Platform& plateforme, QWidget* parent)
    : QWidget(parent),
      plateforme_(plateforme),
      conseil_(new QLabel),
      jours_(new QSpinBox),
      liste_(new QTreeWidget),
      compte_(new QLabel),
      imprimer_(new QPushButton("I&mprimer…")) {
  setObjectName("pageEcheances");
  conseil_->setTextFormat(Qt::PlainText);
  conseil_->setWordWrap(true);
  auto* const titre = new QLabel("&Échéances des prochains jours :");
  QFont gras = titre->font();
  gras.setBold(true);
  titre->setFont(gras);
  titre->setBuddy(jours_);
  jours_->setObjectName("joursEcheances");
  jours_->setRange(0, rules::JoursEcheancesMax);
  jours_->setValue(rules::JoursEcheances);
  jours_->setKeyboardTracking(false);
  jours_->setSuffix(" jours");
  liste_->setObjectName("listeEcheances");
  liste_->setAccessibleName("Échéances");
  liste_->setHeaderLabels({"Jour", "Échéance", "Aidant", "Contrat", "Employeur"});
  liste_->header()->setMinimumSectionSize(2 * LigneListe::Marge);
  liste_->header()->setStretchLastSection(false);
  liste_->header()->setSectionResizeMode(NomEmployeur, QHeaderView::Stretch);
  liste_->setRootIsDecorated(false);
  liste_->setUniformRowHeights(true);
  liste_->setAllColumnsShowFocus(true);
  liste_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  liste_->setItemDelegate(new LigneListe(liste_));
  liste_->setToolTip("Un clic, ou Entrée, ouvre le contrat");
  auto* const haut = new QHBoxLayout;
  haut->addWidget(titre);
  haut->addWidget(jours_);
  haut->addStretch();
  auto* const bas = new QHBoxLayout;
  bas->addWidget(compte_, 1);
  bas->addWidget(imprimer_);
  auto* const disposition = new QVBoxLayout(this);
  disposition->setContentsMargins(12, 12, 12, 12);
  disposition->setSpacing(9);
  disposition->addWidget(conseil_);
  disposition->addLayout(haut);
  disposition->addWidget(liste_);
  disposition->addLayout(bas);
  appliquerApparence(*this);
  const auto ouvrir = [this](QTreeWidgetItem* item) {
    const int rang = liste_->indexOfTopLevelItem(item);
    // Where a click activates too, the first of the two has opened the contract.
    if (rang < 0 || !isVisible()) return;
    emit choisie(std::string(echeances_[static_cast<std::size_t>(rang)].contrat));
  };
  // The window may fill the list again meanwhile: behind the list's own event.
  connect(liste_, &QTreeWidget::itemClicked, this, ouvrir, Qt::QueuedConnection);
  connect(liste_, &QTreeWidget::itemActivated, this, ouvrir, Qt::QueuedConnection);
  connect(jours_, &QSpinBox::valueChanged, this, [this] { Lire(); });
  connect(imprimer_, &QPushButton::clicked, this, [this] { Imprimer(); });
}

void PageEcheances::Suivre(data::Db* db) {
  db_ = db;
  Lire();
}

void PageEcheances::Dire(const QString& conseil) {
  conseil_->setText(conseil);
}

void PageEcheances::Prendre() {
  liste_->setFocus();
  if (liste_->currentItem() == nullptr) liste_->setCurrentItem(liste_->topLevelItem(0));
}

// Behind the picture: a window that opens does not wait for the list.
void PageEcheances::showEvent(QShowEvent* evenement) {
  QWidget::showEvent(evenement);
  QTimer::singleShot(0, this, [this] { Lire(); });
}

void PageEcheances::Lire() {
  if (!isVisible() && db_ != nullptr) return;
  echeances_.clear();
  try {
    if (db_ != nullptr) {
      echeances_ = rules::lireEcheances(*db_, plateforme_.poste.Aujourdhui(), jours_->value());
    }
    Montrer();
  } catch (const std::exception& erreur) {
    Montrer();
    compte_->setText("Les échéances ne peuvent pas être lues : " + versQt(erreur.what()));
  }
}

void PageEcheances::Montrer() {
  liste_->clear();
  QList<QTreeWidgetItem*> lignes;
  const long aujourdhui = plateforme_.poste.Aujourdhui();
  for (const auto& echeance : echeances_) {
    auto* const ligneListe = new QTreeWidgetItem(ligne(echeance));
    // Late: told by the weight, and in words.
    if (echeance.jour < aujourdhui) {
      QFont gras = liste_->font();
      gras.setBold(true);
      ligneListe->setFont(Jour, gras);
      ligneListe->setToolTip(Jour, "En retard");
    }
    for (const int colonne : {Quoi, NomAidant, NomEmployeur}) {
      ligneListe->setToolTip(colonne, ligneListe->text(colonne));
    }
    lignes << ligneListe;
  }
  liste_->addTopLevelItems(lignes);
  // The last one takes the rest.
  for (int colonne = 0; colonne < NombreColonnes - 1; ++colonne) {
    liste_->resizeColumnToContents(colonne);
    liste_->setColumnWidth(colonne, liste_->columnWidth(colonne) + LigneListe::Marge);
  }
  compte_->setText(compter(echeances_.size()));
  imprimer_->setEnabled(!echeances_.empty());
}

void PageEcheances::Imprimer() const {
  const long jour = plateforme_.poste.Aujourdhui();
  try {
    imprimerEcheances(echeances_,
                      "Échéances du " + data::dateAffichee(jour) + " au " +
                          data::dateAffichee(jour + jours_->value()),
                      plateforme_);
  } catch (const std::exception& erreur) {
    avertirErreur("Les échéances ne sont pas imprimées.", erreur);
  }
}

}  // namespace hote
