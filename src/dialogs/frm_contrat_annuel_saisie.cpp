#include "dialogs/frm_contrat_annuel_saisie.h"

#include "rules/suivi_annuel_nombre.h"

namespace dialogs {

void filtrerNombre(const session::Session& session, screen::TextField& champ, bool signe) {
  champ.KeyPress = [&session, &champ, signe](char32_t& touche) {
    const std::string& texte = champ.HorsSelection();
    session.Lib.FilterKey(texte, touche, signe && texte.empty());
  };
}

data::Monnaie reprise(const std::string& tape, const std::string& montre, data::Monnaie tenue) {
  const data::Monnaie typee = rules::lireForme(tape);
  return typee == rules::lireForme(montre) ? tenue : typee;
}

}  // namespace dialogs
