#pragma once
// Entering how an administrative contract splits its time, one effect period at a time.
//
// The split on the screen is that of the period shown. It is changed line by line; as long as its
// lines do not add up to the whole, everything else on the screen is closed, so that no half split
// is left behind. When they do, it is kept under its period. A further period can be added while
// payroll has it open; the first one of a contract is that of its start.

#include <functional>

#include "editor/paie_lignes.h"
#include "editor/paie_offre.h"
#include "session/session.h"
#include "session/sourdine.h"

namespace editor {

// The fields of the frame of activities, in tab order.
struct ChampsActivites {
  explicit ChampsActivites(screen::Frame& page) : Page(page) {}

  screen::Frame& Page;
  screen::Frame Cdr_AffectActiv{Page, "Cdr_AffectActiv", "Affectation des activités"};
  screen::Label Etq_PeriodeEffet{Cdr_AffectActiv, "Etq_PeriodeEffet", "Période d'effet"};
  // Holds the periods as the record does; Cbo_PeriodeEffetAffichage shows them.
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
  screen::Label Etq_TotalRepart{Cdr_AffectActiv, "Etq_TotalRepart"};
  screen::Button Cmd_OKActivite{Cdr_AffectActiv, "Cmd_OKActivite", "OK"};
  screen::Button Cmd_AnnulerActivite{Cdr_AffectActiv, "Cmd_AnnulerActivite", "Annuler"};
};

class SaisieRepartition {
 public:
  // `griser` closes or opens what is not part of the entry. `sourdine` is the tab's.
  SaisieRepartition(ChampsActivites& champs, LignesActivites& lignes, const OffreActivites& offre,
                    session::Session& session, session::Sourdine& sourdine,
                    std::function<void(bool)> griser);

  // Nothing is split: the beginning of a contract.
  void Oublier();
  // The splits of a contract on file; the one in force is shown.
  void Lire(const data::CItem& contrat);
  const rules::Repartition& TabActivite() const { return tab_; }
  // The displayed start of the contract, from whose period a first split holds.
  void SetDebut(const std::string& dateDebut) { dateDebut_ = dateDebut; }
  // Lines that came by themselves into a new contract are split from the period of its start on,
  // which may still move.
  void SuivreDebut();

  // An activity has been chosen, to be given its share.
  void Entamer(const std::string& code, const std::string& libelle);
  // A line is taken up again, to change its share or to give it none.
  void Reprendre(int ligne);
  void Selectionner(int ligne) { choisie_ = ligne; }
  // The lines are no more what they were entered as.
  void Maj_Total();

  bool PeriodeManque() const { return Periode().empty(); }

 private:
  const std::string& Periode() const { return champs_.Cbo_PeriodeEffet.Text(); }
  void Lier();
  void MontrerPeriodes(const std::vector<std::string>& periodes, const std::string& montree);
  std::vector<std::string> Periodes() const;
  void MontrerRepartition();
  void Cbo_PeriodeEffet_Click();
  void Cmd_OKActivite_Click();
  void Ranger();
  void Cmd_AnnulerActivite_Click();
  void Cmd_AjoutePeriodeEffet_Click();
  void CommencerPeriode(const std::vector<std::string>& offertes);
  void FermerLigne();
  void Fermer();
  void Indiquer(const screen::Field& champ, const std::string& texte) const;

  ChampsActivites& champs_;
  LignesActivites& lignes_;
  const OffreActivites& offre_;
  session::Session& session_;
  session::Sourdine& sourdine_;
  std::function<void(bool)> griser_;

  rules::Repartition tab_;
  bool ajoutPeriodeEnCours_ = false;
  // The period of the first split is that of the start of a new contract.
  bool periodeDuDebut_ = false;
  std::string dateDebut_;
  // The line selected, -1 for none; the activity chosen for a further line, "" for none.
  int choisie_ = -1;
  std::string codeEnCours_;
};

}  // namespace editor
