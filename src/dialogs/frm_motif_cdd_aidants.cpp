// The frame of the replaced carers.

#include <algorithm>

#include "data/cles.h"
#include "data/texte.h"
#include "dialogs/frm_motif_cdd.h"
#include "screen/attente.h"

namespace dialogs {

namespace {

using screen::Boutons;
using screen::Icone;

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
constexpr const char* QuitterCreation = "Etes-vous sûr de vouloir quitter cette création ?";
constexpr const char* SupprimerLigne = "Etes-vous sûr de vouloir supprimer cette ligne ?";

// The question about leaving an entry is the one box without the suite's title.
constexpr const char* SansTitre = "";

}  // namespace

void Frm_MotifCDD::LierAidant() {
  Txt_CodeAidant.Change = [this] { Txt_CodeAidant_Change(); };
  Txt_CodeAidant.LostFocus = [this] { Completer_CodeAidant(); };
  Txt_CodeAidant.KeyPress = [this](char32_t& touche) {
    if (touche == screen::ToucheEntree) Completer_CodeAidant();
  };
  Cbo_AidantRemplace.Click = [this] { Cbo_AidantRemplace_Click(); };
  Cbo_AidantRemplace.Change = [this] { Cbo_AidantRemplace_Change(); };
  Cbo_AidantRemplace.LostFocus = [this] { Cbo_AidantRemplace_LostFocus(); };
  Cbo_AidantRemplace.KeyPress = [this](char32_t& touche) {
    if (touche == screen::ToucheEntree) Recherche_Aidant();
  };
  Cbo_Absence.Click = [this] { Cbo_Absence_Click(); };
  Cbo_Absence.Change = [this] { Cbo_Absence_Change(); };
  Cbo_Absence.LostFocus = [this] { Cbo_Absence_LostFocus(); };
  Cmd_AjouterAidant.Click = [this] { Cmd_AjouterAidant_Click(); };
  Cmd_SupprimerAidant.Click = [this] { Cmd_SupprimerAidant_Click(); };
  Cmd_OkAidant.Click = [this] { Cmd_OkAidant_Click(); };
  Cmd_AnnulerAidant.Click = [this] { Cmd_AnnulerAidant_Click(); };
  Lst_AidantRemplace.DblClick = [this] { Lst_AidantRemplace_DblClick(); };
}

// Idle.
void Frm_MotifCDD::Grise_Liste() {
  enCreationAidant_ = false;
  ligneAidant_ = -1;
  Txt_CodeAidant.SetText("");
  Cbo_AidantRemplace.Clear();
  resultatsAidant_.SetText("");
  ViderAbsences();
  ActiverSaisie(false);
}

// Editing.
void Frm_MotifCDD::Degrise_Liste() {
  ActiverSaisie(true);
}

void Frm_MotifCDD::ActiverSaisie(bool saisie) {
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &Lst_AidantRemplace, &Cmd_AjouterAidant, &Cmd_OK, &Cmd_Retour}) {
    champ->SetEnabled(!saisie);
  }
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &Txt_CodeAidant, &Cbo_AidantRemplace, &Cbo_Absence, &Cmd_OkAidant, &Cmd_AnnulerAidant}) {
    champ->SetEnabled(saisie);
  }
  Cmd_SupprimerAidant.SetEnabled(saisie && !enCreationAidant_);
}

void Frm_MotifCDD::ViderAbsences() {
  Cbo_Absence.Clear();
  resultatsAbsence_.SetText("");
  Txt_CodeAbs.SetText("");
}

void Frm_MotifCDD::Txt_CodeAidant_Change() {
  codeVerifie_.clear();
  const std::string& code = Txt_CodeAidant.Text();
  if (code.empty()) {
    Cbo_AidantRemplace.SetText("");
    ViderAbsences();
  } else if (data::longueur(code) == data::LongueurCodeAidant) {
    Verifier_CodeAidant();
  }
}

// Checks the code when it was short, which completing it does, or when the store failed before.
// False when a code was refused.
bool Frm_MotifCDD::Completer_CodeAidant() {
  const std::string code = Txt_CodeAidant.Text();
  if (code.empty() || code == codeVerifie_) return true;
  if (data::longueur(code) < data::LongueurCodeAidant) {
    Txt_CodeAidant.SetText(data::completeADroite(code, data::LongueurCodeAidant, '0'));
  } else {
    Verifier_CodeAidant();
  }
  return !codeVerifie_.empty();
}

bool Frm_MotifCDD::Verifier_CodeAidant() {
  const std::string code = Txt_CodeAidant.Text();
  const std::string debut = DebutInterne();
  data::CItem aidant;
  if (!session_.F_CIVILAIDANT.Lire(code, aidant)) return RefuserCode(AidantInconnu);
  if (EstSupprime(aidant, debut)) return RefuserCode(AidantSupprime);
  nomAidant_ = NomAidant(aidant);
  if (!NomConcorde()) Cbo_AidantRemplace.SetText(nomAidant_);
  if (!AUnContrat(session_, Contexte, code, debut)) {
    const bool particulier = Contexte.convention == data::ConventionParticuliers;
    return RefuserCode(particulier ? SansContratAide : SansContratEntite);
  }
  Recherche_AbsAidant(code, debut);
  codeVerifie_ = code;
  return true;
}

bool Frm_MotifCDD::RefuserCode(const char* message) {
  MessageBox(message, Boutons::Ok, Icone::Exclamation);
  Txt_CodeAidant.SetText("");
  Txt_CodeAidant.SetFocus();
  return false;
}

void Frm_MotifCDD::Recherche_AbsAidant(const std::string& code, const std::string& debut) {
  ViderAbsences();
  screen::Attente attente(*this);
  resultatsAbsence_ = ChercherAbsences(session_, code, debut);
  for (int i = 1; i <= resultatsAbsence_.DCount(); ++i) {
    Cbo_Absence.AddItem(LibelleAbsence(session_.Lib, absences_, resultatsAbsence_.Vue(i, 1),
                                       resultatsAbsence_.Vue(i, 2)));
  }
  attente.Finir();
  if (resultatsAbsence_.Vide()) {
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
  screen::Attente attente(*this);
  const data::CItem trouves = ChercherAidants(session_, nom, DebutInterne());
  attente.Finir();
  if (trouves.Vide()) {
    MessageBox(AucunAidant + data::majuscules(nom) + ".", Boutons::Ok, Icone::Information);
    return;
  }
  resultatsAidant_ = trouves;
  Cbo_AidantRemplace.Clear();
  for (int i = 1; i <= trouves.DCount(); ++i) {
    Cbo_AidantRemplace.AddItem(
        data::gauche(trouves(i, 2) + " " + trouves(i, 3), LongueurNomTrouve));
  }
  Cbo_AidantRemplace.SetListIndex(0);
}

void Frm_MotifCDD::Cbo_AidantRemplace_Click() {
  const int ligne = Cbo_AidantRemplace.ListIndex();
  if (ligne >= 0) Txt_CodeAidant.SetText(resultatsAidant_.Vue(ligne + 1, 1));
}

void Frm_MotifCDD::Cbo_AidantRemplace_Change() {
  if (!Cbo_AidantRemplace.Text().empty()) return;
  Txt_CodeAidant.SetText("");
  ViderAbsences();
}

bool Frm_MotifCDD::NomConcorde() const {
  const std::string& nom = Cbo_AidantRemplace.Text();
  return !nom.empty() && (nom == nomAidant_ || nom == data::gauche(nomAidant_, LongueurNomTrouve));
}

// A name typed over the one of the carer entered, and not searched, would be listed with a code
// that is not its own.
void Frm_MotifCDD::Cbo_AidantRemplace_LostFocus() {
  if (!codeVerifie_.empty() && !NomConcorde()) Cbo_AidantRemplace.SetText(nomAidant_);
}

void Frm_MotifCDD::Cbo_Absence_Click() {
  const int ligne = Cbo_Absence.ListIndex();
  if (ligne >= 0) Txt_CodeAbs.SetText(resultatsAbsence_.Vue(ligne + 1, 1));
}

// The key goes with the label: a text that is none of the labels has none.
void Frm_MotifCDD::Cbo_Absence_Change() {
  const auto& libelles = Cbo_Absence.Rows();
  const auto trouve = std::find(libelles.begin(), libelles.end(), Cbo_Absence.Text());
  if (Cbo_Absence.Text().empty() || trouve == libelles.end()) {
    Txt_CodeAbs.SetText("");
  } else {
    Txt_CodeAbs.SetText(resultatsAbsence_.Vue(static_cast<int>(trouve - libelles.begin()) + 1, 1));
  }
}

void Frm_MotifCDD::Cbo_Absence_LostFocus() {
  if (Txt_CodeAbs.Text().empty()) Cbo_Absence.SetText("");
}

void Frm_MotifCDD::Cmd_AjouterAidant_Click() {
  enCreationAidant_ = true;
  Degrise_Liste();
  Txt_CodeAidant.SetFocus();
}

void Frm_MotifCDD::Lst_AidantRemplace_DblClick() {
  const int ligne = Lst_AidantRemplace.ListIndex();
  if (ligne < 0) return;
  enCreationAidant_ = false;
  ligneAidant_ = ligne;
  Degrise_Liste();
  Txt_CodeAidant.SetEnabled(false);
  Cbo_AidantRemplace.SetEnabled(false);
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
    Cbo_Absence.SetEnabled(false);
    Cmd_OkAidant.SetEnabled(false);
    return;
  }
  Txt_CodeAidant.SetText(ligne.code);
  Cbo_AidantRemplace.SetText(ligne.nom);
  Cbo_Absence.SetText(ligne.absence);
  Txt_CodeAbs.SetText(ligne.cleAbsence);
}

void Frm_MotifCDD::Verif_AidantRemplacant() {
  struct Controle {
    bool (Frm_MotifCDD::*refuse)() const;
    const char* message;
    const char* champ;  // takes the focus; "" for none
  };
  static constexpr Controle Controles[] = {
      {&Frm_MotifCDD::SansCode, "Le code de l'aidant est obligatoire.", "Txt_CodeAidant"},
      {&Frm_MotifCDD::SansNom, "L'aidant doit être renseigné.", "Cbo_AidantRemplace"},
      {&Frm_MotifCDD::SeRemplaceLuiMeme, "L'aidant ne peut pas se remplacer lui-même.", ""},
      {&Frm_MotifCDD::DejaDansLaListe, "Cet aidant a déjà été ajouté à la liste.", ""},
  };
  erreurAidant_ = false;
  for (const Controle& controle : Controles) {
    if (!(this->*controle.refuse)()) continue;
    erreurAidant_ = true;
    MessageBox(controle.message, Boutons::Ok, Icone::Information);
    if (screen::Field* champ = Find(controle.champ)) champ->SetFocus();
    return;
  }
}

bool Frm_MotifCDD::SansCode() const {
  return Txt_CodeAidant.Text().empty();
}

bool Frm_MotifCDD::SansNom() const {
  return Cbo_AidantRemplace.Text().empty();
}

bool Frm_MotifCDD::SeRemplaceLuiMeme() const {
  return Txt_CodeAidant.Text() == Etq_CodeAidant.Libelle();
}

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
  if (!Completer_CodeAidant()) return;
  Verif_AidantRemplacant();
  if (erreurAidant_) return;
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
  if (enCreationAidant_ && MessageBox(QuitterCreation, Boutons::OuiNon, Icone::Question,
                                      SansTitre) != screen::Reponse::Oui) {
    return;
  }
  Grise_Liste();
}

void Frm_MotifCDD::Cmd_SupprimerAidant_Click() {
  if (MessageBox(SupprimerLigne, Boutons::OuiNon, Icone::Exclamation) != screen::Reponse::Oui) {
    return;
  }
  Lst_AidantRemplace.RemoveItem(ligneAidant_);
  Grise_Liste();
}

}  // namespace dialogs
