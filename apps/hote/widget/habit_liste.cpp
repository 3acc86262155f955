#include "widget/habit_liste.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QSettings>
#include <utility>

#include "control/ctr_contrat.h"
#include "data/jour.h"
#include "data/store_error.h"
#include "liaison/liaison.h"
#include "liaison/textes_qt.h"
#include "widget/frise_contrats.h"

namespace hote {

namespace {

constexpr const char* LienFin = "fin";
constexpr const char* LienTout = "tout";
constexpr const char* CleFrise = "fenetres/frise";

struct Part {
  int control::Compte::*nombre;
  control::EtatContrat etat;
  const char* lien;
  const char* un;
  const char* plusieurs;
};
constexpr Part Parts[] = {
    {&control::Compte::enCours, control::EtatContrat::EnCours, "encours", "en cours", "en cours"},
    {&control::Compte::aVenir, control::EtatContrat::AVenir, "avenir", "à venir", "à venir"},
    {&control::Compte::termines, control::EtatContrat::Termine, "termines", "terminé", "terminés"}};

QString lien(const QString& adresse, const QString& texte) {
  return "<a href=\"" + adresse + "\">" + texte + "</a>";
}

// What is read to be pointed at only. A store that fails here fails the next act, too, which tells
// it in a box: beside the pointer its words are enough.
std::string lisible(const std::function<std::string()>& lire) {
  try {
    return lire();
  } catch (const data::StoreError& erreur) {
    return erreur.what();
  }
}

void montrer(QLabel& etiquette, const QString& texte) {
  if (etiquette.text() != texte) etiquette.setText(texte);
}

}  // namespace

QString ligneCompte(const control::Compte& compte) {
  if (compte.Vivants() == 0) return {};
  QStringList parts;
  for (const Part& part : Parts) {
    const int nombre = compte.*part.nombre;
    const QString texte = QString("%1 %2").arg(nombre).arg(nombre > 1 ? part.plusieurs : part.un);
    parts << (nombre == 0 ? texte : lien(part.lien, texte));
  }
  QString ligne = parts.join(", ");
  if (compte.prochaine) {
    ligne += "; prochaine fin " + lien(LienFin, versQt(data::dateAffichee(compte.prochaine->jour)));
  }
  return ligne;
}

QString decrire(const control::VueContrats& vue, const std::string& cle) {
  return versQt(lisible([&] { return vue.Decrire(cle); }));
}

bool friseVisible(const QSettings& reglages) {
  return reglages.value(CleFrise, true).toBool();
}

void montrerFrise(FriseContrats& frise, QSettings& reglages, bool visible) {
  reglages.setValue(CleFrise, visible);
  frise.setVisible(visible);
}

void habillerFrise(FriseContrats& frise, const control::VueContrats& vue, QSettings& reglages) {
  frise.DireBarre = [&vue](const control::Barre& barre) { return versQt(vue.Dire(barre)); };
  frise.Infobulle = [&vue](const control::Barre& barre) {
    const QString details = decrire(vue, barre.cle);
    const QString chevauche = barre.chevauche ? "\nChevauche un autre contrat" : "";
    return (barre.enMain || details.isEmpty() ? versQt(vue.Dire(barre)) : details + chevauche);
  };
  frise.NommerBande = [&vue](const rules::Portee& portee) {
    return versQt(lisible([&] { return vue.Nommer(portee); }));
  };
  auto* const masquer = new QAction("&Masquer la frise", &frise);
  frise.addAction(masquer);
  QObject::connect(masquer, &QAction::triggered, &frise,
                   [&frise, &reglages] { montrerFrise(frise, reglages, false); });
  frise.setVisible(friseVisible(reglages));
}

HabitListe::HabitListe(control::Ctr_Contrat& controle, Liaison& liaison, QSettings& reglages)
    : QObject(&liaison),
      vue_(controle),
      liaison_(liaison),
      compte_(liaison.Racine().findChild<QLabel*>("compte")),
      pourquoi_(liaison.Racine().findChild<QLabel*>("pourquoi")),
      vide_(new QLabel),
      frise_(liaison.Racine().findChild<FriseContrats*>("frise")) {
  auto* const tableau = liaison.Racine().findChild<QWidget*>("tableau");
  vide_->setObjectName("vide");
  vide_->setAlignment(Qt::AlignCenter);
  vide_->setTextFormat(Qt::RichText);
  vide_->hide();
  auto* const grille = static_cast<QGridLayout*>(tableau->layout());
  grille->addWidget(vide_, 2, 0, 1, grille->columnCount(), Qt::AlignCenter);
  for (const QLabel* const etiquette : {compte_, vide_}) {
    // The text of the label that was clicked changes meanwhile.
    connect(etiquette, &QLabel::linkActivated, this, &HabitListe::Suivre, Qt::QueuedConnection);
  }
  habillerFrise(*frise_, vue_, reglages);
  LierFrise();
  LierMenu();
  controle.SurContrats = [this] { autres_ = true; };
  connect(&liaison_, &Liaison::poussee, this, &HabitListe::Regarder);
  Regarder();
}

// A click may open a box or an editor: the strip has had its event by then.
void HabitListe::LierFrise() {
  connect(
      frise_, &FriseContrats::choisi, this,
      [this](const QString& cle) {
        liaison_.Jouer([&](screen::User&) { vue_.Choisir(versModele(cle)); });
      },
      Qt::QueuedConnection);
  connect(
      frise_, &FriseContrats::ouvert, this,
      [this](const QString& cle) {
        liaison_.Jouer([&](screen::User&) { vue_.Ouvrir(versModele(cle)); });
      },
      Qt::QueuedConnection);
}

// The mouse asks the viewport, the keyboard the list.
void HabitListe::LierMenu() {
  auto* const tableau = liaison_.Racine().findChild<QWidget*>("tableau");
  for (auto* const liste : tableau->findChildren<QListWidget*>()) {
    liste->installEventFilter(this);
    liste->viewport()->installEventFilter(this);
  }
}

bool HabitListe::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() != QEvent::ContextMenu) return false;
  const auto& demande = static_cast<QContextMenuEvent&>(*evenement);
  auto* liste = qobject_cast<QListWidget*>(objet);
  if (liste == nullptr) liste = qobject_cast<QListWidget*>(objet->parent());
  if (liste == nullptr || !liste->isEnabled()) return false;
  QPoint place = demande.globalPos();
  if (demande.reason() == QContextMenuEvent::Mouse) {
    const QListWidgetItem* const ligne = liste->itemAt(liste->viewport()->mapFromGlobal(place));
    if (ligne != nullptr) liste->setCurrentRow(liste->row(ligne));
  } else {
    const QRect courante = liste->visualItemRect(liste->currentItem());
    place = liste->viewport()->mapToGlobal(courante.bottomLeft());
  }
  emit menuDemande(place);
  return true;
}

void HabitListe::Regarder() {
  if (std::exchange(autres_, false)) {
    montrer(*compte_, ligneCompte(vue_.Compter()));
    frise_->Montrer(vue_.FaireFrise());
  }
  frise_->Choisir(vue_.Choisi());
  montrer(*pourquoi_, versQt(vue_.DirePourquoiSansAjout()));
  QString vide = versQt(vue_.DireVide()).replace(". ", ".<br>");
  if (const int masques = vue_.Masques(); vide.contains("filtres.") && masques > 0) {
    vide += "<br>" + lien(LienTout, masques == 1 ? "Montrer l'autre contrat"
                                                 : QString("Montrer les %1 autres").arg(masques));
  }
  montrer(*vide_, vide);
  vide_->setVisible(!vide.isEmpty());
}

void HabitListe::Suivre(const QString& adresse) {
  liaison_.Jouer([&](screen::User&) {
    if (adresse == LienTout) return vue_.MontrerTout();
    if (const auto fin = vue_.Compter().prochaine; adresse == LienFin && fin) {
      vue_.Choisir(fin->cle);
      return;
    }
    for (const Part& part : Parts) {
      if (adresse == part.lien) vue_.Montrer(part.etat);
    }
  });
}

}  // namespace hote
