#include "control/vue_contrats.h"

#include <algorithm>

#include "control/ctr_contrat.h"
#include "control/description.h"
#include "screen/attente.h"

namespace control {

Compte VueContrats::Compter() const {
  return compter(liste_.Contrats().Tous(), liste_.Services().poste.Aujourdhui());
}

EtatContrat VueContrats::Etat(const ContratAidant& contrat) const {
  return etatContrat(contrat, liste_.Services().poste.Aujourdhui());
}

Frise VueContrats::FaireFrise() const {
  return faireFrise(liste_.Contrats().Tous(), std::nullopt, liste_.Services().poste.Aujourdhui());
}

Frise VueContrats::FaireFriseEnMain(int rangsMax) const {
  const long aujourdhui = liste_.Services().poste.Aujourdhui();
  const auto enMain = liste_.EnMain();
  Frise frise = faireFrise(liste_.Contrats().Tous(), enMain, aujourdhui);
  if (frise.rangs <= rangsMax || !enMain || enMain->portee.association.empty()) return frise;
  return faireFriseBande(liste_.Contrats().Tous(), *enMain, aujourdhui);
}

std::string VueContrats::Dire(const Barre& barre) const {
  return direBarre(barre);
}

std::string VueContrats::Decrire(const std::string& cle) const {
  data::CItem contrat;
  if (!liste_.Etat().F_CONTRAT.Lire(cle, contrat)) return "";
  return decrireContrat(liste_.Etat(), contrat, liste_.Services().poste.Aujourdhui());
}

std::string VueContrats::Nommer(const rules::Portee& portee) const {
  return nommerPortee(liste_.Etat(), portee);
}

int VueContrats::Masques() const {
  return Compter().Vivants() - liste_.Lst_DatDebContrat.ListCount();
}

std::string VueContrats::DirePourquoiSansAjout() const {
  if (!liste_.Etat().DroitComplet()) {
    return "Consultation : vos droits ne permettent ni ajout ni modification.";
  }
  return liste_.W_EtatSuppAidant ? "Aidant supprimé : aucun contrat ne peut être ajouté." : "";
}

std::string VueContrats::DireVide() const {
  if (liste_.Lst_DatDebContrat.ListCount() > 0) return "";
  if (!liste_.Lst_DatDebContrat.Enabled()) return "Choisissez les filtres, puis Recherche (F5).";
  if (!liste_.Contrats().Lus()) return "Les contrats n'ont pas pu être lus.";
  if (Compter().Vivants() > 0) return "Aucun contrat sous ces filtres.";
  const std::string sansAjout = DirePourquoiSansAjout();
  return "Cet aidant n'a aucun contrat. " +
         (sansAjout.empty() ? "Ajouter (Inser) en crée un." : sansAjout);
}

void VueContrats::Relire() {
  const std::string choisi = Choisi();
  {
    screen::Attente attente(liste_);
    liste_.Recherche_Contrat();
    attente.Finir();
  }
  if (const int ligne = LigneDe(choisi); ligne >= 0) liste_.Lst_DatDebContrat.SetListIndex(ligne);
}

void VueContrats::LeverEntite() {
  liste_.Cbo_Association.SetText("");
}

void VueContrats::MontrerTout() {
  LeverEntite();
  liste_.Affiche("", "", "");
}

void VueContrats::Montrer(EtatContrat etat) {
  LeverEntite();
  liste_.Affiche("", "", etat == EtatContrat::Termine ? "H" : "A");
  for (int i = 1; i <= liste_.ClesContrats().DCount(); ++i) {
    const auto& contrats = liste_.Contrats().Tous();
    const std::string cle = liste_.ClesContrats()(i);
    const auto contrat = std::find_if(contrats.begin(), contrats.end(),
                                      [&](const ContratAidant& c) { return c.cle == cle; });
    if (contrat == contrats.end() || Etat(*contrat) != etat) continue;
    liste_.Lst_DatDebContrat.SetListIndex(i - 1);
    return;
  }
}

bool VueContrats::Choisir(const std::string& cle) {
  const auto& contrats = liste_.Contrats().Tous();
  const auto contrat = std::find_if(contrats.begin(), contrats.end(),
                                    [&](const ContratAidant& c) { return c.cle == cle; });
  if (contrat == contrats.end() || contrat->annule) return false;
  if (LigneDe(cle) < 0) MontrerTout();
  const int ligne = LigneDe(cle);
  if (ligne < 0) return false;
  liste_.Lst_DatDebContrat.SetListIndex(ligne);
  liste_.Lst_DatDebContrat.SetFocus();
  return true;
}

void VueContrats::Ouvrir(const std::string& cle) {
  if (Choisir(cle)) liste_.Appel_Contrat();
}

std::string VueContrats::Choisi() const {
  const int ligne = liste_.Lst_DatDebContrat.ListIndex();
  return ligne < 0 ? "" : liste_.ClesContrats()(ligne + 1);
}

int VueContrats::LigneDe(const std::string& cle) const {
  for (int i = 1; i <= liste_.ClesContrats().DCount(); ++i) {
    if (liste_.ClesContrats().Vue(i) == cle) return i - 1;
  }
  return -1;
}

}  // namespace control
