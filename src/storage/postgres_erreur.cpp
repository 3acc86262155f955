#include "storage/postgres_erreur.h"

#include <cctype>

#include "storage/adresse.h"

namespace storage {

namespace {

using data::NumeroErreur;
using Sorte = PanneServeur::Sorte;

constexpr std::string_view kDroits =
    "ce compte n'a pas le droit de le faire sur le serveur. Demandez-le à la personne qui gère le "
    "serveur.";
constexpr std::string_view kPlein =
    "le disque du serveur est plein. Cette écriture n'est pas faite : demandez à la personne qui "
    "gère le serveur de libérer de la place, puis recommencez.";
constexpr std::string_view kOccupe =
    "un autre poste garde ces articles occupés. Réessayez dans un instant.";
constexpr std::string_view kMotDePasse =
    "le serveur refuse ce compte ou son mot de passe. Demandez-les à la personne qui gère le "
    "serveur.";
constexpr std::string_view kPasDeBase =
    "il n'y a pas de base de contrats à cette adresse. Vérifiez l'adresse ; la commande creer de "
    "contrat-base en fait une.";
constexpr std::string_view kEnArret =
    "le serveur s'arrête ou démarre. Attendez une minute et recommencez ; si cela dure, prévenez "
    "la personne qui gère le serveur.";
constexpr std::string_view kComplet =
    "le serveur a déjà tous les postes qu'il accepte. Recommencez dans un instant ; si cela dure, "
    "prévenez la personne qui gère le serveur.";
constexpr std::string_view kCoupure =
    "la liaison avec le serveur est coupée. Vérifiez le réseau, puis recommencez ; si cela dure, "
    "prévenez la personne qui gère le serveur.";
constexpr std::string_view kEndommage =
    "la base du serveur est endommagée. Arrêtez la saisie et prévenez la personne qui gère le "
    "serveur.";

constexpr std::string_view kIllisible =
    "cette adresse n'est pas écrite comme il faut. Elle a la forme "
    "postgresql://compte@serveur/base "
    "; demandez-la à la personne qui gère le serveur.";
constexpr std::string_view kChiffrement =
    "la liaison chiffrée (SSL) ne se fait pas avec ce serveur. Montrez l'adresse à la personne qui "
    "gère le serveur.";
constexpr std::string_view kAbsent =
    "aucun serveur ne répond à cette adresse. Vérifiez l'adresse et le réseau, puis recommencez ; "
    "si cela dure, prévenez la personne qui gère le serveur.";

// By the first characters of the state; the first row that fits.
struct Traduction {
  std::string_view etat;
  NumeroErreur numero;
  std::string_view suite;
  Sorte sorte = Sorte::Autre;
};
constexpr Traduction kTraductions[] = {
    {"40001", NumeroErreur::Occupe, kOccupe, Sorte::AReprendre},
    {"40P01", NumeroErreur::Occupe, kOccupe, Sorte::AReprendre},
    {"40003", NumeroErreur::EntreeSortie, kCoupure, Sorte::Coupure},
    {"55P03", NumeroErreur::Occupe, kOccupe},
    {"57014", NumeroErreur::Occupe, kOccupe},
    {"25006", NumeroErreur::LectureSeule,
     "le serveur n'accepte que des lectures. Demandez à la personne qui gère le serveur l'adresse "
     "de celui où l'on écrit."},
    {"42501", NumeroErreur::LectureSeule, kDroits},
    {"53100", NumeroErreur::DisquePlein, kPlein},
    {"53200", NumeroErreur::EntreeSortie,
     "la mémoire du serveur manque. Recommencez dans un instant ; si cela dure, prévenez la "
     "personne qui gère le serveur."},
    {"53300", NumeroErreur::Occupe, kComplet},
    {"28", NumeroErreur::EntreeSortie, kMotDePasse},
    {"3D000", NumeroErreur::PasUneBase, kPasDeBase},
    {"3F000", NumeroErreur::PasUneBase, kPasDeBase},
    {"42P01", NumeroErreur::PasUneBase, kPasDeBase},
    {"54000", NumeroErreur::TexteRefuse,
     "la clé ou le texte est trop long pour le serveur. Raccourcissez-le."},
    {"57P", NumeroErreur::EntreeSortie, kEnArret, Sorte::Coupure},
    {"08", NumeroErreur::EntreeSortie, kCoupure, Sorte::Coupure},
    {"XX001", NumeroErreur::Endommage, kEndommage},
    {"XX002", NumeroErreur::Endommage, kEndommage},
};

// The state that stands in libpq's account of a failed connection, "FATAL:  28P01: ..."; the last
// one, of the last server that was tried.
std::string_view etatDe(std::string_view message) {
  std::string_view etat;
  for (std::size_t i = message.find(':'); i != std::string_view::npos;
       i = message.find(':', i + 1)) {
    const std::size_t debut = message.find_first_not_of(' ', i + 1);
    if (debut == std::string_view::npos || debut + 5 >= message.size()) break;
    const std::string_view mot = message.substr(debut, 5);
    bool juste = debut > i + 1 && message[debut + 5] == ':';
    for (const char c : mot) {
      const auto octet = static_cast<unsigned char>(c);
      juste = juste && (std::isdigit(octet) != 0 || std::isupper(octet) != 0);
    }
    if (juste) etat = mot;
  }
  return etat;
}

}  // namespace

PanneServeur erreurServeur(std::string_view etat, std::string_view message,
                           const std::string& adresse, const Acte& acte) {
  for (const Traduction& ligne : kTraductions) {
    if (etat.starts_with(ligne.etat)) {
      return {erreur(ligne.numero, adresse, acte, std::string(ligne.suite)), ligne.sorte};
    }
  }
  std::string suite = "le serveur ne répond pas comme il faut (";
  suite.append(message).append(", ").append(etat);
  suite += "). Prévenez la personne qui gère le serveur.";
  return {erreur(NumeroErreur::EntreeSortie, adresse, acte, suite), Sorte::Autre};
}

PanneServeur erreurCoupure(const std::string& adresse, const Acte& acte) {
  return {erreur(NumeroErreur::EntreeSortie, adresse, acte, std::string(kCoupure)), Sorte::Coupure};
}

PanneServeur erreurConnexion(std::string_view message, const std::string& adresse,
                             const Acte& acte) {
  const std::string_view etat = etatDe(message);
  if (!etat.empty()) return erreurServeur(etat, "connexion refusée", adresse, acte);
  // Said by libpq itself, before anything is sent: the server asks for one, and there is none.
  if (message.find("fe_sendauth") != std::string_view::npos) {
    return erreurServeur("28P01", "", adresse, acte);
  }
  const bool illisible = adresse == kAdresseIllisible;
  const bool chiffrement = message.find("SSL") != std::string_view::npos;
  const std::string_view suite = illisible ? kIllisible : chiffrement ? kChiffrement : kAbsent;
  return {erreur(NumeroErreur::EntreeSortie, adresse, acte, std::string(suite)), Sorte::Coupure};
}

data::StoreError erreurRelecture(const std::string& adresse, const Acte& acte) {
  return erreur(NumeroErreur::Endommage, adresse, acte,
                "l'article ne se relit pas tel qu'il a été écrit. Arrêtez la saisie et prévenez la "
                "personne qui gère le serveur : elle a des sauvegardes.");
}

}  // namespace storage
