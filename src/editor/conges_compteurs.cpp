#include "editor/conges_compteurs.h"

#include <algorithm>

#include "data/monnaie.h"
#include "screen/form.h"

namespace editor {

namespace {

std::vector<session::Zone> zonesDe(const std::vector<Compteur>& compteurs) {
  std::vector<session::Zone> zones;
  zones.reserve(compteurs.size());
  for (const Compteur& c : compteurs) {
    zones.push_back(c.echelle == 0 ? session::texte(c.champ, c.attribut)
                                   : session::nombre(c.champ, c.attribut, c.forme, c.echelle));
  }
  return zones;
}

}  // namespace

CompteursConges::CompteursConges(session::Session& session, std::vector<Compteur> compteurs)
    : session_(session), compteurs_(std::move(compteurs)), zones_(zonesDe(compteurs_)) {
  for (const Compteur& compteur : compteurs_) Lier(compteur);
}

void CompteursConges::Lier(const Compteur& compteur) const {
  session::LierNombre(session_, compteur.champ, compteur.forme);
  compteur.champ.LostFocus = [this, &compteur] { Quitter(compteur); };
}

// Whole days that are none stay as they were typed: the tab's checks refuse them.
void CompteursConges::Quitter(const Compteur& compteur) const {
  screen::TextField& champ = compteur.champ;
  if (champ.Text().empty()) champ.SetText("0");
  const bool fraction = champ.Text().find(session_.Lib.DecimalSeparator()) != std::string::npos;
  if (compteur.forme.apres == 0 && fraction) return;
  if (!session::QuitterNombre(session_, champ, compteur.forme)) return;
  if (compteur.refus != nullptr && !data::Monnaie::Valeur(champ.Text()).EntierOuDemi()) {
    champ.Forme().MessageBox(compteur.refus, screen::Boutons::Ok, screen::Icone::Exclamation);
    compteur.repris->SetText("");
    compteur.repris->SetFocus();
  }
  if (compteur.ensuite) compteur.ensuite();
}

void CompteursConges::Montrer(const data::CItem& contrat) {
  zones_.Montrer(session_.Lib, contrat);
  MettreZero();
  zones_.Retenir(contrat);
}

void CompteursConges::MettreZero() const {
  for (const Compteur& c : compteurs_) {
    if (!c.champ.Text().empty()) continue;
    c.champ.SetText(session::formater(session_.Lib, "0", c.forme).value_or("0"));
  }
}

void CompteursConges::Ecrire(data::CItem& contrat) const {
  zones_.Ecrire(session_.Lib, contrat);
}

bool CompteursConges::Touches(const data::CItem& contrat, const data::CItem& montre) const {
  return std::any_of(compteurs_.begin(), compteurs_.end(), [&](const Compteur& c) {
    return contrat.Vue(c.attribut) != montre.Vue(c.attribut);
  });
}

void CompteursConges::Completer(data::CItem& contrat) const {
  for (const Compteur& c : compteurs_) {
    if (contrat.Vue(c.attribut).empty()) contrat.Set(c.attribut, "0");
  }
}

}  // namespace editor
