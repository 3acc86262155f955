#include "session/session.h"

#include "data/layouts/voisins.h"

namespace session {

void Session::OuvrirFichiers() {
  for (const auto& [nom, fichier] : FichiersSession) this->*fichier = Db->OpenFile(nom);
  ItemPeriodesPaie1 = F_PERIODESPAIE.Read(data::PeriodesPaie::Cle);
}

void Session::Liberer() {
  ItemPeriodesPaie1 = data::CItem();
  for (const auto& [nom, fichier] : FichiersSession) this->*fichier = data::DbFile();
  Db = nullptr;
}

std::string Session::PeriodePaie() const {
  return ItemPeriodesPaie1(data::PeriodesPaie::Courante);
}

}  // namespace session
