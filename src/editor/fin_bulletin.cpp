#include "editor/fin_bulletin.h"

#include <algorithm>

#include "data/jour.h"
#include "data/nombre.h"

namespace editor {

namespace {

// How far back the last payslip can lie.
constexpr int MoisEnArriere = 4;

// Calendar months from one period to the other.
int moisEntre(const std::string& de, const std::string& a) {
  const auto rang = [](const std::string& periode) {
    return data::entier(periode.substr(0, 4)) * 12 + data::entier(periode.substr(4));
  };
  return static_cast<int>(rang(a) - rang(de));
}

bool estPeriode(const std::string& texte) {
  return data::premierJour(texte).has_value();
}

}  // namespace

BulletinFin::BulletinFin(screen::Frame& page, session::Sourdine& sourdine)
    : page_(page), sourdine_(sourdine) {
  Txt_DernBullContrat.SetEnabled(false);
  Bdh_Bulletin.Change = sourdine_.SiAudible(
      [this] { Montrer(data::decalePeriode(reference_, Bdh_Bulletin.Value())); });
  Vider();
}

void BulletinFin::Montrer(const std::string& periode) {
  periode_ = periode;
  Txt_DernBullContrat.SetText(data::moisAnnee(periode));
  if (!estPeriode(periode) || reference_.empty()) return;
  const int rang = std::min(moisEntre(reference_, periode), 0);
  Placer(std::min(Bdh_Bulletin.Min(), rang), rang);
}

void BulletinFin::Borner(std::optional<long> debut, long fin) {
  reference_ = data::periodeDe(fin);
  const int mois = debut ? std::max(moisEntre(data::periodeDe(*debut), reference_), 0) : 0;
  Placer(-std::min(mois, MoisEnArriere), 0);
  if (!periode_.empty()) {
    Montrer(periode_);
  } else if (mois == 0) {
    MontrerFin();
  }
}

void BulletinFin::RevenirAu(long jour) {
  const std::string voulue = data::periodeDe(jour);
  while (periode_ > voulue && Bdh_Bulletin.Value() > Bdh_Bulletin.Min()) {
    Montrer(data::decalePeriode(reference_, Bdh_Bulletin.Value() - 1));
  }
}

void BulletinFin::Vider() {
  reference_.clear();
  Montrer("");
  Placer(0, 0);
}

void BulletinFin::Activer(bool active) {
  screen::Activer({&Etq_DernBullContrat, &Bdh_Bulletin}, active);
}

void BulletinFin::Placer(int min, int valeur) {
  const session::Sourdine::Silence silence(sourdine_);
  Bdh_Bulletin.SetMax(0);
  Bdh_Bulletin.SetMin(min);
  Bdh_Bulletin.SetValue(valeur);
}

}  // namespace editor
