#pragma once
// How the salary reaches the carer, and how leave is paid: payment mode, who pays, leave by the
// month or provisioned. A transfer needs the carer's bank details.

#include <string>

#include "screen/field.h"
#include "session/session.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class PaiePaiement {
 public:
  PaiePaiement(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  std::vector<session::Zone> Zones();
  // The boxes of a new contract, before an agreement is known.
  void Oublier();
  // The mode that a new contract begins with; what is chosen by hand stays.
  void ProposerMode();
  void SelonConvention(bool particuliers) { Cac_PaieSalContrat.SetVisible(particuliers); }
  // What a new contract begins with under this agreement.
  void ProposerSelonConvention(const std::string& convention);
  // Leave is provisioned for private employers alone, unless it is paid monthly.
  void MontrerProvision();

  bool ModeManque() const { return Cbo_ModPaieContrat.Text().empty(); }
  bool ModeChange() const;
  // The private employer is billed for leave that is provisioned.
  bool ProvisionFacturee() const;
  // A transfer for a carer without bank details is refused. `modePaiement`: the word "paiement" as
  // that place spells it.
  bool RibManquant(const char* modePaiement);

 private:
  static constexpr int LongueurMode = 30;

  void Cbo_ModPaieContrat_LostFocus();
  void Refuser(const std::string& texte);
  session::Session& Session() const;

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  // The mode that was proposed for a new contract.
  std::string modePropose_;

  screen::Label Etq_ModPaieContrat{page_, "Etq_ModPaieContrat", "Mode de Paiement"};
  screen::ComboBox Cbo_ModPaieContrat{page_, "Cbo_ModPaieContrat", true, LongueurMode};
  screen::CheckBox Cac_PaieSalContrat{page_, "Cac_PaieSalContrat",
                                      "Paiement du salaire par l'association"};
  screen::CheckBox Cac_CPMoisContrat{page_, "Cac_CPMoisContrat", "Congés payés au mois"};
  screen::CheckBox Cac_ProvCP{page_, "Cac_ProvCP", "Provision des congés"};
};

}  // namespace editor
