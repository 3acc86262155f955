#pragma once
// The quoted values of a query. What a user typed can hold anything; inside a query it must stay a
// value.

#include <string>
#include <string_view>

namespace data {

// `valeur` between double quotes. A double quote inside is left out: no stored code or key holds
// one, and it would end the value.
std::string citer(std::string_view valeur);
// The same as "begins with". A "[" in front is left out too: it would ask for the end of the field.
std::string citerDebut(std::string_view valeur);

}  // namespace data
