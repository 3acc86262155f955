#pragma once
// The files of the suite: their names, what they hold and the shape of their keys. The logic takes
// the names from here; tools that check a data file take the shapes.
//
// A shape is a row of parts, read from the left; "|" parts alternatives:
//
//   5c      5 characters, each a visible ASCII character (codes of persons, entities, items)
//   3n      3 digits
//   p       a period, yyyymm with a month from 01 to 12
//   a       a year of 4 digits
//   j       an internal day number on 5 digits
//   'xyz'   that very text
//   *       whatever is left, nothing included
//
// So "5c3np" is a contract key followed by a period, and "2n|3n1c" two digits, or three digits and
// a character.

#include <string_view>

namespace data {

namespace fichier {
inline constexpr std::string_view ABSENCESAIDANT = "ABSENCESAIDANT";
inline constexpr std::string_view ACTIVITES = "ACTIVITES";
inline constexpr std::string_view ACTIVITESAIDE = "ACTIVITESAIDE";
inline constexpr std::string_view ACTUSUIVICONTRAT = "ACTUSUIVICONTRAT";
inline constexpr std::string_view AIDANTTTE = "AIDANTTTE";
inline constexpr std::string_view ASSOCIATION = "ASSOCIATION";
inline constexpr std::string_view CENTREMEDICAL = "CENTREMEDICAL";
inline constexpr std::string_view CENTREURSSAF = "CENTREURSSAF";
inline constexpr std::string_view CIVILAIDANT = "CIVILAIDANT";
inline constexpr std::string_view CIVILAIDE = "CIVILAIDE";
inline constexpr std::string_view COMPTEUR = "COMPTEUR";
inline constexpr std::string_view CONSTANTESPAIE = "CONSTANTESPAIE";
inline constexpr std::string_view CONTRAT = "CONTRAT";
inline constexpr std::string_view CONTRATINV = "CONTRATINV";
inline constexpr std::string_view CONTRATSPREV = "CONTRATSPREV";
inline constexpr std::string_view CONVENTIONCOL = "CONVENTIONCOL";
inline constexpr std::string_view DETAILADMIN = "DETAILADMIN";
inline constexpr std::string_view DETAILCALCUL = "DETAILCALCUL";
inline constexpr std::string_view DETAILINTER = "DETAILINTER";
inline constexpr std::string_view DETAILMANDAT = "DETAILMANDAT";
inline constexpr std::string_view DETAILPREST = "DETAILPREST";
inline constexpr std::string_view DSNEVENEMENT = "DSNEVENEMENT";
inline constexpr std::string_view ELTSPARTEMP = "ELTSPARTEMP";
inline constexpr std::string_view ETABLISSEMENT = "ETABLISSEMENT";
inline constexpr std::string_view ETRANGER = "ETRANGER";
inline constexpr std::string_view GRILLESCC = "GRILLESCC";
inline constexpr std::string_view HISTORINDEM = "HISTORINDEM";
inline constexpr std::string_view INFOSAIDANT = "INFOSAIDANT";
inline constexpr std::string_view LIENAVENANT = "LIENAVENANT";
inline constexpr std::string_view LIENCONTRAT = "LIENCONTRAT";
inline constexpr std::string_view MISSIONSAIDANT = "MISSIONSAIDANT";
inline constexpr std::string_view OPPOSITION = "OPPOSITION";
inline constexpr std::string_view ORGANISMESOCIAL = "ORGANISMESOCIAL";
inline constexpr std::string_view PAYS = "PAYS";
inline constexpr std::string_view PCS = "PCS";
inline constexpr std::string_view PERIODESPAIE = "PERIODESPAIE";
inline constexpr std::string_view PROFIL = "PROFIL";
inline constexpr std::string_view RIBAIDANT = "RIBAIDANT";
inline constexpr std::string_view RUBCHARGE = "RUBCHARGE";
inline constexpr std::string_view RUBSAISIE = "RUBSAISIE";
inline constexpr std::string_view TABLES = "TABLES";
inline constexpr std::string_view TPSAIDANTINDISPO = "TPSAIDANTINDISPO";
inline constexpr std::string_view TPSDETAILSINTERV = "TPSDETAILSINTERV";
inline constexpr std::string_view TPSEXCEPTIONS = "TPSEXCEPTIONS";
inline constexpr std::string_view TPSMOI = "TPSMOI";
inline constexpr std::string_view TPSPARAM = "TPSPARAM";
inline constexpr std::string_view TPSSANSCONTRAT = "TPSSANSCONTRAT";

// Index files made at run time: this, then the entity and the agreement.
inline constexpr std::string_view PrefixeContrats = "CONTRAT";
inline constexpr std::string_view PrefixeAvenants = "AVENANT";
inline constexpr std::size_t LongueurPortee = 5;  // entity 3, agreement 2
}  // namespace fichier

struct FichierConnu {
  std::string_view nom;
  std::string_view contenu;  // in French, for a person who looks through a data file
  std::string_view forme;
  bool prefixe = false;  // `nom` begins the names of files made at run time
};

inline constexpr FichierConnu FichiersConnus[] = {
    {fichier::ABSENCESAIDANT, "absences des aidants", "5c2nj"},
    {fichier::ACTIVITES, "activités des entités", "3c3c"},
    {fichier::ACTIVITESAIDE, "activités ouvertes à un aidé", "5c"},
    {fichier::ACTUSUIVICONTRAT, "aidants dont le suivi est à rafraîchir", "5c"},
    {fichier::AIDANTTTE, "temps de travail effectif par contrat et année", "5c3na"},
    {fichier::ASSOCIATION, "entités juridiques", "3c"},
    {fichier::CENTREMEDICAL, "centres de médecine du travail", "3c"},
    {fichier::CENTREURSSAF, "centres URSSAF", "3c"},
    {fichier::CIVILAIDANT, "aidants", "5c"},
    {fichier::CIVILAIDE, "aidés et particuliers employeurs", "5c"},
    {fichier::COMPTEUR, "compteurs", "1c*"},
    {fichier::CONSTANTESPAIE, "constantes de paie", "1c*"},
    {fichier::CONTRAT, "contrats de travail", "5c3n"},
    {fichier::CONTRATINV, "contrats par aidant et particulier employeur", "5c5c"},
    {fichier::CONTRATSPREV, "contrats de prévoyance", "2c"},
    {fichier::CONVENTIONCOL, "conventions collectives", "2c"},
    {fichier::DETAILADMIN, "bulletins, part administrative", "5c3np"},
    {fichier::DETAILCALCUL, "bulletins calculés", "5c3np"},
    {fichier::DETAILINTER, "bulletins, part des interventions", "5c3n'000'p"},
    {fichier::DETAILMANDAT, "bulletins, part mandataire", "5c3np"},
    {fichier::DETAILPREST, "bulletins, part prestataire", "5c3np"},
    {fichier::DSNEVENEMENT, "événements à déclarer", "5c3n"},
    {fichier::ELTSPARTEMP, "éléments des particuliers employeurs", "5c"},
    {fichier::ETABLISSEMENT, "établissements", "3c3c"},
    {fichier::ETRANGER, "titres de séjour des aidants", "5c"},
    {fichier::GRILLESCC, "grilles de déroulement de carrière", "2c1c*"},
    {fichier::HISTORINDEM, "indemnisations par contrat de prévoyance et aidant", "2c5c"},
    {fichier::INFOSAIDANT, "informations complémentaires des aidants", "5c"},
    {fichier::LIENAVENANT, "index d'avenants existants", "'AVENANT'3c2c"},
    {fichier::LIENCONTRAT, "index de contrats existants", "'CONTRAT'3c2c"},
    {fichier::MISSIONSAIDANT, "missions des aidants", "5c"},
    {fichier::OPPOSITION, "oppositions sur salaire", "5c3n*"},
    {fichier::ORGANISMESOCIAL, "organismes sociaux des entités", "3c1c*"},
    {fichier::PAYS, "pays", "1c*"},
    {fichier::PCS, "nomenclature P.C.S.", "2n|3n1c"},
    {fichier::PERIODESPAIE, "périodes de paie ouvertes", "1c*"},
    {fichier::PROFIL, "profils de paie", "3c"},
    {fichier::RIBAIDANT, "comptes bancaires des aidants", "5c"},
    {fichier::RUBCHARGE, "rubriques de charge", "3c"},
    {fichier::RUBSAISIE, "rubriques de saisie", "3c"},
    {fichier::TABLES, "tables de codes", "1c*"},
    {fichier::TPSAIDANTINDISPO, "indisponibilités des aidants", "5cj1n4n"},
    {fichier::TPSDETAILSINTERV, "interventions du planning", "5c5cj6c1n4n"},
    {fichier::TPSEXCEPTIONS, "exceptions du planning", "5cj4n"},
    {fichier::TPSMOI, "main d'oeuvre indirecte", "5c*"},
    {fichier::TPSPARAM, "paramètres du planning", "1c*"},
    {fichier::TPSSANSCONTRAT, "travail sans contrat", "5c3c*"},
    {fichier::PrefixeContrats, "contrats d'une entité et d'une convention", "5c3n", true},
    {fichier::PrefixeAvenants, "avenants d'une entité et d'une convention", "5c3n2n|5c3n3n", true},
};

// The row of that file, exact names before run-time names; nullptr for a file that is none of ours.
const FichierConnu* fichierConnu(std::string_view nom);

// Whether the key has the shape of its file's keys. For an unknown file any key but the empty one.
bool cleBienFormee(std::string_view fichier, std::string_view cle);

}  // namespace data
