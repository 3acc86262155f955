// The dialogs that the third tab opens.

#include "dialogs/frm_comment_bull.h"
#include "dialogs/frm_rub_saisie.h"
#include "dialogs/frm_tps_indem.h"
#include "dialogs/frm_vespamoi.h"
#include "editor/editeur.h"

namespace editor {

namespace {

using screen::Icone;

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

void OngletPaie::LierDialogues() {
  Cmd_RubSaisie.Click = [this] { Cmd_RubSaisie_Click(); };
  Cmd_Comment.Click = [this] {
    dialogs::Frm_CommentBull(editeur_.Services(), Dossier()).ShowModal();
  };
  Cmd_Telegestion.Click = [this] { Cmd_Telegestion_Click(); };
  Cmd_TpsIndem.Click = [this] {
    dialogs::Frm_TpsIndem(editeur_.Services(), Dossier(), cotisations_.Prevoyance().Text())
        .Ouvrir(editeur_);
  };
}

void OngletPaie::Cmd_RubSaisie_Click() {
  dialogs::Frm_RubSaisie(editeur_.Services(), Dossier(),
                         {editeur_.origine.Administratif(), activites_.Activites()})
      .ShowModal();
}

void OngletPaie::Cmd_Telegestion_Click() {
  const auto& origine = editeur_.origine;
  for (const auto& [manque, message] : Prealables) {
    if (!manque(origine, activites_)) continue;
    Message(message, Icone::Exclamation);
    return;
  }
  dialogs::ContexteTelegestion contexte;
  contexte.association = origine.Entite();
  contexte.employeur = origine.Employeur();
  contexte.nomEmployeur = origine.LibelleEmployeur();
  contexte.codeAidant = Session().CodeAidant;
  contexte.nomAidant = Session().NomPrenomAidant;
  contexte.particuliers = origine.Particuliers();
  contexte.activites = activites_.Codes();
  dialogs::Frm_VESPAMOI(editeur_.Services(), std::move(contexte)).Ouvrir(editeur_);
}

}  // namespace editor
