// exemple BASE CARER [PICTURE]: the contracts of one carer, or a picture of them.
#include <QApplication>

#include "data/db.h"
#include "liaison/bureau.h"
#include "storage/ouvrir.h"
#include "widget/contrat_widget.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc < 3) return 2;
  hote::Bureau bureau;
  data::Db db(storage::ouvrir(argv[1], bureau.Plateforme().poste));
  ContratWidget ecran(bureau);
  ecran.TheDatabase(db);
  ecran.W_Code = argv[2];
  ecran.init();
  ecran.show();
  return argc > 3 ? !ecran.grab().save(argv[3]) : QApplication::exec();
}
