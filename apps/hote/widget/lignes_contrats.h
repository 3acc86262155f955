#pragma once
// The rows of the contract list. A clerk looks for the contract that runs: it stands out in bold
// with a bar at its left, and what has ended steps back.

#include <QString>
#include <functional>
#include <string_view>

#include "control/contrat_aidant.h"

class QWidget;
namespace data {
class Poste;
}

namespace hote {

using control::EtatContrat;

// From the dates that the list shows, JJ/MM/AAAA, and today. A text that is no date is as good as
// none.
EtatContrat etatContrat(std::string_view debut, std::string_view fin, long aujourdhui);

// Draws so the five lists of the contract control under `racine`. The workstation outlives them.
// `decrire`: the lines of a row's tooltip, whatever the column.
void habillerContrats(QWidget& racine, const data::Poste& poste,
                      const std::function<QString(int ligne)>& decrire = {});

}  // namespace hote
