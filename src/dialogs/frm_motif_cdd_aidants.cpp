// The frame of the replaced carers.

#include "data/cles.h"
#include "data/texte.h"
#include "dialogs/frm_motif_cdd.h"
#include "screen/attente.h"

namespace dialogs {

namespace {

using screen::Boutons;
using screen::Icone;
using session::RegleCode;

constexpr const char* AidantInconnu = "Cet aidant n'existe pas.";
constexpr const char* AidantSupprime = "Cet aidant existe mais est à l'état supprimé.";
constexpr const char* SansContratAide =
    "Cet aidant n'a pas de contrat avec cet aidé. Il n'y a donc pas de remplacement à effectuer.";
constexpr const char* SansContratEntite =
    "Cet aidant n'a pas de contrat avec cette entité. Il n'y a donc pas de remplacement à "
    "effectuer.";
constexpr const char* AucuneAbsence = "Aucune absence en cours ou à venir pour l'aidant ";
constexpr const char* AucunAidant = "Aucun aidant commençant par ";
constexpr const char* NomNecessaire =
    "La saisie d'au moins un caractère est nécessaire pour la recherche.";

// The question about leaving an entry is the one box without the suite's title.
constexpr const char* SansTitre = "";

}  // namespace

void Frm_MotifCDD::LierAidant() {
  Txt_CodeAidant.KeyPress = [this](char32_t& touche) {
    if (touche == screen::ToucheEntree) aidant_.Completer();
  };
  Cbo_AidantRemplace.KeyPress = [this](char32_t& touche) {
    if (touche == screen::ToucheEntree) Recherche_Aidant();
  };
  Cmd_AjouterAidant.Click = [this] { Cmd_AjouterAidant_Click(); };
  Cmd_SupprimerAidant.Click = [this] { Cmd_SupprimerAidant_Click(); };
  Cmd_OkAidant.Click = [this] { Cmd_OkAidant_Click(); };
  Cmd_AnnulerAidant.Click = [this] { Cmd_AnnulerAidant_Click(); };
  Lst_AidantRemplace.DblClick = [this] { Lst_AidantRemplace_DblClick(); };
}

RegleCode Frm_MotifCDD::RegleAidant() {
  RegleCode regle;
  regle.longueur = data::LongueurCodeAidant;
  regle.completee = RegleCode::ADroite;
  regle.inconnu = AidantInconnu;
  regle.icone = Icone::Exclamation;
  regle.tape = RegleCode::Cherche;
  regle.source = [this](const std::string& code) { return NomConnu(code); };
  regle.refus = [this](const std::string& code) { return RefusAidant(code); };
  regle.incomplet = [this] { ViderAbsences(); };
  regle.choisi = [this] { Recherche_AbsAidant(Txt_CodeAidant.Text()); };
  return regle;
}

// Idle: nothing is entered. Otherwise the fields of an entry are open.
void Frm_MotifCDD::Grise_Liste() {
  enCreationAidant_ = false;
  ligneAidant_ = -1;
  Txt_CodeAidant.SetText("");
  aidant_.Remplir({});
  ViderAbsences();
  ActiverSaisie(false);
}

void Frm_MotifCDD::ActiverSaisie(bool saisie) {
  screen::Activer({&Lst_AidantRemplace, &Cmd_AjouterAidant, &Cmd_OK, &Cmd_Retour}, !saisie);
  screen::Activer(
      {&Txt_CodeAidant, &Cbo_AidantRemplace, &Cbo_Absence, &Cmd_OkAidant, &Cmd_AnnulerAidant},
      saisie);
  Cmd_SupprimerAidant.SetEnabled(saisie && !enCreationAidant_);
}

void Frm_MotifCDD::ViderAbsences() {
  Txt_CodeAbs.SetText("");
  absence_.Remplir({});
}

// The name of a carer found by a search is shown as the list shows it.
std::optional<std::string> Frm_MotifCDD::NomConnu(const std::string& code) {
  data::CItem aidant;
  if (!session_.F_CIVILAIDANT.Lire(code, aidant)) return std::nullopt;
  const auto* const trouve = aidant_.Lignes().ParCode(code);
  return trouve == nullptr ? NomAidant(aidant) : trouve->libelle;
}

const char* Frm_MotifCDD::RefusAidant(const std::string& code) {
  if (EstSupprime(session_.F_CIVILAIDANT.Read(code), debut_)) return AidantSupprime;
  if (AUnContrat(session_, contexte_, code, debut_)) return nullptr;
  return contexte_.convention == data::ConventionParticuliers ? SansContratAide : SansContratEntite;
}

void Frm_MotifCDD::Recherche_AbsAidant(const std::string& code) {
  ViderAbsences();
  {
    screen::Attente attente(*this);
    const data::CItem trouvees = ChercherAbsences(session_, code, debut_);
    std::vector<data::ListeCodes::Ligne> lignes;
    for (int i = 1; i <= trouvees.DCount(); ++i) {
      lignes.push_back({trouvees(i, 1), LibelleAbsence(session_.Lib, absences_, trouvees.Vue(i, 1),
                                                       trouvees.Vue(i, 2))});
    }
    absence_.Remplir(data::ListeCodes(std::move(lignes)));
    attente.Finir();
  }
  if (absence_.Lignes().Vide()) {
    MessageBox(AucuneAbsence + data::majuscules(Cbo_AidantRemplace.Text()) + ".", Boutons::Ok,
               Icone::Information);
  } else if (enCreationAidant_) {
    Cbo_Absence.SetListIndex(0);
  }
}

void Frm_MotifCDD::Recherche_Aidant() {
  const std::string nom = Cbo_AidantRemplace.Text();
  if (!EstCherchable(nom)) {
    MessageBox(NomNecessaire, Boutons::Ok, Icone::Exclamation);
    return;
  }
  data::CItem trouves;
  {
    screen::Attente attente(*this);
    trouves = ChercherAidants(session_, nom, debut_);
    attente.Finir();
  }
  if (trouves.Vide()) {
    MessageBox(AucunAidant + data::majuscules(nom) + ".", Boutons::Ok, Icone::Information);
    return;
  }
  std::vector<data::ListeCodes::Ligne> lignes;
  for (int i = 1; i <= trouves.DCount(); ++i) {
    lignes.push_back(
        {trouves(i, 1), data::gauche(trouves(i, 2) + " " + trouves(i, 3), LongueurNomTrouve)});
  }
  aidant_.Remplir(data::ListeCodes(std::move(lignes)));
  Cbo_AidantRemplace.SetListIndex(0);
}

void Frm_MotifCDD::Cmd_AjouterAidant_Click() {
  enCreationAidant_ = true;
  ActiverSaisie(true);
  Txt_CodeAidant.SetFocus();
}

void Frm_MotifCDD::Lst_AidantRemplace_DblClick() {
  const int ligne = Lst_AidantRemplace.ListIndex();
  if (ligne < 0) return;
  enCreationAidant_ = false;
  ligneAidant_ = ligne;
  ActiverSaisie(true);
  screen::Activer({&Txt_CodeAidant, &Cbo_AidantRemplace}, false);
  try {
    ReprendreLigne(LireLigne(Lst_AidantRemplace.List(ligne)));
  } catch (...) {
    // Half a row in the fields would replace the whole one.
    Grise_Liste();
    throw;
  }
}

void Frm_MotifCDD::ReprendreLigne(const LigneRemplace& ligne) {
  if (ligne.code.empty()) {
    // A free text can only be deleted.
    Cbo_AidantRemplace.SetText(ligne.nom);
    screen::Activer({&Cbo_Absence, &Cmd_OkAidant}, false);
    return;
  }
  Txt_CodeAidant.SetText(ligne.code);
  Cbo_AidantRemplace.SetText(ligne.nom);
  Cbo_Absence.SetText(ligne.absence);
  Txt_CodeAbs.SetText(ligne.cleAbsence);
}

const rules::Verification<Frm_MotifCDD> Frm_MotifCDD::VerificationsAidant[4] = {
    {[](Frm_MotifCDD& f) { return f.Txt_CodeAidant.Text().empty(); },
     "Le code de l'aidant est obligatoire.", Icone::Information, "Txt_CodeAidant"},
    {[](Frm_MotifCDD& f) { return f.Cbo_AidantRemplace.Text().empty(); },
     "L'aidant doit être renseigné.", Icone::Information, "Cbo_AidantRemplace"},
    {[](Frm_MotifCDD& f) { return f.Txt_CodeAidant.Text() == f.session_.CodeAidant; },
     "L'aidant ne peut pas se remplacer lui-même.", Icone::Information},
    {[](Frm_MotifCDD& f) { return f.DejaDansLaListe(); },
     "Cet aidant a déjà été ajouté à la liste.", Icone::Information},
};

bool Frm_MotifCDD::DejaDansLaListe() const {
  const std::string& absence = Cbo_Absence.Text();
  for (int r = 0; r < Lst_AidantRemplace.ListCount(); ++r) {
    const std::string ligne = Lst_AidantRemplace.List(r);
    if (r == ligneAidant_ || LireLigne(ligne).code != Txt_CodeAidant.Text()) continue;
    const std::string autre = AbsenceComparee(ligne);
    if (absence.empty() || autre.empty() || absence == autre) return true;
  }
  return false;
}

void Frm_MotifCDD::Cmd_OkAidant_Click() {
  if (!aidant_.Completer() || !Verifier<Frm_MotifCDD>(VerificationsAidant, *this)) return;
  const std::string ligne = FaireLigne(
      {Txt_CodeAidant.Text(), Cbo_AidantRemplace.Text(), Cbo_Absence.Text(), Txt_CodeAbs.Text()});
  if (enCreationAidant_) {
    Lst_AidantRemplace.AddItem(ligne);
  } else {
    const int rang = ligneAidant_;
    Lst_AidantRemplace.RemoveItem(rang);
    Lst_AidantRemplace.InsertItem(rang, ligne);
  }
  Grise_Liste();
}

void Frm_MotifCDD::Cmd_AnnulerAidant_Click() {
  if (enCreationAidant_ && Demander(QuitterCreation, Boutons::OuiNon, Icone::Question,
                                    screen::Reponse::Non, SansTitre) != screen::Reponse::Oui) {
    return;
  }
  Grise_Liste();
}

void Frm_MotifCDD::Cmd_SupprimerAidant_Click() {
  if (Demander(SupprimerLigne, Boutons::OuiNon, Icone::Exclamation, screen::Reponse::Non) !=
      screen::Reponse::Oui) {
    return;
  }
  Lst_AidantRemplace.RemoveItem(ligneAidant_);
  Grise_Liste();
}

}  // namespace dialogs
