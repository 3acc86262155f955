#pragma once
// Message boxes without a display: the answers are given in advance, and every box is kept so that
// it can be checked afterwards.

#include <deque>
#include <optional>
#include <stdexcept>
#include <vector>

#include "screen/platform.h"

namespace screen::headless {

// A question for which no answer was given in advance, or not one of those that its box offers.
class QuestionInattendue : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// "OUI", "NON", "ANNULER" or "OK", as scenarios and error texts write it.
std::string_view nom(Reponse reponse);
bool propose(Boutons boutons, Reponse reponse);

class MessagesEnFile : public Messages {
 public:
  // The answer to the next box that asks. Answers are used in order.
  void Repondre(Reponse reponse) { reponses_.push_back(reponse); }
  // A notice is answered OK; a question takes the oldest answer left.
  Reponse Montrer(const Message& message) override;

  const std::deque<Reponse>& ReponsesRestantes() const { return reponses_; }
  // The questions that threw; a handler may have taken the exception for an error of its own.
  int Inattendues() const { return inattendues_; }
  // Every box so far.
  const std::vector<Message>& Tous() const { return tous_; }
  // The oldest box not taken yet, which is thereby taken; nothing when there is none.
  std::optional<Message> Prendre();
  // The boxes not taken yet.
  std::size_t Restants() const { return tous_.size() - pris_; }

 private:
  [[noreturn]] void Refuser(const std::string& raison);

  std::deque<Reponse> reponses_;
  std::vector<Message> tous_;
  std::size_t pris_ = 0;
  int inattendues_ = 0;
};

}  // namespace screen::headless
