#pragma once
// Mutual insurance and provident scheme: what is paid for the carer beside the salary. The charge
// heading of the mutual insurance is one of its family that is a fixed amount. The provident
// contract is one of the agreement; a private employer has his own, which the contract takes
// whatever is shown.

#include <optional>
#include <string>

#include "session/paire_code.h"
#include "session/session.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class PaieCotisations {
 public:
  PaieCotisations(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  std::vector<session::Zone> Zones();
  void Afficher();
  // The provident contracts of the agreement are offered; the only one is taken.
  void Proposer(const std::string& convention);
  // The provident contract of a private employer, unless it has run out; none for "".
  void PrevoyanceEmployeur(const std::string& employeur);
  void OublierPrevoyance();
  // The employer had no provident scheme yet when the contract starts.
  void QuitterPrevoyance() { Txt_PrevContrat.SetText(""); }
  // Private employers each have a provident contract of their own: there is nothing to choose.
  void SelonConvention(bool particuliers);

  // The provident contract that the contract takes.
  std::string ContratPrevoyance() const;
  const std::string& PrevoyanceMontree() const { return Txt_PrevContrat.Text(); }
  // A mutual insurance part that is left empty is none; one that is empty on file stays so.
  void CompleterParts();
  bool ChargeManque() const;
  // No provident contract is shown where the agreement asks for one.
  bool PrevoyanceManque() const;

  void Vider();

 private:
  // In euros.
  static constexpr session::FormeNombre Montant{.avant = 5, .apres = 2};
  static constexpr int LongueurCharge = 3;
  static constexpr int LongueurPrevoyance = 2;
  static constexpr int LongueurLibelle = 60;

  session::RegleCode RegleCharge();
  session::RegleCode ReglePrevoyance();
  std::optional<std::string> LibelleCharge(const std::string& code) const;
  std::optional<std::string> LibellePrevoyance(const std::string& code) const;
  void Cbo_ChargMutContrat_DropDown();
  void RemplirPrevoyance(const std::string& convention);
  void AfficherPrevoyance();
  session::Session& Session() const;

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;

  screen::Frame Cdr_Mutuelle{page_, "Cdr_Mutuelle", "Mutuelle "};
  screen::Label Etq_MutSalContrat{Cdr_Mutuelle, "Etq_MutSalContrat", "Part Salariale"};
  screen::TextField Txt_MutSalContrat{Cdr_Mutuelle, "Txt_MutSalContrat", 8};
  screen::Label Etq_MutPatContrat{Cdr_Mutuelle, "Etq_MutPatContrat", "Part Patronale"};
  screen::TextField Txt_MutPatContrat{Cdr_Mutuelle, "Txt_MutPatContrat", 8};
  screen::Label Etq_ChargMutContrat{Cdr_Mutuelle, "Etq_ChargMutContrat", "Rub. de charge"};
  screen::TextField Txt_ChargMutContrat{Cdr_Mutuelle, "Txt_ChargMutContrat", LongueurCharge};
  screen::ComboBox Cbo_ChargMutContrat{Cdr_Mutuelle, "Cbo_ChargMutContrat", true, LongueurLibelle};
  screen::Frame Cdr_RegimePrev{page_, "Cdr_RegimePrev", "Regime de prévoyance "};
  screen::Label Etq_PrevContrat{Cdr_RegimePrev, "Etq_PrevContrat", "Contrat prévoyance"};
  screen::TextField Txt_PrevContrat{Cdr_RegimePrev, "Txt_PrevContrat", LongueurPrevoyance};
  screen::ComboBox Cbo_LibPrevContrat{Cdr_RegimePrev, "Cbo_LibPrevContrat", true, LongueurLibelle};

  session::PaireCode charge_{Txt_ChargMutContrat, Cbo_ChargMutContrat, sourdine_, RegleCharge()};
  session::PaireCode prevoyance_{Txt_PrevContrat, Cbo_LibPrevContrat, sourdine_, ReglePrevoyance()};
  // The provident contract of the private employer, which the contract takes whatever is shown;
  // "" when there is none in force.
  std::string PrevContratPrecedent_;
};

}  // namespace editor
