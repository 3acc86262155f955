#include "editor/paie_profils.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/requete.h"
#include "data/texte.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using data::citer;
using screen::Icone;

// Mark of the profiles of private employers, and of the others.
constexpr std::string_view Mandataire = "1";
constexpr std::string_view NonMandataire = "0";

constexpr const char* Inconnu = "Ce profil n'existe pas.";
constexpr const char* PremierDouble =
    "Les 2 profils doivent être differents, veuillez ressaisir le premier.";
constexpr const char* SecondDouble =
    "Les 2 profils doivent être differents, veuillez ressaisir le deuxième.";
constexpr const char* PasMandataire =
    "Ce profil n'est pas un profil mandataire, veuillez en choisir un autre.";
constexpr const char* AutreConvention =
    "Ce profil ne peut être saisi car il n'est pas en relation avec la convention collective "
    "sélectionnée.";
constexpr const char* ExigeMandataire = "Vous devez entrer un profil mandataire.";
constexpr const char* RubriqueInterdite =
    "Pour un salarié Production - Mensualisé, la saisie d'un profil comportant une rubrique de "
    "type aide à domicile est impossible, veuillez saisir un nouveau profil.";

}  // namespace

PaieProfils::PaieProfils(Frm_ElementsContrat& editeur, screen::Frame& page,
                         session::Sourdine& sourdine)
    : editeur_(editeur), page_(page), sourdine_(sourdine) {}

session::Session& PaieProfils::Session() const {
  return editeur_.Session();
}

bool PaieProfils::Particuliers() const {
  return editeur_.origine.Particuliers();
}

session::RegleCode PaieProfils::Regle(bool premier) {
  session::RegleCode regle;
  regle.longueur = LongueurProfil;
  regle.inconnu = Inconnu;
  regle.source = [this](const std::string& code) { return Libelle(code); };
  regle.refus = [this, premier](const std::string& code) { return Refus(code, premier); };
  if (premier) {
    regle.incomplet = [this] {
      if (!Txt_ProfilContrat.Text().empty()) return;
      second_.Vider();
      ActiverSecond();
    };
    regle.choisi = [this] { ActiverSecond(); };
  }
  return regle;
}

std::optional<std::string> PaieProfils::Libelle(const std::string& code) const {
  data::CItem profil;
  if (!Session().F_PROFIL.Lire(code, profil)) return std::nullopt;
  return profil(data::Profil::Libelle);
}

// Why a known profile cannot be taken; nullptr when it can. One that stands on file can always.
const char* PaieProfils::Refus(const std::string& code, bool premier) const {
  const std::string& autre = premier ? Txt_ProfilContrat2.Text() : Txt_ProfilContrat.Text();
  if (code == autre) return premier ? PremierDouble : SecondDouble;
  const data::CItem& initial = editeur_.Dossier().Initial;
  if (code == initial.Vue(C::Profil) || code == initial.Vue(C::Profil2)) return nullptr;
  data::CItem profil;
  Session().F_PROFIL.Lire(code, profil);
  const bool mandataire = profil.Vue(data::Profil::Mandataire) == Mandataire;
  if (mandataire == Particuliers()) return nullptr;
  return Particuliers() ? PasMandataire : AutreConvention;
}

// The second profile is chosen beside a first one.
void PaieProfils::ActiverSecond() {
  screen::Activer({&Txt_ProfilContrat2, &Cbo_LibProfilContrat2}, !Txt_ProfilContrat.Text().empty());
}

// Lists.

std::vector<session::Zone> PaieProfils::Zones() {
  return {session::texte(Txt_ProfilContrat, C::Profil),
          session::texte(Txt_ProfilContrat2, C::Profil2)};
}

void PaieProfils::ProfilContrat() {
  using namespace data;
  const session::Sourdine::Silence silence(sourdine_);
  const ListeCodes profils = ListeCodes::DeSelection(
      Requete(fichier::PROFIL)
          .Avec(Profil::Mandataire, Particuliers() ? "=" : "<>", citer(Mandataire))
          .Par(Profil::Libelle)
          .Lire(*Session().Db, {Cle, Profil::Libelle}));
  const std::string libelles[] = {Cbo_LibProfilContrat.Text(), Cbo_LibProfilContrat2.Text()};
  for (session::PaireCode* const paire : {&premier_, &second_}) paire->Remplir(profils);
  Garder(premier_, Txt_ProfilContrat.Text(), libelles[0]);
  Garder(second_, Txt_ProfilContrat2.Text(), libelles[1]);
  ActiverSecond();
}

// The box shows the code, and its list offers it, whether or not it did before.
void PaieProfils::Garder(session::PaireCode& paire, const std::string& code,
                         const std::string& libelle) {
  if (!code.empty() && !libelle.empty() && paire.Lignes().ParCode(code) == nullptr) {
    auto lignes = paire.Lignes().Lignes();
    lignes.push_back({code, libelle});
    paire.Remplir(data::ListeCodes(std::move(lignes)));
  }
  paire.Afficher(code, libelle);
}

// A code that its file has lost stays in its box, without a label.
void PaieProfils::Afficher() {
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  for (auto& [paire, attribut] : {std::pair{&premier_, C::Profil}, {&second_, C::Profil2}}) {
    const std::string code = contrat(attribut);
    std::string libelle = paire->Lignes().Libelle(code);
    if (libelle.empty() && !code.empty()) libelle = Libelle(code).value_or("");
    Garder(*paire, code, libelle);
  }
  ActiverSecond();
}

void PaieProfils::Proposer(const std::string& employeur) {
  if (!Txt_ProfilContrat.Text().empty() || employeur.empty()) return;
  data::CItem elements;
  Session().Db->OpenFile(data::fichier::ELTSPARTEMP).Lire(employeur, elements);
  const std::string code = elements(data::EltsPartEmp::Profil);
  const auto libelle = code.empty() ? std::nullopt : Libelle(code);
  if (!libelle) return;
  Garder(premier_, code, *libelle);
  ActiverSecond();
}

void PaieProfils::ChangerConvention() {
  ProfilContrat();
  const session::Sourdine::Silence silence(sourdine_);
  const std::string premier = Txt_ProfilContrat.Text();
  const std::string second = Txt_ProfilContrat2.Text();
  if (!second.empty() && Refus(second, false) != nullptr) second_.Vider();
  if (!premier.empty() && Refus(premier, true) != nullptr) {
    premier_.Vider();
    second_.Vider();
  }
  ActiverSecond();
}

// Checks.

bool PaieProfils::Manque() const {
  return data::sansBlancs(Txt_ProfilContrat.Text()).empty();
}

const char* PaieProfils::RefusMensuel(const std::string& code) const {
  using namespace data;
  CItem profil;
  if (code.empty() || !Session().F_PROFIL.Lire(code, profil)) return nullptr;
  if (Particuliers() && profil.Vue(Profil::Mandataire) == NonMandataire) return ExigeMandataire;
  const auto interdites =
      ListeCodes::DeSelection(Requete(fichier::RUBCHARGE)
                                  .Avec(RubCharge::AideDomicile, "=", citer("1"))
                                  .Avec(RubCharge::Inactive, "=", citer(""))
                                  .Lire(*Session().Db, {Cle}));
  for (int v = 1; v <= profil.DCount(Profil::Rubriques); ++v) {
    if (interdites.ParCode(profil.Vue(Profil::Rubriques, v)) != nullptr) return RubriqueInterdite;
  }
  return nullptr;
}

bool PaieProfils::Verif_Profil() {
  const auto& origine = editeur_.origine;
  if (!origine.Genre().Production() || !origine.Genre().Mensuel()) return true;
  const bool montres = editeur_.paie.Charge();
  const data::CItem& contrat = editeur_.Dossier().ItemContrat;
  const std::string codes[] = {montres ? Txt_ProfilContrat.Text() : contrat(C::Profil),
                               montres ? Txt_ProfilContrat2.Text() : contrat(C::Profil2)};
  for (const int i : {0, 1}) {
    const char* const refus = RefusMensuel(codes[i]);
    if (refus == nullptr) continue;
    editeur_.Ong_Contrat.SetTab(ElementsPaie);
    editeur_.MessageBox(refus, screen::Boutons::Ok, Icone::Exclamation);
    session::PaireCode& paire = i == 0 ? premier_ : second_;
    screen::TextField& champ = i == 0 ? Txt_ProfilContrat : Txt_ProfilContrat2;
    if (refus == ExigeMandataire) {
      paire.Refuser();
    } else {
      champ.SetFocus();
    }
    return false;
  }
  return true;
}

}  // namespace editor
