// What a change by program fires, and what it leaves behind.

#include <gtest/gtest.h>

#include "essai.h"

namespace screen {
namespace {

// What the field holds; of an option, which ones are on.
std::string etat(const Essai& e, const std::string& nom) {
  const Field* const champ = e.Find(nom);
  std::string texte;
  if (const auto* const zone = dynamic_cast<const TextField*>(champ)) return zone->Text();
  if (const auto* const combo = dynamic_cast<const ComboBox*>(champ)) {
    return combo->Text() + "/" + std::to_string(combo->ListIndex());
  }
  if (const auto* const liste = dynamic_cast<const ListBox*>(champ)) {
    for (const auto& ligne : liste->Rows()) texte += ligne + ",";
    return texte + std::to_string(liste->ListIndex());
  }
  if (const auto* const barre = dynamic_cast<const ScrollBar*>(champ)) {
    return std::to_string(barre->Value());
  }
  if (const auto* const coche = dynamic_cast<const CheckBox*>(champ)) {
    return std::to_string(coche->Value());
  }
  if (champ == &e.Ong_A) return std::to_string(e.Ong_A.Tab());
  for (const OptionButton* o : {&e.Opt_1, &e.Opt_2, &e.Opt_3, &e.Opt_4}) {
    if (o->Value()) texte += o->Nom().substr(4);
  }
  return texte;
}

TEST(Evenements, UnChangementParProgramme) {
  for (const auto& [nom, prealable, changement, journal, champ, attendu] :
       support::table<6>("screen/actes.md", "Un changement par programme")) {
    SCOPED_TRACE(nom);
    headless::Hote hote;
    Essai essai(hote.platform);
    faire(essai, prealable);
    essai.Journal();
    faire(essai, changement);
    EXPECT_EQ(essai.Journal(), journal);
    EXPECT_EQ(etat(essai, champ), attendu);
  }
}

TEST(Evenements, UnNomPorteDeuxFois) {
  headless::Hote hote;
  Essai essai(hote.platform);
  EXPECT_THROW(Label(essai, "Txt_A"), std::logic_error);
  EXPECT_EQ(essai.Find("Txt_"), nullptr);
}

}  // namespace
}  // namespace screen
