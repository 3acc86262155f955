#pragma once
// What a host can show of a carer's contracts beside the list, and the ways from there into it:
// counts, words for one contract, words for an empty list. Reads labels when they are asked for.
//
// Works on a list control, which outlives it.

#include <string>

#include "control/contrat_aidant.h"
#include "control/frise.h"

namespace control {

class Ctr_Contrat;

class VueContrats {
 public:
  explicit VueContrats(Ctr_Contrat& liste) : liste_(liste) {}

  // Of the contracts as they were last read; today is the workstation's.
  Compte Compter() const;
  EtatContrat Etat(const ContratAidant& contrat) const;

  // On a time axis; with the contract of the editor as it stands there, alone with those that it
  // must not overlap where all of them take more rows than `rangsMax`.
  Frise FaireFrise() const;
  Frise FaireFriseEnMain(int rangsMax) const;
  // What a bar means, in a sentence: "Contrat 061, du 01/02/2026 au 24/01/2027 (fin présumée), en
  // cours".
  std::string Dire(const Barre& barre) const;
  // The rows of a tooltip: number, dates, establishment or employer, nature, presumed end, end of
  // the trial. "" for a contract that is not on file.
  std::string Decrire(const std::string& cle) const;
  // The entity or the private employer of a band, by name.
  std::string Nommer(const rules::Portee& portee) const;

  // What an empty list says, in one or two sentences; "" for a list with rows.
  std::string DireVide() const;
  // Contracts that the filters hide: how many MontrerTout adds to the list.
  int Masques() const;
  // Why nothing can be added, "" where something can.
  std::string DirePourquoiSansAjout() const;

  // Reads the list that is shown again, under the filters chosen; its row stays selected.
  void Relire();
  // Searches without any filter, under the sort chosen.
  void MontrerTout();
  // Searches by the filter that has the contracts of that state, and selects the first of them.
  void Montrer(EtatContrat etat);
  // Selects the row of that contract, which lifts the filters that hide it. False for one that has
  // no row under any: it was cancelled, or is none of this carer's.
  bool Choisir(const std::string& cle);
  // Opens it from its row, under the same condition.
  void Ouvrir(const std::string& cle);
  // The key of the selected row, "" for none.
  std::string Choisi() const;

 private:
  int LigneDe(const std::string& cle) const;
  void LeverEntite();

  Ctr_Contrat& liste_;
};

}  // namespace control
