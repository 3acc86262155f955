// Changing tabs: what the frame shows, enables and refuses on the way.

#include <algorithm>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "editor/editeur.h"

namespace editor {

namespace {

// Rows that the list of activities shows at a time.
constexpr int LignesActivites = 6;

// The bar beside a list that shows `lignes` rows at a time.
void Maj_Bdv(screen::ScrollBar& barre, const screen::ListBox& liste, int lignes) {
  barre.SetMax(std::max(liste.ListCount() - 1, 0));
  barre.SetVisible(liste.ListCount() > lignes);
  barre.SetValue(0);
}

}  // namespace

void Frm_ElementsContrat::Ong_Contrat_Click(int ancien) {
  if (!origine.Txt_DatDebContrat.Text().empty()) origine.Txt_DatDebContrat_LostFocus();
  if (Ong_Contrat.Tab() == ElementsPaie) ActiverActivites();
  if (Ong_Contrat.Tab() == FinContrat && BulletinAFacturer()) Ong_Contrat.SetTab(ancien);
  MontrerParts();
}

// The activity group of the third tab, by agreement, status and mode. Private employers' staff have
// none; administrative staff split their time from the start of the contract on, so that without
// one there is nothing to split yet.
void Frm_ElementsContrat::ActiverActivites() {
  const bool particuliers = ConventionParticuliers();
  const bool administratif = origine.Opt_Administratif.Value();
  const bool actif = !administratif || !origine.Txt_DatDebContrat.Text().empty();
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &paie.Cbo_PeriodeEffetAffichage, &paie.Etq_PeriodeEffet, &paie.Cmd_AjoutePeriodeEffet}) {
    champ->SetVisible(administratif && !particuliers);
    champ->SetEnabled(actif);
  }
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &paie.Cbo_Activite, &paie.Etq_ListeActivite, &paie.Cdr_AffectActiv}) {
    champ->SetVisible(!particuliers);
    champ->SetEnabled(actif);
  }
  for (screen::Button* bouton : {&paie.Cmd_OKActivite, &paie.Cmd_AnnulerActivite}) {
    bouton->SetVisible(!particuliers && (bouton != &paie.Cmd_OKActivite || DroitComplet()));
    bouton->SetEnabled(actif && !session_.ModeCreation);
  }
  if (!particuliers) return;
  for (screen::Field* champ : std::initializer_list<screen::Field*>{
           &paie.Lst_RepartActContrat, &paie.Txt_RepartActContrat, &paie.Txt_ActiviteContrat}) {
    champ->SetVisible(false);
  }
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
           &paie.Cmd_AnnulerActivite}) {
    champ->SetVisible(true);
  }
  paie.Cmd_OKActivite.SetVisible(DroitComplet());
  caracteristiques.Cdr_Lissage.SetVisible(false);
  Maj_Bdv(paie.VS_Bdv, paie.Lst_ActiviteContrat, LignesActivites);
}

}  // namespace editor
