#pragma once
// Carers and people helped. What others must know of a person without making all of that person's
// records is their "base": cheap to draw again, and the same each time.

#include <bitset>
#include <string>
#include <vector>

#include "demo/listes.h"
#include "demo/sortie.h"

namespace demo {

enum class Parcours { Stable, Remplacant, Mandataire, Administratif, Stagiaire };

// What a carer's contracts and those of colleagues hang on. Dates are days, 0 = none.
struct BaseAidant {
  int numero = 0;
  std::string code;
  bool femme = true;
  bool compteBancaire = true;
  int entite = 0;      // rank in Entites, of the contracts with the entity
  int convention = 0;  // rank in Conventions, never private employers
  Parcours parcours = Parcours::Stable;
  long embauche = 0;
  long naissance = 0;
  // Stable carers only: a first fixed term, then an open-ended contract, and in it one long
  // absence.
  long cddFin = 0;
  long cdiDebut = 0;
  long cdiFin = 0;
  long absenceDebut = 0;
  long absenceFin = 0;
  const char* absenceType = "01";

  std::string cleAbsence() const;  // ABSENCESAIDANT key of the long absence
};
BaseAidant baseAidant(const Parametres& parametres, int numero);

struct BaseAide {
  int numero = 0;
  std::string code;
  int entite = 0;
  bool employeur = false;       // has the elements of a private employer
  long debut = 0;               // first day of help, long before any contract
  long depart = 0;              // last day of help, an employer's death; 0 = still helped
  const char* prevoyance = "";  // provident contract that the employer has signed
  std::string derniereFacture;  // period
  std::bitset<std::size(Activites)> activites;

  std::vector<std::string> codesActivites() const;  // ACTIVITES keys
};
BaseAide baseAide(const Parametres& parametres, int numero);

// A carer works for people whose numbers follow the carer's own, this many at most.
inline constexpr int VoisinageAides = 30;

// The carer's number count and what it says of the contracts, for the carer's record.
struct NumerosAidant {
  int dernier = 0;
  std::vector<int> libres;
  long premiereEmbauche02 = 0;
  bool tousFinis = false;  // no contract is open or ends later than yesterday
  long derniereFin = 0;
  long deces = 0;  // the day of the carer's death, 0 = alive
};

void ecrireAide(Sortie& sortie, const Parametres& parametres, const BaseAide& base);
void ecrireAidant(Sortie& sortie, const Parametres& parametres, const BaseAidant& base,
                  const NumerosAidant& numeros);

}  // namespace demo
