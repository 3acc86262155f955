#include "dialogs/frm_stage.h"

#include "data/layouts/contrat.h"
#include "data/monnaie.h"
#include "data/texte.h"
#include "session/saisie.h"

namespace dialogs {

namespace {

// "ces données", where the other dialogs say "cet article": users know it so.
constexpr const char* QuestionSortie =
    "Voulez-vous enregistrer les modifications apportées à ces données ?";

// More digits than any amount on file; such a text is not read as one.
constexpr std::size_t ChiffresMax = 15;

}  // namespace

constexpr Frm_Stage::Zone Frm_Stage::Zones[5] = {
    {&Frm_Stage::Txt_Etab, data::Contrat::StageEcole,
     "La saisie d'un établissement d'enseignement est obligatoire."},
    {&Frm_Stage::Txt_SujetStage, data::Contrat::StageSujet,
     "La saisie d'un sujet de stage est obligatoire."},
    {&Frm_Stage::Txt_Tuteur, data::Contrat::StageTuteur, "La saisie d'un tuteur est obligatoire."},
    {&Frm_Stage::Txt_Service, data::Contrat::StageService,
     "La saisie d'un service est obligatoire."},
    {&Frm_Stage::Txt_Seuil, data::Contrat::StageSeuil,
     "La saisie d'un seuil de franchise horaire est obligatoire."},
};

Frm_Stage::Frm_Stage(screen::Platform& platform, session::Session& session)
    : DialogueContrat(platform, session, "Frm_Stage", "Détails convention de stage",
                      data::Contrat::GroupeStage, QuestionSortie) {
  session::FiltrerNombre(session_, Txt_Seuil, false);
  Txt_Seuil.LostFocus = [this] {
    session::QuitterNombre(session_, Txt_Seuil, SeuilAvant, SeuilApres, false);
  };
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  Afficher_Donnees();
}

void Frm_Stage::init() {
  Cmd_OK.SetVisible(DroitComplet());
}

void Frm_Stage::Afficher_Donnees() {
  for (const Zone& zone : Zones) (this->*zone.champ).SetText(TexteAffiche(zone));
}

void Frm_Stage::Cmd_Ok_Click() {
  for (const Zone& zone : Zones) {
    if (!Manque(zone)) continue;
    MessageBox(zone.absente, screen::Boutons::Ok, screen::Icone::Exclamation);
    (this->*zone.champ).SetFocus();
    return;
  }
  MAJ_TabDyn();
  Sortir();
}

// A blank text is none. A threshold of 0 is one.
bool Frm_Stage::Manque(const Zone& zone) const {
  return data::sansBlancs(TexteEcrit(zone)).empty();
}

void Frm_Stage::Copier_Champs(data::CItem& item) const {
  for (const Zone& zone : Zones) item.Set(zone.attribut, TexteEcrit(zone));
}

std::string Frm_Stage::TexteAffiche(const Zone& zone) const {
  std::string texte = session_.ItemContrat(zone.attribut);
  if (zone.attribut != data::Contrat::StageSeuil) return texte;
  // What is no amount stays as it is, so that a wrong record is seen.
  if (texte.size() > ChiffresMax || !data::estNombre(texte)) return texte;
  const std::string montant =
      data::Monnaie::DeCentiemes(texte).Texte(SeuilApres, session_.Lib.DecimalSeparator());
  return session_.Lib.FormatNumberField(montant, SeuilAvant, SeuilApres, false).value_or(montant);
}

std::string Frm_Stage::TexteEcrit(const Zone& zone) const {
  const std::string& texte = (this->*zone.champ).Text();
  if (zone.attribut != data::Contrat::StageSeuil) return texte;
  if (!session_.Lib.FormatNumberField(texte, SeuilAvant, SeuilApres, false)) return {};
  return std::to_string(data::Monnaie::DeTexte(texte).Centiemes());
}

}  // namespace dialogs
