#pragma once
// Lists of code and label, one row an attribute, as the queries of the first tab give them.

#include <string>
#include <string_view>
#include <vector>

#include "data/citem.h"
#include "editor/origine_paire.h"
#include "screen/field.h"

namespace editor::Liste {

inline constexpr int Code = 1;
inline constexpr int Libelle = 2;

// Row of that code, from 1; 0 when there is none.
int chercher(const data::CItem& liste, std::string_view code);
// Label of that code; "" when the list does not have it.
std::string libelleDe(const data::CItem& liste, std::string_view code);
data::CItem uneLigne(std::string_view code, std::string_view libelle);

// The labels in place of the field's rows.
void remplir(screen::RowsField& champ, const data::CItem& liste);
std::vector<PaireCode::Ligne> lignes(const data::CItem& liste);

}  // namespace editor::Liste
