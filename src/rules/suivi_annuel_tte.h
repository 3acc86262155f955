#pragma once
// The annual follow-up in effective working time: the hours that were due, from the days of each
// month and the hours of a day, beside those worked. One record of AIDANTTTE holds a year.
//
// potential days = days of the month less those off; monthly difference = hours worked - hours a
// day x potential days, in whole hundredths; balance = running sum of the differences less the
// regularisations. The balance stands on file: it is worked out anew for the whole year when a line
// is confirmed, and until then it is what the file says.

#include <vector>

#include "rules/suivi_annuel_table.h"

namespace rules {

// One line: days, and hours. The days of the month and those of the calendar are texts of whole
// days, kept as typed.
struct TempsMois {
  std::string joursMois;
  std::string samDim;
  std::string feries;
  data::Monnaie heuresJour;
  data::Monnaie conges;
  data::Monnaie maladie;
  data::Monnaie autres;
  data::Monnaie effectif;
  data::Monnaie regul;

  data::Monnaie JoursOtes() const;
  data::Monnaie JoursPotentiels() const;
  data::Monnaie HeuresPotentielles() const { return heuresJour * JoursPotentiels(); }
  // Hundredths of an hour.
  long long Difference() const;
};

// A line with what it shows beside. Hundredths of an hour are whole numbers.
struct CalculTemps {
  TempsMois temps;
  data::Monnaie joursPotentiels;
  data::Monnaie heuresPotentielles;
  long long difference = 0;
  long long cumul = 0;
};

class SuiviTte {
 public:
  // As the record has them: its attributes 1 to 11.
  enum Colonne {
    Mois,
    HeuresJour,
    JoursMois,
    SamDim,
    Feries,
    Conges,
    Maladie,
    Autres,
    Effectif,
    Regul,
    Solde
  };

  SuiviTte();
  void Lire(const data::CItem& article);
  void Ecrire(data::CItem& article) { table_.Ecrire(article); }

  const TableSuivi& Table() const { return table_; }
  TempsMois Temps(int ligne) const;
  std::vector<CalculTemps> Calculs() const;

  // Each works the balances out anew. A new month, not there yet, goes to its place; the month of a
  // line and its days are not corrected.
  void Ajouter(const std::string& periode, const TempsMois& temps);
  void Corriger(int ligne, const TempsMois& temps);
  void Retirer(int ligne);
  void Vider() { table_.Vider(); }

  // What is shown of cumulated difference and balance while that month is being typed, in
  // hundredths. Earlier lines add their regularisation here where the stored balance takes it off:
  // users know this display so; the stored value takes its place once the line is confirmed.
  struct Provisoire {
    long long cumul = 0;
    long long solde = 0;
  };
  Provisoire PendantLaSaisie(std::string_view periode, const TempsMois& temps) const;

 private:
  void PoserTemps(int ligne, const TempsMois& temps);
  void RecalculerSoldes();

  TableSuivi table_;
};

}  // namespace rules
