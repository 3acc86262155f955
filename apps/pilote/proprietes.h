#pragma once
// What a scenario can see of a field: its properties as texts to compare, and all of it as JSON.

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "screen/form.h"

namespace pilote {

enum class Attendu { Texte, Entier, OuiNon };

struct Propriete {
  std::string_view nom;
  Attendu genre = Attendu::Texte;
  // Nothing when a field of that kind has no such property.
  std::optional<std::string> (*lire)(const screen::Field&) = nullptr;
};

// nullptr for an unknown name.
const Propriete* trouverPropriete(std::string_view nom);
// All names, parted by commas.
std::string nomsDesProprietes();

std::string_view nomDuGenre(screen::Kind genre);
// Why a user can do nothing to the field: "il est désactivé" and the like; "" when he can.
std::string raisonInaccessible(const screen::Field& champ);

nlohmann::ordered_json enJson(const screen::Field& champ);
nlohmann::ordered_json enJson(const screen::Form& forme);

}  // namespace pilote
