#pragma once
// A contract in words, for whoever points at it or cannot see it.

#include <string>

#include "control/frise.h"
#include "data/citem.h"
#include "session/session.h"

namespace control {

// "en cours", "à venir", "terminé", "annulé".
const char* direEtat(EtatContrat etat);
// A bar in a sentence.
std::string direBarre(const Barre& barre);
// A contract of CONTRAT in lines, its labels read from their files.
std::string decrireContrat(const session::Session& session, const data::CItem& contrat,
                           long aujourdhui);
// The private employer or the legal entity that a contract is with; its code where it has no
// record, "" for none.
std::string nommerPortee(const session::Session& session, const rules::Portee& portee);

}  // namespace control
