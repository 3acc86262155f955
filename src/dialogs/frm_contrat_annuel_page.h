#pragma once
// One tab of the annual follow-up: a table whose columns move as one, and beneath it the line that
// is being typed. The frame (frm_contrat_annuel.h) decides what can be done when; a page holds its
// lines, shows them, and takes the line in hand into them.

#include <functional>

#include "rules/suivi_annuel.h"
#include "rules/verification.h"
#include "screen/colonnes.h"
#include "screen/form.h"
#include "session/dossier.h"

namespace dialogs {

// What stands in the edit line.
enum class LigneEnMain { Aucune, Creation, Modification };

class PageSuivi {
 public:
  // Up to here the rows fit without the bar.
  static constexpr int RangeesVisibles = 12;

  PageSuivi(screen::Form& forme, screen::TabStrip& onglets, int numero, const char* nomPage,
            session::Dossier& dossier)
      : Page(forme, nomPage), forme_(forme), dossier_(dossier), session_(dossier.Session) {
    onglets.Lier(numero, Page);
  }
  virtual ~PageSuivi() = default;
  PageSuivi(const PageSuivi&) = delete;
  PageSuivi& operator=(const PageSuivi&) = delete;

  // A line was taken down for editing: the page asks the frame to act on it.
  std::function<void()> SurDescente;

  // The lines of that year, those not saved yet included.
  void Afficher(rules::Annee annee) {
    annee_ = annee;
    Montrer();
  }
  // What can be used; `modifiable`: the lines shown may be changed.
  virtual void Activer(LigneEnMain enMain, bool modifiable) = 0;
  // A new line is going to be typed.
  virtual void Commencer() = 0;
  // The line in hand into the table. False, after a message: it stays in hand.
  virtual bool Confirmer(LigneEnMain enMain) = 0;
  // Nothing is in hand any more.
  virtual void Vider_Texte() = 0;
  virtual void SupprimerLigne() = 0;
  virtual void SupprimerTout() = 0;
  virtual int Nombre() const = 0;
  // The current year's lines differ from those that were read.
  virtual bool Modifiee() const = 0;
  // The current year's lines to the dossier.
  virtual void Enregistrer() = 0;

  // Visible while its tab is shown.
  screen::Frame Page;

 protected:
  virtual void Montrer() = 0;

  void Message(const char* texte) {
    forme_.MessageBox(texte, screen::Boutons::Ok, screen::Icone::Exclamation);
  }
  // The checks of a new line in their order; the first that fails is shown and its field takes the
  // focus.
  template <class Suivi>
  bool Verifier(std::span<const rules::Verification<Suivi>> verifications, Suivi& suivi) {
    return rules::Verifier(verifications, suivi, [this](const rules::Refus& refus) {
      forme_.MessageBox(refus.texte, screen::Boutons::Ok, refus.icone);
      if (screen::Field* const champ = forme_.Find(refus.champ)) champ->SetFocus();
    });
  }

  static constexpr const char* PeriodeExistante =
      "La période saisie existe déjà, veuillez en saisir une autre.";

  screen::Form& forme_;
  session::Dossier& dossier_;
  session::Session& session_;
  rules::Annee annee_ = rules::Annee::EnCours;
  // Of the line taken down.
  int ligneCourante_ = -1;
};

}  // namespace dialogs
