#include "dialogs/recherche_remplace.h"

#include "data/cles.h"
#include "data/layouts/contrat.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/requete.h"
#include "data/texte.h"

namespace dialogs {

namespace {

// Types of absence during which nobody is replaced.
constexpr const char* TypesJamaisRemplaces[] = {"18", "19", "20", "21"};

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
  return !data::plier(nom).empty();
}

data::CItem ChercherAidants(session::Session& session, std::string_view nom,
                            std::string_view jour) {
  using namespace data;
  Requete requete(fichier::CIVILAIDANT);
  requete.Avec("NomPrenomAidant", "=", citerDebut(majuscules(nom)));
  if (!jour.empty()) {
    requete.Avec(CivilAidant::DateFin, ">=", citer(jour)).Ou("=", citer(""));
  }
  return requete.Par(CivilAidant::Nom)
      .Par(CivilAidant::Prenom)
      .Lire(*session.Db, {Cle, CivilAidant::Nom, CivilAidant::Prenom, CivilAidant::DateFin});
}

bool AUnContrat(session::Session& session, const ContexteMotif& contexte, std::string_view code,
                std::string_view jour) {
  using namespace data;
  Requete requete(fichier::CONTRAT);
  requete.Avec(Cle, "=", citerDebut(code));
  if (contexte.convention == ConventionParticuliers) {
    requete.Avec(Contrat::Employeur, "=", citer(contexte.employeur));
  } else {
    requete.Avec(Contrat::Association, "=", citer(contexte.association));
  }
  requete.Avec(Contrat::DateDebut, "<=", citer(jour));
  requete.Avec(Contrat::DateFin, ">=", citer(jour)).Ou("=", citer(""));
  return !requete.Lire(*session.Db, {Cle}).Vide();
}

data::CItem ChercherAbsences(session::Session& session, std::string_view code,
                             std::string_view jour) {
  using namespace data;
  Requete requete(fichier::ABSENCESAIDANT);
  requete.Avec(Cle, "=", citerDebut(code)).Avec(AbsencesAidant::DateFin, ">=", citer(jour));
  for (const char* type : TypesJamaisRemplaces) requete.Avec("TypeAbs", "<>", citer(type));
  return requete.Par("DebAbsAidant").Lire(*session.Db, {Cle, AbsencesAidant::DateFin});
}

std::string LibelleAbsence(const data::Lib& lib, const data::ListeCodes& types,
                           std::string_view cle, std::string_view dernierJour) {
  using namespace data::AbsencesAidant;
  const std::string libelle = types.Libelle(data::milieu(cle, PosType, LongueurType));
  return data::sansBlancs(libelle + " du " + dateCourte(lib, data::milieu(cle, PosDebut)) + " au " +
                          dateCourte(lib, dernierJour));
}

}  // namespace dialogs
