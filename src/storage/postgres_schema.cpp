#include "storage/postgres_schema.h"

#include <string>
#include <vector>

#include "storage/signature_index.h"

namespace storage {

namespace {

using data::NumeroErreur;

constexpr Acte kOuverture{"Ouverture de"};
constexpr Acte kCreation{"Création de"};

// What moves the tables from one version to the next, from version 0, where there is nothing. A
// step that was ever released is never changed.
struct Etape {
  std::int64_t version;
  const char* sql;
};
constexpr Etape kEtapes[] = {
    {1, "CREATE SCHEMA contrats"},
    {1,
     "CREATE TABLE contrats.etat(ligne int8 PRIMARY KEY CHECK (ligne = 1), version int8 NOT NULL, "
     "signature int8 NOT NULL)"},
    {1, "INSERT INTO contrats.etat(ligne, version, signature) VALUES(1, 0, 0)"},
    {1,
     "CREATE TABLE contrats.article(fichier bytea NOT NULL, cle bytea NOT NULL, "
     "texte bytea NOT NULL, controle int8 NOT NULL, PRIMARY KEY(fichier, cle))"},
    {1,
     "CREATE TABLE contrats.ancien(fichier bytea NOT NULL, cle bytea NOT NULL, "
     "numero int8 NOT NULL, texte bytea NOT NULL, horodatage bytea NOT NULL, "
     "utilisateur bytea NOT NULL, supprime boolean NOT NULL, controle int8 NOT NULL, "
     "PRIMARY KEY(fichier, cle, numero))"},
    {2,
     "CREATE TABLE contrats.entree(indice int8 NOT NULL, valeur bytea NOT NULL, "
     "cle bytea NOT NULL, PRIMARY KEY(indice, valeur, cle))"},
    {2, "CREATE INDEX entree_cle ON contrats.entree(indice, cle)"},
};

constexpr const char* kRoles[] = {"contrats_consultation", "contrats_complet"};
// Given anew after every move forward: a step can make a table.
constexpr const char* kDroits[] = {
    "GRANT USAGE ON SCHEMA contrats TO contrats_consultation, contrats_complet",
    "GRANT SELECT ON ALL TABLES IN SCHEMA contrats TO contrats_consultation, contrats_complet",
    "GRANT INSERT, UPDATE, DELETE ON ALL TABLES IN SCHEMA contrats TO contrats_complet",
};

constexpr Ordre kDebut{"", "BEGIN"};
constexpr Ordre kFin{"", "COMMIT"};
constexpr Ordre kAnnuler{"", "ROLLBACK"};
constexpr Ordre kEtat{"etat", "SELECT version, signature FROM contrats.etat"};
// The lock under which one station moves the tables forward.
constexpr Ordre kVerrou{"", "SELECT version FROM contrats.etat FOR UPDATE"};
constexpr Ordre kNoter{
    "", "UPDATE contrats.etat SET version = $1::int8, signature = $2::int8 WHERE ligne = 1"};

std::vector<Reponse> seul(Lien& lien, const Ordre& ordre, const Acte& acte,
                          const Parametres& parametres = {}) {
  lien.Envoyer(ordre, parametres, acte);
  return lien.Attendre();
}

// All or nothing of `travail`.
template <typename Travail>
void enTransaction(Lien& lien, const Acte& acte, const Travail& travail) {
  lien.Envoyer(kDebut, {}, acte);
  try {
    travail();
    seul(lien, kFin, acte);
  } catch (const PanneServeur& panne) {
    if (!panne.Coupure()) seul(lien, kAnnuler, acte);
    throw;
  } catch (const data::StoreError&) {
    seul(lien, kAnnuler, acte);
    throw;
  }
}

void creerRoles(Lien& lien) {
  const auto presents = seul(
      lien, {"", "SELECT rolname::text FROM pg_roles WHERE rolname LIKE 'contrats%'"}, kCreation);
  for (const char* const role : kRoles) {
    bool present = false;
    for (int i = 0; i < presents.back().Lignes(); ++i) {
      present = present || presents.back().Texte(i, 0) == role;
    }
    if (present) continue;
    const std::string creer = std::string("CREATE ROLE ") + role;
    lien.Envoyer({"", creer.c_str()}, {}, kCreation);
  }
}

// From the version that the tables have to the present one, in a transaction. Entries that are not
// there yet lead to every record of a base without records, and to none of another.
void avancer(Lien& lien, std::int64_t version, const Acte& acte) {
  for (const Etape& etape : kEtapes) {
    if (etape.version > version) lien.Envoyer({"", etape.sql}, {}, acte);
  }
  for (const char* const droit : kDroits) lien.Envoyer({"", droit}, {}, acte);
  lien.Envoyer(kNoter,
               Parametres().Nombre(kVersionServeur).Nombre(version == 0 ? signatureIndex() : 0),
               acte);
  lien.Attendre();
}

}  // namespace

void creerSchema(Lien& lien) {
  const auto present =
      seul(lien, {"", "SELECT 1 FROM pg_namespace WHERE nspname = 'contrats'"}, kCreation);
  if (present.back().Lignes() > 0) {
    throw erreur(NumeroErreur::EntreeSortie, lien.Adresse(), kCreation,
                 "il y a déjà une base de contrats à cette adresse. Donnez une autre adresse.");
  }
  enTransaction(lien, kCreation, [&] {
    creerRoles(lien);
    avancer(lien, 0, kCreation);
  });
}

std::int64_t preparerSchema(Lien& lien, bool lecture) {
  const auto etat = seul(lien, kEtat, kOuverture);
  const std::int64_t version = etat.back().Lignes() == 0 ? 0 : etat.back().Nombre(0, 0);
  if (version == kVersionServeur) return etat.back().Nombre(0, 1);
  if (version > kVersionServeur) {
    throw erreur(NumeroErreur::VersionInconnue, lien.Adresse(), kOuverture,
                 "elle vient d'une version plus récente de ce programme. Installez cette version.");
  }
  if (lecture) {
    throw erreur(
        NumeroErreur::VersionInconnue, lien.Adresse(), kOuverture,
        "elle vient d'une version plus ancienne de ce programme. La personne qui l'a créée "
        "doit la mettre à niveau par la commande reparer de contrat-base.");
  }
  enTransaction(lien, kOuverture, [&] {
    const auto verrou = seul(lien, kVerrou, kOuverture);
    if (verrou.back().Nombre(0, 0) < kVersionServeur) {
      avancer(lien, verrou.back().Nombre(0, 0), kOuverture);
    }
  });
  return seul(lien, kEtat, kOuverture).back().Nombre(0, 1);
}

}  // namespace storage
