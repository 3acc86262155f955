#pragma once
// The checks of the first tab, in their order, as rules on values: what is typed beside what is on
// file. OngletOrigine shows the first one that fails and opens the dialog that repairs it.

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "data/citem.h"
#include "screen/platform.h"

namespace editor {

// The tab as it is typed. Days are internal ones; nothing where a text is no date.
struct SaisieOrigine {
  // The contract in hand, in which the dialogs write: a check run again sees what they wrote.
  const data::CItem& contrat;
  std::string convention;
  std::string association;
  std::string employeur;
  std::string dateDebut;
  std::optional<long> debut;
  std::string dateFin;
  std::optional<long> fin;
  std::string dateSignature;
  std::string reference;
  std::string nature;  // label
  bool determine = false;
  // The contract is on file, and its start as it stood when the tab was shown.
  bool existant = false;
  std::string debutInitial;
  std::string periodePaie;
  // Whether a payslip of the contract is computed for that period; asked only where it decides.
  std::function<bool(const std::string& periode)> bulletinCalcule;
};

enum class Suite { Aucune, MotifCDD, Stage };

struct VerificationOrigine {
  bool (*echoue)(const SaisieOrigine& saisie);
  const char* message;
  screen::Icone icone;
  const char* champ;  // "" for none
  Suite suite = Suite::Aucune;
  // What follows the message: a date and a full stop. Unset: nothing.
  std::string (*complement)(const SaisieOrigine& saisie) = nullptr;

  std::string Texte(const SaisieOrigine& saisie) const {
    return complement == nullptr ? message : message + complement(saisie);
  }
};

// The label of the nature that needs a traineeship agreement.
inline constexpr const char* NatureStagiaire = "Stagiaire";

// Whether a fixed term of that nature must say when it is presumed to end: each of them must.
constexpr bool NatureExigeFin(std::string_view /*nature*/) {
  return true;
}

std::span<const VerificationOrigine> verificationsOrigine();

}  // namespace editor
