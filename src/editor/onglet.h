#pragma once
// One of the five tabs of the contract editor: a room with one door. A tab alone touches its
// fields; what happens elsewhere reaches it through functions that bear names of the trade
// (paie.SelonConvention(...)). The frame works on the five as a row, through the acts below.
//
// A tab's handlers are silent while it is filled, cleared or adapted by program.

#include <string>
#include <vector>

#include "rules/verification.h"
#include "screen/form.h"
#include "session/dossier.h"
#include "session/sourdine.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class Onglet {
 public:
  // Most characters that can be typed.
  static constexpr int LongueurDate = 10;
  static constexpr int LongueurTexte = 30;
  static constexpr int LongueurLibelle = 60;

  virtual ~Onglet() = default;
  Onglet(const Onglet&) = delete;
  Onglet& operator=(const Onglet&) = delete;

  // Fills the tab from the contract in hand; for a new one, with what it begins with. The tab is
  // loaded then, and only a loaded one is checked and written.
  void Afficher();
  bool Charge() const { return charge_; }
  // The checks of the tab, in their order: the first that fails is shown. Those that hold for a tab
  // that was never shown are the others' (VerifFerme).
  bool Verif() { return charge_ ? Verif_Ong() : VerifFerme(); }
  // What stands in the way of writing a tab whose checks have passed: it is shown. Asked after
  // every other check of a save.
  bool Ecrivable() { return !charge_ || Ecrivable_Ong(); }
  // From the fields to the contract in hand. `verifiee`: checks first and refuses with a message;
  // otherwise it copies silently.
  bool Ecrire(bool verifiee);
  // Clears the tab for the next contract.
  void Vider();
  // It is to be shown anew when it is chosen.
  virtual bool AReafficher() const { return !charge_; }
  // The looks under this agreement, complete or not; no value that is kept changes.
  virtual void SelonConvention(const std::string& /*convention*/) {}
  // Buttons that only full rights show.
  virtual void SelonDroits(bool /*complet*/) {}
  // The user is on the way to this tab: false, after a message, sends him back.
  virtual bool Admettre() { return true; }
  // The tab has been chosen.
  virtual void Entrer() {}

 protected:
  // `numero`: the tab's place on Ong_Contrat, from 0.
  Onglet(Frm_ElementsContrat& editeur, int numero, const char* nomPage);

  virtual void Afficher_Ong() {}
  virtual bool Verif_Ong() { return true; }
  virtual bool VerifFerme() { return true; }
  virtual bool Ecrivable_Ong() { return true; }
  virtual void Ecrire_Ong() {}
  virtual void Vider_Ong() {}

  session::Session& Session() const;
  session::Dossier& Dossier() const;
  data::CItem& Contrat() const { return Dossier().ItemContrat; }
  bool Creation() const { return Dossier().ModeCreation; }

  void Message(const std::string& texte, screen::Icone icone) const;
  // Shows this tab, then the message, and gives its field the focus: the way in which every check
  // of a tab refuses.
  void Refuser(const rules::Refus& refus) const;

  Frm_ElementsContrat& editeur_;
  const int numero_;
  // The page's frame; visible while its tab is shown.
  screen::Frame Page;
  session::Sourdine sourdine_;

 private:
  // The page's fields whose text clearing empties, found when the editor stands.
  const std::vector<screen::Field*>& Saisies();

  std::vector<screen::Field*> saisies_;
  bool charge_ = false;
};

}  // namespace editor
