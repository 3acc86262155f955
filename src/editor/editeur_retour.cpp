// Cmd_Retour: leaving the editor, with the question whether to save what was changed, and the
// clearing of the screen for the next contract.

#include <algorithm>

#include "data/layouts/contrat.h"
#include "editor/editeur.h"

namespace editor {

namespace {

using screen::Boutons, screen::Icone, screen::Reponse;

constexpr int Virement = 0;  // row of Cbo_ModPaieContrat

// Fields whose content is not a text that the walk empties.
constexpr std::string_view PrefixesGardes[] = {"Cdr", "Cmd", "Ctr", "Etq", "Img",
                                               "Ong", "Opt", "Cac", "Bdh"};

void vider(screen::Field& champ) {
  switch (champ.Genre()) {
    case screen::Kind::Texte:
      static_cast<screen::TextField&>(champ).SetText("");
      break;
    case screen::Kind::Deroulante:
      static_cast<screen::ComboBox&>(champ).SetText("");
      break;
    case screen::Kind::Liste:
      static_cast<screen::ListBox&>(champ).Clear();
      break;
    default:
      break;
  }
}

}  // namespace

void Frm_ElementsContrat::Cmd_Retour_Click() {
  if (session_.ModeCreation) {
    QuitterCreation();
    return;
  }
  {
    screen::Attente attente(*this);
    EcritureVerifiee = false;
    origine.Ecrire_Ong1();
    attente.Finir();
  }
  ValidationEnCours = true;
  if (!DroitComplet() || ProposerEnregistrement()) Refermer();
}

void Frm_ElementsContrat::QuitterCreation() {
  if (DroitComplet() && MessageBox("Etes-vous sûr de vouloir quitter cette création ?",
                                   Boutons::OuiNon, Icone::Exclamation) != Reponse::Oui) {
    return;
  }
  AbandonnerCreation();
  session_.CreationAbandonnee = true;
}

// True when the editor may close.
bool Frm_ElementsContrat::ProposerEnregistrement() {
  if (!SuiviModifie && session_.ItemContrat.Text() == session_.TexteContratInitial) {
    return !RibManquant("paiment");
  }
  Services().curseur.Bip();
  switch (MessageBox("Voulez-vous enregistrer les modifications apportées à cet article ?",
                     Boutons::OuiNonAnnuler, Icone::Exclamation)) {
    case Reponse::Oui:
      return EcrireEnQuittant();
    case Reponse::Non:
      return !ModePaiementChange() || !RibManquant("paiment");
    default:
      return false;
  }
}

bool Frm_ElementsContrat::ModePaiementChange() const {
  const data::CItem initial(session_.TexteContratInitial);
  return initial.Vue(data::Contrat::ModePaiement) !=
         std::to_string(paie.Cbo_ModPaieContrat.ListIndex() + 1);
}

// A transfer needs bank details. `modePaiement`: the word "paiement" as that place spells it.
bool Frm_ElementsContrat::RibManquant(const char* modePaiement) {
  if (paie.Cbo_ModPaieContrat.ListIndex() != Virement) return false;
  if (session_.F_RIBAIDANT.Lire(Etq_CodeAidant.Libelle(), session_.ItemRibAidant)) return false;
  MessageBox("Vous ne pouvez pas sélectionner le mode de " + std::string(modePaiement) +
                 " virement\r\ncar l'aidant ne possède pas de RIB.",
             Boutons::Ok, Icone::Exclamation);
  Ong_Contrat.SetTab(ElementsPaie);
  paie.Cbo_ModPaieContrat.SetFocus();
  return true;
}

// The save on the way out: the same checks as OK where something could have changed, then the
// writes of an existing contract.
bool Frm_ElementsContrat::EcrireEnQuittant() {
  if (!AccepterDateFin()) return false;
  EcritureVerifiee = true;
  const bool ecrit = origine.Ecrire_Ong1();
  EcritureVerifiee = false;
  if (!ecrit || RibManquant("paiement")) return false;
  screen::Attente attente(*this);
  if (!enregistrement_.Ecrire_Existant()) return false;
  enregistrement_.Maj_IndexAvenants();
  attente.Finir();
  return true;
}

void Frm_ElementsContrat::Vider_Donnees() {
  for (screen::Field* champ : Fields()) {
    const auto prefixe = std::string_view(champ->Nom()).substr(0, 3);
    if (std::find(std::begin(PrefixesGardes), std::end(PrefixesGardes), prefixe) ==
        std::end(PrefixesGardes)) {
      vider(*champ);
    }
  }
  EvenementsActifs = false;
  origine.Opt_Indetermine.SetValue(true);
  origine.Opt_Horaire.SetValue(true);
  origine.Opt_Production.SetValue(true);
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &caracteristiques.Etq_DepartGrilContrat, &caracteristiques.Txt_DepartGrilContrat}) {
    champ->SetEnabled(false);
  }
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &caracteristiques.Etq_CoefNivContrat, &caracteristiques.Txt_CoefNivContrat,
           &caracteristiques.Etq_TauxHorContrat, &caracteristiques.Txt_TauxHorContrat}) {
    champ->SetEnabled(true);
  }
  for (screen::RowsField* liste : std::initializer_list<screen::RowsField*>{
           &paie.Lst_ActiviteContrat, &paie.Lst_RepartActContrat,
           &caracteristiques.Cbo_FoncPCSContrat, &paie.Cbo_Activite}) {
    liste->Clear();
  }
  caracteristiques.Bdh_Avenant.SetValue(0);
  origine.Cmd_Stage.SetVisible(false);
  fin.Cmd_SupprimerContrat.SetVisible(false);
  paie.Txt_PrevContrat.SetVisible(true);
  paie.Cbo_LibPrevContrat.SetVisible(true);
  fin.Cbo_OrgRetraite.SetListIndex(-1);
  fin.Etq_InfoComplMotifFin.SetVisible(false);
  EvenementsActifs = true;
}

}  // namespace editor
