#include "editor/paie_cotisations.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using data::citer;

constexpr const char* ChargeInconnue =
    "La rubrique de charge n'existe pas ou ne répond pas aux critères, veuillez la ressaisir.";
constexpr const char* PrevoyanceInconnue = "Ce régime de prévoyance n'existe pas.";
constexpr std::string_view EnMontant = "Montant";
constexpr std::string_view MarqueInactive = "1";

// A mutual insurance is charged as a fixed amount, to one side or the other.
bool estChargeDeMutuelle(const data::CItem& rubrique) {
  using namespace data::RubCharge;
  return rubrique.Vue(Famille) == FamilleMutuelle && rubrique.Vue(Inactive) != MarqueInactive &&
         (rubrique.Vue(BasePatronale, 1) == EnMontant ||
          rubrique.Vue(BaseSalariale, 1) == EnMontant);
}

}  // namespace

PaieCotisations::PaieCotisations(Frm_ElementsContrat& editeur, screen::Frame& page,
                                 session::Sourdine& sourdine)
    : editeur_(editeur), page_(page), sourdine_(sourdine) {
  Cbo_ChargMutContrat.DropDown = [this] { Cbo_ChargMutContrat_DropDown(); };
}

session::Session& PaieCotisations::Session() const {
  return editeur_.Session();
}

std::vector<session::Zone> PaieCotisations::Zones() {
  return {session::texte(Txt_PrevContrat, C::ContratPrevoyance),
          session::nombre(Txt_MutSalContrat, C::MutuelleSalariale, Montant, 2),
          session::nombre(Txt_MutPatContrat, C::MutuellePatronale, Montant, 2),
          session::texte(Txt_ChargMutContrat, C::ChargeMutuelle)};
}

void PaieCotisations::Afficher() {
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  data::CItem rubrique;
  const std::string charge = contrat(C::ChargeMutuelle);
  if (!charge.empty()) Session().F_RUBCHARGE.Lire(charge, rubrique);
  charge_.Remplir({});
  charge_.Afficher(charge, rubrique.Vue(data::RubCharge::Libelle));
  AfficherPrevoyance();
}

void PaieCotisations::Vider() {
  charge_.Remplir({});
  screen::Montrer({&Txt_PrevContrat, &Cbo_LibPrevContrat}, true);
}

// Mutual insurance.

session::RegleCode PaieCotisations::RegleCharge() {
  session::RegleCode regle;
  regle.longueur = LongueurCharge;
  regle.inconnu = ChargeInconnue;
  regle.icone = screen::Icone::Exclamation;
  regle.source = [this](const std::string& code) { return LibelleCharge(code); };
  return regle;
}

std::optional<std::string> PaieCotisations::LibelleCharge(const std::string& code) const {
  data::CItem rubrique;
  if (!Session().F_RUBCHARGE.Lire(code, rubrique) || !estChargeDeMutuelle(rubrique)) {
    return std::nullopt;
  }
  return rubrique(data::RubCharge::Libelle);
}

// The headings of the family; those whose first base is no amount are left out one by one, since a
// select finds the amount among the others too.
void PaieCotisations::Cbo_ChargMutContrat_DropDown() {
  using namespace data;
  const CItem trouvees = Requete(fichier::RUBCHARGE)
                             .Avec(RubCharge::Famille, "=", citer(RubCharge::FamilleMutuelle))
                             .Avec(RubCharge::Inactive, "=", citer(""))
                             .Par(RubCharge::Libelle)
                             .Lire(*Session().Db, {Cle, RubCharge::Libelle});
  std::vector<ListeCodes::Ligne> lignes;
  for (int i = 1; i <= trouvees.DCount(); ++i) {
    if (LibelleCharge(trouvees(i, 1))) lignes.push_back({trouvees(i, 1), trouvees(i, 2)});
  }
  const session::Sourdine::Silence silence(sourdine_);
  const std::string libelle = Cbo_ChargMutContrat.Text();
  charge_.Remplir(ListeCodes(std::move(lignes)));
  charge_.Montrer(libelle);
}

void PaieCotisations::CompleterParts() {
  const session::Dossier& dossier = editeur_.Dossier();
  const auto completer = [&](screen::TextField& part, int attribut) {
    const bool surFichier = !dossier.Initial.Vue(attribut).empty();
    if (part.Text().empty() && (dossier.ModeCreation || surFichier)) part.SetText("0");
  };
  completer(Txt_MutSalContrat, C::MutuelleSalariale);
  completer(Txt_MutPatContrat, C::MutuellePatronale);
}

bool PaieCotisations::ChargeManque() const {
  const auto patronale = data::enUnites(Txt_MutPatContrat.Text(), 2);
  return patronale.value_or(0) != 0 && Txt_ChargMutContrat.Text().empty();
}

// Provident scheme.

session::RegleCode PaieCotisations::ReglePrevoyance() {
  session::RegleCode regle;
  regle.longueur = LongueurPrevoyance;
  regle.inconnu = PrevoyanceInconnue;
  regle.source = [this](const std::string& code) { return LibellePrevoyance(code); };
  return regle;
}

std::optional<std::string> PaieCotisations::LibellePrevoyance(const std::string& code) const {
  if (const auto* const ligne = prevoyance_.Lignes().ParCode(code)) return ligne->libelle;
  // What stands on file can be typed again, whatever the list offers now.
  const bool connue = editeur_.origine.Particuliers() ||
                      code == editeur_.Dossier().Initial.Vue(C::ContratPrevoyance);
  data::CItem contrat;
  if (!connue || !Session().F_CONTRATSPREV.Lire(code, contrat)) return std::nullopt;
  return contrat(editeur_.origine.Particuliers() ? data::ContratsPrev::LibelleParticulier
                                                 : data::ContratsPrev::Libelle);
}

void PaieCotisations::SelonConvention(bool particuliers) {
  screen::Activer({&Cdr_RegimePrev, &Etq_PrevContrat, &Txt_PrevContrat, &Cbo_LibPrevContrat},
                  !particuliers);
}

void PaieCotisations::OublierPrevoyance() {
  const session::Sourdine::Silence silence(sourdine_);
  PrevContratPrecedent_.clear();
  Txt_PrevContrat.SetText("");
  prevoyance_.Remplir({});
  prevoyance_.Montrer("");
}

void PaieCotisations::RemplirPrevoyance(const std::string& convention) {
  using namespace data;
  prevoyance_.Remplir(
      ListeCodes::DeSelection(Requete(fichier::CONTRATSPREV)
                                  .Avec("ConvColPrev", "=", citer(convention))
                                  .Avec(Cle, "<>", citer(ContratsPrev::CleSans))
                                  .Par(ContratsPrev::Libelle)
                                  .Lire(*Session().Db, {Cle, ContratsPrev::Libelle})));
}

void PaieCotisations::Proposer(const std::string& convention) {
  const session::Sourdine::Silence silence(sourdine_);
  OublierPrevoyance();
  RemplirPrevoyance(convention);
  if (prevoyance_.Lignes().Nombre() != 1) return;
  const auto seule = prevoyance_.Lignes().A(0);
  prevoyance_.Afficher(seule.code, seule.libelle);
}

// The provident contract on file. A private employer's is kept aside, and not shown before it
// begins.
void PaieCotisations::AfficherPrevoyance() {
  OublierPrevoyance();
  const auto& origine = editeur_.origine;
  const std::string code = editeur_.Dossier().ItemContrat(C::ContratPrevoyance);
  if (!origine.Particuliers()) {
    RemplirPrevoyance(origine.Convention());
    prevoyance_.Afficher(code, LibellePrevoyance(code).value_or(""));
    return;
  }
  PrevContratPrecedent_ = code;
  data::CItem elements;
  Session().Db->OpenFile(data::fichier::ELTSPARTEMP).Lire(origine.Employeur(), elements);
  const auto debut = elements.Vue(data::EltsPartEmp::DateDebutPrev);
  const bool aVenir = !debut.empty() && data::entier(debut) > Session().Poste.Aujourdhui();
  if (!aVenir) prevoyance_.Afficher(code, LibellePrevoyance(code).value_or(""));
}

void PaieCotisations::PrevoyanceEmployeur(const std::string& employeur) {
  const session::Sourdine::Silence silence(sourdine_);
  OublierPrevoyance();
  const session::Dossier& dossier = editeur_.Dossier();
  data::CItem elements;
  Session().Db->OpenFile(data::fichier::ELTSPARTEMP).Lire(employeur, elements);
  const std::string code = elements(data::EltsPartEmp::ContratPrev);
  const auto fin = elements.Vue(data::EltsPartEmp::DateFinPrev);
  const long long limite = dossier.ModeCreation
                               ? Session().Poste.Aujourdhui()
                               : data::entier(dossier.ItemContrat.Vue(C::DateDebut));
  if (!fin.empty() && data::entier(fin) < limite) return;
  data::CItem prevoyance;
  if (!Session().F_CONTRATSPREV.Lire(code, prevoyance)) return;
  const std::string libelle = prevoyance(data::ContratsPrev::LibelleParticulier);
  prevoyance_.Remplir(data::ListeCodes(std::vector<data::ListeCodes::Ligne>{{code, libelle}}));
  prevoyance_.Afficher(code, libelle);
  PrevContratPrecedent_ = code;
}

bool PaieCotisations::PrevoyanceManque() const {
  data::CItem convention;
  Session().F_CONVENTIONCOL.Lire(editeur_.origine.Convention(), convention);
  return convention.Vue(data::ConventionCol::PrevoyanceObligatoire) == "1" &&
         Cbo_LibPrevContrat.Text().empty();
}

std::string PaieCotisations::ContratPrevoyance() const {
  return editeur_.origine.Particuliers() ? PrevContratPrecedent_ : Txt_PrevContrat.Text();
}

}  // namespace editor
