// The first tab and the contract in hand: from the record to the fields, the checks, and back.

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/texte.h"
#include "editor/editeur.h"
#include "editor/origine_listes.h"

namespace editor {

namespace {

namespace C = data::Contrat;

// Where the entity ends and the establishment begins in attribute 3.
constexpr int PosEtablissement = 4;

}  // namespace

void OngletOrigine::Remplir_Combos() {
  data::Db& db = *Session().Db;
  ListeAssociations =
      db.Selectionner("SSELECT ASSOCIATION PAR 1", data::fichier::ASSOCIATION, "0 1");
  ListeConvCol =
      db.Selectionner("SSELECT CONVENTIONCOL PAR 1", data::fichier::CONVENTIONCOL, "0 1 2 12 44");
  entite_.Remplir(Liste::lignes(ListeAssociations));
  convention_.Remplir(Liste::lignes(ListeConvCol));
}

void OngletOrigine::Afficher_Ong1() {
  const Pendant silence(editeur_.EvenementsActifs, false);
  // A new editor in a session whose lists are filled already has none of them.
  if (ListeConvCol.Vide()) Remplir_Combos();
  debutDeplace_ = false;
  Cbo_NatureContrat.Clear();
  if (Session().ModeCreation) {
    AfficherNouveau();
  } else {
    AfficherExistant();
  }
  MontrerStage();
  AdapterReference();
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
  (contrat.Vue(C::Salaire) == "M" ? Opt_Mensuel : Opt_Horaire).SetValue(true);
  (contrat.Vue(C::Statut) == "A" ? Opt_Administratif : Opt_Production).SetValue(true);
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
  EcrireIdentite();
  EcrireDebut();
  EcrireNature();
  EcrireTerme();
  data::CItem& contrat = Session().ItemContrat;
  contrat.Set(C::DateConventionAidee, Interne(Txt_DateSignConvEmplAide, C::DateConventionAidee));
  contrat.Set(C::ReferenceConventionAidee, Txt_NumRef.Text());
  contrat.Set(C::DureeMinimale, Txt_DureeMinContrat.Text());
  contrat.Set(C::ContrepartieInterruption, Cbo_Contrepartie.Text().empty()
                                               ? ""
                                               : std::to_string(Cbo_Contrepartie.ListIndex() + 1));
  return true;
}

void OngletOrigine::EcrireIdentite() {
  data::CItem& contrat = Session().ItemContrat;
  contrat.Set(C::Convention, Txt_ConvColContrat.Text());
  contrat.Set(C::Association, Txt_AssocContrat.Text());
  contrat.Set(C::Employeur,
              (Particuliers() ? "" : Txt_AssocContrat.Text()) + Txt_EmplEtabContrat.Text());
  contrat.Set(C::Type, Opt_Determine.Value() ? "D" : "I");
  contrat.Set(C::Salaire, Opt_Horaire.Value() ? "H" : "M");
  contrat.Set(C::Statut, Opt_Production.Value() ? "P" : "A");
}

// A moved start takes along the effect date of the contract as signed, and its grid start where
// that was the same day. What an earlier copy of the screen moved is put back first.
void OngletOrigine::EcrireDebut() {
  data::CItem& contrat = Session().ItemContrat;
  const std::string debut = Interne(Txt_DatDebContrat, C::DateDebut);
  contrat.Set(C::DateDebut, debut);
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

void OngletOrigine::EcrireNature() {
  data::CItem& contrat = Session().ItemContrat;
  contrat.Set(C::PeriodeEssai, Txt_PerEssaiContrat.Text());
  contrat.Set(C::EssaiRenouvelable, Cac_RenouvEssaiContrat.Value() != 0 ? "1" : "0");
  contrat.Set(C::Nature, CodeNature());
  if (contrat.Vue(C::StageEcole).empty() || contrat.Vue(C::Nature) == C::NatureStage) return;
  for (const int a : C::GroupeStage) contrat.Set(a, "");
}

// The code of the nature shown; the one on file while the box shows just that, also where its label
// is not alone or not known any more.
std::string OngletOrigine::CodeNature() const {
  const std::string& libelle = Cbo_NatureContrat.Text();
  const std::string actuelle = Session().ItemContrat(C::Nature);
  if (LibelleNature(actuelle) == libelle) return actuelle;
  for (int v = 1; !libelle.empty() && v <= ListeNatures.DCount(data::Tables::Codes); ++v) {
    if (ListeNatures.Vue(data::Tables::Libelles, v) == libelle) {
      return ListeNatures(data::Tables::Codes, v);
    }
  }
  return {};
}

// An open-ended contract has no presumed end, not even one typed before its type was changed.
void OngletOrigine::EcrireTerme() {
  data::CItem& contrat = Session().ItemContrat;
  if (Opt_Indetermine.Value()) Txt_DatFinContrat.SetText("");
  contrat.Set(C::DateFinPresumee, Interne(Txt_DatFinContrat, C::DateFinPresumee));
}

std::string OngletOrigine::Interne(const screen::TextField& champ, int attribut) const {
  const data::Lib& lib = Session().Lib;
  const std::string stocke = Session().ItemContrat(attribut);
  if (champ.Text() == lib.DateFromInternal(stocke)) return stocke;
  const auto jour = lib.LireDate(champ.Text());
  return jour ? lib.DateToInternal(*jour) : "";
}

}  // namespace editor
