#pragma once
// Plays a scenario on screens: one act or check after the other, on the topmost form. A form shown
// modally from inside an act takes the commands that follow, until it is hidden; the act then ends.
//
// The scenario stops at the first command that does not hold, and at its end. What is open then is
// dropped: the stop travels as an exception through the screens' own code, which writes nothing on
// the way. It is no std::exception, so that no handler takes it for an error of the trade.

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "data/db.h"
#include "pilote/scenario.h"
#include "screen/headless/hote.h"
#include "screen/user.h"

namespace pilote {

// What did not hold.
struct Echec {
  int ligne = 0;
  std::string source;
  std::string attendu;
  std::string trouve;
};

class Pilote {
 public:
  // `hote` is the host that the screens stand on; `sortie` takes what `voir` shows.
  Pilote(screen::headless::Hote& hote, data::Db& base, std::ostream& sortie);
  ~Pilote();
  Pilote(const Pilote&) = delete;
  Pilote& operator=(const Pilote&) = delete;

  // `ouvrir` shows `racine`; modal forms that it shows take the first commands, and questions that
  // it asks the answers that stand first of all. Nothing comes back when all held. An error that
  // rises from `ouvrir` before any other command goes on to the caller.
  std::optional<Echec> Jouer(const Scenario& scenario, screen::Form& racine,
                             const std::function<void()>& ouvrir);

  // For the commands.

  // The topmost form. Stops the scenario when all are closed.
  screen::Form& Sommet();
  // Of the topmost form, by name; stops the scenario when there is none.
  screen::Field& Champ(const std::string& nom);
  // The same, when a user can act on it.
  screen::Field& ChampAccessible(const std::string& nom);
  // A user of the topmost form.
  screen::User Utilisateur() { return screen::User(Sommet()); }
  // Stops the scenario for an act that a field of that kind does not take. An act that the screen
  // refused by its own rules is a result like another, for the checks to look at.
  void Exiger(screen::Acte acte, const screen::Field& champ);
  [[noreturn]] void RefuserGenre(const screen::Field& champ);
  [[noreturn]] void Echouer(std::string attendu, std::string trouve);
  // The answer to the next question; `ligne` is blamed if it is never used.
  void Prevoir(screen::Reponse reponse);
  screen::headless::MessagesEnFile& Messages() { return hote_.messages; }
  screen::headless::IndicationsNotees& Indications() { return hote_.indications; }
  screen::headless::ConflitsNotes& Conflits() { return hote_.conflits; }
  screen::headless::Hote& Hote() { return hote_; }
  const screen::headless::ImprimanteEnregistree& Imprimante() const { return hote_.imprimante; }
  data::Db& Base() { return base_; }
  std::ostream& Sortie() { return sortie_; }

 private:
  struct Arret {};
  struct Ouverte {
    screen::Form* forme = nullptr;
    std::weak_ptr<const void> vie;
  };

  void Pomper(screen::Form& form);
  // Plays the next command; false at the end.
  bool Avancer();
  void JouerTout(const std::function<void()>& ouvrir);
  // The answers that stand before everything else.
  void PrevoirDebut();
  void VerifierReponses();
  void Noter(const Commande& commande, std::string attendu, std::string trouve);
  const Commande& Courante() const { return scenario_->commandes[suivante_ - 1]; }

  screen::headless::Hote& hote_;
  data::Db& base_;
  std::ostream& sortie_;

  const Scenario* scenario_ = nullptr;
  std::size_t suivante_ = 0;
  std::size_t debut_ = 0;
  std::vector<Ouverte> pile_;
  // The `repondre` commands played so far, in order.
  std::vector<const Commande*> reponses_;
  std::optional<Echec> echec_;
  bool arrete_ = false;
};

}  // namespace pilote
