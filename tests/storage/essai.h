#pragma once
// Small verbs of the storage tests: a whole store, a history or a refusal as one short text.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "data/storage.h"
#include "data/store_error.h"

namespace essai {

// "CONTRAT[1=a 2=b] TABLES[x=]"
inline std::string etat(data::Storage& store) {
  std::string texte;
  for (const auto& compte : store.Fichiers()) {
    std::string articles;
    long nombre = 0;
    store.Scan(compte.nom, data::KeyRange::Tout(), [&](std::string_view cle, std::string_view t) {
      articles += (articles.empty() ? "" : " ") + std::string(cle) + "=" + std::string(t);
      ++nombre;
      return true;
    });
    EXPECT_EQ(compte.articles, nombre) << compte.nom;
    texte += (texte.empty() ? "" : " ") + compte.nom + "[" + articles + "]";
  }
  return texte;
}

// "1:a 2:b-", the minus for a text that was replaced by nothing.
inline std::string anciens(data::Storage& store, std::string_view fichier, std::string_view cle) {
  std::string texte;
  for (const auto& ancien : store.Historique(fichier, cle)) {
    texte += (texte.empty() ? "" : " ") + std::to_string(ancien.numero) + ":" + ancien.texte +
             (ancien.supprime ? "-" : "");
  }
  return texte;
}

inline const char* nom(data::NumeroErreur numero) {
  switch (numero) {
    case data::NumeroErreur::NonTrouve:
      return "NonTrouve";
    case data::NumeroErreur::NonAttache:
      return "NonAttache";
    case data::NumeroErreur::Question:
      return "Question";
    case data::NumeroErreur::TexteRefuse:
      return "TexteRefuse";
    case data::NumeroErreur::PasUneBase:
      return "PasUneBase";
    case data::NumeroErreur::VersionInconnue:
      return "VersionInconnue";
    case data::NumeroErreur::LectureSeule:
      return "LectureSeule";
    case data::NumeroErreur::DisquePlein:
      return "DisquePlein";
    case data::NumeroErreur::Endommage:
      return "Endommage";
    case data::NumeroErreur::Occupe:
      return "Occupe";
    case data::NumeroErreur::EntreeSortie:
      return "EntreeSortie";
  }
  return "?";
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

}  // namespace essai
