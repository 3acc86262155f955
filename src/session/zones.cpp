#include "session/zones.h"

#include <algorithm>
#include <optional>

#include "data/monnaie.h"
#include "data/nombre.h"
#include "data/texte.h"

namespace session {

namespace {

// More digits than any number on file; such a text is not read as one.
constexpr std::size_t ChiffresMax = 15;

template <class Champ>
Champ& comme(const Zone& zone) {
  return static_cast<Champ&>(*zone.champ);
}

std::string lu(const data::CItem& item, const Zone& zone, int avenant) {
  const int valeur = zone.avenant ? avenant : zone.valeur;
  return valeur == 0 ? item(zone.attribut) : item(zone.attribut, valeur);
}

void mettre(data::CItem& item, const Zone& zone, int avenant, const std::string& texte) {
  const int valeur = zone.avenant ? avenant : zone.valeur;
  if (valeur == 0) {
    item.Set(zone.attribut, texte);
  } else {
    item.Set(zone.attribut, valeur, texte);
  }
}

std::string puissance(int echelle) {
  return "1" + std::string(static_cast<std::size_t>(echelle), '0');
}

// Digits alone, as records hold a number, with the separator put in its place; nothing for any
// other text, nor where decimals would be lost.
std::optional<std::string> decimalesPlacees(std::string_view texte, int echelle, int apres,
                                            std::string_view separateur) {
  const bool negatif = texte.starts_with('-');
  std::string_view chiffres = texte.substr(negatif ? 1 : 0);
  if (chiffres.empty() || echelle > apres ||
      !std::all_of(chiffres.begin(), chiffres.end(), data::estChiffre)) {
    return std::nullopt;
  }
  chiffres.remove_prefix(std::min(chiffres.find_first_not_of('0'), chiffres.size()));
  std::string resultat(chiffres);
  const auto decimales = static_cast<std::size_t>(echelle);
  if (resultat.size() <= decimales) resultat.insert(0, decimales + 1 - resultat.size(), '0');
  resultat.append(static_cast<std::size_t>(apres - echelle), '0');
  if (apres > 0) resultat.insert(resultat.size() - static_cast<std::size_t>(apres), separateur);
  if (negatif && !chiffres.empty()) resultat.insert(0, 1, '-');
  return resultat;
}

// What is no number stays as it is, so that a wrong record is seen.
std::string nombreAffiche(const data::Lib& lib, const Zone& zone, const std::string& texte) {
  if (texte.size() > ChiffresMax) return texte;
  const std::string separateur = lib.DecimalSeparator();
  auto valeur = decimalesPlacees(texte, zone.echelle, zone.nombre.apres, separateur);
  if (!valeur) {
    if (!data::estNombre(texte)) return texte;
    valeur = (data::Monnaie::DeTexte(texte) / data::Monnaie::DeTexte(puissance(zone.echelle)))
                 .Texte(zone.nombre.apres, separateur);
  }
  return formater(lib, *valeur, zone.nombre).value_or(*valeur);
}

std::string nombreEcrit(const data::Lib& lib, const Zone& zone, const std::string& texte) {
  if (!lib.FormatNumberField(texte, zone.nombre.avant, zone.nombre.apres, zone.nombre.signe)) {
    return {};
  }
  const auto unites = data::enUnites(texte, zone.echelle);
  return unites ? std::to_string(*unites) : std::string();
}

const std::string& texteDe(const screen::Field& champ) {
  return champ.Genre() == screen::Kind::Deroulante
             ? static_cast<const screen::ComboBox&>(champ).Text()
             : static_cast<const screen::TextField&>(champ).Text();
}

void ecrireTexte(screen::Field& champ, const std::string& texte) {
  if (champ.Genre() == screen::Kind::Deroulante) {
    static_cast<screen::ComboBox&>(champ).SetText(texte);
  } else {
    static_cast<screen::TextField&>(champ).SetText(texte);
  }
}

// What the user sees of the field.
std::string etat(const Zone& zone) {
  switch (zone.forme) {
    case Forme::Drapeau:
      return comme<screen::CheckBox>(zone).Value() != 0 ? "1" : "0";
    case Forme::Option:
      return comme<screen::OptionButton>(zone).Value() ? zone.oui : zone.non;
    default:
      return texteDe(*zone.champ);
  }
}

std::string valeurDe(const data::Lib& lib, const Zone& zone) {
  std::string vu = etat(zone);
  switch (zone.forme) {
    case Forme::Jour: {
      const auto jour = lib.LireDate(vu);
      return jour ? lib.DateToInternal(*jour) : std::string();
    }
    case Forme::Nombre:
      return nombreEcrit(lib, zone, vu);
    case Forme::Ligne: {
      const int rang = comme<screen::ComboBox>(zone).ListIndex();
      return vu.empty() ? std::string() : std::to_string(rang + 1);
    }
    case Forme::Code:
      return zone.codes->Code(vu);
    default:
      return vu;
  }
}

void montrer(const data::Lib& lib, const Zone& zone, const std::string& attribut) {
  switch (zone.forme) {
    case Forme::Texte:
      return ecrireTexte(*zone.champ, attribut);
    case Forme::Jour:
      return ecrireTexte(*zone.champ, lib.DateFromInternal(attribut));
    case Forme::Nombre:
      return ecrireTexte(*zone.champ, nombreAffiche(lib, zone, attribut));
    case Forme::Drapeau: {
      const bool clair = attribut.empty() || data::enUnites(attribut, 0) == 0;
      return comme<screen::CheckBox>(zone).SetValue(clair ? 0 : 1);
    }
    case Forme::Option:
      return (attribut == zone.oui ? comme<screen::OptionButton>(zone) : *zone.sinon)
          .SetValue(true);
    case Forme::Ligne:
      return comme<screen::ComboBox>(zone).SetListIndex(static_cast<int>(data::entier(attribut)) -
                                                        1);
    case Forme::Code:
      return ecrireTexte(*zone.champ, zone.codes->Libelle(attribut));
  }
}

}  // namespace

std::vector<Zone> reunir(std::initializer_list<std::vector<Zone>> parties) {
  std::vector<Zone> toutes;
  for (const auto& partie : parties) toutes.insert(toutes.end(), partie.begin(), partie.end());
  return toutes;
}

void Zones::Lier(Session& session) const {
  for (const Zone& zone : zones_) {
    if (zone.forme == Forme::Jour) LierDate(session, comme<screen::TextField>(zone));
    if (zone.forme == Forme::Nombre) {
      LierNombre(session, comme<screen::TextField>(zone), zone.nombre);
    }
  }
}

void Zones::Montrer(const data::Lib& lib, const data::CItem& item, int avenant) {
  for (const Zone& zone : zones_) montrer(lib, zone, lu(item, zone, avenant));
  Retenir(item, avenant);
}

void Zones::Retenir(const data::CItem& item, int avenant) {
  for (std::size_t i = 0; i < zones_.size(); ++i) {
    montrees_[i] = Montree{etat(zones_[i]), lu(item, zones_[i], avenant)};
  }
}

void Zones::Oublier() {
  montrees_.assign(zones_.size(), std::nullopt);
}

void Zones::Ecrire(const data::Lib& lib, data::CItem& item, int avenant) const {
  for (std::size_t i = 0; i < zones_.size(); ++i) {
    const bool intacte = montrees_[i] && montrees_[i]->etat == etat(zones_[i]);
    mettre(item, zones_[i], avenant, intacte ? montrees_[i]->attribut : valeurDe(lib, zones_[i]));
  }
}

std::vector<int> Zones::Attributs() const {
  std::vector<int> attributs;
  attributs.reserve(zones_.size());
  for (const Zone& zone : zones_) attributs.push_back(zone.attribut);
  return attributs;
}

void Zones::Vider() const {
  for (const Zone& zone : zones_) {
    if (zone.forme == Forme::Option) continue;
    if (zone.forme == Forme::Drapeau) {
      comme<screen::CheckBox>(zone).SetValue(0);
    } else {
      ecrireTexte(*zone.champ, "");
    }
  }
}

std::string Zones::Valeur(const data::Lib& lib, const screen::Field& champ) const {
  for (const Zone& zone : zones_) {
    if (zone.champ == &champ) return valeurDe(lib, zone);
  }
  return {};
}

}  // namespace session
