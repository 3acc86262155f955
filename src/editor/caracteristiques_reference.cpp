#include "editor/caracteristiques_reference.h"

#include "data/jour.h"
#include "data/monnaie.h"
#include "data/texte.h"
#include "screen/form.h"
#include "session/saisie.h"

namespace editor {

namespace {

// Digits of a number of days, and its decimals on file.
constexpr int Avant = 5;
constexpr int Apres = 2;

constexpr std::string_view Aucun = "0";
// More digits than any number on file.
constexpr std::size_t ChiffresMax = 15;
constexpr long long JoursMax = 36525;  // a century

}  // namespace

DateReference::DateReference(session::Session& session, screen::TextField& depart,
                             screen::TextField& jours, screen::TextField& reference, int attribut,
                             std::function<std::string()> debut)
    : session_(session),
      depart_(depart),
      jours_(jours),
      reference_(reference),
      attribut_(attribut),
      debut_(std::move(debut)) {
  reference_.SetEnabled(false);
  jours_.KeyPress = [this](char32_t& touche) {
    session_.Lib.FilterKey(jours_.HorsSelection(), touche, false);
  };
  jours_.LostFocus = [this] { QuitterJours(); };
  depart_.LostFocus = [this] { QuitterDepart(); };
}

std::string DateReference::Base() const {
  return depart_.Text().empty() ? debut_() : depart_.Text();
}

// What is no number stays as it is, so that a wrong record is seen.
void DateReference::Montrer(const data::CItem& contrat) {
  const std::string centiemes = contrat(attribut_);
  const bool suspendu =
      centiemes != Aucun && centiemes.size() <= ChiffresMax && data::estNombre(centiemes);
  jours_.SetText(
      suspendu ? data::Monnaie::DeCentiemes(centiemes).TexteCourt(session_.Lib.DecimalSeparator())
               : centiemes);
  reference_.SetText("");
  if (suspendu) Calculer(Base());
  surFichier_ = true;
  montres_ = jours_.Text();
}

void DateReference::MontrerNouveau() {
  jours_.SetText("");
  reference_.SetText("");
  surFichier_ = false;
}

void DateReference::Ecrire(data::CItem& contrat) const {
  const std::string& jours = jours_.Text();
  if (surFichier_ && jours == montres_) return;
  const auto centiemes = data::enUnites(jours, Apres);
  contrat.Set(attribut_, jours == Aucun ? jours : centiemes ? std::to_string(*centiemes) : "");
}

bool DateReference::QuitterDepart() {
  if (depart_.Text().empty()) {
    reference_.SetText("");
    return true;
  }
  if (!session::QuitterDate(session_, depart_)) return false;
  Calculer(depart_.Text());
  return true;
}

void DateReference::QuitterJours() {
  Calculer(Base());
  int avant = Avant;
  if (!session::ZoneNumCarac(session_, jours_, avant, Apres)) return;
  if (jours_.Text().empty() || data::estNombre(jours_.Text())) return;
  jours_.SetFocus();
  jours_.Forme().Services().indications.Montrer(
      jours_, "« " + data::sansBlancs(jours_.Text()) + " » n'est pas un nombre de jours.");
}

// Both given, and more than no day.
void DateReference::Calculer(const std::string& base) {
  const auto jour = session_.Lib.LireDate(base);
  const auto jours = data::estNombre(jours_.Text()) ? data::entier(jours_.Text()) : 0;
  const bool dite = jour && jours > 0 && jours <= JoursMax;
  reference_.SetText(dite ? data::dateAffichee(*jour + static_cast<long>(jours)) : "");
}

}  // namespace editor
