#pragma once
// Small verbs of the storage tests: a whole store, a history or a refusal as one short text.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "data/poste.h"
#include "data/store_error.h"
#include "storage/sqlite.h"
#include "support/sql.h"
#include "support/temp_dir.h"

namespace essai {

// One word more in a list parted by blanks.
inline void ajouter(std::string& liste, std::string_view mot) {
  if (!liste.empty()) liste += ' ';
  liste += mot;
}

inline std::string ancien(long numero, std::string_view texte, bool supprime) {
  return std::to_string(numero).append(":").append(texte).append(supprime ? "-" : "");
}

// "CONTRAT[1=a 2=b] TABLES[x=]"
inline std::string etat(data::Storage& store) {
  std::string texte;
  for (const auto& compte : store.Fichiers()) {
    std::string articles;
    long nombre = 0;
    store.Scan(compte.nom, data::KeyRange::Tout(), [&](std::string_view cle, std::string_view t) {
      ajouter(articles, std::string(cle).append("=").append(t));
      return ++nombre > 0;
    });
    EXPECT_EQ(compte.articles, nombre) << compte.nom;
    ajouter(texte, compte.nom + "[" + articles + "]");
  }
  return texte;
}

// "1:a 2:b-", the minus for a text that was replaced by nothing.
inline std::string anciens(data::Storage& store, std::string_view fichier, std::string_view cle) {
  std::string texte;
  for (const auto& a : store.Historique(fichier, cle)) {
    ajouter(texte, ancien(a.numero, a.texte, a.supprime));
  }
  return texte;
}

inline std::string nom(data::NumeroErreur numero) {
  using N = data::NumeroErreur;
  constexpr std::pair<N, const char*> kNoms[] = {
      {N::TexteRefuse, "TexteRefuse"},   {N::PasUneBase, "PasUneBase"},
      {N::LectureSeule, "LectureSeule"}, {N::VersionInconnue, "VersionInconnue"},
      {N::DisquePlein, "DisquePlein"},   {N::EntreeSortie, "EntreeSortie"},
      {N::Endommage, "Endommage"},       {N::Occupe, "Occupe"},
  };
  for (const auto& [n, texte] : kNoms) {
    if (n == numero) return texte;
  }
  return std::to_string(static_cast<long>(numero));
}

// "LectureSeule CONTRAT 1", or "rien" when `acte` passes. A refusal must come with a message.
inline std::string refus(const std::function<void()>& acte, std::string* message = nullptr) {
  try {
    acte();
  } catch (const data::StoreError& erreur) {
    EXPECT_STRNE(erreur.what(), "");
    if (message != nullptr) *message = erreur.what();
    std::string texte = nom(erreur.Numero());
    if (!erreur.Fichier().empty()) texte += " " + erreur.Fichier();
    if (!erreur.Cle().empty()) texte += " " + erreur.Cle();
    return texte;
  }
  return "rien";
}

// A data file in a scratch folder.
class Fichier : public testing::Test {
 protected:
  std::unique_ptr<storage::SqliteStorage> Creer() const {
    return storage::SqliteStorage::Creer(chemin_, poste_);
  }
  std::unique_ptr<storage::SqliteStorage> Ouvrir(int attenteMs = 50) const {
    return storage::SqliteStorage::Ouvrir(chemin_, poste_, {attenteMs, 0});
  }
  std::unique_ptr<storage::SqliteStorage> Lire() const {
    return storage::SqliteStorage::OuvrirEnLecture(chemin_, poste_);
  }
  long Sql(const std::string& requete) const { return support::sql(chemin_, requete); }

  data::PosteFixe poste_{21511};
  support::TempDir dossier_;
  std::string chemin_ = dossier_.Chemin("essai");
};

}  // namespace essai
