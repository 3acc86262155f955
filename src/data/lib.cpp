#include "data/lib.h"

#include "data/jour.h"
#include "data/texte.h"

namespace data {

namespace {

std::string quoted(std::string_view texte) {
  return "« " + std::string(texte) + " »";
}

[[noreturn]] void refuseNumber(std::string_view texte) {
  throw NombreInvalide("Le texte " + quoted(texte) + " n'est pas un nombre. Corrigez-le.");
}

// The accents stand as users know them on these labels, deliberately mixed.
constexpr const char* moisAffiches[] = {"janvier ",   "février ", "mars ",     "avril ",
                                        "mai ",       "juin ",    "juillet ",  "aout ",
                                        "septembre ", "octobre ", "novembre ", "decembre "};

constexpr const char* moinsSeul = "Vous ne pouvez pas saisir seulement un moins.";
constexpr const char* virguleSeule = "Vous ne pouvez pas saisir une virgule seule.";
constexpr const char* moinsEtVirgule = "Vous ne pouvez pas saisir un moins et une virgule seuls.";
constexpr const char* tropAvant = "Trop de chiffres avant la virgule";
constexpr const char* tropApres = "Trop de chiffres après la virgule";
// Without accent: users know the message so.
constexpr const char* tropLongue = "Zone numerique trop longue";

}  // namespace

std::string Lib::DateToInternal(std::string_view date) const {
  if (sansBlancs(date).empty()) return {};
  const auto jour = LireDate(date);
  if (!jour) {
    throw DateInvalide("Le texte " + quoted(date) +
                       " n'est pas une date. Saisissez-la sous la forme JJ/MM/AAAA.");
  }
  return std::to_string(*jour);
}

std::optional<long> Lib::LireDate(std::string_view date) const {
  const auto affichee = lireDateAffichee(sansBlancs(date));
  return affichee ? affichee : lireDateSaisie(date, AnneeCourante());
}

std::string Lib::DateFromInternal(std::string_view interne) const {
  if (!estNombre(interne)) return std::string(interne);
  const std::string date = dateAffichee(static_cast<long>(entier(interne)));
  return date.empty() ? std::string(interne) : date;
}

int Lib::AnneeCourante() const {
  return dateDe(poste_.Aujourdhui()).annee;
}

std::string Lib::NormaliseDateText(std::string_view saisie) {
  const auto jour = lireDateSaisie(saisie, AnneeCourante());
  dateError_ = !jour;
  return jour ? dateAffichee(*jour) : std::string(saisie);
}

void Lib::FilterKey(std::string_view texte, char32_t& touche, bool moins) const {
  if (touche < 0x20 || (touche >= U'0' && touche <= U'9')) return;
  if (touche == U'-') {
    if (!moins || texte.find('-') != std::string_view::npos) touche = 0;
    return;
  }
  const std::string separateur = DecimalSeparator();
  const bool frappee = touche == U'.' || touche == U',';
  const bool dejaLa = texte.find_first_of(".," + separateur) != std::string_view::npos;
  touche =
      frappee && !dejaLa && !separateur.empty() ? static_cast<unsigned char>(separateur[0]) : 0;
}

std::string Lib::FormatNumber(std::string_view texte, int avant, int apres, bool signe) const {
  if (auto resultat = FormatNumberField(texte, avant, apres, signe)) return *resultat;
  if (!estNombre(texte)) refuseNumber(texte);
  throw NombreInvalide("Le nombre " + quoted(texte) + " ne tient pas dans sa zone (" +
                       std::to_string(avant) + " chiffres avant la virgule" +
                       (signe ? "" : ", sans signe") + "). Corrigez-le.");
}

std::string Lib::FormatNumber(Monnaie valeur, int avant, int apres, bool signe) const {
  return FormatNumber(valeur.TexteCourt(), avant, apres, signe);
}

std::optional<std::string> Lib::FormatNumberField(std::string_view texte, int avant, int apres,
                                                  bool signe) const {
  return formateNombre(texte, avant, apres, signe, DecimalSeparator());
}

std::string CadrerMontant(std::string_view texte, bool signe) {
  if (!signe || texte.find('-') == std::string_view::npos) return sansBlancsAGauche(texte);
  return "-" + sansBlancsAGauche(milieu(texte, 2));
}

std::string FormatZoneNumBis(std::string_view valeur, int avant, int apres, bool signe) {
  auto nombre = lireNombre(valeur);
  if (!nombre) refuseNumber(valeur);
  std::string& decimales = nombre->decimales;
  decimales.erase(decimales.find_last_not_of('0') + 1);
  if (static_cast<int>(decimales.size()) > apres) decimales = gauche(decimales, 2);
  const std::string entiers = nombre->entiers.empty() ? "0" : nombre->entiers;
  return (nombre->negatif && signe ? "-" : "") + completeAGauche(entiers, avant) + "," +
         completeADroite(decimales, apres, '0');
}

std::string Determinerdate(std::string_view periode) {
  const long long mois = entier(periode.size() > 4 ? periode.substr(4, 2) : std::string_view());
  const std::string libelle = mois >= 1 && mois <= 12 ? moisAffiches[mois - 1] : "";
  return libelle + std::string(periode.substr(0, 4));
}

ControleZoneNum ZoneNumCarac(std::string_view texte, int& avant, int apres,
                             std::string_view separateur) {
  if (texte.find('-') != std::string_view::npos) ++avant;
  if (texte == "-") return {moinsSeul, true, false};
  if (texte == separateur) return {virguleSeule, true, false};
  if (texte == "-" + std::string(separateur)) return {moinsEtVirgule, true, false};

  const int total = longueur(texte);
  const int virgule = position(texte, separateur);
  if (virgule == 0) {
    if (total > avant) return {tropLongue, false, true};
    return {};
  }
  if (virgule - 1 > avant) return {tropAvant, false, false};
  if (total - virgule > apres) return {tropApres, false, true};
  // The integer part is no longer as a number than as a text, so that nothing else can be too long.
  return {};
}

}  // namespace data
