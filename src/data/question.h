#pragma once
// The quoted values of a query. What a user typed can hold anything; inside a query it must stay a
// value.

#include <string>
#include <string_view>

namespace data {

// `valeur` between double quotes, to be compared as it is: quotes, and marks at its ends, are
// doubled.
std::string citer(std::string_view valeur);
// The same as "begins with".
std::string citerDebut(std::string_view valeur);
// The same as "ends with".
std::string citerFin(std::string_view valeur);

}  // namespace data
