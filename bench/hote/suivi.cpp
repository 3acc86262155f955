// The annual follow-up of 120 months: one of them is corrected, on either tab, from the click that
// confirms it until every column that changed and the chart have been painted; beside it, the same
// click without widgets.

#include <QTest>
#include <QWindow>
#include <stdexcept>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "dialogs/frm_contrat_annuel.h"
#include "liaison/liaison.h"
#include "mesures.h"
#include "poste.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "storage/memory.h"
#include "widget/courbe_suivi.h"
#include "widget/formes.h"

namespace bench {

namespace {

constexpr int Tours = 31;
constexpr int Mois = 120;

struct PosteSuivi {
  PosteSuivi() {
    hote::enregistrerFormes(bureau);
    data::CItem paie = db.OpenFile("PERIODESPAIE").NewItem("1");
    paie.Set(data::PeriodesPaie::Courante, "202611");
    paie.DBWrite();
    session.Db = &db;
    session.OuvrirFichiers();
    session.W_Droits = &droits;
    dossier.CleContratCourant = "00001001";
    dossier.ItemContrat.Set(data::Contrat::Convention, "01");
    data::CItem tte = session.F_AIDANTTTE.NewItem("00001001" + std::to_string(Annee));
    for (int i = 0; i < Mois; ++i) {
      const std::string mois = data::decalePeriode(std::to_string(Annee) + "01", i);
      const std::string ecart = std::to_string((i % 7 - 3) * 125);
      const std::string valeurs[] = {mois, "15167", "0", "15167", ecart, "0"};
      for (std::size_t a = 0; a < std::size(valeurs); ++a) {
        dossier.ItemContrat.Set(data::Contrat::GroupeSuivi[a], i + 1, valeurs[a]);
      }
      const char* const jours[] = {"700", "31", "9", "1", "50", "0", "0", "15000", "0", "0"};
      tte.Set(data::AidantTte::Mois, i + 1, mois);
      for (int a = 0; a < 10; ++a) tte.Set(data::AidantTte::HeuresParJour + a, i + 1, jours[a]);
    }
    dossier.ItemAidantTte = tte;
  }

  static constexpr int Annee = 2026;
  data::PosteFixe poste{21511};
  QTemporaryDir reglages;
  hote::Bureau bureau{
      &poste, std::make_unique<QSettings>(reglages.filePath("r.ini"), QSettings::IniFormat)};
  data::Db db{std::make_shared<storage::MemoryStorage>(poste)};
  session::DroitsUniformes droits{session::Droit::Plein};
  session::Session session{poste};
  session::Dossier dossier{session};
};

// The third month's hours become others each time.
void taper(dialogs::Frm_ContratAnnuel& forme, int tour) {
  const bool remunere = forme.Ong_SuivContrat.Tab() == 0;
  screen::User user(forme);
  user.DoubleCliquer(remunere ? forme.remunere.Lst_Periode : forme.tempsEffectif.Lst_PeriodeTTE, 2);
  user.Taper(remunere ? forme.remunere.Txt_HresReel : forme.tempsEffectif.Txt_TTE,
             std::to_string(130 + tour));
}

double confirmerSeul(dialogs::Frm_ContratAnnuel& forme, int tour) {
  taper(forme, tour);
  const double debut = tempsProcesseur();
  screen::User(forme).Cliquer(forme.Cmd_OK);
  return tempsProcesseur() - debut;
}

double confirmerAffiche(dialogs::Frm_ContratAnnuel& forme, QWidget& racine, hote::Bureau& bureau,
                        int tour) {
  taper(forme, tour);
  bureau.PousserTout();
  traiterTout();
  auto& ok = *racine.findChild<QWidget*>("Cmd_OK");
  auto* const page =
      racine.findChild<QWidget*>(forme.Ong_SuivContrat.Tab() == 0 ? "Cdr_Remunere" : "Cdr_TTE");
  const Peintures peintures(*page->findChild<CourbeSuivi*>());
  const double debut = tempsProcesseur();
  QTest::mouseClick(racine.windowHandle(), Qt::LeftButton, {},
                    ok.mapTo(&racine, ok.rect().center()));
  traiterTout();
  const double duree = tempsProcesseur() - debut;
  if (forme.Cmd_Annuler.Enabled() || peintures.Nombre() == 0) {
    throw std::runtime_error("the corrected month is not shown");
  }
  return duree;
}

}  // namespace

void mesurerSuivi(Medianes& medianes) {
  PosteSuivi poste;
  screen::headless::Hote sansEcran(21511);
  const dialogs::EmployeurSuivi employeur{"01", "001", "001"};
  dialogs::Frm_ContratAnnuel seule(sansEcran.platform, poste.dossier, employeur);
  seule.Show();
  dialogs::Frm_ContratAnnuel forme(poste.bureau.Plateforme(), poste.dossier, employeur);
  const auto racine = poste.bureau.Construire(forme.Nom());
  forme.Show();
  hote::Liaison liaison(forme, *racine, poste.bureau);
  racine->show();
  liaison.Pousser();
  traiterTout();
  const std::pair<const char*, const char*> noms[] = {{"suiviRemunere", "suiviRemunereSeul"},
                                                      {"suiviEffectif", "suiviEffectifSeul"}};
  for (int onglet = 0; onglet < 2; ++onglet) {
    for (auto* const f : {&seule, &forme}) screen::User(*f).Onglet(f->Ong_SuivContrat, onglet);
    poste.bureau.PousserTout();
    traiterTout();
    std::vector<double> affichees, seules;
    for (int tour = 0; tour < Tours; ++tour) {
      seules.push_back(confirmerSeul(seule, tour));
      affichees.push_back(confirmerAffiche(forme, *racine, poste.bureau, tour));
    }
    medianes[noms[onglet].first] = mediane(affichees);
    medianes[noms[onglet].second] = mediane(seules);
  }
  if (forme.remunere.Nombre() != Mois || forme.tempsEffectif.Nombre() != Mois) {
    throw std::runtime_error("the tables do not hold 120 months");
  }
}

}  // namespace bench
