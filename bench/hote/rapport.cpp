// The report of 5,000 interventions that a shortened contract touches: shown and painted, turned by
// a page, and printed to a PDF file.

#include <QTest>
#include <stdexcept>

#include "dialogs/frm_anomalies_ajoutgraph.h"
#include "liaison/liaison.h"
#include "mesures.h"
#include "poste.h"
#include "screen/user.h"
#include "storage/memory.h"
#include "widget/formes.h"

namespace bench {

namespace {

constexpr int Tours = 7;
constexpr int Interventions = 5'000;

std::string rapport() {
  std::string texte =
      "La modification du contrat aura les incidences suivantes sur le planning : \r\n";
  for (int i = 0; i < Interventions; ++i) {
    texte += "\r\nLundi    de 08h30 à 10h00 chez MARTIN Rose " + std::to_string(i) +
             " à partir du 01/12/2026\r\n                    Sera supprimée.";
  }
  return texte;
}

}  // namespace

void mesurerRapport(Medianes& medianes) {
  const QTemporaryDir maison;
  qputenv("HOME", maison.path().toUtf8());
  const data::PosteFixe poste{21511};
  hote::Bureau bureau{&poste,
                      std::make_unique<QSettings>(maison.filePath("r.ini"), QSettings::IniFormat)};
  hote::enregistrerFormes(bureau);
  data::Db db{std::make_shared<storage::MemoryStorage>(poste)};
  session::Session session{poste};
  session.Db = &db;
  session::Dossier dossier{session};
  const std::string texte = rapport();
  std::map<std::string, std::vector<double>> durees;
  for (int tour = 0; tour < Tours; ++tour) {
    double debut = tempsProcesseur();
    const auto noter = [&](const char* nom) {
      durees[nom].push_back(tempsProcesseur() - debut);
      debut = tempsProcesseur();
    };
    dialogs::Frm_AnomaliesAjoutgraph forme(bureau.Plateforme(), dossier, {texte, false, "001 Val"});
    const auto racine = bureau.Construire(forme.Nom());
    forme.Show();
    hote::Liaison liaison(forme, *racine, bureau);
    auto& lignes = *racine->findChild<QWidget*>("Text1");
    const Peintures peintures(lignes);
    racine->show();
    liaison.Pousser();
    traiterTout();
    noter("rapportAffiche");
    const int peints = peintures.Nombre();
    QTest::keyClick(&lignes, Qt::Key_PageDown);
    traiterTout();
    noter("rapportTourne");
    if (peints == 0 || peintures.Nombre() == peints) {
      throw std::runtime_error("the report was not painted");
    }
    screen::User(forme).Cliquer(forme.Cmd_Imprimer);
    noter("rapportImprime");
  }
  for (const auto& [nom, prises] : durees) medianes[nom] = mediane(prises);
}

}  // namespace bench
