#include "editor/fin_preavis.h"

#include "data/layouts/contrat.h"
#include "session/saisie.h"

namespace editor {

namespace {

namespace C = data::Contrat;

}  // namespace

PreavisFin::PreavisFin(session::Session& session, screen::Frame& page)
    : session_(session),
      page_(page),
      genres_{
          {{Opt_Paye, Txt_DebPayeContrat, Txt_FinPayeContrat, C::PreavisPayeDu, C::PreavisPayeAu},
           {Opt_Effectue, Txt_DebEffContrat, Txt_FinEffContrat, C::PreavisEffectueDu,
            C::PreavisEffectueAu},
           {Opt_NonEffNonPaye, Txt_DebNonEffNonPaye, Txt_FinNonEffNonPaye, C::PreavisNonEffectueDu,
            C::PreavisNonEffectueAu}}} {
  for (const Genre& genre : genres_) {
    genre.option.Click = [this] { ActiverJours(); };
    session::LierDate(session_, genre.debut);
    session::LierDate(session_, genre.fin);
  }
  Vider();
}

void PreavisFin::Montrer(const data::CItem& contrat) {
  for (const Genre& genre : genres_) {
    if (contrat.Vue(genre.du).empty()) continue;
    genre.option.SetValue(true);
    genre.debut.SetText(session_.Lib.DateFromInternal(contrat.Vue(genre.du)));
    genre.fin.SetText(session_.Lib.DateFromInternal(contrat.Vue(genre.au)));
  }
}

void PreavisFin::Ecrire(data::CItem& contrat) const {
  const auto jour = [this](const screen::TextField& champ) {
    const auto lu = session_.Lib.LireDate(champ.Text());
    return lu ? std::to_string(*lu) : std::string();
  };
  for (const Genre& genre : genres_) {
    const bool choisi = genre.option.Value();
    contrat.Set(genre.du, choisi ? jour(genre.debut) : "");
    contrat.Set(genre.au, choisi ? jour(genre.fin) : "");
  }
}

void PreavisFin::Vider() {
  for (const Genre& genre : genres_) {
    genre.option.SetValue(false);
    genre.debut.SetText("");
    genre.fin.SetText("");
  }
  Etq_CalculPreavis.SetLibelle("");
  ActiverJours();
}

void PreavisFin::Activer(bool actif) {
  for (const Genre& genre : genres_) genre.option.SetEnabled(actif);
  ActiverJours();
}

void PreavisFin::ActiverJours() {
  for (const Genre& genre : genres_) {
    const bool actif = genre.option.Enabled() && genre.option.Value();
    genre.debut.SetEnabled(actif);
    genre.fin.SetEnabled(actif);
  }
}

void PreavisFin::Payer(const std::string& du, const std::string& au, const std::string& calcul) {
  Vider();
  Opt_Paye.SetValue(true);
  Txt_DebPayeContrat.SetText(du);
  Txt_FinPayeContrat.SetText(au);
  Etq_CalculPreavis.SetLibelle(calcul);
}

void PreavisFin::OublierPaye() {
  Opt_Paye.SetValue(false);
  Txt_DebPayeContrat.SetText("");
  Txt_FinPayeContrat.SetText("");
  Etq_CalculPreavis.SetLibelle("");
  ActiverJours();
}

const PreavisFin::Genre* PreavisFin::Choisi() const {
  for (const Genre& genre : genres_) {
    if (genre.option.Value()) return &genre;
  }
  return nullptr;
}

std::string dureeEcrite(const rules::DureePreavis& duree) {
  if (duree.mois > 0) return std::to_string(duree.mois) + " mois";
  return std::to_string(duree.jours) + (duree.jours > 1 ? " jours" : " jour");
}

}  // namespace editor
