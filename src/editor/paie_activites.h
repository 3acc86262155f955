#pragma once
// The activities of the contract: what its entity offers, what it has. Production staff have a
// plain list of activities of one kind; administrative staff split their time over theirs, which
// paie_repartition.h enters. A private employer's contract has his activity; there is something to
// choose only where he has several.

#include "data/liste_codes.h"
#include "editor/paie_offre.h"
#include "editor/paie_repartition.h"

namespace editor {

class Frm_ElementsContrat;

class PaieActivites {
 public:
  // `griser` closes or opens what is not part of the entry of a split. `sourdine` is the tab's.
  PaieActivites(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine,
                std::function<void(bool)> griser);

  // The activities that the entity offers to a contract of its kind; the only one is taken. False
  // when a new contract finds none: the user has been told.
  bool ChoisirEntite(const std::string& entite, bool particuliers);
  // Nothing is offered and nothing taken.
  void Oublier();
  void Afficher();
  // What a new contract takes by itself; again on every visit.
  void AfficherNouveau();
  // Other activities are offered to the other status: what is not among them goes.
  void ChangerStatut();
  void SelonStatut(bool administratif, bool particuliers);
  void SelonDroits(bool complet) { champs_.Cmd_OKActivite.SetVisible(complet); }
  // The group, by agreement, status and mode.
  void Activer();
  // One share for each activity of an administrative contract.
  void MontrerParts();

  // Run again on other lines, it leaves what a single run on them would.
  void Ecrire(data::CItem& contrat);

  bool Manquent() const { return lignes_.Nombre() == 0; }
  bool PeriodeManque();
  bool TotalFaux();
  // An activity of the entry headings is not among the contract's.
  bool RubriqueSansActivite() const;
  // What the entity offers; the mark is the type.
  const data::ListeCodes& Offertes() const { return offre_.ListeActivites(); }
  // The activities that the contract will have.
  const std::vector<std::string>& Codes() const { return lignes_.Codes(); }
  // The same with their labels.
  std::vector<data::ListeCodes::Ligne> Activites() const;
  // The type of the first one, "M" for a private employer's, "P" for the entity's; "" without any.
  // Before the tab was shown, the contract in hand answers.
  std::string Type() const;

 private:
  void PrendreLaSeule();
  void RetirerAutres();
  void Remplir_TabActivite();
  void Cbo_Activite_Click();
  void Lst_ActiviteContrat_DblClick(int ligne);
  void SuivreDebut();
  bool Creation() const;

  Frm_ElementsContrat& editeur_;
  session::Sourdine& sourdine_;
  ChampsActivites champs_;
  OffreActivites offre_;
  LignesActivites lignes_;
  SaisieRepartition saisie_;
  // The lines as they came from the contract on file.
  std::vector<std::string> lues_;
};

}  // namespace editor
