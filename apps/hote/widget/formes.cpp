#include "widget/formes.h"

#include <QTabWidget>

#include "composants/suite.h"
#include "liaison/bureau.h"
#include "liaison/fenetre.h"
#include "ui_Ctr_Contrat.h"
#include "ui_Frm_Anim.h"
#include "ui_Frm_AnomaliesAjoutgraph.h"
#include "ui_Frm_CommentBull.h"
#include "ui_Frm_ContratAnnuel.h"
#include "ui_Frm_ElemDroitPublic.h"
#include "ui_Frm_ElementsContrat.h"
#include "ui_Frm_ImpressionA4.h"
#include "ui_Frm_MotifCDD.h"
#include "ui_Frm_Reprise.h"
#include "ui_Frm_RubSaisie.h"
#include "ui_Frm_Stage.h"
#include "ui_OngletCaracteristiques.h"
#include "ui_OngletConges.h"
#include "ui_OngletFin.h"
#include "ui_OngletOrigine.h"
#include "ui_OngletPaie.h"
#include "ui_SuiviRemunere.h"
#include "ui_SuiviTempsEffectif.h"
#include "widget/apparence.h"
#include "widget/calculs_origine.h"
#include "widget/lignes_suivi.h"
#include "widget/page_defilante.h"

namespace hote {

namespace {

template <typename Forme, typename Racine>
std::unique_ptr<QWidget> construire() {
  auto racine = std::make_unique<Racine>();
  Forme().setupUi(racine.get());
  appliquerApparence(*racine);
  return racine;
}

template <typename Page>
void ajouterPage(QTabWidget& onglets) {
  auto* const page = new QWidget;
  Page().setupUi(page);
  onglets.addTab(new PageDefilante(*page), {});
}

std::unique_ptr<QWidget> construireEditeur() {
  auto racine = std::make_unique<Fenetre>();
  Ui::Frm_ElementsContrat cadre;
  cadre.setupUi(racine.get());
  ajouterPage<Ui::OngletOrigine>(*cadre.Ong_Contrat);
  ajouterPage<Ui::OngletCaracteristiques>(*cadre.Ong_Contrat);
  ajouterPage<Ui::OngletPaie>(*cadre.Ong_Contrat);
  ajouterPage<Ui::OngletConges>(*cadre.Ong_Contrat);
  ajouterPage<Ui::OngletFin>(*cadre.Ong_Contrat);
  habillerOrigine(*racine);
  appliquerApparence(*racine);
  return racine;
}

std::unique_ptr<QWidget> construireSuivi() {
  auto racine = std::make_unique<Fenetre>();
  Ui::Frm_ContratAnnuel cadre;
  cadre.setupUi(racine.get());
  ajouterPage<Ui::SuiviRemunere>(*cadre.Ong_SuivContrat);
  ajouterPage<Ui::SuiviTempsEffectif>(*cadre.Ong_SuivContrat);
  appliquerApparence(*racine);
  habillerSuivi(*racine);
  return racine;
}

}  // namespace

void enregistrerFormes(Bureau& bureau) {
  bureau.Enregistrer("Ctr_Contrat", construire<Ui::Ctr_Contrat, QWidget>);
  bureau.Enregistrer("Frm_ElementsContrat", construireEditeur);
  bureau.Enregistrer("Frm_ContratAnnuel", construireSuivi);
  bureau.Enregistrer("Frm_Anim", construire<Ui::Frm_Anim, Fenetre>);
  bureau.Enregistrer("Frm_AnomaliesAjoutgraph", construire<Ui::Frm_AnomaliesAjoutgraph, Fenetre>);
  bureau.Enregistrer("Frm_ImpressionA4", construire<Ui::Frm_ImpressionA4, Fenetre>);
  bureau.Enregistrer("Frm_MotifCDD", construire<Ui::Frm_MotifCDD, Fenetre>);
  bureau.Enregistrer("Frm_ElemDroitPublic", construire<Ui::Frm_ElemDroitPublic, Fenetre>);
  bureau.Enregistrer("Frm_Stage", construire<Ui::Frm_Stage, Fenetre>);
  bureau.Enregistrer("Frm_RubSaisie", construire<Ui::Frm_RubSaisie, Fenetre>);
  bureau.Enregistrer("Frm_CommentBull", construire<Ui::Frm_CommentBull, Fenetre>);
  bureau.Enregistrer("Frm_Reprise", construire<Ui::Frm_Reprise, Fenetre>);
  enregistrerHebergees(bureau);
}

}  // namespace hote
