#pragma once
// The attributes of the files beside CONTRAT, one namespace a file, in alphabetical order. Only
// what this system reads or writes is named: a record may hold more, and every write carries it
// over. Units as in layouts/contrat.h; the shapes of the keys stand in layouts/fichiers.h.
//
// ACTUSUIVICONTRAT, LIENCONTRAT, LIENAVENANT, TPSSANSCONTRAT and the index files made at run time
// hold empty items: that the record exists is the whole information.

namespace data {

namespace AbsencesAidant {
inline constexpr int DateFin = 2;                    // date; type and start stand in the key
inline constexpr int PosType = 6, LongueurType = 2;  // place in the key, from 1
inline constexpr int PosDebut = 8;                   // to the end of the key
}  // namespace AbsencesAidant

namespace Activites {
inline constexpr int Libelle = 1;
inline constexpr int Genre = 12;  // "M" for a private employer's, "P" for the entity's services
}  // namespace Activites

// By person helped: the activities that are open to that person.
namespace ActivitesAide {
inline constexpr int Codes = 1;   // (m) ACTIVITES keys
inline constexpr int Debuts = 2;  // (m) date
inline constexpr int Fins = 3;    // (m) date or empty
}  // namespace ActivitesAide

// Effective working time of one carer, contract and year; every attribute (m), in month order.
namespace AidantTte {
inline constexpr int Mois = 1;             // period
inline constexpr int HeuresParJour = 2;    // x100 hours
inline constexpr int JoursMois = 3;        // whole days
inline constexpr int JoursSamDim = 4;      // whole days
inline constexpr int JoursFeries = 5;      // whole days
inline constexpr int JoursConges = 6;      // x100 days
inline constexpr int JoursMaladie = 7;     // x100 days
inline constexpr int JoursAutres = 8;      // x100 days
inline constexpr int TempsEffectif = 9;    // x100 hours
inline constexpr int Regularisation = 10;  // x100 hours of modulation
inline constexpr int Solde = 11;           // x100 hours, running sum of the months
}  // namespace AidantTte

// The legal entity. Attributes 3 to 11 stand at the same places in ETABLISSEMENT.
namespace Association {
inline constexpr int Nom = 1;
inline constexpr int Siret = 3;       // 14 digits
inline constexpr int CodeApe = 4;     // 5 characters
inline constexpr int Adresse1 = 5;    // number and street
inline constexpr int Adresse2 = 6;    // complement
inline constexpr int Adresse3 = 7;    // place
inline constexpr int CodePostal = 8;  // 5 digits
inline constexpr int Ville = 9;
inline constexpr int NumeroEmployeur = 10;   // digits
inline constexpr int Immatriculation = 11;   // digits
inline constexpr int ExerciceDecembre = 25;  // not zero: the follow-up runs December to November
inline constexpr int Telegestion = 38;       // "06" or "VESPARIO": remote time-tracking in use
}  // namespace Association

namespace CentreMedical {
inline constexpr int Libelle = 1;
inline constexpr int Adresse = 2;
inline constexpr int CodePostal = 3;
inline constexpr int Ville = 4;
}  // namespace CentreMedical

namespace CentreUrssaf {
inline constexpr int Libelle = 9;
}

// The carer.
namespace CivilAidant {
// First 3 characters: CENTREMEDICAL key; what follows: the title, "MR", "MME" or "MLE".
inline constexpr int CentreEtCivilite = 1;
inline constexpr int Nom = 2;  // surname in use
inline constexpr int Prenom = 3;
inline constexpr int NomNaissance = 4;
inline constexpr int VoieNumero = 5;
inline constexpr int VoieBis = 6;
inline constexpr int VoieNature = 7;  // code of TABLES NATUREVOIE
inline constexpr int VoieNom = 8;
inline constexpr int AdresseComplement = 9;
inline constexpr int CodePostal = 10;  // 5 digits
inline constexpr int Ville = 11;
inline constexpr int Telephone = 14;
inline constexpr int Sexe = 16;             // "M" or "F"
inline constexpr int NumeroSecu = 17;       // "S AA MM DD CCC OOO", 18 characters, or empty
inline constexpr int CleSecu = 18;          // 2 digits
inline constexpr int Nationalite = 19;      // "FRANCE" or the country in capitals
inline constexpr int PaysNationalite = 20;  // PAYS key
inline constexpr int DateNaissance = 26;    // date
inline constexpr int LieuNaissance = 27;
inline constexpr int DepartementNaissance = 28;  // 2 characters
inline constexpr int CodePaysNaissance = 29;     // PAYS key
inline constexpr int PaysNaissance = 30;         // label
inline constexpr int DateFin = 36;               // date of deletion, empty = in use
inline constexpr int PremiereEmbauche02 = 40;    // date, first hire under agreement "02"
inline constexpr int DernierNumero = 41;         // highest contract number given, 3 digits
inline constexpr int NumerosLibres = 42;         // (m) 3 digits, given back; the first goes first
}  // namespace CivilAidant

// The person helped, who may be a private employer. Address places as in CIVILAIDANT.
namespace CivilAide {
inline constexpr int Nom = 2;
inline constexpr int Prenom = 3;
inline constexpr int NomNaissance = 4;
inline constexpr int VoieNumero = 5;
inline constexpr int VoieBis = 6;
inline constexpr int VoieNature = 7;  // code of TABLES NATUREVOIE
inline constexpr int VoieNom = 8;
inline constexpr int AdresseComplement = 9;
inline constexpr int CodePostal = 10;
inline constexpr int Ville = 11;
inline constexpr int Telephone = 14;
inline constexpr int DateNaissance = 20;  // date, printed on the hiring declaration
inline constexpr int DateFin = 43;        // date the help ended, empty = still helped
}  // namespace CivilAide

// Item "999".
namespace Compteur {
inline constexpr int Planning = 18;  // not empty: the planning is in use
inline constexpr const char* Cle = "999";
}  // namespace Compteur

// Item "1".
namespace ConstantesPaie {
inline constexpr int MaximumHebdo = 10;  // x100 hours, legal weekly maximum
inline constexpr const char* Cle = "1";
}  // namespace ConstantesPaie

// By carer and private employer.
namespace ContratInv {
inline constexpr int Numeros = 1;  // (m) contract numbers, 3 digits
}

namespace ContratsPrev {
inline constexpr int Libelle = 1;
inline constexpr int LibelleParticulier = 2;  // shown for agreement "02"
inline constexpr int Convention = 3;          // CONVENTIONCOL key
inline constexpr const char* CleSans = "99";  // the "no contract" row, never offered
}  // namespace ContratsPrev

namespace ConventionCol {
inline constexpr int Libelle = 1;
inline constexpr int ModeCP = 2;                  // 1 ouvres, 2 ouvrables
inline constexpr int ModeAnciennete = 12;         // 1 ouvres, 2 ouvrables
inline constexpr int VirementParDefaut = 22;      // "1", agreement "02" only
inline constexpr int CategorieLibre = 36;         // "VRAI": category typed by hand without grid
inline constexpr int PrevoyanceObligatoire = 44;  // "1"
inline constexpr int SuiviTte = 45;               // "T": the follow-up opens on its second tab
inline constexpr int ModeDelaiPrev = 76;          // 1 ouvres, 2 ouvrables
// What a new contract begins with, agreement "02" only.
inline constexpr int PaiementParEntiteParDefaut = 77;  // "1"
inline constexpr int CongesAuMoisParDefaut = 78;       // "1"
}  // namespace ConventionCol

// Results of the payroll. The period stands in the key.
namespace DetailAdmin {
inline constexpr int Rubriques = 1;  // (m) pay headings
}
namespace DetailCalcul {
inline constexpr int Facturation = 1;  // "P": the month's invoice is not made yet
}
namespace DetailInter {
inline constexpr int Rubriques = 8;  // (m) pay headings
}
namespace DetailMandat {
inline constexpr int Rubriques = 1;  // (m) pay headings
}
namespace DetailPrest {
inline constexpr int Rubriques = 5;  // (m) pay headings
}

namespace DsnEvenement {
inline constexpr int EtatInitial = 1;  // set by the declaration side; empty = not sent yet
inline constexpr int FinContrat = 2;   // "1" end of contract to declare, or empty
}  // namespace DsnEvenement

// The person helped as an employer; exists for private employers only.
namespace EltsPartEmp {
inline constexpr int CentreUrssaf = 1;      // CENTREURSSAF key
inline constexpr int Reference = 2;         // employer reference on the form
inline constexpr int DateDebutPrev = 6;     // date; before it a contract has no provident scheme
inline constexpr int TypeEmployeur = 9;     // code of the box row of the form
inline constexpr int Profil = 12;           // PROFIL key proposed for a new contract
inline constexpr int ContratPrev = 13;      // CONTRATSPREV key or empty
inline constexpr int DateFinPrev = 14;      // date, end of that provident contract
inline constexpr int DerniereFacture = 16;  // period last billed
}  // namespace EltsPartEmp

// Attributes 3 to 11 as in ASSOCIATION.
namespace Etablissement {
inline constexpr int Libelle = 1;
inline constexpr int Association = 2;  // first 3 characters: entity that declares in its place
inline constexpr int Siret = 3;        // 14 digits
inline constexpr int CodeApe = 4;      // 5 characters
inline constexpr int Adresse1 = 5;
inline constexpr int Adresse2 = 6;
inline constexpr int Adresse3 = 7;
inline constexpr int CodePostal = 8;
inline constexpr int Ville = 9;
inline constexpr int NumeroEmployeur = 10;
inline constexpr int Immatriculation = 11;
inline constexpr int Effectif = 17;     // x100 persons, value 1 on the declaration
inline constexpr int MoisCloture = 24;  // mm, closing month of the modulation year
}  // namespace Etablissement

namespace Etranger {
inline constexpr int PositionTitre = 1;  // place in TABLES TITRESSEJOUR, from 1
inline constexpr int NumeroTitre = 3;
}  // namespace Etranger

namespace GrillesCC {
inline constexpr int Libelle = 1;
inline constexpr int Categorie = 7;  // a letter
}  // namespace GrillesCC

// By provident contract and carer.
namespace HistorIndem {
inline constexpr int Periodes = 1;  // (m) periods of compensation
}

namespace InfosAidant {
inline constexpr int HandicapDu = 6;     // date
inline constexpr int HandicapType = 10;  // code; "08" gives no right
inline constexpr int HandicapAu = 11;    // date
inline constexpr const char* TypeExclu = "08";
}  // namespace InfosAidant

// By carer, one line a mission.
namespace MissionsAidant {
inline constexpr int Fins = 3;           // (m) date or empty
inline constexpr int Associations = 13;  // (m) ASSOCIATION keys
}  // namespace MissionsAidant

// Records keyed by contract; only that one exists counts.
namespace Opposition {
inline constexpr int Libelle = 1;
}

namespace OrganismeSocial {
inline constexpr int Libelle = 1;
inline constexpr int Genre = 3;  // "03" retirement
inline constexpr const char* GenreRetraite = "03";
}  // namespace OrganismeSocial

namespace Pays {
inline constexpr int Libelle = 1;
inline constexpr int Zone = 2;  // "C" Community
}  // namespace Pays

// Two digits: a category; four characters: a function of the category that begins the code.
namespace Pcs {
inline constexpr int Libelle = 1;
}

// Item "1".
namespace PeriodesPaie {
inline constexpr int Courante = 1;  // period
inline constexpr int Seconde = 2;   // period, open for entry too
inline constexpr const char* Cle = "1";
}  // namespace PeriodesPaie

namespace Profil {
inline constexpr int Libelle = 1;
inline constexpr int Rubriques = 3;   // (m) headings; charge headings are RUBCHARGE keys
inline constexpr int Mandataire = 4;  // "1" private employers, "0" others
}  // namespace Profil

namespace RibAidant {
inline constexpr int Compte = 3;  // not empty: an account is known
}

namespace RubCharge {
inline constexpr int Libelle = 1;
inline constexpr int BaseSalariale = 11;  // value 1 "Montant" for a fixed amount
inline constexpr int BasePatronale = 15;  // value 1 "Montant" for a fixed amount
inline constexpr int Famille = 16;        // "08" mutual insurance
inline constexpr int AideDomicile = 28;   // "1": reserved to home help
inline constexpr int Inactive = 30;       // "1" = no longer used
inline constexpr const char* FamilleMutuelle = "08";
}  // namespace RubCharge

namespace RubSaisie {
inline constexpr int Libelle = 1;
inline constexpr int Filtre = 4;         // offered on "0"
inline constexpr int GenreBase = 6;      // 0 to 4
inline constexpr int Coefficient = 7;    // x100, multiplies a base of kind 1
inline constexpr int GenreTaux = 8;      // 0 to 4
inline constexpr int Taux = 9;           // x10000
inline constexpr int GenreMontant = 10;  // 0 to 4
inline constexpr int Montant = 11;       // x100 euros
inline constexpr int Exclue = 18;        // "1" = never offered
}  // namespace RubSaisie

// One item a table of codes; codes, labels and marks are parallel lists.
namespace Tables {
inline constexpr const char* Absences = "ABSENCES";
inline constexpr const char* CarteOrange = "CARTEORANGE";
inline constexpr const char* FinContrat = "FINCONTRAT";
inline constexpr const char* MotifEmbauche = "MOTIFEMBAUCHE";
inline constexpr const char* NatureContrat = "NATURECONTRAT";
inline constexpr const char* NatureVoie = "NATUREVOIE";
inline constexpr const char* Qualif = "QUALIF";
inline constexpr const char* RegroupBudget = "REGROUPBUDGET";
inline constexpr const char* TitresSejour = "TITRESSEJOUR";
// Every item but MOTIFEMBAUCHE and QUALIF.
inline constexpr int Codes = 2;
inline constexpr int Libelles = 3;
// MOTIFEMBAUCHE.
inline constexpr int MotifCodes = 1;
inline constexpr int MotifLibelles = 2;
// QUALIF: no code, a contract holds the label.
inline constexpr int QualifLibelles = 2;
inline constexpr int QualifRegroupements = 4;  // codes of REGROUPBUDGET
// Marks.
inline constexpr int FinObsoletes = 5;         // FINCONTRAT, "O" = obsolete
inline constexpr int NatureChoisissables = 6;  // NATURECONTRAT, "O" = selectable
}  // namespace Tables

namespace TpsAidantIndispo {
inline constexpr int DateFin = 1;   // date or empty
inline constexpr int HeureFin = 2;  // 4 digits
inline constexpr int Comptee = 5;   // "O": recurring, counts in the legal hours
}  // namespace TpsAidantIndispo

// Places in the key, from 1: carer 1-5, person helped 6-10, first day 11-15, activity 16-21,
// weekday 22 (0 Monday to 6 Sunday), start time 23-26.
namespace TpsDetailsInterv {
inline constexpr int DateFin = 1;   // date or empty
inline constexpr int HeureFin = 2;  // 4 digits
inline constexpr int PosAide = 6, PosDebut = 11, PosActivite = 16, PosJour = 22, PosHeure = 23;
inline constexpr int LongueurActivite = 6, LongueurCle = 26;
}  // namespace TpsDetailsInterv

// Key: carer 1-5, day 6-10, start time 11-14.
namespace TpsExceptions {
inline constexpr int Intervention = 1;  // TPSDETAILSINTERV key
}

namespace TpsMoi {
inline constexpr int Contrat = 4;  // CONTRAT key
}

// Item "1".
namespace TpsParam {
inline constexpr int Mode = 19;      // "1" = work past a contract stays, without contract
inline constexpr int Notation = 20;  // "2" = times in hundredths of an hour
inline constexpr const char* Cle = "1";
}  // namespace TpsParam

}  // namespace data
