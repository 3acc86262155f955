#include "session/saisie.h"

#include <algorithm>

#include "data/texte.h"
#include "screen/form.h"

namespace session {

namespace {

void indiquer(const screen::TextField& champ, const std::string& texte) {
  champ.Forme().Services().indications.Montrer(champ, texte);
}

std::string chiffres(int nombre) {
  return std::to_string(nombre) + (nombre > 1 ? " chiffres" : " chiffre");
}

// What the field takes, in words.
std::string gabarit(const FormeNombre& forme) {
  std::string texte = "au plus " + chiffres(forme.avant);
  if (forme.apres > 0) texte += " avant la virgule et " + chiffres(forme.apres) + " après";
  return texte + (forme.signe ? "." : ", sans signe.");
}

}  // namespace

std::optional<std::string> formater(const data::Lib& lib, const std::string& texte,
                                    const FormeNombre& forme) {
  auto resultat = lib.FormatNumberField(texte, forme.avant, forme.apres, forme.signe);
  if (!resultat || forme.affichage == FormeNombre::Cadree) return resultat;
  if (forme.affichage == FormeNombre::Milliers) return data::formeMilliers(*resultat);
  return data::CadrerMontant(*resultat, forme.signe);
}

bool QuitterDate(Session& session, screen::TextField& champ) {
  if (champ.Text().empty()) return true;
  champ.SetText(session.Lib.NormaliseDateText(champ.Text()));
  if (!session.Lib.DateError()) return true;
  champ.SetFocus();
  indiquer(champ, "« " + champ.Text() +
                      " » n'est pas une date : saisissez-la sous la forme "
                      "JJ/MM/AAAA, par exemple 01/03/2026.");
  return false;
}

bool QuitterNombre(Session& session, screen::TextField& champ, const FormeNombre& forme) {
  if (champ.Text().empty()) return true;
  const auto resultat = formater(session.Lib, champ.Text(), forme);
  if (!resultat) {
    champ.SetFocus();
    indiquer(champ, "« " + data::sansBlancs(champ.Text()) +
                        (data::estNombre(champ.Text()) ? " » ne tient pas ici : "
                                                       : " » n'est pas un nombre : ") +
                        gabarit(forme));
    return false;
  }
  champ.SetText(*resultat);
  return true;
}

void LierDate(Session& session, screen::TextField& champ, const std::function<void()>& ensuite) {
  champ.LostFocus = [&session, &champ, ensuite] {
    if (QuitterDate(session, champ) && ensuite) ensuite();
  };
}

void LierNombre(Session& session, screen::TextField& champ, const FormeNombre& forme,
                const std::function<void()>& ensuite) {
  champ.KeyPress = [&session, &champ, signe = forme.signe](char32_t& touche) {
    session.Lib.FilterKey(champ.HorsSelection(), touche, signe);
  };
  champ.LostFocus = [&session, &champ, forme, ensuite] {
    if (QuitterNombre(session, champ, forme) && ensuite) ensuite();
  };
}

bool ChoisirTexte(screen::ComboBox& champ) {
  if (champ.Text().empty() || champ.ListIndex() >= 0) return true;
  const auto& lignes = champ.Rows();
  const auto ligne = std::find(lignes.begin(), lignes.end(), champ.Text());
  if (ligne == lignes.end()) return false;
  champ.SetListIndex(static_cast<int>(ligne - lignes.begin()));
  return true;
}

bool ZoneNumCarac(Session& session, screen::TextField& champ, int& avant, int apres) {
  const auto controle =
      data::ZoneNumCarac(champ.Text(), avant, apres, session.Lib.DecimalSeparator());
  if (controle.Passe()) return true;
  champ.Forme().MessageBox(
      controle.message, screen::Boutons::Ok,
      controle.information ? screen::Icone::Information : screen::Icone::Aucune);
  champ.SetFocus();
  return false;
}

}  // namespace session
