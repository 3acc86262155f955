#pragma once
// The pay headings that a contract carries from month to month: a heading of RUBSAISIE with a base,
// a rate and an amount, and the activity that it is charged to; administrative staff, who split
// their time, have none.
//
//   Frm_RubSaisie(platform, dossier, {administratif, activites}).ShowModal();
//
// What can be typed of a line is up to its heading: each of base, rate and amount is of a kind.
//
//   0      typed
//   1      base: typed, and multiplied by the heading's coefficient; rate and amount: the heading's
//   2      none; the amount is base times rate
//   3, 4   base: none. Rate: none of kind 3, as it stands of kind 4; amount: as it stands

#include <string>
#include <string_view>
#include <vector>

#include "data/liste_codes.h"
#include "dialogs/dialogue_lignes.h"
#include "screen/colonnes.h"
#include "session/paire_code.h"
#include "session/saisie.h"

namespace dialogs {

// The amount of kind 2, in hundredths: rounded half up, then cut, so that a negative one rounds
// towards zero as the payslips have it. Base in hundredths, rate in ten-thousandths.
long long MontantCalcule(long long base, long long taux);

// The contract as it stands on the editor's screen.
struct ContexteRubriques {
  bool administratif = false;
  // Codes and labels.
  std::vector<data::ListeCodes::Ligne> activites;
};

class Frm_RubSaisie : public DialogueLignes {
 public:
  Frm_RubSaisie(screen::Platform& platform, session::Dossier& dossier, ContexteRubriques contexte);

  static constexpr session::FormeNombre Montant{
      .avant = 7, .apres = 2, .signe = true, .affichage = session::FormeNombre::Serree};
  static constexpr session::FormeNombre Taux{
      .avant = 5, .apres = 4, .affichage = session::FormeNombre::Serree};
  static constexpr int LongueurCode = 3;
  // Rows that the lists show without their bar.
  static constexpr int Visibles = 15;

  screen::Label Etq_Aidant{*this, "Etq_Aidant"};
  screen::Label Etq_Code{*this, "Etq_Code", "Code"};
  screen::Label Etq_LibRub{*this, "Etq_LibRub", "Libellé rubrique"};
  screen::Label Etq_Base{*this, "Etq_Base", "Base"};
  screen::Label Etq_Taux{*this, "Etq_Taux", "Taux"};
  screen::Label Etq_Montant{*this, "Etq_Montant", "Montant"};
  screen::Label Etq_Activite{*this, "Etq_Activite", "Activité"};
  screen::ListBox Lst_Code{*this, "Lst_Code"};
  screen::ListBox Lst_LibRub{*this, "Lst_LibRub"};
  screen::ListBox Lst_Base{*this, "Lst_Base"};
  screen::ListBox Lst_Taux{*this, "Lst_Taux"};
  screen::ListBox Lst_Montant{*this, "Lst_Montant"};
  screen::ListBox Lst_Activite{*this, "Lst_Activite"};
  screen::ScrollBar Bdv_Detail{*this, "Bdv_Detail"};
  screen::TextField Txt_Code{*this, "Txt_Code", LongueurCode};
  screen::ComboBox Cbo_LibRub{*this, "Cbo_LibRub", true, 60};
  screen::TextField Txt_Base{*this, "Txt_Base", Montant.Largeur()};
  screen::TextField Txt_Taux{*this, "Txt_Taux", Taux.Largeur()};
  screen::TextField Txt_Montant{*this, "Txt_Montant", Montant.Largeur()};
  screen::ComboBox Cbo_Activite{*this, "Cbo_Activite", false};
  screen::Button Cmd_Ajouter{*this, "Cmd_Ajouter", "Ajouter"};
  screen::Button Cmd_Supprimer{*this, "Cmd_Supprimer", "Supprimer"};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Annuler{*this, "Cmd_Annuler", "Annuler"};
  screen::Button Cmd_Retour{*this, "Cmd_Retour", "Retour"};

 protected:
  void Copier_Champs(data::CItem& contrat) const override;
  bool Ranger() override;
  void Liberer() override;

 private:
  // Base, rate and amount as they stand on file.
  struct Ligne {
    std::string code, base, taux, montant;
  };
  // One of the three, with its place in a line and its form.
  struct Nombre {
    std::string Ligne::*champ;
    int attribut;
    int echelle;
    session::FormeNombre forme;
  };
  static const Nombre Nombres[3];
  static const rules::Verification<Frm_RubSaisie> Verifications[5];

  void Lier();
  session::RegleCode RegleRubrique();
  void Remplir_RubSaisie();
  void Afficher_Donnees();
  screen::TextField& Saisie(int nombre);
  std::string Afficher(const std::string& valeur, int nombre) const;
  std::string Genre(int nombre) const;
  void AppliquerGenres();
  void AppliquerGenre(int nombre);
  void Txt_Base_LostFocus();

  void Griser_Liste(bool saisie);
  void Vider_Texte();
  void Cmd_Ajouter_Click();
  void Descendre_Liste(int ligne);
  void Cmd_Supprimer_Click();

  ContexteRubriques contexte_;
  screen::Colonnes colonnes_{
      {&Lst_Code, &Lst_LibRub, &Lst_Base, &Lst_Taux, &Lst_Montant, &Lst_Activite},
      Bdv_Detail,
      Visibles};
  session::Sourdine sourdine_;
  session::PaireCode rubrique_{Txt_Code, Cbo_LibRub, sourdine_, RegleRubrique()};
  std::vector<Ligne> lignes_;
  // The activity of each line.
  std::vector<std::string> Lst_CodeActSelect_;
  // The base as the coefficient has made it.
  std::string baseCalculee_;
};

}  // namespace dialogs
