#pragma once
// The part of `verifier` that compares the indexes with the records.

#include "base/contexte.h"
#include "base/progres.h"
#include "base/verification.h"
#include "storage/magasin.h"

namespace base {

// Tells on the error stream when the file has no index.
void controlerIndex(Contexte& contexte, storage::Magasin& stockage, Progres& progres,
                    const Rapport& rapport);

}  // namespace base
