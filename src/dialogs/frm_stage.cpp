#include "dialogs/frm_stage.h"

#include "data/texte.h"

namespace dialogs {

namespace {

namespace C = data::Contrat;
using screen::Icone;

// "ces données", where the other dialogs say "cet article": users know it so.
constexpr const char* QuestionSortie =
    "Voulez-vous enregistrer les modifications apportées à ces données ?";

}  // namespace

Frm_Stage::Frm_Stage(screen::Platform& platform, session::Dossier& dossier)
    : DialogueContrat(platform, dossier, "Frm_Stage", "Détails convention de stage",
                      QuestionSortie),
      zones_(
          {session::texte(Txt_Etab, C::StageEcole), session::texte(Txt_SujetStage, C::StageSujet),
           session::texte(Txt_Tuteur, C::StageTuteur), session::texte(Txt_Service, C::StageService),
           session::nombre(Txt_Seuil, C::StageSeuil, Seuil, 2)}) {
  Etq_Aidant.SetLibelle(session_.CodeAidant + " " + session_.NomPrenomAidant);
  Cmd_OK.SetVisible(session_.DroitComplet());
  Cmd_OK.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Retour.Click = [this] { Cmd_Retour_Click(); };
  zones_.Lier(session_);
  zones_.Montrer(session_.Lib, dossier_.ItemContrat);
}

const rules::Verification<Frm_Stage> Frm_Stage::Verifications[5] = {
    {[](Frm_Stage& f) { return f.Manque(f.Txt_Etab); },
     "La saisie d'un établissement d'enseignement est obligatoire.", Icone::Exclamation,
     "Txt_Etab"},
    {[](Frm_Stage& f) { return f.Manque(f.Txt_SujetStage); },
     "La saisie d'un sujet de stage est obligatoire.", Icone::Exclamation, "Txt_SujetStage"},
    {[](Frm_Stage& f) { return f.Manque(f.Txt_Tuteur); }, "La saisie d'un tuteur est obligatoire.",
     Icone::Exclamation, "Txt_Tuteur"},
    {[](Frm_Stage& f) { return f.Manque(f.Txt_Service); },
     "La saisie d'un service est obligatoire.", Icone::Exclamation, "Txt_Service"},
    {[](Frm_Stage& f) { return f.Manque(f.Txt_Seuil); },
     "La saisie d'un seuil de franchise horaire est obligatoire.", Icone::Exclamation, "Txt_Seuil"},
};

bool Frm_Stage::Manque(const screen::Field& champ) const {
  return data::sansBlancs(zones_.Valeur(session_.Lib, champ)).empty();
}

void Frm_Stage::Cmd_Ok_Click() {
  if (!Verifier<Frm_Stage>(Verifications, *this)) return;
  MAJ_TabDyn();
  Sortir();
}

}  // namespace dialogs
