#include "screen/headless/messages.h"

namespace screen::headless {

std::string_view nom(Reponse reponse) {
  switch (reponse) {
    case Reponse::Ok:
      return "OK";
    case Reponse::Annuler:
      return "ANNULER";
    case Reponse::Oui:
      return "OUI";
    case Reponse::Non:
      return "NON";
  }
  return {};
}

bool propose(Boutons boutons, Reponse reponse) {
  switch (boutons) {
    case Boutons::Ok:
      return reponse == Reponse::Ok;
    case Boutons::OkAnnuler:
      return reponse == Reponse::Ok || reponse == Reponse::Annuler;
    case Boutons::OuiNon:
      return reponse == Reponse::Oui || reponse == Reponse::Non;
    case Boutons::OuiNonAnnuler:
      return reponse != Reponse::Ok;
  }
  return false;
}

Reponse MessagesEnFile::Montrer(const Message& message) {
  tous_.push_back(message);
  if (!message.Demande()) return Reponse::Ok;
  if (reponses_.empty()) Refuser("question sans réponse prévue : « " + message.texte + " »");
  const Reponse reponse = reponses_.front();
  if (!propose(message.boutons, reponse)) {
    Refuser("la réponse " + std::string(nom(reponse)) + " n'est pas proposée par la question « " +
            message.texte + " »");
  }
  reponses_.pop_front();
  return reponse;
}

void MessagesEnFile::Refuser(const std::string& raison) {
  ++inattendues_;
  throw QuestionInattendue(raison);
}

std::optional<Message> MessagesEnFile::Prendre() {
  if (Restants() == 0) return std::nullopt;
  return tous_[pris_++];
}

}  // namespace screen::headless
