#pragma once
// A list of checks: a table with one row a check, in the order in which the trade lists them, and
// the one loop over it. A check looks at its form, so that adding one touches its table alone.
//
//   const rules::Verification<OngletPaie> OngletPaie::Verifications[] = {
//       {[](OngletPaie& o) { return o.Cbo_ModPaieContrat.Text().empty(); },
//        "Le mode de paiement est obligatoire.", Icone::Exclamation, "Cbo_ModPaieContrat"},
//       ...

#include <span>
#include <string>

#include "rules/refus.h"

namespace rules {

template <class Forme>
struct Verification {
  bool (*echoue)(Forme& forme);
  const char* message;
  screen::Icone icone = screen::Icone::Exclamation;
  // Takes the focus, by name; "" for none.
  const char* champ = "";
  // What follows the message: a dialog in which what is missing can be given.
  void (*suite)(Forme& forme) = nullptr;
  // The check is made again after `suite`, and the list goes on when it holds then.
  bool reprend = false;
  // What the message ends with: a date and a full stop.
  std::string (*fin)(Forme& forme) = nullptr;
};

// The checks in their order. The first that fails is shown by `montrer`, which is given a Refus,
// and ends the list: false. True when all hold.
template <class Forme, class Montrer>
bool Verifier(std::span<const Verification<Forme>> verifications, Forme& forme, Montrer montrer) {
  for (const auto& v : verifications) {
    if (!v.echoue(forme)) continue;
    montrer(Refus{v.fin == nullptr ? v.message : v.message + v.fin(forme), v.icone, v.champ});
    if (v.suite != nullptr) v.suite(forme);
    if (!v.reprend || v.echoue(forme)) return false;
  }
  return true;
}

}  // namespace rules
