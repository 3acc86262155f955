#pragma once
// Which field stands for which attribute of the contract, and in which form: one table for each tab
// and dialog, one engine that shows, compares and writes it.
//
//   session::Zones zones_{
//       texte(Txt_PerEssaiContrat, C::PeriodeEssai),
//       jour(Txt_DatDebContrat, C::DateDebut),
//       option(Opt_Determine, "D", Opt_Indetermine, "I", C::Type),
//       code(Cbo_NatureContrat, C::Nature, natures_),
//   };
//   zones_.Montrer(lib, item);     // the fields show the item
//   zones_.Ecrire(lib, item);      // the item takes what was changed
//
// A field that shows what it showed at first leaves its attribute as it was then, also where that
// is a code without label, a wrong date or an empty flag: opening a contract does not change it.
// After Oublier every field is written as it stands: a new contract has nothing on file.

#include <optional>
#include <string>
#include <vector>

#include "data/citem.h"
#include "data/liste_codes.h"
#include "screen/field.h"
#include "session/saisie.h"

namespace session {

enum class Forme {
  Texte,    // as typed
  Jour,     // internal day; "" for what is no date
  Nombre,   // whole number of hundredths, thousandths...; "" for what is no number
  Drapeau,  // check box: "1" or "0"; the number 0 and "" are clear
  Option,   // the one of two option buttons that is set; the second stands for every other text
  Ligne,    // drop-down: its row plus one, "" without a text
  Code,     // drop-down: the code of the label shown
};

struct Zone {
  screen::Field* champ;
  int attribut;
  Forme forme = Forme::Texte;
  FormeNombre nombre = {};
  // Decimals on file: 2 for hundredths.
  int echelle = 0;
  const char* oui = "1";
  const char* non = "0";
  screen::OptionButton* sinon = nullptr;
  const data::ListeCodes* codes = nullptr;
  // The attribute has one value for each amendment.
  bool avenant = false;
  // The one value of the attribute that the field stands for; 0 for the whole of it.
  int valeur = 0;

  Zone ParAvenant() const {
    Zone zone = *this;
    zone.avenant = true;
    return zone;
  }
};

inline Zone texte(screen::Field& champ, int attribut, int valeur = 0) {
  Zone zone{&champ, attribut};
  zone.valeur = valeur;
  return zone;
}
inline Zone jour(screen::TextField& champ, int attribut) {
  return {&champ, attribut, Forme::Jour};
}
inline Zone nombre(screen::TextField& champ, int attribut, const FormeNombre& forme, int echelle) {
  return {&champ, attribut, Forme::Nombre, forme, echelle};
}
inline Zone drapeau(screen::CheckBox& champ, int attribut) {
  return {&champ, attribut, Forme::Drapeau};
}
inline Zone option(screen::OptionButton& champ, const char* oui, screen::OptionButton& sinon,
                   const char* non, int attribut) {
  return {&champ, attribut, Forme::Option, {}, 0, oui, non, &sinon};
}
inline Zone ligne(screen::ComboBox& champ, int attribut) {
  return {&champ, attribut, Forme::Ligne};
}
// The list must outlive the zone.
inline Zone code(screen::ComboBox& champ, int attribut, const data::ListeCodes& codes) {
  Zone zone{&champ, attribut, Forme::Code};
  zone.codes = &codes;
  return zone;
}

// The tables of the parts of a form as one.
std::vector<Zone> reunir(std::initializer_list<std::vector<Zone>> parties);

class Zones {
 public:
  explicit Zones(std::vector<Zone> zones) : zones_(std::move(zones)), montrees_(zones_.size()) {}

  // The handlers of the dates and numbers: key filter, and the form on leaving. A field that does
  // more on leaving is tied by its owner afterwards.
  void Lier(Session& session) const;
  // Every field shows its attribute of `item`; `avenant`, from 1, where it has several values.
  void Montrer(const data::Lib& lib, const data::CItem& item, int avenant = 1);
  // What the fields show now is what they show untouched, whoever has put it there.
  void Retenir(const data::CItem& item, int avenant = 1);
  // Nothing is on file: every field will be written as it stands.
  void Oublier();
  void Ecrire(const data::Lib& lib, data::CItem& item, int avenant = 1) const;
  // The attributes of the table, in its order.
  std::vector<int> Attributs() const;
  // Empties every field, its options aside.
  void Vider() const;
  // The attribute that `champ` would write, whether or not it was touched.
  std::string Valeur(const data::Lib& lib, const screen::Field& champ) const;

 private:
  struct Montree {
    std::string etat;
    std::string attribut;
  };
  std::vector<Zone> zones_;
  std::vector<std::optional<Montree>> montrees_;
};

}  // namespace session
