// The end of a contract from the screen to the contract in hand, and what of it others ask for.

#include "data/nombre.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// What of the end of a contract is on file beside the fields of the table.
constexpr int HorsTable[] = {C::MotifFin,
                             C::PrimePrecarite,
                             C::PreavisPayeDu,
                             C::PreavisPayeAu,
                             C::PreavisEffectueDu,
                             C::PreavisEffectueAu,
                             C::DernierBulletin,
                             C::DateSignatureRupture,
                             C::PreavisNonEffectueDu,
                             C::PreavisNonEffectueAu,
                             C::CalculLicenciement};

// All that it is.
std::vector<int> attributsFin(const session::Zones& zones) {
  std::vector<int> attributs = zones.Attributs();
  attributs.insert(attributs.end(), std::begin(HorsTable), std::end(HorsTable));
  return attributs;
}

}  // namespace

// What others ask.

std::optional<long> OngletFin::DateFin() const {
  if (!initiale_.Intact(Txt_DatNotifContrat.Text())) {
    return Txt_DatNotifContrat.Text().empty() ? std::nullopt : FinAffichee();
  }
  const auto fin = initiale_.Contrat().Vue(C::DateFin);
  if (fin.empty()) return std::nullopt;
  return static_cast<long>(data::entier(fin));
}

// Writing.

void OngletFin::Ecrire_Ong5() {
  data::CItem& contrat = Contrat();
  const std::vector<int> attributs = attributsFin(zones_);
  for (const int a : attributs) contrat.Set(a, initiale_.Contrat().Vue(a));
  contrat.Set(C::OrganismeRetraite, initiale_.Contrat().Vue(C::OrganismeRetraite));
  if (initiale_.Intact(Txt_DatNotifContrat.Text())) return;
  if (Txt_DatNotifContrat.Text().empty()) {
    for (const int a : attributs) contrat.Set(a, "");
    return;
  }
  zones_.Ecrire(Session().Lib, contrat);
  motif_.Ecrire(contrat);
  contrat.Set(C::PrimePrecarite, Cac_PrecaLibContrat.Value() != 0 ? "1" : "0");
  preavis_.Ecrire(contrat);
  contrat.Set(C::DernierBulletin, bulletin_.Periode());
  contrat.Set(C::OrganismeRetraite, retraite_.Code());
}

}  // namespace editor
