#pragma once
// Leave that passes from a fixed-term contract to the open-ended one that follows it. Each of the
// two names the other: CongesReportesSur stands on the earlier one, CongesReprisDe on the later.
// The link can be undone until payroll has paid or reckoned the leave.

#include <string>

#include "data/citem.h"
#include "data/db.h"

namespace rules {

enum class SensLien { Report, Reprise };

// The attribute of that direction, and the one by which the other contract answers it.
int attributLien(SensLien sens);
int attributRetour(SensLien sens);

// Whether the link that `contrat` has in that direction may still be undone: the last payslip of
// the later contract shows leave that was taken over. False when a record is missing.
bool Verif_ReportModifiable(data::Db& db, const data::CItem& contrat, SensLien sens);

// What the link says, on the tab: "Droits aux congés reportés sur le contrat du ... au ....".
std::string texteLien(SensLien sens, const data::CItem& lie);
// What is said when the period of the last payslip has undone it.
std::string texteLienRompu(SensLien sens, const data::CItem& lie);

// The last payslip moved onto the period of the linked one's: their leave cannot pass any more.
bool bulletinRompt(const data::CItem& contrat, const data::CItem& lie);

}  // namespace rules
