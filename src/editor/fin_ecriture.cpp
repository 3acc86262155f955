// The end of a contract from the screen to the contract in hand, and what of it others ask for.

#include "data/nombre.h"
#include "data/texte.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// All that the end of a contract is on file.
constexpr int GroupeFin[] = {C::DateFin,
                             C::MotifFin,
                             C::DateNotification,
                             C::DernierJourTravaille,
                             C::PrimePrecarite,
                             C::PreavisPayeDu,
                             C::PreavisPayeAu,
                             C::PreavisEffectueDu,
                             C::PreavisEffectueAu,
                             C::MotifNonVersement,
                             C::DernierBulletin,
                             C::ObservationsFin,
                             C::DateFinReelle,
                             C::ComplementMotifFin,
                             C::DateSignatureRupture,
                             C::PreavisNonEffectueDu,
                             C::PreavisNonEffectueAu,
                             C::CalculLicenciement};

}  // namespace

// What others ask.

std::string OngletFin::DernierJour() const {
  return data::sansBlancs(Txt_DernJrWContrat.Text());
}

bool OngletFin::Intact() const {
  if (Txt_DatNotifContrat.Text().empty()) return notificationInitiale_.empty();
  return Empreinte() == empreinteInitiale_;
}

std::optional<long> OngletFin::DateFin() const {
  if (!Intact()) {
    return Txt_DatNotifContrat.Text().empty() ? std::nullopt : Fin();
  }
  const auto fin = montre_.Vue(C::DateFin);
  if (fin.empty()) return std::nullopt;
  return static_cast<long>(data::entier(fin));
}

std::string OngletFin::Empreinte() const {
  std::string texte;
  for (const screen::Field* const champ : editeur_.Fields()) {
    const screen::Frame* const cadre = champ->Cadre();
    if (cadre == nullptr || (cadre != &Page && cadre->Cadre() != &Page)) continue;
    if (champ->Genre() == screen::Kind::Texte) {
      texte += static_cast<const screen::TextField*>(champ)->Text();
    } else if (champ->Genre() == screen::Kind::Deroulante) {
      texte += static_cast<const screen::ComboBox*>(champ)->Text();
    } else if (champ->Genre() == screen::Kind::Case) {
      texte += static_cast<const screen::CheckBox*>(champ)->Value() != 0 ? "1" : "0";
    } else if (champ->Genre() == screen::Kind::Option) {
      texte += static_cast<const screen::OptionButton*>(champ)->Value() ? "1" : "0";
    }
    texte += data::SepAttribut;
  }
  return texte;
}

// Writing.

void OngletFin::Ecrire_Ong5() {
  data::CItem& contrat = Contrat();
  for (const int a : GroupeFin) contrat.Set(a, montre_.Vue(a));
  contrat.Set(C::OrganismeRetraite, montre_.Vue(C::OrganismeRetraite));
  if (Intact()) return;
  if (Txt_DatNotifContrat.Text().empty()) {
    for (const int a : GroupeFin) contrat.Set(a, "");
    return;
  }
  const auto date = [&](int attribut, const screen::TextField& champ) {
    const auto jour = Jour(champ);
    contrat.Set(attribut, jour ? std::to_string(*jour) : "");
  };
  date(C::DateFin, Txt_DateFinContrat);
  motif_.Ecrire(contrat);
  date(C::DateNotification, Txt_DatNotifContrat);
  date(C::DernierJourTravaille, Txt_DernJrWContrat);
  contrat.Set(C::PrimePrecarite, Cac_PrecaLibContrat.Value() != 0 ? "1" : "0");
  preavis_.Ecrire(contrat);
  contrat.Set(C::MotifNonVersement, Txt_NonVersContrat.Text());
  contrat.Set(C::DernierBulletin, bulletin_.Periode());
  contrat.Set(C::ObservationsFin, 1, Txt_ObsFinContrat_0.Text());
  contrat.Set(C::ObservationsFin, 2, Txt_ObsFinContrat_1.Text());
  contrat.Set(C::OrganismeRetraite, retraite_.Code());
  date(C::DateFinReelle, Txt_FinReelle);
}

}  // namespace editor
