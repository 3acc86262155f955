#pragma once
// Third tab, "Elements de paie": profiles, payment, mutual insurance, provident scheme, ceilings
// and activities.
//
// Its page takes no user act yet: what stands here follows the first tab.

#include "data/liste_codes.h"
#include "editor/onglet.h"

namespace editor {

class OngletPaie : public Onglet {
 public:
  explicit OngletPaie(Frm_ElementsContrat& editeur);

  void Afficher_Ong3();
  bool Ecrire_Ong3(bool verifiee);
  void Entrer() override;
  void SelonConvention(const std::string& convention) override;
  void ProposerSelonConvention(const std::string& convention);
  // Administrative staff alone split their time over activities by share and period.
  void SelonStatut(bool administratif, bool particuliers);
  // One share for each activity of an administrative contract.
  void MontrerParts();
  // A new contract begins anew on every visit, by what the first tab says meanwhile.
  bool AReafficher() const override { return Onglet::AReafficher() || Creation(); }
  // Remote time-tracking is in use in the entity of the contract.
  void SelonTelegestion(bool utilisee);

  // The activities that the entity offers to a contract of its kind. False when a new contract
  // finds none: the user has been told.
  bool ChoisirEntite(const std::string& entite, bool particuliers);
  void ViderActivites();
  // The provident contract of a private employer, unless it has run out, is the contract's own.
  void PrevoyanceEmployeur(const std::string& employeur);
  void OublierPrevoyance();
  // The employer had no provident scheme yet when the contract starts.
  void QuitterPrevoyance() { Txt_PrevContrat.SetText(""); }

  // The type of the contract's first activity: "M" for a private employer's, "P" for the entity's.
  std::string TypeActivite() const;
  // The activities of the entity, with their types, and the labels of the contract's own.
  const data::ListeCodes& ActivitesOffertes() const { return ListeActivites_; }
  std::vector<std::string> Activites() const;
  // The private employer is billed for leave that is provisioned.
  bool ProvisionFacturee() const;
  // The contract is paid otherwise than on file.
  bool ModePaiementChange() const;
  // A transfer needs bank details: refused here, when the carer has none. `modePaiement`: the word
  // "paiement" as that place spells it.
  bool RibManquant(const char* modePaiement);

 private:
  void Afficher_Ong() override { Afficher_Ong3(); }
  bool Ecrire_Ong(bool verifiee) override { return Ecrire_Ong3(verifiee); }
  void Vider_Ong() override;
  void SelonDroits(bool complet) override;
  data::CItem Gestion_Activite(const std::string& entite, bool particuliers) const;
  void RemplirPrevoyance(const std::string& convention);
  void ActiverActivites();

  // The activities that Cbo_Activite offers; the mark is their type.
  data::ListeCodes ListeActivites_;
  // The provident contracts that Cbo_LibPrevContrat offers.
  data::ListeCodes ListePrev_;
  // The provident contract of the private employer, which the contract takes whatever is shown;
  // "" when there is none in force.
  std::string PrevContratPrecedent_;

  // Profiles and payment.
  screen::Label Etq_ProfilContrat{Page, "Etq_ProfilContrat", "Profil n° 1"};
  screen::TextField Txt_ProfilContrat{Page, "Txt_ProfilContrat", 3};
  screen::ComboBox Cbo_LibProfilContrat{Page, "Cbo_LibProfilContrat", true};
  screen::Label Etq_ProfilContrat2{Page, "Etq_ProfilContrat2", "Profil n° 2"};
  screen::TextField Txt_ProfilContrat2{Page, "Txt_ProfilContrat2", 3};
  screen::ComboBox Cbo_LibProfilContrat2{Page, "Cbo_LibProfilContrat2", true};
  screen::Label Etq_ModPaieContrat{Page, "Etq_ModPaieContrat", "Mode de Paiement"};
  screen::ComboBox Cbo_ModPaieContrat{Page, "Cbo_ModPaieContrat", false};
  screen::CheckBox Cac_PaieSalContrat{Page, "Cac_PaieSalContrat",
                                      "Paiement du salaire par l'association"};
  screen::CheckBox Cac_CPMoisContrat{Page, "Cac_CPMoisContrat", "Congés payés au mois"};
  screen::CheckBox Cac_ProvCP{Page, "Cac_ProvCP", "Provision des congés"};

  // Mutual insurance and provident scheme.
  screen::Frame Cdr_Mutuelle{Page, "Cdr_Mutuelle", "Mutuelle "};
  screen::Label Etq_MutSalContrat{Cdr_Mutuelle, "Etq_MutSalContrat", "Part Salariale"};
  screen::TextField Txt_MutSalContrat{Cdr_Mutuelle, "Txt_MutSalContrat", 8};
  screen::Label Etq_MutPatContrat{Cdr_Mutuelle, "Etq_MutPatContrat", "Part Patronale"};
  screen::TextField Txt_MutPatContrat{Cdr_Mutuelle, "Txt_MutPatContrat", 8};
  screen::Label Etq_ChargMutContrat{Cdr_Mutuelle, "Etq_ChargMutContrat", "Rub. de charge"};
  screen::TextField Txt_ChargMutContrat{Cdr_Mutuelle, "Txt_ChargMutContrat", 3};
  screen::ComboBox Cbo_ChargMutContrat{Cdr_Mutuelle, "Cbo_ChargMutContrat", true};
  screen::Frame Cdr_RegimePrev{Page, "Cdr_RegimePrev", "Regime de prévoyance "};
  screen::Label Etq_PrevContrat{Cdr_RegimePrev, "Etq_PrevContrat", "Contrat prévoyance"};
  screen::TextField Txt_PrevContrat{Cdr_RegimePrev, "Txt_PrevContrat", 2};
  screen::ComboBox Cbo_LibPrevContrat{Cdr_RegimePrev, "Cbo_LibPrevContrat", true};
  screen::Label Etq_IdentCRCContrat{Page, "Etq_IdentCRCContrat", "Identification CRC"};
  screen::TextField Txt_IdentCRCContrat{Page, "Txt_IdentCRCContrat", 0};
  screen::Label Etq_CartOrangContrat{Page, "Etq_CartOrangContrat", "Zone carte orange"};
  screen::ComboBox Cbo_CartOrangContrat{Page, "Cbo_CartOrangContrat", true};
  screen::Label Etq_PlafSecu{Page, "Etq_PlafSecu", "Plaf. sécu. mensuel individualisé"};
  screen::TextField Txt_PlafSecu{Page, "Txt_PlafSecu", 10};
  screen::Label Etq_AssietteSecu{Page, "Etq_AssietteSecu", "Assiette sécurité sociale"};
  screen::TextField Txt_AssietteSecu{Page, "Txt_AssietteSecu", 10};

  // Activities by effect period.
  screen::Frame Cdr_AffectActiv{Page, "Cdr_AffectActiv", "Affectation des activités"};
  screen::Label Etq_PeriodeEffet{Cdr_AffectActiv, "Etq_PeriodeEffet", "Période d'effet"};
  screen::ComboBox Cbo_PeriodeEffet{Cdr_AffectActiv, "Cbo_PeriodeEffet", false};
  screen::ComboBox Cbo_PeriodeEffetAffichage{Cdr_AffectActiv, "Cbo_PeriodeEffetAffichage", false};
  screen::Button Cmd_AjoutePeriodeEffet{Cdr_AffectActiv, "Cmd_AjoutePeriodeEffet", "Ajouter"};
  screen::Label Etq_ListeActivite{Cdr_AffectActiv, "Etq_ListeActivite", "Activités"};
  screen::ComboBox Cbo_Activite{Cdr_AffectActiv, "Cbo_Activite", false};
  screen::TextField Txt_ActiviteContrat{Cdr_AffectActiv, "Txt_ActiviteContrat", 0};
  screen::TextField Txt_RepartActContrat{Cdr_AffectActiv, "Txt_RepartActContrat", 6};
  screen::ListBox Lst_ActiviteContrat{Cdr_AffectActiv, "Lst_ActiviteContrat"};
  screen::ListBox Lst_RepartActContrat{Cdr_AffectActiv, "Lst_RepartActContrat"};
  screen::ScrollBar VS_Bdv{Cdr_AffectActiv, "VS_Bdv"};
  screen::Button Cmd_OKActivite{Cdr_AffectActiv, "Cmd_OKActivite", "OK"};
  screen::Button Cmd_AnnulerActivite{Cdr_AffectActiv, "Cmd_AnnulerActivite", "Annuler"};

  // Dialogs.
  screen::Button Cmd_RubSaisie{Page, "Cmd_RubSaisie", "Rubriques de saisie"};
  screen::Button Cmd_Comment{Page, "Cmd_Comment", "Commentaires sur bulletin"};
  screen::Button Cmd_Telegestion{Page, "Cmd_Telegestion", "Droits télégestion"};
  screen::Button Cmd_TpsIndem{Page, "Cmd_TpsIndem", "Temps d'indemnisation"};
};

}  // namespace editor
