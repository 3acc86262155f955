#include "editor/fin_dates.h"

#include "data/texte.h"
#include "editor/editeur.h"
#include "session/saisie.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* DernierJourAvantDebut =
    "Erreur la date du dernier jour travaillé ne peut être inférieure à la date de début du "
    "contrat, veuillez la ressaisir.";
constexpr const char* FinReelleAvantDebut =
    "Erreur la date de fin réelle ne peut être inférieure à la date de début du contrat, veuillez "
    "la ressaisir.";

}  // namespace

DatesFin::DatesFin(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine)
    : editeur_(editeur), page_(page) {
  Txt_DateFinContrat.Change = sourdine.SiAudible([this] { SurSaisie(); });
  Txt_DateFinContrat.LostFocus = [this] { Txt_DateFinContrat_LostFocus(); };
  Txt_DernJrWContrat.LostFocus = [this] { QuitterJour(Txt_DernJrWContrat, DernierJourAvantDebut); };
  Txt_FinReelle.LostFocus = [this] { QuitterJour(Txt_FinReelle, FinReelleAvantDebut); };
}

std::vector<session::Zone> DatesFin::Zones() {
  return {session::jour(Txt_DateFinContrat, C::DateFin),
          session::jour(Txt_DernJrWContrat, C::DernierJourTravaille),
          session::jour(Txt_FinReelle, C::DateFinReelle)};
}

void DatesFin::Poser(const std::string& dateFin) {
  Txt_DateFinContrat.SetText(dateFin);
  Txt_DateFinContrat_LostFocus();
}

void DatesFin::ViderJours() {
  Txt_DernJrWContrat.SetText("");
  Txt_FinReelle.SetText("");
}

void DatesFin::OuvrirFin(bool ouverte) {
  screen::Activer({&Etq_DateFinContrat, &Txt_DateFinContrat}, ouverte);
}

void DatesFin::Activer(bool actives) {
  screen::Activer({&Etq_FinReelle, &Txt_FinReelle, &Etq_DernJrWContrat, &Txt_DernJrWContrat},
                  actives);
}

std::string DatesFin::DernierJour() const {
  return data::sansBlancs(Txt_DernJrWContrat.Text());
}

std::optional<long> DatesFin::Jour(const screen::TextField& champ) const {
  return editeur_.Session().Lib.LireDate(champ.Text());
}

void DatesFin::Txt_DateFinContrat_LostFocus() {
  if (session::QuitterDate(editeur_.Session(), Txt_DateFinContrat)) SurFin();
}

void DatesFin::QuitterJour(screen::TextField& champ, const char* refus) {
  if (!session::QuitterDate(editeur_.Session(), champ)) return;
  if (!apres(editeur_.origine.Debut(), Jour(champ))) return;
  editeur_.MessageBox(refus, screen::Boutons::Ok, screen::Icone::Exclamation);
  champ.SetFocus();
}

}  // namespace editor
