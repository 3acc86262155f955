#include "widget/contrat_widget.h"

#include <QCloseEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "composants/suite.h"
#include "control/ctr_contrat.h"
#include "liaison/bureau.h"
#include "liaison/liaison.h"
#include "liaison/textes_qt.h"
#include "session/pendant.h"
#include "widget/formes.h"
#include "widget/frise_contrats.h"
#include "widget/habit_editeur.h"
#include "widget/habit_liste.h"
#include "widget/lignes_contrats.h"

namespace {

hote::Bureau& avecFormes(hote::Bureau& bureau) {
  hote::enregistrerFormes(bureau);
  return bureau;
}

}  // namespace

struct ContratWidget::Prive {
  explicit Prive(hote::Bureau& bureauDonne)
      : bureau(avecFormes(bureauDonne)),
        controle(bureau.Plateforme()),
        suite(bureau),
        racine(bureau.Construire(controle.Nom())) {}

  hote::Bureau& bureau;
  control::Ctr_Contrat controle;
  hote::Suite suite;
  control::VueContrats vue{controle};
  std::unique_ptr<QWidget> racine;
  std::unique_ptr<hote::Liaison> liaison;
  // The host is inside init or Affiche.
  bool appele = false;
};

ContratWidget::ContratWidget(hote::Bureau& bureau, QWidget* parent)
    : QWidget(parent), prive_(std::make_unique<Prive>(bureau)) {
  auto* const disposition = new QVBoxLayout(this);
  disposition->setContentsMargins(0, 0, 0, 0);
  disposition->addWidget(prive_->racine.get());
  hote::habillerContrats(*prive_->racine, bureau.Plateforme().poste, [this](int ligne) {
    return hote::decrire(prive_->vue, prive_->controle.ClesContrats()(ligne + 1));
  });
  prive_->liaison = std::make_unique<hote::Liaison>(prive_->controle, *prive_->racine, bureau);
  auto* const habit = new hote::HabitListe(prive_->controle, *prive_->liaison, bureau.Reglages());
  connect(habit, &hote::HabitListe::menuDemande, this, &ContratWidget::menuDemande);
  prive_->controle.SurAvis = [this](const std::string& texte) {
    emit annonce(hote::versQt(texte));
  };
  bureau.SurFenetre = [this](hote::Liaison& liaison) {
    if (liaison.Forme().Nom() != hote::HabitEditeur::Forme) return;
    new hote::HabitEditeur(prive_->controle, liaison, prive_->bureau.Reglages());
  };
  prive_->controle.Sortie = [this] { QTimer::singleShot(0, this, [this] { Annoncer(); }); };
}

ContratWidget::~ContratWidget() {
  prive_->bureau.SurFenetre = nullptr;
}

int ContratWidget::W_Sortir() const {
  return prive_->controle.W_Sortir;
}

void ContratWidget::TheDatabase(data::Db& db) {
  prive_->controle.TheDatabase(db);
  prive_->suite.Objets().Db = &db;
}

void ContratWidget::TheClient(session::Client& client) {
  prive_->controle.TheClient(client);
}

void ContratWidget::DroitsUtilisateur(const session::Droits& droits) {
  prive_->controle.DroitsUtilisateur(droits);
  prive_->suite.Objets().W_Droits = &droits;
}

void ContratWidget::init() {
  const session::Pendant appel(prive_->appele);
  control::Ctr_Contrat& controle = prive_->controle;
  controle.W_Code = W_Code;
  controle.W_NomPrenom = W_NomPrenom;
  controle.W_EtatSuppAidant = W_EtatSuppAidant;
  controle.W_CodeContrat = W_CodeContrat;
  controle.Show();
  controle.init();
  prive_->bureau.PousserTout();
}

void ContratWidget::Affiche(std::string_view typeAct, std::string_view codeAsso,
                            std::string_view actifs) {
  const session::Pendant appel(prive_->appele);
  prive_->controle.Affiche(typeAct, codeAsso, actifs);
  prive_->bureau.PousserTout();
}

void ContratWidget::OuvrirChoisi() {
  prive_->liaison->Jouer([this](screen::User& user) {
    screen::ListBox& liste = prive_->controle.Lst_DatDebContrat;
    if (liste.ListIndex() >= 0) user.DoubleCliquer(liste, liste.ListIndex());
  });
}

void ContratWidget::Ajouter() {
  prive_->liaison->Jouer(
      [this](screen::User& user) { user.Cliquer(prive_->controle.Cmd_Ajouter); });
}

void ContratWidget::Rechercher() {
  prive_->liaison->Jouer([this](screen::User& user) {
    if (prive_->controle.Cmd_Recherche.Disponible()) {
      user.Cliquer(prive_->controle.Cmd_Recherche);
    } else {
      prive_->vue.Relire();
    }
  });
}

void ContratWidget::ChoisirFiltres() {
  prive_->liaison->Jouer([this](screen::User& user) { user.Cliquer(prive_->controle.Cmd_OK); });
}

void ContratWidget::Montrer(Filtre filtre) {
  prive_->liaison->Jouer([&](screen::User&) {
    switch (filtre) {
      case Filtre::EnCours:
        return prive_->vue.Montrer(control::EtatContrat::EnCours);
      case Filtre::AVenir:
        return prive_->vue.Montrer(control::EtatContrat::AVenir);
      case Filtre::Termines:
        return prive_->vue.Montrer(control::EtatContrat::Termine);
      case Filtre::Tous:
        return prive_->vue.MontrerTout();
    }
  });
}

bool ContratWidget::FriseVisible() const {
  return hote::friseVisible(prive_->bureau.Reglages());
}

void ContratWidget::MontrerFrise(bool visible) {
  auto* const frise = prive_->racine->findChild<FriseContrats*>();
  hote::montrerFrise(*frise, prive_->bureau.Reglages(), visible);
}

bool ContratWidget::Occupe() const {
  return prive_->appele || prive_->liaison->Occupee();
}

control::Ctr_Contrat& ContratWidget::Controle() const {
  return prive_->controle;
}

// A loop of a box may run before the handler that left has ended.
void ContratWidget::Annoncer() {
  if (Occupe()) {
    QTimer::singleShot(0, this, [this] { Annoncer(); });
    return;
  }
  if (isWindow()) close();
  emit sortie();
}

void ContratWidget::closeEvent(QCloseEvent* evenement) {
  evenement->setAccepted(!Occupe());
}
