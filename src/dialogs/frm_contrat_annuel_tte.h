#pragma once
// Second tab of the annual follow-up, "En Temps de Travail Effectif": the days of each month, the
// hours that they make due, and the hours worked. A year is one record of AIDANTTTE.

#include "dialogs/frm_contrat_annuel_page.h"
#include "rules/suivi_annuel_tte.h"
#include "session/saisie.h"

namespace dialogs {

class SuiviEnTempsEffectif : public PageSuivi {
 public:
  SuiviEnTempsEffectif(screen::Form& forme, screen::TabStrip& onglets, session::Dossier& dossier);

  // Reads the year's record, or takes the one that the dossier holds to be stored: what was changed
  // on an earlier visit stays the year in hand.
  void Ouvrir(int annee);

  void Activer(LigneEnMain enMain, bool modifiable) override;
  void Commencer() override { Cbo_PeriodeTTE.SetFocus(); }
  bool Confirmer(LigneEnMain enMain) override;
  void Vider_Texte() override;
  void SupprimerLigne() override;
  void SupprimerTout() override;
  int Nombre() const override { return Suivi().Table().Nombre(); }
  bool Modifiee() const override { return enCours_.Table().Modifiee(); }
  // Only a follow-up that was changed is handed over.
  void Enregistrer() override;

  screen::Label Txt_ContratTTE{Page, "Txt_ContratTTE", "Contrat"};
  screen::Label Etq_ContratHresJrsTTE{Page, "Etq_ContratHresJrsTTE", "Hres/jr"};
  screen::Label Etq_JoursTTE{Page, "Etq_JoursTTE", "Jours"};
  screen::Label Etq_PotentielTTE{Page, "Etq_PotentielTTE", "Potentiel"};
  screen::Label Etq_DiffTTE{Page, "Etq_DiffTTE", "Diff."};

  screen::ListBox Lst_PeriodeTTE{Page, "Lst_PeriodeTTE"};
  screen::ListBox Lst_HresParContratTTE{Page, "Lst_HresParContratTTE"};
  screen::ListBox Lst_MoisTTE{Page, "Lst_MoisTTE"};
  screen::ListBox Lst_SDTTE{Page, "Lst_SDTTE"};
  screen::ListBox Lst_FerieTTE{Page, "Lst_FerieTTE"};
  screen::ListBox Lst_CongeTTE{Page, "Lst_CongeTTE"};
  screen::ListBox Lst_MalTTE{Page, "Lst_MalTTE"};
  screen::ListBox Lst_AutreTTE{Page, "Lst_AutreTTE"};
  screen::ListBox Lst_PotentielJrsTTE{Page, "Lst_PotentielJrsTTE"};
  screen::ListBox Lst_PotentielHresTTE{Page, "Lst_PotentielHresTTE"};
  screen::ListBox Lst_TTE{Page, "Lst_TTE"};
  screen::ListBox Lst_DiffMoisTTE{Page, "Lst_DiffMoisTTE"};
  screen::ListBox Lst_DiffCumulTTE{Page, "Lst_DiffCumulTTE"};
  screen::ListBox Lst_RegulTTE{Page, "Lst_RegulTTE"};
  screen::ListBox Lst_SoldeTTE{Page, "Lst_SoldeTTE"};
  screen::ScrollBar Bdv_TTE{Page, "Bdv_TTE"};

  // Most characters: a number of days, a number of hours with its sign.
  static constexpr int LongueurJours = 2;
  static constexpr int LongueurNombre = 8;

  screen::ComboBox Cbo_PeriodeTTE{Page, "Cbo_PeriodeTTE", false};
  screen::TextField Txt_HresParContratTTE{Page, "Txt_HresParContratTTE", LongueurNombre};
  screen::TextField Txt_MoisTTE{Page, "Txt_MoisTTE", LongueurJours};
  screen::TextField Txt_SDTTE{Page, "Txt_SDTTE", LongueurJours};
  screen::TextField Txt_FerieTTE{Page, "Txt_FerieTTE", LongueurJours};
  screen::TextField Txt_CongeTTE{Page, "Txt_CongeTTE", LongueurNombre};
  screen::TextField Txt_MalTTE{Page, "Txt_MalTTE", LongueurJours};
  screen::TextField Txt_AutreTTE{Page, "Txt_AutreTTE", LongueurNombre};
  screen::TextField Txt_PotentielJrsTTE{Page, "Txt_PotentielJrsTTE", LongueurNombre};
  screen::TextField Txt_PotentielHresTTE{Page, "Txt_PotentielHresTTE", LongueurNombre};
  screen::TextField Txt_TTE{Page, "Txt_TTE", LongueurNombre};
  screen::TextField Txt_DiffMoisTTE{Page, "Txt_DiffMoisTTE", LongueurNombre};
  screen::TextField Txt_DiffCumulTTE{Page, "Txt_DiffCumulTTE", LongueurNombre};
  screen::TextField Txt_RegulTTE{Page, "Txt_RegulTTE", LongueurNombre};
  screen::TextField Txt_SoldeTTE{Page, "Txt_SoldeTTE", LongueurNombre};

 private:
  // A field in which a line is typed, and how.
  struct Champ {
    screen::TextField& champ;
    session::FormeNombre forme;
    enum Genre { EnJours, EnNombre, EnForme } genre;
  };

  static const rules::Verification<SuiviEnTempsEffectif> Verifications[2];

  void Lier(const Champ& champ);
  void Montrer() override;
  data::CItem ArticleDe(int annee) const;
  const rules::SuiviTte& Suivi() const;
  void ModifTTE(int ligne);
  bool Trier_ListeTTE(LigneEnMain enMain);
  // The month of the edit line, "" while none is chosen.
  std::string Periode() const;
  rules::TempsMois Saisis() const;
  rules::TempsMois Corriges() const;

  void Cbo_PeriodeTTE_Click();
  bool Quitter(const Champ& champ);
  void RecalculTTE();
  bool VerifJoursTTE(const rules::TempsMois& temps);

  int anneeSuivi_ = 0;
  std::vector<std::string> mois_;
  data::CItem article_;
  rules::SuiviTte enCours_;
  rules::SuiviTte precedente_;
  const std::vector<Champ> champs_;
  screen::Colonnes lignes_{
      {&Lst_PeriodeTTE, &Lst_HresParContratTTE, &Lst_MoisTTE, &Lst_SDTTE, &Lst_FerieTTE,
       &Lst_CongeTTE, &Lst_MalTTE, &Lst_AutreTTE, &Lst_PotentielJrsTTE, &Lst_PotentielHresTTE,
       &Lst_TTE, &Lst_DiffMoisTTE, &Lst_DiffCumulTTE, &Lst_RegulTTE, &Lst_SoldeTTE},
      Bdv_TTE,
      RangeesVisibles};
};

}  // namespace dialogs
