#include "editor/paie_dialogues.h"

#include "dialogs/frm_comment_bull.h"
#include "dialogs/frm_rub_saisie.h"
#include "dialogs/frm_tps_indem.h"
#include "dialogs/frm_vespamoi.h"
#include "editor/editeur.h"

namespace editor {

namespace {

// What has to be known before remote time-tracking can be set up, in this order.
struct Prealable {
  bool (*manque)(const OngletOrigine& origine, const PaieActivites& activites);
  const char* message;
};
constexpr Prealable Prealables[] = {
    {[](const OngletOrigine& o, const PaieActivites&) { return o.Convention().empty(); },
     "Vous devez renseigner la convention sur l'onglet 'Origine'."},
    {[](const OngletOrigine& o, const PaieActivites&) { return o.Employeur().empty(); },
     "Vous devez renseigner l'employeur sur l'onglet 'Origine'."},
    {[](const OngletOrigine&, const PaieActivites& a) { return a.Manquent(); },
     "Vous devez renseigner les activités du contrat."},
};

}  // namespace

PaieDialogues::PaieDialogues(Frm_ElementsContrat& editeur, screen::Frame& page,
                             const PaieActivites& activites, const PaieCotisations& cotisations)
    : editeur_(editeur), page_(page), activites_(activites), cotisations_(cotisations) {
  Cmd_RubSaisie.Click = [this] { Cmd_RubSaisie_Click(); };
  Cmd_Comment.Click = [this] {
    dialogs::Frm_CommentBull(editeur_.Services(), editeur_.Dossier()).ShowModal();
  };
  Cmd_Telegestion.Click = [this] { Cmd_Telegestion_Click(); };
  Cmd_TpsIndem.Click = [this] {
    dialogs::Frm_TpsIndem(editeur_.Services(), editeur_.Dossier(), cotisations_.PrevoyanceMontree())
        .Ouvrir(editeur_);
  };
}

void PaieDialogues::SelonTelegestion(bool utilisee) {
  Cmd_Telegestion.SetVisible(utilisee);
  if (utilisee) Cmd_Telegestion.SetEnabled(true);
}

void PaieDialogues::Cmd_RubSaisie_Click() {
  dialogs::Frm_RubSaisie(editeur_.Services(), editeur_.Dossier(),
                         {editeur_.origine.Genre().Administratif(), activites_.Activites()})
      .ShowModal();
}

void PaieDialogues::Cmd_Telegestion_Click() {
  const auto& origine = editeur_.origine;
  for (const auto& [manque, message] : Prealables) {
    if (!manque(origine, activites_)) continue;
    editeur_.MessageBox(message, screen::Boutons::Ok, screen::Icone::Exclamation);
    return;
  }
  const session::Session& session = editeur_.Session();
  dialogs::ContexteTelegestion contexte;
  contexte.association = origine.Entite();
  contexte.employeur = origine.Employeur();
  contexte.nomEmployeur = origine.Codes().LibelleEmployeur();
  contexte.codeAidant = session.CodeAidant;
  contexte.nomAidant = session.NomPrenomAidant;
  contexte.particuliers = origine.Particuliers();
  contexte.activites = activites_.Codes();
  dialogs::Frm_VESPAMOI(editeur_.Services(), std::move(contexte)).Ouvrir(editeur_);
}

}  // namespace editor
