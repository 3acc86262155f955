#include "session/saisie.h"

#include "screen/form.h"

namespace session {

bool QuitterDate(Session& session, screen::TextField& champ) {
  if (champ.Text().empty()) return true;
  champ.SetText(session.Lib.NormaliseDateText(champ.Text()));
  if (!session.Lib.DateError()) return true;
  champ.SetFocus();
  return false;
}

void FiltrerNombre(Session& session, screen::TextField& champ, bool moins) {
  champ.KeyPress = [&session, &champ, moins](char32_t& touche) {
    session.Lib.FilterKey(champ.Text(), touche, moins);
  };
}

bool QuitterNombre(Session& session, screen::TextField& champ, int avant, int apres, bool signe) {
  if (champ.Text().empty()) return true;
  const auto forme = session.Lib.FormatNumberField(champ.Text(), avant, apres, signe);
  if (!forme) {
    champ.SetFocus();
    return false;
  }
  champ.SetText(*forme);
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
  if (controle.erreur) session.ErreurZoneNum = true;
  return false;
}

}  // namespace session
