#pragma once
// The contracts of one carer, planned before any record is made: who employs, from when to when,
// what follows what. Two live contracts of one scope never share a day: the scope is the entity,
// and for private employers the entity and the employer.

#include <string>
#include <vector>

#include "demo/listes.h"
#include "demo/personnes.h"

namespace demo {

struct PlanContrat {
  int numero = 0;
  char type = 'I';  // 'D' or 'I'
  bool particulier = false;
  bool stage = false;
  bool annule = false;
  int entite = 0;
  int convention = 0;
  int employeur = 0;  // number of the person helped, private employers only
  const Metier* metier = nullptr;
  long debut = 0;
  long essai = 0;  // trial period in days
  bool essaiRenouvelable = false;
  long anciennete = 0;   // seniority counts from here; before `debut` when leave is taken over
  long fin = 0;          // 0: the contract is not closed
  long finPresumee = 0;  // fixed term; the day at which it was to end
  const MotifFin* motifFin = nullptr;
  // Leave carried over: number of the later and of the earlier contract, 0 for none.
  int suivant = 0;
  int precedent = 0;
  // Replacement: the colleague and the absence.
  std::string codeRemplace;
  std::string cleAbsence;

  std::string cle(const BaseAidant& base) const;
  // The last day on which the trial may be broken off, renewed if it can be.
  long finEssai() const { return debut + essai * (essaiRenouvelable ? 2 : 1) - 1; }
};

struct Carriere {
  std::vector<PlanContrat> contrats;  // by number, ascending
  NumerosAidant numeros;
};

Carriere construireCarriere(const Parametres& parametres, const BaseAidant& base);

}  // namespace demo
