// Changing tabs: what the frame shows, enables and refuses on the way.

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

void Frm_ElementsContrat::Ong_Contrat_Click(int ancien) {
  if (!origine.Txt_DatDebContrat.Text().empty()) origine.Txt_DatDebContrat_LostFocus();
  if (Ong_Contrat.Tab() == ElementsPaie) ActiverActivites();
  if (Ong_Contrat.Tab() == FinContrat && BulletinAFacturer()) Ong_Contrat.SetTab(ancien);
  MontrerParts();
}

// The activity group of the third tab, by agreement, status and mode.
void Frm_ElementsContrat::ActiverActivites() {
  const bool administratif = origine.Opt_Administratif.Value();
  if (ConventionParticuliers()) {
    for (screen::Field* champ : std::initializer_list<screen::Field*>{
             &paie.Cbo_PeriodeEffetAffichage, &paie.Etq_PeriodeEffet, &paie.Cmd_AjoutePeriodeEffet,
             &paie.Cmd_OKActivite, &paie.Cmd_AnnulerActivite, &paie.Lst_RepartActContrat,
             &paie.Txt_RepartActContrat, &paie.Txt_ActiviteContrat}) {
      champ->SetVisible(false);
    }
    return;
  }
  if (origine.Txt_DatDebContrat.Text().empty()) {
    for (screen::Field* champ : std::initializer_list<screen::Field*>{
             &paie.Cbo_PeriodeEffetAffichage, &paie.Etq_PeriodeEffet, &paie.Cmd_AjoutePeriodeEffet,
             &paie.Cbo_Activite, &paie.Etq_ListeActivite, &paie.Cmd_OKActivite,
             &paie.Cmd_AnnulerActivite, &paie.Cdr_AffectActiv}) {
      if (administratif) champ->SetEnabled(false);
    }
    return;
  }
  paie.Cbo_Activite.SetEnabled(true);
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &paie.Cbo_PeriodeEffetAffichage, &paie.Etq_PeriodeEffet, &paie.Cmd_AjoutePeriodeEffet}) {
    champ->SetVisible(administratif);
    champ->SetEnabled(true);
  }
  paie.Cmd_OKActivite.SetEnabled(!session_.ModeCreation);
  paie.Cmd_AnnulerActivite.SetEnabled(!session_.ModeCreation);
}

// A private employer whose leave is provisioned is billed before the contract may end: refuses the
// last tab while the month's invoice is missing.
bool Frm_ElementsContrat::BulletinAFacturer() {
  const std::string periode = session_.ItemContrat(data::Contrat::DernierCalcul);
  if (periode.empty() || !ConventionParticuliers() || paie.Cac_PaieSalContrat.Value() == 0 ||
      paie.Cac_ProvCP.Value() == 0) {
    return false;
  }
  data::CItem employeur;
  session_.Db->OpenFile(data::fichier::ELTSPARTEMP)
      .Lire(origine.Txt_EmplEtabContrat.Text(), employeur);
  if (employeur.Vue(data::EltsPartEmp::DerniereFacture) == periode) return false;
  const std::string cle = Etq_CodeAidant.Libelle() + origine.Txt_NumContrat.Text() + periode;
  if (!session_.F_DETAILCALCUL.Lire(cle, session_.ItemDetailCalcul)) return false;
  if (session_.ItemDetailCalcul.Vue(data::DetailCalcul::Facturation) != "P") return false;
  MessageBox(
      "Vous ne pouvez pas accéder à l'onglet fin de contrat tant que vous n'avez pas fait la "
      "facture du mois de " +
          data::moisAnnee(periode),
      screen::Boutons::Ok, screen::Icone::Exclamation);
  return true;
}

// An administrative contract splits its time over its activities: one share for each of them.
void Frm_ElementsContrat::MontrerParts() {
  if (!origine.Opt_Administratif.Value() || ConventionParticuliers()) return;
  if (paie.Lst_ActiviteContrat.ListCount() == 0) {
    paie.Lst_RepartActContrat.Clear();
  } else if (paie.Lst_RepartActContrat.ListCount() == 0) {
    for (int i = 0; i < paie.Lst_ActiviteContrat.ListCount(); ++i) {
      paie.Lst_RepartActContrat.AddItem("0");
    }
  }
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &paie.Lst_RepartActContrat, &paie.Txt_RepartActContrat, &paie.Txt_ActiviteContrat,
           &paie.Cmd_OKActivite, &paie.Cmd_AnnulerActivite}) {
    champ->SetVisible(true);
  }
  caracteristiques.Cdr_Lissage.SetVisible(false);
}

}  // namespace editor
