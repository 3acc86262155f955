#pragma once
// The annual follow-up in paid hours: what a modulated contract owes and gives month by month. Its
// lines stand in the contract, those of the current year and those of the previous one.
//
//   SuiviRemunere suivi;
//   suivi.Lire(contrat, Annee::EnCours);
//   suivi.Ajouter("202603", heures);
//   suivi.Calculs()[2].solde
//   suivi.Ecrire(contrat);
//
// forfait = hours by contract - absences; difference = real hours - forfait, positive for hours
// worked beyond it, but kept as typed. Cumulated difference and balance are running sums over the
// lines: of the differences, and of the differences less the regularisations.

#include <vector>

#include "rules/suivi_annuel_table.h"

namespace rules {

enum class Annee { EnCours, Precedente };

// Hours of one line.
struct HeuresMois {
  data::Monnaie contrat;
  data::Monnaie absences;
  data::Monnaie reel;
  data::Monnaie difference;
  data::Monnaie regul;
  data::Monnaie Forfait() const { return contrat - absences; }
};

// A line with what is never stored.
struct CalculMois {
  HeuresMois heures;
  data::Monnaie forfait;
  data::Monnaie cumul;
  data::Monnaie solde;
};

class SuiviRemunere {
 public:
  enum Colonne { Periode, Contrat, Absences, Reel, Difference, Regul };

  SuiviRemunere();
  void Lire(const data::CItem& contrat, Annee annee);
  // The previous year is only read.
  void Ecrire(data::CItem& contrat);

  const TableSuivi& Table() const { return table_; }
  HeuresMois Heures(int ligne) const;
  std::vector<CalculMois> Calculs() const;

  // A month at its place, worked as agreed; the place. The month must not be there yet.
  int Ajouter(const std::string& periode, data::Monnaie heures, data::Monnaie regul = {});
  void Corriger(int ligne, const HeuresMois& heures);
  void Retirer(int ligne) { table_.Retirer(ligne); }
  void Vider() { table_.Vider(); }

 private:
  TableSuivi table_;
};

}  // namespace rules
