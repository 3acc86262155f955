// The list of a carer with 999 contracts: one click on the search, on both sides the same one, with
// and without widgets. The widgets are emptied between two searches, so that every one fills them.

#include <QListWidget>
#include <QTest>
#include <QWindow>
#include <stdexcept>

#include "control/ctr_contrat.h"
#include "mesures.h"
#include "poste.h"
#include "screen/headless/hote.h"
#include "screen/user.h"

namespace bench {

namespace {

constexpr int Tours = 31;
constexpr int Contrats = 999;

// Back to the choice of filters, with all contracts chosen.
void preparer(control::Ctr_Contrat& controle) {
  screen::User user(controle);
  if (controle.Cmd_OK.Enabled()) user.Cliquer(controle.Cmd_OK);
  user.Cliquer(controle.Opt_TousValid);
}

void exiger(const control::Ctr_Contrat& controle) {
  if (controle.Lst_DatDebContrat.ListCount() != Contrats) {
    throw std::runtime_error("the list does not hold 999 contracts");
  }
}

struct SansEcran {
  SansEcran() {
    controle.TheDatabase(*baseAidantCharge().db);
    controle.W_Code = AidantCharge;
    controle.DroitsUtilisateur(droits);
    controle.init();
    controle.Show();
  }
  double Chercher() {
    preparer(controle);
    const double debut = tempsProcesseur();
    screen::User(controle).Cliquer(controle.Cmd_Recherche);
    const double duree = tempsProcesseur() - debut;
    exiger(controle);
    return duree;
  }

  screen::headless::Hote hote{21511};
  session::DroitsUniformes droits{session::Droit::Plein};
  control::Ctr_Contrat controle{hote.platform};
};

double chercherAffiche(PosteEcran& poste) {
  control::Ctr_Contrat& controle = poste.ecran->Controle();
  preparer(controle);
  poste.bureau.PousserTout();
  traiterTout();
  auto& liste = dynamic_cast<QListWidget&>(poste.Widget("Lst_DatDebContrat"));
  QWidget& bouton = poste.Widget("Cmd_Recherche");
  const QPoint place = bouton.mapTo(&poste.fenetre, bouton.rect().center());
  if (liste.count() != 0) throw std::runtime_error("the list is not empty before the search");
  const Peintures peintures(*liste.viewport());
  const double debut = tempsProcesseur();
  QTest::mouseClick(poste.fenetre.windowHandle(), Qt::LeftButton, {}, place);
  traiterTout();
  const double duree = tempsProcesseur() - debut;
  exiger(controle);
  if (liste.count() != Contrats || peintures.Nombre() == 0) {
    throw std::runtime_error("the list is not shown");
  }
  return duree;
}

}  // namespace

void mesurerListe(Medianes& medianes) {
  SansEcran sansEcran;
  PosteEcran poste(baseAidantCharge(), AidantCharge);
  std::vector<double> affichees;
  std::vector<double> seules;
  for (int tour = 0; tour < Tours; ++tour) {
    seules.push_back(sansEcran.Chercher());
    affichees.push_back(chercherAffiche(poste));
  }
  medianes["listeSansEcran"] = mediane(seules);
  medianes["listeAffichee"] = mediane(affichees);
}

}  // namespace bench
