#pragma once
// The notice of a contract that ends: worked, paid without being worked, or neither. One of the
// three at most, each from one day to another.

#include <array>
#include <optional>
#include <string>

#include "rules/preavis.h"
#include "screen/field.h"
#include "session/session.h"

namespace editor {

class PreavisFin {
 public:
  // One of the three.
  struct Genre {
    screen::OptionButton& option;
    screen::TextField& debut;
    screen::TextField& fin;
    int du;
    int au;
  };

  // The fields stand on `page`.
  PreavisFin(session::Session& session, screen::Frame& page);

  void Montrer(const data::CItem& contrat);
  // What is not chosen is emptied.
  void Ecrire(data::CItem& contrat) const;
  void Vider();
  // The three can be chosen; the days of the one that is.
  void Activer(bool actif);

  // The notice that was computed: paid and not worked until the user says otherwise, with what it
  // was computed from.
  void Payer(const std::string& du, const std::string& au, const std::string& calcul);
  void OublierPaye();
  // The one that is chosen; nullptr for none.
  const Genre* Choisi() const;

 private:
  void ActiverJours();

  session::Session& session_;
  screen::Frame& page_;

  screen::Frame Cdr_Preavis{page_, "Cdr_Preavis", "Préavis "};
  screen::OptionButton Opt_Effectue{Cdr_Preavis, "Opt_Effectue", "Effectué"};
  screen::Label Etq_DebEffContrat{Cdr_Preavis, "Etq_DebEffContrat", "Du"};
  screen::TextField Txt_DebEffContrat{Cdr_Preavis, "Txt_DebEffContrat", 10};
  screen::Label Etq_FinEffContrat{Cdr_Preavis, "Etq_FinEffContrat", "Au"};
  screen::TextField Txt_FinEffContrat{Cdr_Preavis, "Txt_FinEffContrat", 10};
  screen::OptionButton Opt_Paye{Cdr_Preavis, "Opt_Paye", "Payé mais non effectué"};
  screen::Label Etq_DebPayeContrat{Cdr_Preavis, "Etq_DebPayeContrat", "Du"};
  screen::TextField Txt_DebPayeContrat{Cdr_Preavis, "Txt_DebPayeContrat", 10};
  screen::Label Etq_FinPayeContrat{Cdr_Preavis, "Etq_FinPayeContrat", "Au"};
  screen::TextField Txt_FinPayeContrat{Cdr_Preavis, "Txt_FinPayeContrat", 10};
  screen::OptionButton Opt_NonEffNonPaye{Cdr_Preavis, "Opt_NonEffNonPaye",
                                         "Non effectué et non payé"};
  screen::Label Etq_DebNonEffNonPaye{Cdr_Preavis, "Etq_DebNonEffNonPaye", "Du"};
  screen::TextField Txt_DebNonEffNonPaye{Cdr_Preavis, "Txt_DebNonEffNonPaye", 10};
  screen::Label Etq_FinNonEffNonPaye{Cdr_Preavis, "Etq_FinNonEffNonPaye", "Au"};
  screen::TextField Txt_FinNonEffNonPaye{Cdr_Preavis, "Txt_FinNonEffNonPaye", 10};
  // From what the notice was computed.
  screen::Label Etq_CalculPreavis{Cdr_Preavis, "Etq_CalculPreavis", ""};

  std::array<Genre, 3> genres_;
};

// "2 mois", "6 jours".
std::string dureeEcrite(const rules::DureePreavis& duree);

}  // namespace editor
