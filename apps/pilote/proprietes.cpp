#include "pilote/proprietes.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace pilote {

namespace {

using screen::Field;
using screen::Kind;
using Valeur = std::optional<std::string>;

// In the order of screen::Kind.
constexpr std::array<std::string_view, 13> Genres = {
    "texte",     "deroulante", "liste",  "bouton", "option", "case", "cadre",
    "etiquette", "onglets",    "updown", "barre",  "menu",   "image"};

const screen::RowsField* rowsOf(const Field& champ) {
  return dynamic_cast<const screen::RowsField*>(&champ);
}

Valeur texte(const Field& champ) {
  if (const auto* c = dynamic_cast<const screen::TextField*>(&champ)) return c->Text();
  if (const auto* c = dynamic_cast<const screen::ComboBox*>(&champ)) return c->Text();
  if (const auto* c = rowsOf(champ)) return c->List(c->ListIndex());
  return std::nullopt;
}

std::optional<int> nombre(const Field& champ) {
  if (const auto* c = dynamic_cast<const screen::CheckBox*>(&champ)) return c->Value();
  if (const auto* c = dynamic_cast<const screen::OptionButton*>(&champ)) return c->Value() ? -1 : 0;
  if (const auto* c = dynamic_cast<const screen::RangeField*>(&champ)) return c->Value();
  if (const auto* c = dynamic_cast<const screen::TabStrip*>(&champ)) return c->Tab();
  return std::nullopt;
}

Valeur valeur(const Field& champ) {
  const auto n = nombre(champ);
  return n ? Valeur(std::to_string(*n)) : std::nullopt;
}

Valeur ligne(const Field& champ) {
  const auto* c = rowsOf(champ);
  return c != nullptr ? Valeur(std::to_string(c->ListIndex())) : std::nullopt;
}

Valeur nombreDeLignes(const Field& champ) {
  const auto* c = rowsOf(champ);
  return c != nullptr ? Valeur(std::to_string(c->ListCount())) : std::nullopt;
}

Valeur lignes(const Field& champ) {
  const auto* c = rowsOf(champ);
  if (c == nullptr) return std::nullopt;
  std::string jointes;
  for (int i = 0; i < c->ListCount(); ++i) jointes += (i > 0 ? "|" : "") + c->List(i);
  return jointes;
}

Valeur libelle(const Field& champ) {
  return champ.Libelle();
}

// A field and the frames around it, each by that test.
bool partout(const Field& champ, bool (Field::*test)() const) {
  for (const Field* c = &champ; c != nullptr; c = c->Cadre()) {
    if (!(c->*test)()) return false;
  }
  return true;
}

bool estActif(const Field& champ) {
  return partout(champ, &Field::Enabled);
}
bool estVisible(const Field& champ) {
  return partout(champ, &Field::Visible);
}
bool aLeFocus(const Field& champ) {
  return champ.Forme().Active() == &champ;
}

Valeur ouiNon(bool oui) {
  return oui ? "oui" : "non";
}
Valeur actif(const Field& champ) {
  return ouiNon(estActif(champ));
}
Valeur visible(const Field& champ) {
  return ouiNon(estVisible(champ));
}
Valeur focus(const Field& champ) {
  return ouiNon(aLeFocus(champ));
}

constexpr Propriete Proprietes[] = {
    {"texte", Attendu::Texte, texte},   {"valeur", Attendu::Entier, valeur},
    {"ligne", Attendu::Entier, ligne},  {"nombre", Attendu::Entier, nombreDeLignes},
    {"lignes", Attendu::Texte, lignes}, {"libelle", Attendu::Texte, libelle},
    {"actif", Attendu::OuiNon, actif},  {"visible", Attendu::OuiNon, visible},
    {"focus", Attendu::OuiNon, focus},
};

}  // namespace

const Propriete* trouverPropriete(std::string_view nom) {
  const auto trouvee = std::find_if(std::begin(Proprietes), std::end(Proprietes),
                                    [&](const Propriete& p) { return p.nom == nom; });
  return trouvee == std::end(Proprietes) ? nullptr : trouvee;
}

std::string nomsDesProprietes() {
  std::string noms;
  for (const Propriete& p : Proprietes) (noms += noms.empty() ? "" : ", ") += p.nom;
  return noms;
}

std::string_view nomDuGenre(Kind genre) {
  return Genres[static_cast<std::size_t>(genre)];
}

std::string raisonInaccessible(const Field& champ) {
  if (!champ.Forme().Enabled()) return "la forme " + champ.Forme().Nom() + " est désactivée";
  for (const Field* c = &champ; c != nullptr; c = c->Cadre()) {
    const std::string qui = c == &champ ? "il" : "son cadre " + c->Nom();
    if (!c->Visible()) return qui + " est caché";
    if (!c->Enabled()) return qui + " est désactivé";
  }
  return {};
}

nlohmann::ordered_json enJson(const Field& champ) {
  nlohmann::ordered_json json;
  json["nom"] = champ.Nom();
  json["genre"] = nomDuGenre(champ.Genre());
  json["libelle"] = champ.Libelle();
  json["actif"] = estActif(champ);
  json["visible"] = estVisible(champ);
  json["focus"] = aLeFocus(champ);
  if (const auto t = texte(champ)) json["texte"] = *t;
  if (const auto n = nombre(champ)) json["valeur"] = *n;
  if (const auto* rows = rowsOf(champ)) {
    json["ligne"] = rows->ListIndex();
    json["lignes"] = rows->Rows();
  }
  if (const auto* onglets = dynamic_cast<const screen::TabStrip*>(&champ)) {
    json["onglets"] = onglets->Onglets();
  }
  return json;
}

nlohmann::ordered_json enJson(const screen::Form& forme) {
  nlohmann::ordered_json json;
  json["forme"] = forme.Nom();
  json["titre"] = forme.Titre();
  json["focus"] = nullptr;
  if (forme.Active() != nullptr) json["focus"] = forme.Active()->Nom();
  json["champs"] = nlohmann::ordered_json::array();
  for (const Field* champ : forme.Fields()) json["champs"].push_back(enJson(*champ));
  return json;
}

}  // namespace pilote
