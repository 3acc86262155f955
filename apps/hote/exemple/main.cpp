// exemple FILE CARER [PICTURE]: the contracts of one carer, or a picture of them.
#include <QApplication>

#include "data/db.h"
#include "liaison/bureau.h"
#include "session/droits.h"
#include "storage/sqlite.h"
#include "widget/contrat_widget.h"
#include "widget/formes.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc < 3) return 2;
  hote::Bureau bureau;
  hote::enregistrerFormes(bureau);
  data::Db db(storage::SqliteStorage::Ouvrir(argv[1], bureau.Plateforme().poste));
  const session::DroitsUniformes droits(session::Droit::Plein);
  ContratWidget ecran(bureau);
  ecran.TheDatabase(db);
  ecran.W_Code = argv[2];
  ecran.DroitsUtilisateur(droits);
  QObject::connect(&ecran, &ContratWidget::sortie, &application, &QApplication::quit);
  ecran.init();
  ecran.Affiche("", "", "A");
  ecran.show();
  if (argc > 3) return ecran.grab().save(argv[3]) ? 0 : 1;
  return QApplication::exec();
}
