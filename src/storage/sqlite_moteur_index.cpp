// What the store's engine does with its indexes.

#include "storage/parcours.h"
#include "storage/sqlite_moteur.h"

namespace storage {

namespace {

constexpr Acte kIndexation{"Indexation de"};

}  // namespace

std::optional<std::size_t> SqliteStorage::Moteur::Compter(const Acte& acte,
                                                          const data::Chemin& chemin,
                                                          std::size_t plafond) {
  const auto compte = index_.Compter(acte, chemin, plafond);
  connexion_->ExigerTenue(acte);
  return compte;
}

bool SqliteStorage::Moteur::ParcourirChemins(const Acte& acte,
                                             const std::vector<data::Chemin>& chemins,
                                             const Visiteur& visiteur) {
  // A scan that goes on around this one, or a block, holds one state of the file already.
  const LectureUnie lecture(*connexion_, parcours_ > 0 || connexion_->EnTransaction(), acte);
  const auto cles = index_.Cles(acte, chemins);
  connexion_->ExigerTenue(acte);
  if (!cles) return false;
  const Parcours parcours(parcours_);
  std::string texte;
  for (const std::string& cle : *cles) {
    if (Lire({"Lecture", acte.fichier, cle}, texte) && !visiteur(cle, texte)) break;
  }
  return true;
}

void SqliteStorage::Moteur::RefaireIndex(const std::function<void(long)>& avance) {
  veille_.Exiger(kIndexation);
  Transaction transaction(*connexion_, kIndexation);
  index_.Refaire(avance);
  veille_.Exiger(kIndexation);
  transaction.Valider(kIndexation);
}

void SqliteStorage::Moteur::PreparerIndex(const std::function<void(long)>& avance) {
  try {
    if (index_.Tenu(kIndexation)) return;
    Transaction transaction(*connexion_, kIndexation);
    // Another program may have made them while this one waited.
    if (index_.Tenu(kIndexation)) return;
    index_.Refaire(avance);
    veille_.Exiger(kIndexation);
    transaction.Valider(kIndexation);
  } catch (const data::StoreError&) {
    // A damaged record, a full disk, another program that writes for long: none of them keeps from
    // working with what the file holds. Questions are answered by scans until the next opening.
  }
}

bool SqliteStorage::Moteur::VerifierIndex(const std::function<void(const Dommage&)>& signaler,
                                          const std::function<void(long)>& avance) {
  const bool tenus = index_.Verifier(signaler, avance);
  connexion_->ExigerTenue(kIndexation);
  return tenus;
}

}  // namespace storage
