#pragma once
// A host without a display, whole: what tests and the scenario pilot give to the screens.
//
//   headless::Hote hote(21511);                       // the day is 22/11/2026
//   control::Ctr_Contrat controle(hote.platform);
//   hote.messages.Repondre(Reponse::Oui);

#include "data/poste.h"
#include "screen/headless/messages.h"
#include "screen/headless/modales.h"
#include "screen/headless/services.h"

namespace screen::headless {

struct Hote {
  // `aujourdhui`: internal day number.
  explicit Hote(long aujourdhui = 0, std::string utilisateur = "TEST")
      : poste(aujourdhui, std::move(utilisateur)) {}
  Hote(const Hote&) = delete;
  Hote& operator=(const Hote&) = delete;

  data::PosteFixe poste;
  MessagesEnFile messages;
  IndicationsNotees indications;
  ConflitsNotes conflits;
  ModalesJouees modales;
  CurseurCompte curseur;
  ImprimanteEnregistree imprimante;
  ReglagesEnMemoire reglages;
  AideEnregistree aide;
  ControlesEnregistres controles;
  Platform platform{messages,   indications, conflits, modales,   curseur,
                    imprimante, reglages,    aide,     controles, poste};
};

}  // namespace screen::headless
