#include "widget/formes.h"

#include <QDialog>

#include "liaison/bureau.h"
#include "ui_Ctr_Contrat.h"
#include "ui_Frm_ElementsContrat.h"
#include "ui_Frm_MotifCDD.h"
#include "ui_Frm_MotifsEmbauche.h"
#include "ui_Frm_Reprise.h"
#include "ui_Frm_Stage.h"
#include "widget/apparence.h"

namespace hote {

namespace {

// Esc asks for the same as the close box: the model decides.
class Fenetre : public QDialog {
 public:
  void reject() override { close(); }
};

template <typename Forme, typename Racine>
std::unique_ptr<QWidget> construire() {
  auto racine = std::make_unique<Racine>();
  Forme().setupUi(racine.get());
  appliquerApparence(*racine);
  return racine;
}

}  // namespace

void enregistrerFormes(Bureau& bureau) {
  bureau.Enregistrer("Ctr_Contrat", construire<Ui::Ctr_Contrat, QWidget>);
  bureau.Enregistrer("Frm_ElementsContrat", construire<Ui::Frm_ElementsContrat, Fenetre>);
  bureau.Enregistrer("Frm_MotifCDD", construire<Ui::Frm_MotifCDD, Fenetre>);
  bureau.Enregistrer("Frm_MotifsEmbauche", construire<Ui::Frm_MotifsEmbauche, Fenetre>);
  bureau.Enregistrer("Frm_Stage", construire<Ui::Frm_Stage, Fenetre>);
  bureau.Enregistrer("Frm_Reprise", construire<Ui::Frm_Reprise, Fenetre>);
}

}  // namespace hote
