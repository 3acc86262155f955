#include "dialogs/frm_anomalies_ajoutgraph.h"

#include <algorithm>

#include "dialogs/imprimantes.h"

namespace dialogs {

namespace {

// Line breaks that the box shows without scrolling.
constexpr int LignesVisibles = 21;

}  // namespace

Frm_AnomaliesAjoutgraph::Frm_AnomaliesAjoutgraph(screen::Platform& platform,
                                                 session::Dossier& dossier, Rapport rapport)
    : Dialogue(platform, dossier, "Frm_AnomaliesAjoutgraph", "Incidences planning"),
      rapport_(std::move(rapport)),
      aide_(platform.aide) {
  Text1.SetMultiligne(true);
  Text1.SetText(rapport_.texte);
  // Read and scrolled, not typed into.
  Text1.KeyPress = [](char32_t& touche) { touche = 0; };
  Label1.SetVisible(std::count(rapport_.texte.begin(), rapport_.texte.end(), '\n') <=
                    LignesVisibles);
  Cmd_Ok.SetLibelle(rapport_.determine ? "Oui" : "Ok");
  screen::Montrer({&Cmd_Non, &Etq_DefinitionOui, &Etq_DefinitionNon}, rapport_.determine);
  screen::Activer({&Mnu_Aide, &Mnu_Sommaire}, false);
  Cmd_Ok.Click = [this] { Repondre(true, true); };
  Cmd_Non.Click = [this] { Repondre(true, false); };
  Cmd_Annuler.Click = [this] { Repondre(false, false); };
  Cmd_Imprimer.Click = [this] { Cmd_Imprimer_Click(); };
  Mnu_Sommaire.Click = [this] { aide_.Sommaire(); };
}

void Frm_AnomaliesAjoutgraph::MouseDown(int bouton) {
  if (bouton != session::BoutonDroit) return;
  screen::Activer({&Mnu_Aide, &Mnu_Sommaire}, true);
  Services().modales.MontrerMenu(*this, Mnu_Aide.Nom());
}

void Frm_AnomaliesAjoutgraph::Repondre(bool acceptees, bool appliquer) {
  AnomaliesAcceptees = acceptees;
  PlanningAApplier = appliquer;
  Sortir();
}

void Frm_AnomaliesAjoutgraph::Cmd_Imprimer_Click() {
  screen::Imprimante& imprimante = Services().imprimante;
  const auto noms = imprimante.Noms();
  const int choisie = PrinterIndex(Services());
  if (noms.empty()) {
    MessageBox("Aucune imprimante n'est installée sur ce poste.", screen::Boutons::Ok,
               screen::Icone::Exclamation);
    return;
  }
  imprimante.Choisir(choisie);
  std::vector<std::string> lignes{
      " ", "Aidant    : " + session_.CodeAidant + " " + session_.NomPrenomAidant,
      "Employeur : " + rapport_.employeur, " "};
  for (std::string& ligne : lignesDe(rapport_.texte)) lignes.push_back(std::move(ligne));
  imprimerTexte(imprimante, estMatricielle(noms[static_cast<std::size_t>(choisie)]),
                "Anomalies sur contrat de travail", lignes);
}

}  // namespace dialogs
