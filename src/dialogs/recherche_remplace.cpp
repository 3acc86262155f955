#include "dialogs/recherche_remplace.h"

#include "data/cles.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/question.h"
#include "data/texte.h"

namespace dialogs {

namespace {

// Types of absence during which nobody is replaced.
constexpr const char* TypesJamaisRemplaces[] = {"18", "19", "20", "21"};

constexpr const char* OuVide = " OR = \"\"";

// "JJ/MM/AA".
std::string dateCourte(const data::Lib& lib, std::string_view jour) {
  const std::string date = lib.DateFromInternal(jour);
  return data::gauche(date, 6) + data::milieu(date, 9, 2);
}

}  // namespace

std::string NomAidant(const data::CItem& civilAidant) {
  return civilAidant(data::CivilAidant::Nom) + " " + civilAidant(data::CivilAidant::Prenom);
}

bool EstSupprime(const data::CItem& civilAidant, std::string_view jour) {
  const std::string_view suppression = civilAidant.Vue(data::CivilAidant::DateFin);
  if (jour.empty() || suppression.empty()) return false;
  return data::entier(jour) < data::entier(suppression);
}

bool EstCherchable(std::string_view nom) {
  return data::citerDebut(nom) != data::citerDebut("");
}

data::CItem ChercherAidants(session::Session& session, std::string_view nom,
                            std::string_view jour) {
  std::string question =
      "SSELECT CIVILAIDANT AVEC NomPrenomAidant = " + data::citerDebut(data::majuscules(nom));
  if (!jour.empty()) question += " AND AVEC 36 >= " + data::citer(jour) + OuVide;
  question += " PAR 2 PAR 3";
  return session.Db->Selectionner(question, data::fichier::CIVILAIDANT, "0 2 3 36");
}

bool AUnContrat(session::Session& session, const ContexteMotif& contexte, std::string_view code,
                std::string_view jour) {
  const bool particulier = contexte.convention == data::ConventionParticuliers;
  std::string question = "SSELECT CONTRAT AVEC @ID = " + data::citerDebut(code);
  question += particulier ? " AND AVEC 3 = " + data::citer(contexte.employeur)
                          : " AND AVEC 2 = " + data::citer(contexte.association);
  question += " AND AVEC 7 <= " + data::citer(jour);
  question += " AND AVEC 8 >= " + data::citer(jour) + OuVide;
  return !session.Db->Selectionner(question, data::fichier::CONTRAT, "0").Vide();
}

data::CItem ChercherAbsences(session::Session& session, std::string_view code,
                             std::string_view jour) {
  std::string question = "SSELECT ABSENCESAIDANT AVEC @ID = " + data::citerDebut(code) +
                         " AND AVEC 2 >= " + data::citer(jour);
  for (const char* type : TypesJamaisRemplaces) {
    question += " AND AVEC TypeAbs <> " + data::citer(type);
  }
  question += " PAR DebAbsAidant";
  return session.Db->Selectionner(question, data::fichier::ABSENCESAIDANT, "0 2");
}

std::string LibelleAbsence(const data::Lib& lib, const data::CItem& table, std::string_view cle,
                           std::string_view dernierJour) {
  using namespace data::AbsencesAidant;
  const std::string type = data::milieu(cle, PosType, LongueurType);
  std::string libelle;
  for (int v = 1; v <= table.DCount(data::Tables::Codes); ++v) {
    if (table.Vue(data::Tables::Codes, v) != type) continue;
    libelle = table(data::Tables::Libelles, v);
    break;
  }
  return data::sansBlancs(libelle + " du " + dateCourte(lib, data::milieu(cle, PosDebut)) + " au " +
                          dateCourte(lib, dernierJour));
}

}  // namespace dialogs
