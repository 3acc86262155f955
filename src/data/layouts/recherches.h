#pragma once
// What is looked up by something else than its key: of which file, by which attribute or which name
// of the dictionary. A store keeps an index of each beside the records (see data/index.h).
//
// An index makes the writes of its file dearer; one stands here for each question that would read a
// whole file, and for no other. ABSENCESAIDANT and the planning are asked by the carer who begins
// their keys, and need none.

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"

namespace data {

// The values that an index holds of a contract: see data/echeances.h.
std::vector<std::string> valeursEcheances(std::string_view contrat);

struct Index {
  std::string_view fichier;
  int attribut = 0;           // 0 when `nom` says what is looked up
  std::string_view nom = {};  // of data/dictionary.h, made of the record alone
  // Set: what a program looks up and no question can name; `nom` is for those who check the file.
  std::vector<std::string> (*valeurs)(std::string_view texte) = nullptr;
};

inline constexpr Index IndexTenus[] = {
    // The contracts that handed their leave over to one, or took it over from it.
    {fichier::CONTRAT, Contrat::CongesReportesSur},
    {fichier::CONTRAT, Contrat::CongesReprisDe},
    // Persons by the beginning of their names.
    {fichier::CIVILAIDANT, 0, "NomPrenomAidant"},
    {fichier::CIVILAIDE, 0, "NomPrenomAide"},
    // The exceptions of one intervention, the indirect work of one contract.
    {fichier::TPSEXCEPTIONS, TpsExceptions::Intervention},
    {fichier::TPSMOI, TpsMoi::Contrat},
    // The contracts by the days that must not be missed.
    {fichier::CONTRAT, 0, "Echeances", &valeursEcheances},
};
inline constexpr const Index& IndexReportes = IndexTenus[0];
inline constexpr const Index& IndexRepris = IndexTenus[1];
inline constexpr const Index& IndexExceptions = IndexTenus[4];
inline constexpr const Index& IndexMainOeuvre = IndexTenus[5];
// The last one, for who walks it.
inline constexpr const Index& IndexEcheances = IndexTenus[std::size(IndexTenus) - 1];

}  // namespace data
