#include "storage/acte.h"

namespace storage {

namespace {

std::string ou(const Acte& acte) {
  std::string texte(acte.nom);
  if (acte.fichier.empty()) return texte;
  if (!acte.cle.empty() && !acte.apres) texte.append(" de l'article « ").append(acte.cle) += " »";
  texte.append(" du fichier ").append(acte.fichier);
  if (!acte.cle.empty() && acte.apres) texte.append(" après la clé « ").append(acte.cle) += " »";
  return texte;
}

}  // namespace

data::StoreError erreur(data::NumeroErreur numero, const std::string& chemin, const Acte& acte,
                        const std::string& suite) {
  const std::string lien = acte.fichier.empty() ? " « " : " impossible dans « ";
  const std::string fin = acte.fichier.empty() ? " » impossible : " : " » : ";
  return data::StoreError(numero, ou(acte) + lien + chemin + fin + suite, std::string(acte.fichier),
                          std::string(acte.cle));
}

}  // namespace storage
