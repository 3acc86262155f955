#include "rules/echeances.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>

#include "data/cles.h"
#include "data/jour.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/recherches.h"
#include "data/layouts/voisins.h"
#include "data/select.h"

namespace rules {

namespace {

namespace C = data::Contrat;
using data::GenreEcheance;

constexpr int AutantQueDemande = JoursEcheancesMax;

// A declaration can be sent eight days before the hiring at most.
constexpr Fenetre Fenetres[] = {{GenreEcheance::Fin, 30, AutantQueDemande},
                                {GenreEcheance::Essai, 0, AutantQueDemande},
                                {GenreEcheance::Declaration, 30, 8},
                                {GenreEcheance::Suivi, 365, AutantQueDemande}};

struct Jours {
  long debut;
  long fin;
};

Jours joursDe(const Fenetre& fenetre, long aujourdhui, int jours) {
  return {aujourdhui - fenetre.avant, aujourdhui + std::min(jours, fenetre.apres)};
}

const char* libelleDe(GenreEcheance genre, bool enRetard, bool renouvelable) {
  switch (genre) {
    case GenreEcheance::Fin:
      return enRetard ? "CDD échu, fin à saisir" : "Fin de CDD";
    case GenreEcheance::Essai:
      return renouvelable ? "Fin de période d'essai, renouvelable" : "Fin de période d'essai";
    case GenreEcheance::Declaration:
      return enRetard ? "Déclaration d'embauche non imprimée" : "Déclaration d'embauche à imprimer";
    case GenreEcheance::Suivi:
      return "Suivi annuel à faire";
  }
  return "";
}

// Names, each read once. Thousands of records give two attributes each: no item is made of them.
class Noms {
 public:
  explicit Noms(data::Storage& stockage) : stockage_(stockage) {}

  const std::string& Aidant(const std::string& code) {
    return Trouver(data::fichier::CIVILAIDANT, code, data::CivilAidant::Nom,
                   data::CivilAidant::Prenom);
  }
  const std::string& Employeur(std::string_view convention, std::string_view code) {
    if (convention == data::ConventionParticuliers) {
      return Trouver(data::fichier::CIVILAIDE, std::string(code), data::CivilAide::Nom,
                     data::CivilAide::Prenom);
    }
    return Trouver(data::fichier::ETABLISSEMENT, std::string(code), data::Etablissement::Libelle,
                   data::Etablissement::Association);
  }

 private:
  // An establishment has one name alone.
  const std::string& Trouver(std::string_view fichier, const std::string& cle, int nom,
                             int prenom) {
    const auto [place, nouveau] = noms_[fichier].try_emplace(cle);
    if (!nouveau || !stockage_.Get(fichier, cle, texte_)) return place->second;
    data::AttributeReader lu({nom, prenom});
    lu.open(texte_);
    place->second = lu[0];
    if (fichier != data::fichier::ETABLISSEMENT && !lu[1].empty()) {
      (place->second += ' ') += lu[1];
    }
    return place->second;
  }

  data::Storage& stockage_;
  std::string texte_;
  std::map<std::string_view, std::unordered_map<std::string, std::string>> noms_;
};

// A contract followed up in effective time has that in a file of its own.
bool suiviAilleurs(data::Storage& stockage, const std::string& contrat, long aujourdhui) {
  std::string suivi;
  return stockage.Get(data::fichier::AIDANTTTE,
                      contrat + std::to_string(data::dateDe(aujourdhui).annee), suivi);
}

}  // namespace

std::vector<Echeance> echeancesDe(std::string_view cle, std::string_view contrat, long aujourdhui,
                                  int jours) {
  std::vector<Echeance> echeances;
  for (const auto& [genre, jour] : data::joursEcheances(contrat)) {
    const auto* const fenetre =
        std::find_if(std::begin(Fenetres), std::end(Fenetres),
                     [genre = genre](const Fenetre& f) { return f.genre == genre; });
    const auto [debut, fin] = joursDe(*fenetre, aujourdhui, jours);
    if (jour < debut || jour > fin) continue;
    const bool renouvelable =
        genre == GenreEcheance::Essai && data::CItem(contrat).Vue(C::EssaiRenouvelable) == "1";
    echeances.push_back(
        {genre, jour, std::string(cle), libelleDe(genre, jour < aujourdhui, renouvelable), "", ""});
  }
  return echeances;
}

std::vector<Echeance> lireEcheances(data::Db& db, long aujourdhui, int jours) {
  std::vector<data::Chemin> chemins;
  for (const Fenetre& fenetre : Fenetres) {
    const auto [debut, fin] = joursDe(fenetre, aujourdhui, jours);
    chemins.push_back({&data::IndexEcheances, data::valeursEcheances(fenetre.genre, debut, fin)});
  }
  data::Storage& stockage = db.Stockage();
  std::vector<Echeance> toutes;
  Noms noms(stockage);
  data::AttributeReader lu({C::Convention, C::Employeur});
  const auto prendre = [&](std::string_view cle, std::string_view texte) {
    auto echeances = echeancesDe(cle, texte, aujourdhui, jours);
    if (echeances.empty()) return true;
    lu.open(texte);
    for (Echeance& echeance : echeances) {
      if (echeance.genre == GenreEcheance::Suivi &&
          suiviAilleurs(stockage, echeance.contrat, aujourdhui)) {
        continue;
      }
      echeance.aidant = noms.Aidant(echeance.contrat.substr(0, data::LongueurCodeAidant));
      echeance.employeur = noms.Employeur(lu[0], lu[1]);
      toutes.push_back(std::move(echeance));
    }
    return true;
  };
  if (!stockage.ScanChemins(data::fichier::CONTRAT, chemins, prendre)) {
    stockage.Scan(data::fichier::CONTRAT, data::KeyRange::Tout(), prendre);
  }
  std::sort(toutes.begin(), toutes.end(), [](const Echeance& x, const Echeance& y) {
    return std::tie(x.jour, x.genre, x.contrat) < std::tie(y.jour, y.genre, y.contrat);
  });
  return toutes;
}

}  // namespace rules
