#pragma once
// The traineeship agreement of a contract of that nature: school, subject, tutor, service and the
// hourly amount up to which the pay is exempt. Opened by the editor's button and by its check of
// the first tab:
//
//   Frm_Stage(platform, dossier).ShowModal();

#include "dialogs/dialogue.h"
#include "session/zones.h"

namespace dialogs {

class Frm_Stage : public DialogueContrat {
 public:
  Frm_Stage(screen::Platform& platform, session::Dossier& dossier);

  // Most characters of a text that is typed.
  static constexpr int LongueurTexte = 100;
  // The threshold, in euros an hour.
  static constexpr session::FormeNombre Seuil{.avant = 5, .apres = 2};

  screen::Label Etq_Aidant{*this, "Etq_Aidant"};
  screen::Label Etq_Etab{*this, "Etq_Etab", "Etablissement d'enseignement"};
  screen::TextField Txt_Etab{*this, "Txt_Etab", LongueurTexte};
  screen::Label Etq_SujetStage{*this, "Etq_SujetStage", "Sujet de stage"};
  screen::TextField Txt_SujetStage{*this, "Txt_SujetStage", LongueurTexte};
  screen::Label Etq_Tuteur{*this, "Etq_Tuteur", "Tuteur"};
  screen::TextField Txt_Tuteur{*this, "Txt_Tuteur", LongueurTexte};
  screen::Label Etq_Service{*this, "Etq_Service", "Service où le stage est effectué"};
  screen::TextField Txt_Service{*this, "Txt_Service", LongueurTexte};
  screen::Label Etq_Seuil{*this, "Etq_Seuil", "Seuil de franchise horaire"};
  screen::TextField Txt_Seuil{*this, "Txt_Seuil", Seuil.Largeur()};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};

 protected:
  void Copier_Champs(data::CItem& contrat) const override { zones_.Ecrire(session_.Lib, contrat); }

 private:
  static const rules::Verification<Frm_Stage> Verifications[5];

  void Cmd_Ok_Click();
  // A blank text is none. A threshold of 0 is one.
  bool Manque(const screen::Field& champ) const;

  session::Zones zones_;
};

}  // namespace dialogs
