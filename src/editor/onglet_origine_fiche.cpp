// The first tab and the contract in hand: from the record to the fields, the checks, and back.

#include <algorithm>

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/texte.h"
#include "editor/editeur.h"
#include "editor/origine_listes.h"
#include "session/pendant.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// Where the entity ends and the establishment begins in attribute 3.
constexpr int PosEtablissement = 4;

// The attributes that the tab copies from its fields.
constexpr int Copies[] = {C::Convention,
                          C::Association,
                          C::Employeur,
                          C::Type,
                          C::Salaire,
                          C::Statut,
                          C::DateDebut,
                          C::PeriodeEssai,
                          C::EssaiRenouvelable,
                          C::Nature,
                          C::DateFinPresumee,
                          C::DureeMinimale,
                          C::DateConventionAidee,
                          C::ReferenceConventionAidee,
                          C::ContrepartieInterruption};
constexpr int Dates[] = {C::DateDebut, C::DateFinPresumee, C::DateConventionAidee};

// What the record takes for the text of a field: of a date its day, "" when it is none.
std::string stocke(const data::Lib& lib, int attribut, const std::string& texte) {
  if (std::find(std::begin(Dates), std::end(Dates), attribut) == std::end(Dates)) return texte;
  const auto jour = lib.LireDate(texte);
  return jour ? lib.DateToInternal(*jour) : "";
}

}  // namespace

void OngletOrigine::Remplir_Combos() {
  data::Db& db = *Session().Db;
  ListeAssociations =
      db.Selectionner("SSELECT ASSOCIATION PAR 1", data::fichier::ASSOCIATION, "0 1");
  ListeConvCol =
      db.Selectionner("SSELECT CONVENTIONCOL PAR 1", data::fichier::CONVENTIONCOL, "0 1 2 12 44");
  RubriquesAideDomicile = db.Selectionner("SSELECT RUBCHARGE AVEC 28 = \"1\" AND AVEC 30 = \"\"",
                                          data::fichier::RUBCHARGE, "0");
  entite_.Remplir(Liste::lignes(ListeAssociations));
  convention_.Remplir(Liste::lignes(ListeConvCol));
}

void OngletOrigine::Afficher_Ong1() {
  const session::Pendant silence(editeur_.EvenementsActifs, false);
  // A new editor in a session whose lists are filled already has none of them.
  if (ListeConvCol.Vide()) Remplir_Combos();
  debutDeplace_ = false;
  finAvant_.clear();
  stageAvant_ = surFichier_ = montres_ = data::CItem();
  Cbo_NatureContrat.Clear();
  if (Session().ModeCreation) {
    AfficherNouveau();
  } else {
    AfficherExistant();
  }
  MontrerStage();
  MontrerLissage();
  AdapterReference();
  if (Session().ModeCreation) return;
  surFichier_ = Session().ItemContrat;
  montres_ = Champs();
}

void OngletOrigine::AfficherNouveau() {
  DebutInitial.clear();
  Txt_ConvColContrat.SetEnabled(true);
  Cbo_LibConvColContrat.SetEnabled(true);
  Griser_ComboOng1();
  RafraichirEmployeur();
  MontrerSelonConvention();
  AdapterConvention();
  MontrerTerme(Opt_Determine.Value());
  Cac_RenouvEssaiContrat.SetValue(0);
  employeur_.Remplir({});
  ViderPrevoyance();
  editeur_.caracteristiques.Cbo_GrilleContrat.Clear();
  editeur_.fin.Cbo_OrgRetraite.Clear();
}

void OngletOrigine::AfficherExistant() {
  Txt_NumContrat.SetText(data::milieu(Session().ItemContrat(0), data::LongueurCodeAidant + 1));
  AfficherCodes();
  AfficherEmployeur();
  RafraichirEmployeur();
  AfficherOptions();
  AfficherSaisies();
  // The agreement, the entity and the employer of a contract on file never change.
  Txt_ConvColContrat.SetEnabled(false);
  Cbo_LibConvColContrat.SetEnabled(false);
  Griser_ComboOng1();
}

// A code that its table has lost stays in its box, without a label, rather than leave the record.
void OngletOrigine::AfficherCodes() {
  const data::CItem& contrat = Session().ItemContrat;
  Txt_ConvColContrat.SetText(contrat.Vue(C::Convention));
  convention_.Montrer(Liste::libelleDe(ListeConvCol, contrat.Vue(C::Convention)));
  MontrerSelonConvention();
  if (Cbo_Contrepartie.Visible()) {
    const auto contrepartie = contrat.Vue(C::ContrepartieInterruption);
    Cbo_Contrepartie.SetListIndex(static_cast<int>(data::entier(contrepartie)) - 1);
  }
  Txt_AssocContrat.SetText(contrat.Vue(C::Association));
  entite_.Montrer(Liste::libelleDe(ListeAssociations, contrat.Vue(C::Association)));
  AdapterConvention();
  ViderPrevoyance();
  if (!Particuliers()) Remplir_Prevoyance();
  Remplir_Grilles();
  Remplir_OrgRetraite();
}

void OngletOrigine::AfficherEmployeur() {
  session::Session& s = Session();
  const std::string cle = s.ItemContrat(C::Employeur);
  std::string libelle;
  employeur_.Remplir({});
  if (Particuliers()) {
    Txt_EmplEtabContrat.SetText(cle);
    const bool connu = s.F_CIVILAIDE.Lire(cle, s.ItemCivilAide);
    if (connu) {
      libelle =
          s.ItemCivilAide(data::CivilAide::Nom) + " " + s.ItemCivilAide(data::CivilAide::Prenom);
    }
    Cmd_DetailEmpl.SetEnabled(connu);
  } else {
    Txt_EmplEtabContrat.SetText(data::milieu(cle, PosEtablissement, LongueurEtablissement));
    if (s.F_ETABLISSEMENT.Lire(cle, s.ItemEtablissement)) {
      libelle = s.ItemEtablissement(data::Etablissement::Libelle);
    }
  }
  employeur_.Montrer(libelle);
}

void OngletOrigine::AfficherOptions() {
  const data::CItem& contrat = Session().ItemContrat;
  const bool determine = contrat.Vue(C::Type) == "D";
  (determine ? Opt_Determine : Opt_Indetermine).SetValue(true);
  MontrerTerme(determine);
  // The status first: the pay basis means nothing to administrative staff.
  (contrat.Vue(C::Statut) == "A" ? Opt_Administratif : Opt_Production).SetValue(true);
  (contrat.Vue(C::Salaire) == "M" ? Opt_Mensuel : Opt_Horaire).SetValue(true);
}

void OngletOrigine::AfficherSaisies() {
  const data::CItem& contrat = Session().ItemContrat;
  const data::Lib& lib = Session().Lib;
  DebutInitial = contrat(C::DateDebut);
  Txt_DatDebContrat.SetText(lib.DateFromInternal(DebutInitial));
  Txt_DatFinContrat.SetText(lib.DateFromInternal(contrat.Vue(C::DateFinPresumee)));
  Txt_PerEssaiContrat.SetText(contrat.Vue(C::PeriodeEssai));
  const auto renouvelable = contrat.Vue(C::EssaiRenouvelable);
  Cac_RenouvEssaiContrat.SetValue(renouvelable.empty() || data::enUnites(renouvelable, 0) == 0 ? 0
                                                                                               : 1);
  ChargerNatures();
  Cbo_NatureContrat.SetText(LibelleNature(contrat.Vue(C::Nature)));
  Txt_DureeMinContrat.SetText(contrat.Vue(C::DureeMinimale));
  Txt_DateSignConvEmplAide.SetText(lib.DateFromInternal(contrat.Vue(C::DateConventionAidee)));
  Txt_NumRef.SetText(contrat.Vue(C::ReferenceConventionAidee));
}

std::string OngletOrigine::LibelleNature(std::string_view code) const {
  for (int v = 1; !code.empty() && v <= ListeNatures.DCount(data::Tables::Codes); ++v) {
    if (ListeNatures.Vue(data::Tables::Codes, v) == code) {
      return ListeNatures(data::Tables::Libelles, v);
    }
  }
  return {};
}

SaisieOrigine OngletOrigine::Saisie() const {
  session::Session& s = Session();
  SaisieOrigine saisie{.contrat = s.ItemContrat,
                       .convention = Txt_ConvColContrat.Text(),
                       .association = Txt_AssocContrat.Text(),
                       .employeur = Txt_EmplEtabContrat.Text(),
                       .dateDebut = Txt_DatDebContrat.Text(),
                       .debut = s.Lib.LireDate(Txt_DatDebContrat.Text()),
                       .dateFin = Txt_DatFinContrat.Text(),
                       .fin = s.Lib.LireDate(Txt_DatFinContrat.Text()),
                       .dateSignature = Txt_DateSignConvEmplAide.Text(),
                       .reference = Txt_NumRef.Text(),
                       .nature = Cbo_NatureContrat.Text(),
                       .determine = Opt_Determine.Value(),
                       .existant = !s.ModeCreation,
                       .debutInitial = DebutInitial,
                       .periodePaie = s.ItemPeriodesPaie1(data::PeriodesPaie::Courante),
                       .bulletinCalcule = {}};
  saisie.bulletinCalcule = [&s](const std::string& periode) {
    return s.F_DETAILCALCUL.Lire(s.ItemContrat(0) + periode, s.ItemDetailCalcul);
  };
  return saisie;
}

bool OngletOrigine::Verif_Ong1() {
  RendreStage();
  const SaisieOrigine saisie = Saisie();
  for (const VerificationOrigine& verification : verificationsOrigine()) {
    if (!verification.echoue(saisie)) continue;
    Refuser(verification.Texte(saisie), verification.icone, editeur_.Find(verification.champ));
    if (verification.suite == Suite::Stage) Cmd_Stage_Click();
    if (verification.suite != Suite::MotifCDD) return false;
    // A reason given at once lets the checks go on.
    Cmd_MotifCDD_Click();
    if (verification.echoue(saisie)) return false;
  }
  return true;
}

bool OngletOrigine::Ecrire_Ong1() {
  if (editeur_.EcritureVerifiee && !Verif_Ong1()) return false;
  EcrireChamps();
  EcrireDebut();
  EcrireTerme();
  RendreStage();
  if (Session().ItemContrat.Vue(C::Nature) != C::NatureStage) ViderStage();
  return true;
}

data::CItem OngletOrigine::Champs() const {
  data::CItem champs;
  champs.Set(C::Convention, Txt_ConvColContrat.Text());
  champs.Set(C::Association, Txt_AssocContrat.Text());
  champs.Set(C::Employeur,
             (Particuliers() ? "" : Txt_AssocContrat.Text()) + Txt_EmplEtabContrat.Text());
  champs.Set(C::Type, Opt_Determine.Value() ? "D" : "I");
  champs.Set(C::Salaire, Opt_Horaire.Value() ? "H" : "M");
  champs.Set(C::Statut, Opt_Production.Value() ? "P" : "A");
  champs.Set(C::DateDebut, Txt_DatDebContrat.Text());
  champs.Set(C::PeriodeEssai, Txt_PerEssaiContrat.Text());
  champs.Set(C::EssaiRenouvelable, Cac_RenouvEssaiContrat.Value() != 0 ? "1" : "0");
  champs.Set(C::Nature, CodeNature());
  champs.Set(C::DateFinPresumee, Txt_DatFinContrat.Text());
  champs.Set(C::DureeMinimale, Txt_DureeMinContrat.Text());
  champs.Set(C::DateConventionAidee, Txt_DateSignConvEmplAide.Text());
  champs.Set(C::ReferenceConventionAidee, Txt_NumRef.Text());
  if (!Cbo_Contrepartie.Text().empty()) {
    champs.Set(C::ContrepartieInterruption, std::to_string(Cbo_Contrepartie.ListIndex() + 1));
  }
  return champs;
}

// A field that shows what it showed at first leaves its attribute as it is on file, also where that
// is a code without label, a wrong date or an empty flag: opening a contract does not change it.
void OngletOrigine::EcrireChamps() {
  data::CItem& contrat = Session().ItemContrat;
  const data::CItem champs = Champs();
  for (const int a : Copies) {
    const bool touche = champs.Vue(a) != montres_.Vue(a);
    contrat.Set(a, touche ? stocke(Session().Lib, a, champs(a)) : surFichier_(a));
  }
}

// A moved start takes along the effect date of the contract as signed, and its grid start where
// that was the same day. What an earlier copy of the screen moved is put back first.
void OngletOrigine::EcrireDebut() {
  data::CItem& contrat = Session().ItemContrat;
  const std::string debut = contrat(C::DateDebut);
  if (debutDeplace_) {
    contrat.Set(C::DateEffet, 1, effetAvant_);
    contrat.Set(C::DepartGrille, 1, departGrilleAvant_);
  }
  debutDeplace_ = debut != DebutInitial;
  if (!debutDeplace_) return;
  effetAvant_ = contrat(C::DateEffet, 1);
  departGrilleAvant_ = contrat(C::DepartGrille, 1);
  contrat.Set(C::DateEffet, 1, debut);
  if (!departGrilleAvant_.empty() && departGrilleAvant_ == DebutInitial) {
    contrat.Set(C::DepartGrille, 1, debut);
  }
}

// An open-ended contract has no presumed end, not even one typed before its type was changed.
void OngletOrigine::EcrireTerme() {
  if (!Opt_Indetermine.Value()) return;
  if (!Txt_DatFinContrat.Text().empty()) finAvant_ = Txt_DatFinContrat.Text();
  Txt_DatFinContrat.SetText("");
  Session().ItemContrat.Set(C::DateFinPresumee, "");
}

// Only a trainee has a traineeship.
void OngletOrigine::ViderStage() {
  data::CItem& contrat = Session().ItemContrat;
  if (contrat.Vue(C::StageEcole).empty()) return;
  for (const int a : C::GroupeStage) {
    stageAvant_.Set(a, contrat.Vue(a));
    contrat.Set(a, "");
  }
}

void OngletOrigine::RendreStage() {
  if (stageAvant_.Vide()) return;
  for (const int a : C::GroupeStage) Session().ItemContrat.Set(a, stageAvant_.Vue(a));
  stageAvant_ = data::CItem();
}

// The code of the label shown, the first one where several have it; "" without one.
std::string OngletOrigine::CodeNature() const {
  const std::string& libelle = Cbo_NatureContrat.Text();
  for (int v = 1; !libelle.empty() && v <= ListeNatures.DCount(data::Tables::Codes); ++v) {
    if (ListeNatures.Vue(data::Tables::Libelles, v) == libelle) {
      return ListeNatures(data::Tables::Codes, v);
    }
  }
  return {};
}

}  // namespace editor
