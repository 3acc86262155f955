#include "editor/fin_motif.h"

#include "data/layouts/voisins.h"
#include "editor/editeur.h"
#include "rules/preavis.h"
#include "session/saisie.h"

namespace editor {

namespace {

namespace C = data::Contrat;

constexpr const char* HeuresRetirees =
    "Contrat modulé : retrait des heures négatives coché par défaut.";
constexpr const char* HeuresGardees =
    "Contrat modulé : retrait des heures négatives décoché par défaut.";
// The modulation of an amendment that withdraws negative hours.
constexpr std::string_view ModulationRetrait = "C";

constexpr const char* Coche = "1";
constexpr const char* Decoche = "0";

}  // namespace

MotifFin::MotifFin(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine)
    : editeur_(editeur), page_(page), sourdine_(sourdine) {
  Cbo_MotifFinContrat.DropDown = [this] { Cbo_MotifFinContrat_DropDown(); };
  Cbo_MotifFinContrat.Click = sourdine_.SiAudible([this] { Cbo_MotifFinContrat_Click(); });
  Cbo_MotifFinContrat.Change = sourdine_.SiAudible([this] { Cbo_MotifFinContrat_Change(); });
  Cbo_MotifFinContrat.LostFocus = [this] { Cbo_MotifFinContrat_LostFocus(); };
  session::LierDate(editeur_.Session(), Txt_DateSignConvCol);
}

void MotifFin::Afficher(const data::CItem& contrat) {
  Cbo_MotifFinContrat_DropDown();
  const std::string code = contrat(C::MotifFin);
  for (int i = 0; i < motifs_.Nombre(); ++i) {
    if (!code.empty() && motifs_.A(i).code == code) Cbo_MotifFinContrat.SetListIndex(i);
  }
  SelonMotif(false);
  if (Code() == rules::RuptureConventionnelle) {
    Txt_DateSignConvCol.SetText(
        editeur_.Session().Lib.DateFromInternal(contrat.Vue(C::DateSignatureRupture)));
  }
  const auto calcul = contrat.Vue(C::CalculLicenciement);
  const bool compense = rules::motifAvecIndemnite(Code()) && (calcul.empty() || calcul == Coche);
  Cac_CalcIndLic.SetValue(compense ? 1 : 0);
}

void MotifFin::Ecrire(data::CItem& contrat) const {
  const std::string code = Code();
  const auto signature = Signature();
  const bool conventionnelle = code == rules::RuptureConventionnelle;
  contrat.Set(C::MotifFin, code);
  contrat.Set(C::DateSignatureRupture,
              conventionnelle && signature ? std::to_string(*signature) : "");
  const char* const calcul = Cac_CalcIndLic.Value() != 0 ? Coche : Decoche;
  contrat.Set(C::CalculLicenciement, rules::motifAvecIndemnite(code) ? calcul : "");
}

std::optional<long> MotifFin::Signature() const {
  return editeur_.Session().Lib.LireDate(Txt_DateSignConvCol.Text());
}

void MotifFin::Vider() {
  motifs_ = data::ListeCodes();
  Cbo_MotifFinContrat.Clear();
  Cac_CalcIndLic.SetValue(0);
  Etq_InfoComplMotifFin.SetLibelle("");
  Etq_InfoComplMotifFin.SetVisible(false);
  SelonMotif(false);
}

void MotifFin::Cbo_MotifFinContrat_DropDown() {
  if (!motifs_.Vide()) return;
  data::CItem table;
  editeur_.Session().F_TABLES.Lire(data::Tables::FinContrat, table);
  const auto tous = data::ListeCodes::DeTable(table, data::Tables::Codes, data::Tables::Libelles,
                                              data::Tables::FinObsoletes);
  const std::string actuel = editeur_.Dossier().Initial(C::MotifFin);
  std::vector<data::ListeCodes::Ligne> lignes;
  lignes.reserve(tous.Lignes().size());
  for (const auto& motif : tous.Lignes()) {
    if (motif.suite.front() != "O" || (!actuel.empty() && motif.code == actuel))
      lignes.push_back(motif);
  }
  motifs_ = data::ListeCodes(std::move(lignes));
  const session::Sourdine::Silence silence(sourdine_);
  const std::string texte = Cbo_MotifFinContrat.Text();
  Cbo_MotifFinContrat.Clear();
  for (const auto& motif : motifs_.Lignes()) Cbo_MotifFinContrat.AddItem(motif.libelle);
  Cbo_MotifFinContrat.SetText(texte);
}

void MotifFin::Quitter() {
  Txt_CmpltMotif.SetText("");
  if (Cbo_MotifFinContrat.ListIndex() >= 0) {
    Cbo_MotifFinContrat.SetListIndex(-1);
  } else {
    Cbo_MotifFinContrat.SetText("");
  }
  Activer(false);
}

void MotifFin::Activer(bool actif) {
  screen::Activer({&Etq_MotifFinContrat, &Cbo_MotifFinContrat, &Etq_CmpltMotif, &Txt_CmpltMotif},
                  actif);
}

void MotifFin::Cbo_MotifFinContrat_Click() {
  if (!editeur_.caracteristiques.Charge()) editeur_.caracteristiques.Afficher();
  if (Cbo_MotifFinContrat.ListIndex() >= 0) SelonModulation();
  Cbo_MotifFinContrat_Change();
}

// Hours of a modulated contract: a reason that is the employee's own withdraws those not worked.
// Back on the reason on file, the box is what is on file.
void MotifFin::SelonModulation() {
  const auto& origine = editeur_.origine;
  const bool retirees = origine.Genre().Mensuel() && origine.Genre().Production() &&
                        editeur_.caracteristiques.AccordModulation().Lissee() &&
                        rules::motifRetireHeures(Code());
  Etq_InfoComplMotifFin.SetVisible(origine.Genre().Mensuel());
  Etq_InfoComplMotifFin.SetLibelle(!origine.Genre().Mensuel() ? ""
                                   : retirees                 ? HeuresRetirees
                                                              : HeuresGardees);
  const data::CItem& initial = editeur_.Dossier().Initial;
  const bool dejaLa = !Code().empty() && initial.Vue(C::MotifFin) == Code();
  editeur_.caracteristiques.AccordModulation().RetirerHeuresNegatives(
      dejaLa ? initial.Vue(C::Modulation, initial.DCount(C::Avenant)) == ModulationRetrait
             : !origine.Genre().Mensuel() || retirees);
}

void MotifFin::Cbo_MotifFinContrat_Change() {
  SelonMotif(true);
  if (SurMotif) SurMotif();
}

void MotifFin::SelonMotif(bool proposer) {
  const std::string code = Code();
  const bool conventionnelle = code == rules::RuptureConventionnelle;
  const bool compense = rules::motifAvecIndemnite(code);
  screen::Montrer({&Etq_DateSignConvCol, &Txt_DateSignConvCol}, conventionnelle);
  Cac_CalcIndLic.SetVisible(compense);
  if (!conventionnelle) Txt_DateSignConvCol.SetText("");
  if (!compense) {
    Cac_CalcIndLic.SetValue(0);
  } else if (proposer) {
    Cac_CalcIndLic.SetValue(1);
  }
}

void MotifFin::Cbo_MotifFinContrat_LostFocus() {
  if (Vide() || !Code().empty()) return;
  editeur_.MessageBox("Le motif de fin de contrat saisi n'existe pas, veuillez le ressaisir.",
                      screen::Boutons::Ok, screen::Icone::Exclamation);
  Cbo_MotifFinContrat.SetText("");
  Cbo_MotifFinContrat.SetFocus();
}

}  // namespace editor
