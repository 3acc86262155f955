#pragma once
// The reason for which a contract ends, and what hangs on it: the signature of a negotiated
// termination, the dismissal compensation, the negative hours of a modulated contract.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "data/liste_codes.h"
#include "screen/field.h"
#include "session/dossier.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class MotifFin {
 public:
  // The fields stand on `page`; `sourdine` is their tab's.
  MotifFin(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  // A reason was chosen, or typed in part: the notice depends on it.
  std::function<void()> SurMotif;

  // What does not hang on the reason.
  std::vector<session::Zone> Zones() {
    return {session::texte(Txt_CmpltMotif, data::Contrat::ComplementMotifFin)};
  }
  // The reason, and what hangs on it.
  void Afficher(const data::CItem& contrat);
  void Ecrire(data::CItem& contrat) const;
  void Vider();
  // The reasons in use, and the one on file even if it is not any more; read once an opening.
  void Cbo_MotifFinContrat_DropDown();
  // No reason, as the user would.
  void Quitter();
  void Activer(bool actif);

  // The code of the label shown, "" for none.
  std::string Code() const { return motifs_.Code(Cbo_MotifFinContrat.Text()); }
  bool Vide() const { return Cbo_MotifFinContrat.Text().empty(); }
  // A negotiated termination is to be signed.
  bool Signee() const { return Txt_DateSignConvCol.Visible(); }
  bool SignatureManque() const { return Txt_DateSignConvCol.Text().empty(); }
  std::optional<long> Signature() const;

 private:
  void Cbo_MotifFinContrat_Click();
  void Cbo_MotifFinContrat_Change();
  void Cbo_MotifFinContrat_LostFocus();
  // What the reason shows and hides; `proposer`: what it allows is proposed.
  void SelonMotif(bool proposer);
  void SelonModulation();

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;
  data::ListeCodes motifs_;

  screen::Label Etq_MotifFinContrat{page_, "Etq_MotifFinContrat", "Motif"};
  screen::ComboBox Cbo_MotifFinContrat{page_, "Cbo_MotifFinContrat", true};
  screen::Label Etq_InfoComplMotifFin{page_, "Etq_InfoComplMotifFin", ""};
  screen::Label Etq_CmpltMotif{page_, "Etq_CmpltMotif", "Complément motif"};
  screen::TextField Txt_CmpltMotif{page_, "Txt_CmpltMotif", 0};
  screen::Label Etq_DateSignConvCol{page_, "Etq_DateSignConvCol",
                                    "Date signature convention rupture conventionnelle"};
  screen::TextField Txt_DateSignConvCol{page_, "Txt_DateSignConvCol", 10};
  screen::CheckBox Cac_CalcIndLic{page_, "Cac_CalcIndLic", "Calcul indemnité licenciement"};
};

}  // namespace editor
