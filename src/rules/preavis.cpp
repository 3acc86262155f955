#include "rules/preavis.h"

#include <algorithm>

#include "data/jour.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"

namespace rules {

namespace {

constexpr std::string_view MotifsIndemnite[] = {"11", "12", "14", "15", "20", "25", "26",
                                                "33", "38", "65", "91", "92", "93"};
constexpr std::string_view MotifsPreavis[] = {"11", "12", "14", "15", "20", "25",
                                              "26", "38", "65", "92", "93"};
constexpr std::string_view MotifsRetraitCoche[] = {"20", "39", "42", "59", "60",
                                                   "87", "88", "95", "96"};

template <std::size_t N>
bool parmi(const std::string_view (&codes)[N], std::string_view code) {
  return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

// Whom a row of the table is about.
enum class Qui { Tous, Lettre, Cadre };

// The least seniority of a row.
struct Seuil {
  int ans;
  int mois;
};
constexpr Seuil DeuxAns{2, 0}, SixMois{0, 6}, DesLeDebut{0, 0};

struct Ligne {
  const char* convention;  // "" for every other one
  Qui qui;
  const char* lettres;  // of Qui::Lettre; a blank stands for no letter
  Seuil seuil;
  DureePreavis duree;
};

// The first row that fits is the notice.
constexpr Ligne Bareme[] = {
    // Home help: employees, then supervisors, then executives.
    {"01", Qui::Lettre, "ABCD ", DeuxAns, {.mois = 2}},
    {"01", Qui::Lettre, "ABCD ", SixMois, {.mois = 1}},
    {"01", Qui::Lettre, "ABCD ", DesLeDebut, {.jours = 6}},
    {"01", Qui::Lettre, "EF", DeuxAns, {.mois = 2}},
    {"01", Qui::Lettre, "EF", DesLeDebut, {.mois = 1}},
    {"01", Qui::Tous, "", DeuxAns, {.mois = 4}},
    {"01", Qui::Tous, "", DesLeDebut, {.mois = 2}},
    // Private employers.
    {"02", Qui::Tous, "", DeuxAns, {.mois = 2}},
    {"02", Qui::Tous, "", SixMois, {.mois = 1}},
    {"02", Qui::Tous, "", DesLeDebut, {.jours = 6}},
    {"05", Qui::Cadre, "", DesLeDebut, {.mois = 4}},
    {"05", Qui::Tous, "", DeuxAns, {.mois = 2}},
    {"05", Qui::Tous, "", DesLeDebut, {.mois = 1}},
    {"06", Qui::Cadre, "", DesLeDebut, {.mois = 3}},
    {"06", Qui::Tous, "", DeuxAns, {.mois = 2}},
    {"06", Qui::Tous, "", DesLeDebut, {.mois = 1}},
    // The law alone.
    {"", Qui::Tous, "", DeuxAns, {.mois = 2}},
    {"", Qui::Tous, "", SixMois, {.mois = 1}},
    {"", Qui::Tous, "", DesLeDebut, {}},
};

bool concerne(const Ligne& ligne, const SituationPreavis& s) {
  if (ligne.qui == Qui::Cadre) return s.cadre;
  if (ligne.qui == Qui::Tous) return true;
  const char lettre = s.lettre == 0 ? ' ' : s.lettre;
  return std::string_view(ligne.lettres).find(lettre) != std::string_view::npos;
}

bool atteint(const Anciennete& a, const Seuil& seuil) {
  return a.ans > seuil.ans || (a.ans == seuil.ans && a.mois >= seuil.mois);
}

std::string_view chapitre(std::string_view convention) {
  for (const Ligne& ligne : Bareme) {
    if (convention == ligne.convention) return convention;
  }
  return "";
}

// A disabled worker's notice is twice as long, but doubling never carries it beyond three months; a
// longer one stays as it is (art. L5213-9 of the labour code).
constexpr int MoisHandicapMax = 3;
DureePreavis doubler(DureePreavis duree) {
  duree.jours *= 2;
  if (duree.mois < MoisHandicapMax) duree.mois = std::min(duree.mois * 2, MoisHandicapMax);
  return duree;
}

}  // namespace

bool motifAvecPreavis(std::string_view motif) {
  return parmi(MotifsPreavis, motif);
}
bool motifAvecIndemnite(std::string_view motif) {
  return parmi(MotifsIndemnite, motif);
}
bool motifRetireHeures(std::string_view motif) {
  return parmi(MotifsRetraitCoche, motif);
}

Anciennete ancienneteEntre(long depart, long notification) {
  const data::Date d = data::dateDe(depart);
  const data::Date n = data::dateDe(notification);
  Anciennete a{n.annee - d.annee, n.mois - d.mois};
  if (n.jour < d.jour) --a.mois;
  if (a.mois < 0) {
    --a.ans;
    a.mois += 12;
  }
  return a;
}

DureePreavis dureePreavis(const SituationPreavis& s) {
  const std::string_view regle = chapitre(s.convention);
  for (const Ligne& ligne : Bareme) {
    if (regle != ligne.convention || !concerne(ligne, s)) continue;
    // Before the departure of seniority there is none: the last row of each.
    const bool premiers = ligne.seuil.ans == 0 && ligne.seuil.mois == 0;
    if (!premiers && !atteint(s.anciennete, ligne.seuil)) continue;
    return s.handicape && s.motif != MotifSansDoublement ? doubler(ligne.duree) : ligne.duree;
  }
  return {};
}

long finPreavis(long notification, const DureePreavis& duree) {
  if (duree.mois == 0) return notification + duree.jours;
  data::Date fin = data::dateDe(notification);
  fin.mois += duree.mois;
  if (fin.mois > 12) {
    fin.mois -= 12;
    ++fin.annee;
  }
  const int dernier = data::joursDuMois(fin.annee, fin.mois);
  fin.jour = fin.jour == 1 ? dernier : std::min(fin.jour - 1, dernier);
  return data::jourDe(fin).value_or(notification);
}

char lettreGrille(std::string_view categorie) {
  if (categorie.empty()) return 0;
  const char c = categorie.front();
  if (c >= 'a' && c <= 'z') return static_cast<char>(c - 'a' + 'A');
  return c >= 'A' && c <= 'Z' ? c : static_cast<char>(0);
}

bool estCadre(std::string_view codePCS) {
  return codePCS.starts_with("3") || codePCS.starts_with("23");
}

bool estHandicape(const data::CItem& infos, long jour) {
  using namespace data;
  const auto type = infos.Vue(InfosAidant::HandicapType);
  const auto du = infos.Vue(InfosAidant::HandicapDu);
  const auto au = infos.Vue(InfosAidant::HandicapAu);
  if (type.empty() || type == InfosAidant::TypeExclu || au.empty()) return false;
  return jour <= entier(au) && (du.empty() || jour >= entier(du));
}

}  // namespace rules
