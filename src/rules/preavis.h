#pragma once
// The notice of a contract that ends: how long it is, and the day on which it ends. Agreement and
// seniority decide, then the grid category or the profession; a disabled worker's is longer. All on
// values, nothing is read or written:
//
//   SituationPreavis s{.convention = "01", .lettre = 'A', .anciennete = {.ans = 2}, .motif = "11"};
//   dureePreavis(s)                                  2 months
//   finPreavis(jour("15/03/2026"), {.mois = 2})      14/05/2026
//
// The table of the agreements stands in preavis.cpp, one row a line of it, read from the top.

#include <optional>
#include <string>
#include <string_view>

#include "data/citem.h"

namespace rules {

// The reasons whose code calls for a notice, and for a dismissal compensation.
bool motifAvecPreavis(std::string_view motif);
bool motifAvecIndemnite(std::string_view motif);
// Reasons for which the negative hours of a modulated contract are withdrawn.
bool motifRetireHeures(std::string_view motif);

inline constexpr std::string_view RuptureConventionnelle = "43";
// Serious fault and its like: the notice is that of everyone, disabled or not.
inline constexpr std::string_view MotifSansDoublement = "92";

// Whole years and months between two days, by the calendar: a month that is not complete by its day
// does not count.
struct Anciennete {
  int ans = 0;
  int mois = 0;
};
Anciennete ancienneteEntre(long depart, long notification);

struct SituationPreavis {
  std::string convention;
  // The category letter of the pay grid; 0 without one.
  char lettre = 0;
  bool cadre = false;
  bool handicape = false;
  Anciennete anciennete;
  std::string motif;
};

// One of the two, or neither.
struct DureePreavis {
  int mois = 0;
  int jours = 0;
  bool Aucune() const { return mois == 0 && jours == 0; }
};

DureePreavis dureePreavis(const SituationPreavis& situation);

// The last day of the notice. With months it is the day before that of the notification, in the
// month where they end: the last one there is when that month is shorter, and the last day of the
// month when the notification was on a 1st.
long finPreavis(long notification, const DureePreavis& duree);

// The letter of a grid's category text: 0 when it does not begin with a letter.
char lettreGrille(std::string_view categorie);
// The code of a profession is one of executives or supervisors.
bool estCadre(std::string_view codePCS);
// The carer's INFOSAIDANT record gives the rights of a disabled worker on that day.
bool estHandicape(const data::CItem& infos, long jour);

}  // namespace rules
