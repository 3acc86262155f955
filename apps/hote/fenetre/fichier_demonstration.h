#pragma once
// The demonstration data: a data file named demo.contrats that stands beside the program, in the
// build tree round it, or in the system's shared data (share/contrats).

#include <QString>

namespace hote {

// Its path, "" when there is none.
QString fichierDemonstration();

}  // namespace hote
