// The fields of the first tab and their handlers, those of the codes apart.

#include "editor/onglet_origine.h"

#include <algorithm>
#include <utility>

#include "data/cles.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/texte.h"
#include "dialogs/frm_motif_cdd.h"
#include "dialogs/frm_stage.h"
#include "editor/editeur.h"

namespace editor {

namespace {

namespace C = data::Contrat;
using screen::Icone;

constexpr const char* Contreparties[] = {"Amplitude journée limitée à 11 heures",
                                         "2 jours de repos", "Paiement des inter-vacations"};
// The agreement that gives something in return for an interrupted day.
constexpr std::string_view ConventionContrepartie = "01";

// Whole days by the keys; a text that stands there, or is pasted, is kept as it is.
void chiffresSeuls(char32_t& touche) {
  if (touche >= U' ' && (touche < U'0' || touche > U'9')) touche = 0;
}

}  // namespace

OngletOrigine::OngletOrigine(Frm_ElementsContrat& editeur)
    : Onglet(editeur, Origine, "Cdr_Ong1"),
      zones_({session::option(Opt_Determine, "D", Opt_Indetermine, "I", C::Type),
              session::option(Opt_Administratif, "A", Opt_Production, "P", C::Statut),
              session::option(Opt_Mensuel, "M", Opt_Horaire, "H", C::Salaire),
              session::jour(Txt_DatDebContrat, C::DateDebut),
              session::texte(Txt_PerEssaiContrat, C::PeriodeEssai),
              session::drapeau(Cac_RenouvEssaiContrat, C::EssaiRenouvelable),
              session::code(Cbo_NatureContrat, C::Nature, natures_),
              session::jour(Txt_DatFinContrat, C::DateFinPresumee),
              session::jour(Txt_DateSignConvEmplAide, C::DateConventionAidee),
              session::texte(Txt_NumRef, C::ReferenceConventionAidee),
              session::texte(Txt_DureeMinContrat, C::DureeMinimale),
              session::ligne(Cbo_Contrepartie, C::ContrepartieInterruption)}) {
  Txt_NumContrat.SetEnabled(false);
  for (const char* contrepartie : Contreparties) Cbo_Contrepartie.AddItem(contrepartie);
  // Before the handlers are tied: the other tabs, which these steer, do not stand yet.
  Vider_Ong();
  Lier();
}

void OngletOrigine::Lier() {
  zones_.Lier(Session());
  Opt_Determine.Click = sourdine_.SiAudible([this] { Opt_Determine_Click(); });
  Opt_Indetermine.Click = sourdine_.SiAudible([this] { SelonType(); });
  Opt_Horaire.Click = Opt_Mensuel.Click = sourdine_.SiAudible(
      [this] { editeur_.caracteristiques.SelonSalaire(Mensuel(), Production()); });
  Opt_Production.Click = Opt_Administratif.Click = sourdine_.SiAudible([this] { SelonStatut(); });
  Txt_DatDebContrat.LostFocus = [this] { Txt_DatDebContrat_LostFocus(); };
  Txt_PerEssaiContrat.KeyPress = chiffresSeuls;
  Txt_DateSignConvEmplAide.Change = sourdine_.SiAudible([this] { AdapterReference(); });
  Cbo_NatureContrat.DropDown = [this] { Cbo_NatureContrat_DropDown(); };
  Cbo_NatureContrat.LostFocus = [this] { Cbo_NatureContrat_LostFocus(); };
  Cbo_NatureContrat.Click = Cbo_NatureContrat.Change = [this] { MontrerStage(); };
  Cmd_Stage.Click = [this] { Cmd_Stage_Click(); };
  Cmd_MotifCDD.Click = [this] { Cmd_MotifCDD_Click(); };
}

// Display.

void OngletOrigine::Afficher_Ong1() {
  debutDeplace_ = false;
  finAvant_.clear();
  stageAvant_ = data::CItem();
  Cbo_NatureContrat.Clear();
  data::CItem natures;
  Session().F_TABLES.Lire(data::Tables::NatureContrat, natures);
  natures_ = data::ListeCodes::DeTable(natures, data::Tables::Codes, data::Tables::Libelles,
                                       data::Tables::NatureChoisissables);
  if (Creation()) {
    zones_.Oublier();
    Txt_NumContrat.SetText("");
    Cac_RenouvEssaiContrat.SetValue(0);
    codes_.AfficherNouveau();
    editeur_.AnnoncerConvention();
  } else {
    Txt_NumContrat.SetText(data::milieu(Contrat()(0), data::LongueurCodeAidant + 1));
    codes_.AfficherExistant();
    zones_.Montrer(Session().Lib, Contrat());
  }
  RafraichirEmployeur();
  SelonType();
  SelonStatut();
  editeur_.caracteristiques.SelonSalaire(Mensuel(), Production());
  MontrerStage();
  AdapterReference();
  if (!Creation()) zones_.Retenir(Contrat());
}

void OngletOrigine::Vider_Ong() {
  Opt_Indetermine.SetValue(true);
  Opt_Horaire.SetValue(true);
  Opt_Production.SetValue(true);
  Cmd_Stage.SetVisible(false);
}

void OngletOrigine::SelonConvention(const std::string& convention) {
  codes_.SelonConvention();
  const bool contrepartie = convention == ConventionContrepartie;
  screen::Montrer({&Etq_Contrepartie, &Cbo_Contrepartie}, contrepartie);
  if (!contrepartie) Cbo_Contrepartie.SetListIndex(-1);
  SelonStatut();
}

void OngletOrigine::RafraichirEmployeur() {
  const bool libre = !Creation() || Contrat().Vue(C::PeriodeTraitee).empty();
  screen::Activer({&Txt_DatDebContrat, &Txt_DatFinContrat}, libre);
}

std::optional<long> OngletOrigine::Debut() const {
  return Session().Lib.LireDate(Txt_DatDebContrat.Text());
}

// Options, nature and dates.

// What only a fixed term has.
void OngletOrigine::SelonType() {
  screen::Montrer(
      {&Etq_DatFinContrat, &Txt_DatFinContrat, &Etq_DureeMinContrat, &Txt_DureeMinContrat},
      Determine());
  editeur_.fin.SelonType(Determine());
}

// Back to a fixed term after a copy made it open-ended: the end that was emptied then comes back.
void OngletOrigine::Opt_Determine_Click() {
  SelonType();
  const std::string fin = std::exchange(finAvant_, {});
  if (Txt_DatFinContrat.Text().empty()) Txt_DatFinContrat.SetText(fin);
}

void OngletOrigine::SelonStatut() {
  editeur_.paie.SelonStatut(Administratif(), Particuliers());
}

// Natures that can be chosen, and the one that a contract on file has already.
void OngletOrigine::Cbo_NatureContrat_DropDown() {
  if (Cbo_NatureContrat.ListCount() > 0) return;
  const std::string actuelle = Creation() ? "" : Contrat()(C::Nature);
  for (const auto& nature : natures_.Lignes()) {
    const bool dejaLa = !nature.code.empty() && nature.code == actuelle;
    if (nature.suite.front() == "O" || dejaLa) Cbo_NatureContrat.AddItem(nature.libelle);
  }
}

void OngletOrigine::Cbo_NatureContrat_LostFocus() {
  if (Cbo_NatureContrat.Text().empty()) return;
  Cbo_NatureContrat_DropDown();
  const auto& natures = Cbo_NatureContrat.Rows();
  if (std::find(natures.begin(), natures.end(), Cbo_NatureContrat.Text()) != natures.end()) return;
  Message("La nature saisie n'existe pas, veuillez la ressaisir.", Icone::Exclamation);
  Cbo_NatureContrat.SetText("");
  editeur_.Ong_Contrat.SetTab(numero_);
  Cbo_NatureContrat.SetFocus();
}

void OngletOrigine::MontrerStage() {
  Cmd_Stage.SetVisible(StageRequis());
}

// A subsidised employment has a reference; without its date there is nothing to refer to.
void OngletOrigine::AdapterReference() {
  const bool aide = !Txt_DateSignConvEmplAide.Text().empty();
  if (!aide) Txt_NumRef.SetText("");
  screen::Activer({&Etq_NumRef, &Txt_NumRef}, aide);
}

// A first amendment may take effect on the very day on which the contract on file starts: only a
// start that was moved is held against it.
void OngletOrigine::Txt_DatDebContrat_LostFocus() {
  if (!session::QuitterDate(Session(), Txt_DatDebContrat)) return;
  if (Creation()) {
    editeur_.caracteristiques.DebuterLe(Txt_DatDebContrat.Text());
    return;
  }
  const auto avenant = Contrat().Vue(C::DateEffet, 2);
  if (!DebutDeplace() || avenant.empty() || *Debut() < data::entier(avenant)) return;
  Message("La date de début de contrat doit être inférieure à la date d'effet du 1er avenant.",
          Icone::Exclamation);
  Txt_DatDebContrat.SetText("");
  Txt_DatDebContrat.SetFocus();
}

void OngletOrigine::DemanderDebut() {
  Refuser({"Vous devez renseigner la date de début du contrat.", Icone::Exclamation,
           Txt_DatDebContrat.Nom()});
}

void OngletOrigine::Cmd_MotifCDD_Click() {
  dialogs::Frm_MotifCDD(editeur_.Services(), Dossier(), Txt_DatDebContrat.Text(),
                        {Convention(), Entite(), Employeur()})
      .ShowModal();
}

void OngletOrigine::Cmd_Stage_Click() {
  RendreStage();
  dialogs::Frm_Stage(editeur_.Services(), Dossier()).ShowModal();
}

// What the checks ask.

std::optional<long> OngletOrigine::FinPresumee() const {
  return Session().Lib.LireDate(Txt_DatFinContrat.Text());
}

// The start is another one than on file, where a copy of the screen may stand already.
bool OngletOrigine::DebutDeplace() const {
  const auto debut = Debut();
  return !Creation() && debut && std::to_string(*debut) != Dossier().Initial.Vue(C::DateDebut);
}

bool OngletOrigine::BulletinCalcule(const std::string& periode) const {
  data::CItem calcul;
  return Session().F_DETAILCALCUL.Lire(Dossier().CleContratCourant + periode, calcul);
}

// Writing.

bool OngletOrigine::Ecrire_Ong(bool) {
  Ecrire_Ong1();
  return true;
}

void OngletOrigine::Ecrire_Ong1() {
  if (Creation()) codes_.Ecrire(Contrat());
  zones_.Ecrire(Session().Lib, Contrat());
  EcrireDebut();
  EcrireTerme();
  RendreStage();
  if (Contrat().Vue(C::Nature) != C::NatureStage) ViderStage();
}

// A moved start takes along the effect date of the contract as signed, and its grid start where
// that was the same day. What an earlier copy of the screen moved is put back first.
void OngletOrigine::EcrireDebut() {
  data::CItem& contrat = Contrat();
  const std::string debut = contrat(C::DateDebut);
  const std::string debutInitial = Dossier().Initial(C::DateDebut);
  if (debutDeplace_) {
    contrat.Set(C::DateEffet, 1, effetAvant_);
    contrat.Set(C::DepartGrille, 1, departGrilleAvant_);
  }
  debutDeplace_ = debut != debutInitial;
  if (!debutDeplace_) return;
  effetAvant_ = contrat(C::DateEffet, 1);
  departGrilleAvant_ = contrat(C::DepartGrille, 1);
  contrat.Set(C::DateEffet, 1, debut);
  if (!departGrilleAvant_.empty() && departGrilleAvant_ == debutInitial) {
    contrat.Set(C::DepartGrille, 1, debut);
  }
}

// An open-ended contract has no presumed end, not even one typed before its type was changed.
void OngletOrigine::EcrireTerme() {
  if (Determine()) return;
  if (!Txt_DatFinContrat.Text().empty()) finAvant_ = Txt_DatFinContrat.Text();
  Txt_DatFinContrat.SetText("");
  Contrat().Set(C::DateFinPresumee, "");
}

// Only a trainee has a traineeship.
void OngletOrigine::ViderStage() {
  if (Contrat().Vue(C::StageEcole).empty()) return;
  for (const int a : C::GroupeStage) {
    stageAvant_.Set(a, Contrat().Vue(a));
    Contrat().Set(a, "");
  }
}

void OngletOrigine::RendreStage() {
  if (stageAvant_.Vide()) return;
  for (const int a : C::GroupeStage) Contrat().Set(a, stageAvant_.Vue(a));
  stageAvant_ = data::CItem();
}

}  // namespace editor
