#pragma once
// The demonstration data: a data file named demo.contrats that stands in the shared data of the
// user or the system (share/contrats), beside the program, or in the build tree round it.

#include <QString>

namespace hote {

// Its path, "" when there is none.
QString fichierDemonstration();

}  // namespace hote
