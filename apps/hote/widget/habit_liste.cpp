#include "widget/habit_liste.h"

#include <QGridLayout>
#include <QLabel>

#include "control/ctr_contrat.h"
#include "data/jour.h"
#include "liaison/liaison.h"
#include "liaison/textes_qt.h"

namespace hote {

namespace {

constexpr const char* LienFin = "fin";
constexpr const char* LienTout = "tout";

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

HabitListe::HabitListe(control::Ctr_Contrat& controle, Liaison& liaison)
    : QObject(&liaison),
      vue_(controle),
      liaison_(liaison),
      compte_(liaison.Racine().findChild<QLabel*>("compte")),
      pourquoi_(liaison.Racine().findChild<QLabel*>("pourquoi")),
      vide_(new QLabel) {
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
  connect(&liaison_, &Liaison::poussee, this, &HabitListe::Regarder);
  Regarder();
}

void HabitListe::Regarder() {
  montrer(*compte_, ligneCompte(vue_.Compter()));
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
