#pragma once
// A contract that is saved, beside the carer's planning: what the user is asked about it, and what
// is then done to the planning. The rules stand in rules/planning.h.

#include <string>
#include <vector>

#include "rules/planning.h"

namespace editor {

class Frm_ElementsContrat;

class PlanningContrat {
 public:
  explicit PlanningContrat(Frm_ElementsContrat& editeur) : editeur_(editeur) {}

  // A new contract: what of the planning it does not frame. False when the user stays.
  bool Coherence();
  // Verif_ImpactPlanning, for a contract on file whose start or last day worked has changed: the
  // planning follows a contract that was shortened, as the user decides. False when he stays. A
  // StoreError rises after he was told what was applied before it.
  bool Verif_ImpactPlanning();

 private:
  struct Reponse {
    bool acceptee = false;
    bool appliquer = false;
  };

  bool Concerne() const;
  rules::ContratPlanifie Contrat() const;
  Reponse Demander(const std::string& texte);
  bool Raccourcir(const rules::ContratPlanifie& contrat,
                  const std::vector<rules::Incidence>& incidences, std::string& anomalies);
  void Appliquer(const rules::ContratPlanifie& contrat,
                 const std::vector<rules::Incidence>& incidences);

  Frm_ElementsContrat& editeur_;
};

}  // namespace editor
