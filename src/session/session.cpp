#include "session/session.h"

#include "data/layouts/voisins.h"

namespace session {

namespace {

constexpr std::array ItemsSession{
    &Session::ItemContrat,        &Session::ItemPeriodesPaie1,    &Session::ItemAssociations,
    &Session::ItemCivilAidant,    &Session::ItemCivilAide,        &Session::ItemAssociation,
    &Session::ItemEtablissement,  &Session::ItemTables,           &Session::ItemProfil,
    &Session::ItemRubCharge,      &Session::ItemConventionCol,    &Session::ItemContratsPrev,
    &Session::ItemMissionsAidant, &Session::ItemAidantTte,        &Session::ItemActivitesAide,
    &Session::ItemActivites,      &Session::ItemHistorIndem,      &Session::ItemRibAidant,
    &Session::ItemContratInv,     &Session::ItemDetailCalcul,     &Session::ItemLienAvenant,
    &Session::ItemAbsencesAidant, &Session::ItemActuSuiviContrat, &Session::ItemDsnEvenement,
    &Session::ItemInfosAidant,    &Session::ItemCentreMedical,
};

}  // namespace

void Session::OuvrirFichiers() {
  for (const auto& [nom, fichier] : FichiersSession) this->*fichier = Db->OpenFile(nom);
  ItemPeriodesPaie1 = F_PERIODESPAIE.Read(data::PeriodesPaie::Cle);
}

void Session::Liberer() {
  for (const auto item : ItemsSession) this->*item = data::CItem();
  for (const auto& [nom, fichier] : FichiersSession) this->*fichier = data::DbFile();
  Db = nullptr;
}

}  // namespace session
