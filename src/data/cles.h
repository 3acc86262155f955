#pragma once
// The keys and the one test of a contract that every floor makes.

#include <string>
#include <string_view>

#include "data/citem.h"

namespace data {

// Characters of a carer's code, the left part of every contract key.
inline constexpr int LongueurCodeAidant = 5;
// Digits of a contract number.
inline constexpr std::size_t LongueurNumero = 3;
// The highest number that a carer's contracts can bear.
inline constexpr long long DernierNumeroPossible = 999;
// The agreement of private employers: the person helped is the employer.
inline constexpr std::string_view ConventionParticuliers = "02";

// A contract number as it stands in keys and fields: 3 digits with leading zeros.
std::string numeroContrat(long numero);
// Carer code, then contract number.
std::string cleContrat(std::string_view codeAidant, long numero);
bool estParticulierEmployeur(const CItem& contrat);

}  // namespace data
