#pragma once
// The traineeship agreement of a contract of that nature: school, subject, tutor, service and the
// hourly amount up to which the pay is exempt. Opened by the editor's button and by its check of
// the first tab:
//
//   Frm_Stage stage(platform, session);
//   stage.DroitsUtilisateur(droits);
//   stage.Etq_Aidant.SetLibelle("00001 DURAND Anne");
//   stage.init();
//   stage.ShowModal();

#include "dialogs/dialogue.h"

namespace dialogs {

class Frm_Stage : public DialogueContrat {
 public:
  Frm_Stage(screen::Platform& platform, session::Session& session);

  // Hides Cmd_OK without the full right.
  void init();

  // Most characters of a text that is typed.
  static constexpr int LongueurTexte = 100;
  // The threshold's number: digits before the separator, and after.
  static constexpr int SeuilAvant = 5;
  static constexpr int SeuilApres = 2;

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
  screen::TextField Txt_Seuil{*this, "Txt_Seuil", SeuilAvant + 1 + SeuilApres};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};

 protected:
  void Copier_Champs(data::CItem& item) const override;

 private:
  // A field, where it is kept, and what is said when it is missing.
  struct Zone {
    screen::TextField Frm_Stage::*champ;
    int attribut;
    const char* absente;
  };
  static const Zone Zones[5];

  void Afficher_Donnees();
  void Cmd_Ok_Click();

  // An attribute as its field shows it, and back. A threshold that is no amount writes "".
  std::string TexteAffiche(const Zone& zone) const;
  std::string TexteEcrit(const Zone& zone) const;
  bool Manque(const Zone& zone) const;
};

}  // namespace dialogs
