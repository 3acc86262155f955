#include "dialogs/frm_reprise.h"

#include "screen/touches.h"
#include "session/saisie.h"

namespace dialogs {

Frm_Reprise::Frm_Reprise(screen::Platform& platform, session::Dossier& dossier)
    : Dialogue(platform, dossier, "Frm_Reprise", "Reprise des données du contrat précédent") {
  Frm_ContratPrec.SetEnabled(false);
  LierDateRecalculee(Txt_DebGrilleRecalc);
  LierDateRecalculee(Txt_DebAncRecalc);
  Cmd_Ok.Click = [this] { Cmd_Ok_Click(); };
  Cmd_Annuler.Click = [this] { Cmd_Annuler_Click(); };
}

void Frm_Reprise::Afficher(const DonneesReprise& donnees) {
  Etq_Aidant.SetLibelle(donnees.aidant);
  Txt_DateDeb.SetText(donnees.debut);
  Txt_DateFin.SetText(donnees.fin);
  (donnees.determinee ? Opt_Cdd : Opt_Cdi).SetValue(true);
  Txt_DebGrille.SetText(donnees.avecGrille ? donnees.departGrille : "");
  Txt_JoursSusp.SetText(donnees.joursGrille);
  Txt_DateRef.SetText(donnees.referenceGrille);
  Txt_DebAnc.SetText(donnees.departAnciennete);
  Txt_JoursSuspAnc.SetText(donnees.joursAnciennete);
  Txt_DateRefAnc.SetText(donnees.referenceAnciennete);
  Cac_CpMois.SetValue(donnees.congesAuMois ? 1 : 0);

  NouvelleDateGrille = donnees.avecGrille ? donnees.grilleProposee : "";
  NouvelleDateAnciennete = donnees.ancienneteProposee;
  Txt_DebGrilleRecalc.SetText(NouvelleDateGrille);
  Txt_DebGrilleRecalc.SetEnabled(donnees.avecGrille);
  Txt_DebAncRecalc.SetText(NouvelleDateAnciennete);
  Cac_CpPerenne.SetEnabled(donnees.congesReprenables);
}

// Whatever parts the digits, a "/" is typed.
void Frm_Reprise::LierDateRecalculee(screen::TextField& champ) {
  champ.KeyPress = [](char32_t& touche) {
    if (touche != screen::ToucheRetour && !screen::estChiffre(touche)) touche = U'/';
  };
  champ.LostFocus = [this, &champ] { DateRecalculee_LostFocus(champ); };
}

void Frm_Reprise::DateRecalculee_LostFocus(screen::TextField& champ) {
  if (champ.Text().empty() || !session::QuitterDate(session_, champ)) return;
  if (session_.Lib.LireDate(champ.Text())) return;
  MessageBox(session::ErreurDate, screen::Boutons::Ok, screen::Icone::Exclamation);
  champ.SetFocus();
}

void Frm_Reprise::Cmd_Ok_Click() {
  if (!Txt_DebGrilleRecalc.Text().empty()) NouvelleDateGrille = Txt_DebGrilleRecalc.Text();
  if (!Txt_DebAncRecalc.Text().empty()) NouvelleDateAnciennete = Txt_DebAncRecalc.Text();
  RepriseCalcul = Cac_CpPerenne.Value() != 0 ? "O" : "N";
  RepriseRefusee = false;
  Sortir();
}

void Frm_Reprise::Cmd_Annuler_Click() {
  RepriseRefusee = true;
  Sortir();
}

}  // namespace dialogs
