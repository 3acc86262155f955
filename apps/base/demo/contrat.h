#pragma once
// One contract being written: its plan, its record, and what the records beside it must agree with.
// Each `set...` fills one part of the record, in the order of the screens.

#include <string>
#include <vector>

#include "demo/alea.h"
#include "demo/carriere.h"

namespace demo {

struct Contrat {
  Contrat(const Parametres& p, const BaseAidant& b, const PlanContrat& pl);

  const Parametres& parametres;
  const BaseAidant& base;
  const PlanContrat& plan;
  Alea alea;
  std::string cle;
  data::CItem item;

  bool mensuel = false;
  bool administratif = false;
  bool module = false;     // hours smoothed over the year
  bool nonVenu = false;    // ended on its first day: the carer never came
  std::string bulletin;    // period of the last payslip of a closed contract
  std::string traitee;     // last period processed, "" when none
  std::string calculee;    // last payslip computed, "" when none
  std::string prevoyance;  // provident contract or ""
  std::vector<std::string> activites;
  int avenants = 0;     // beside the contract as signed
  long heuresMois = 0;  // x100, by contract, as of the last amendment

  const char* codeEntite() const { return Entites[plan.entite].code; }
  const char* codeConvention() const { return Conventions[plan.convention].code; }
  // The employer as attribute 3 has it.
  std::string employeur() const;
};

void setOrigine(Contrat& contrat);
void setCaracteristiques(Contrat& contrat);
void setElementsPaie(Contrat& contrat);
void setConges(Contrat& contrat);
void setFin(Contrat& contrat);
void setSuivi(Contrat& contrat);

// The record, its entries in the index files, its payslip details and its follow-up.
void ecrireContrat(Sortie& sortie, Contrat& contrat);
void ecrireBulletins(Sortie& sortie, Contrat& contrat);
void ecrireTempsEffectif(Sortie& sortie, Contrat& contrat);

}  // namespace demo
