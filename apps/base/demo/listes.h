#pragma once
// The code lists of the demonstration data, in the order in which a clerk meets them: what the
// reference files hold, and what contracts draw from. `poids` says how often a row is drawn.

namespace demo {

struct Libelle {
  const char* code;
  const char* libelle;
};

// Legal entities; their codes are the first 3 characters of establishments and activities.
struct Entite {
  const char* code;
  const char* nom;
  const char* adresse;
  const char* codePostal;
  const char* ville;
  const char* siret;
  const char* decembre;     // follow-up year from December to November
  const char* telegestion;  // remote time-tracking
  int poids;
};
inline constexpr Entite Entites[] = {
    {"001", "Présence à Domicile du Bocage", "12 rue des Tilleuls", "35300", "Fougères",
     "32514785200018", "0", "VESPARIO", 5},
    {"002", "Les Aînés du Maine", "4 place de la République", "53100", "Mayenne", "38874120500027",
     "0", "", 3},
    {"003", "Soins et Services de l'Avranchin", "27 avenue Pasteur", "50300", "Avranches",
     "40112563900034", "1", "06", 2},
};

struct Etablissement {
  const char* code;
  const char* libelle;
  const char* cloture;      // closing month of the modulation year
  const char* association;  // entity that declares in its place
};
inline constexpr Etablissement Etablissements[] = {
    {"001001", "Fougères - Siège", "12", ""},
    {"001002", "Antenne de Vitré", "12", "001"},
    {"001003", "Antenne de Redon", "12", "001"},
    {"002001", "Mayenne - Siège", "12", ""},
    {"002002", "Antenne de Laval", "12", "002"},
    {"003001", "Avranches - Siège", "11", ""},
    {"003002", "Service de soins d'Avranches", "11", "003"},
};

// Collective agreements. The marks are those of CONVENTIONCOL.
struct Convention {
  const char* code;
  const char* libelle;
  const char* modeCP;          // 1 ouvres, 2 ouvrables
  const char* categorieLibre;  // "VRAI": category typed by hand without grid
  const char* prevoyance;      // "1": provident contract mandatory
  const char* suivi;           // "T": the follow-up opens on its second tab
  bool modulable;
};
inline constexpr Convention Conventions[] = {
    {"01", "Branche de l'aide, des soins et des services à domicile", "1", "", "1", "T", true},
    {"02", "Particuliers employeurs et emploi à domicile", "2", "", "", "", false},
    {"03", "Entreprises de services à la personne", "2", "VRAI", "", "", false},
    {"04", "Métiers de l'éducation, de la culture, des loisirs et de l'animation", "2", "VRAI", "",
     "", false},
    {"05", "Établissements privés d'hospitalisation et de soins à but non lucratif", "1", "", "1",
     "", true},
    {"06", "Établissements pour personnes inadaptées et handicapées", "1", "", "", "", false},
    {"07", "Fonction publique territoriale - titulaires", "1", "", "", "", false},
    {"08", "Fonction publique territoriale - contractuels", "1", "", "", "", false},
    {"09", "Établissements publics sociaux - agents de droit public", "1", "", "", "", false},
};
inline constexpr int RangParticuliers = 1;

// Which agreement an entity's own contracts follow.
struct Rattachement {
  int entite;
  int convention;
  int poids;
};
inline constexpr Rattachement Rattachements[] = {
    {0, 0, 40}, {0, 2, 4}, {0, 3, 4}, {1, 0, 12}, {1, 4, 14},
    {1, 5, 6},  {2, 0, 8}, {2, 6, 5}, {2, 7, 5},  {2, 8, 3},
};

struct Activite {
  const char* suffixe;  // after the entity's code
  const char* libelle;
  const char* genre;
};
inline constexpr Activite Activites[] = {
    {"101", "Aide à domicile - personnes âgées", "P"},
    {"102", "Aide à domicile - handicap", "P"},
    {"103", "Aide aux familles", "P"},
    {"104", "Soins infirmiers à domicile", "P"},
    {"105", "Portage de repas", "P"},
    {"201", "Mandataire - ménage et courses", "M"},
    {"202", "Mandataire - garde de jour", "M"},
    {"203", "Mandataire - garde de nuit", "M"},
};
inline constexpr int PremiereMandataire = 5;

// Agreement, then the suffix that trades name.
inline constexpr Libelle Grilles[] = {
    {"01A1", "Catégorie A"}, {"01B1", "Catégorie B"}, {"01C1", "Catégorie C"},
    {"01D1", "Catégorie D"}, {"01E1", "Catégorie E"}, {"01G1", "Catégorie G"},
    {"02N1", "Niveau 1"},    {"02N3", "Niveau 3"},    {"05B1", "Groupe B"},
    {"05E1", "Groupe E"},    {"06B1", "Annexe B"},    {"07B1", "Agents sociaux"},
    {"07E1", "Infirmiers"},
};
// Two digits: categories. Then the functions.
inline constexpr Libelle NomenclaturePCS[] = {
    {"43", "Professions intermédiaires de la santé et du travail social"},
    {"431f", "Infirmiers en soins généraux, salariés"},
    {"46", "Professions intermédiaires administratives et commerciales des entreprises"},
    {"461f", "Maîtrise et techniciens administratifs des autres services administratifs"},
    {"52", "Employés civils et agents de service de la fonction publique"},
    {"526a", "Aides-soignants (de la fonction publique ou du secteur privé)"},
    {"54", "Employés administratifs d'entreprise"},
    {"542a", "Secrétaires"},
    {"56", "Personnels des services directs aux particuliers"},
    {"563b", "Aides à domicile, aides ménagères, travailleuses familiales"},
    {"563c", "Employés de maison et personnels de ménage chez des particuliers"},
};

enum class Emploi { Production, Mandataire, Administratif };

struct Metier {
  Emploi emploi;
  const char* qualification;
  const char* regroupement;  // code of the budget groups
  const char* pcs;
  const char* grille;  // suffix in Grilles
  int plus;            // thousandths of a euro above the minimum hourly wage
  int coefficient;     // whole
  int poids;
};
inline constexpr Metier Metiers[] = {
    {Emploi::Production, "Agent à domicile", "10", "563b", "A1", 60, 270, 12},
    {Emploi::Production, "Employé à domicile", "10", "563b", "B1", 340, 303, 10},
    {Emploi::Production, "Auxiliaire de vie sociale", "10", "563b", "C1", 980, 347, 8},
    {Emploi::Production, "Technicien de l'intervention sociale et familiale", "20", "563b", "D1",
     1730, 379, 2},
    {Emploi::Production, "Aide-soignant", "20", "526a", "C1", 1840, 376, 3},
    {Emploi::Production, "Infirmier", "20", "431f", "E1", 4600, 477, 1},
    {Emploi::Mandataire, "Employé de maison", "30", "563c", "N1", 170, 0, 6},
    {Emploi::Mandataire, "Assistant de vie", "30", "563c", "N3", 640, 0, 5},
    {Emploi::Mandataire, "Garde-malade", "30", "563c", "N3", 890, 0, 2},
    {Emploi::Administratif, "Secrétaire", "40", "542a", "B1", 780, 315, 4},
    {Emploi::Administratif, "Responsable de secteur", "40", "461f", "E1", 3150, 421, 3},
    {Emploi::Administratif, "Comptable", "40", "461f", "E1", 2700, 405, 2},
};

inline constexpr Libelle Regroupements[] = {
    {"10", "Intervention - aide à la vie"},
    {"20", "Intervention - soins et famille"},
    {"30", "Mandataire"},
    {"40", "Administration et encadrement"},
};

struct Nature {
  const char* code;
  const char* libelle;
  const char* choisissable;
};
inline constexpr Nature Natures[] = {
    {"CDI", "Contrat à durée indéterminée", "O"},
    {"CII", "Contrat à durée indéterminée intermittent", "O"},
    {"CDD", "Contrat à durée déterminée", "O"},
    {"APP", "Contrat d'apprentissage", "O"},
    {"PRO", "Contrat de professionnalisation", "O"},
    {"CUI", "Contrat unique d'insertion", "O"},
    {"CAE", "Contrat d'accompagnement dans l'emploi", ""},
    {"STG", "Stagiaire", "O"},
};

// Why a contract ends, in the words of the social declaration. The weights are those of an
// open-ended and of a fixed-term contract; without either, the reason is not drawn: retirement and
// death come from the persons. `obsolete`: no longer offered on new ends.
struct MotifFin {
  const char* code;
  const char* libelle;
  int poidsCDI;
  int poidsCDD;
  const char* obsolete = "";
};
inline constexpr MotifFin MotifsFin[] = {
    {"11", "Licenciement suite à liquidation judiciaire ou à redressement judiciaire", 1, 0},
    {"12", "Licenciement suite à fermeture définitive de l'établissement", 1, 0},
    {"14", "Licenciement pour motif économique", 3, 0},
    {"15", "Licenciement pour fin de chantier ou d'opération", 1, 0},
    {"20", "Licenciement pour autre motif", 10, 0},
    {"25", "Autre fin de contrat pour motif économique", 1, 0},
    {"26",
     "Rupture pour motif économique dans le cadre d'un contrat de sécurisation professionnelle", 2,
     0},
    {"31", "Fin de contrat à durée déterminée", 0, 80},
    {"32", "Fin de mission d'intérim", 0, 0, "O"},
    {"33",
     "Rupture anticipée d'un contrat à durée déterminée en cas d'inaptitude physique constatée par "
     "le médecin du travail",
     0, 2},
    {"34", "Fin de période d'essai à l'initiative de l'employeur", 4, 3},
    {"35", "Fin de période d'essai à l'initiative du salarié", 5, 4},
    {"36", "Rupture anticipée d'un contrat à durée déterminée à l'initiative de l'employeur", 0, 4},
    {"37", "Rupture anticipée d'un contrat à durée déterminée à l'initiative du salarié", 0, 5},
    {"38", "Mise à la retraite par l'employeur", 0, 0},
    {"39", "Départ à la retraite à l'initiative du salarié", 0, 0},
    {"43", "Rupture conventionnelle", 12, 0},
    {"58", "Prise d'acte de la rupture du contrat de travail", 1, 0},
    {"59", "Démission", 32, 0},
    {"65", "Décès de l'employeur ou internement conduisant à un licenciement autre motif", 0, 0},
    {"66", "Décès du salarié ou rupture pour force majeure", 0, 0},
    {"87", "Licenciement pour faute grave", 3, 0},
    {"88", "Licenciement pour faute lourde", 1, 0},
    {"91", "Licenciement pour inaptitude physique d'origine non professionnelle", 6, 0},
    {"92", "Licenciement pour inaptitude physique d'origine professionnelle", 3, 0},
};

inline constexpr Libelle MotifsEmbauche[] = {
    {"01", "Remplacement d'un salarié absent"},      {"02", "Surcroît temporaire d'activité"},
    {"03", "Remplacement pendant les congés payés"}, {"04", "Attente de l'arrivée d'un salarié"},
    {"05", "Insertion de demandeurs d'emploi"},
};

// Kinds "18" to "21" are never offered for a replacement.
inline constexpr Libelle TypesAbsence[] = {
    {"01", "Maladie"},
    {"02", "Accident du travail"},
    {"03", "Maternité"},
    {"04", "Congé parental"},
    {"05", "Congés payés"},
    {"06", "Formation"},
    {"18", "Repos compensateur"},
    {"19", "Récupération"},
    {"20", "Jour férié chômé"},
    {"21", "Heures de délégation"},
};

inline constexpr Libelle ZonesTransport[] = {
    {"12", "Zones 1-2"}, {"13", "Zones 1-3"}, {"15", "Zones 1-5"}, {"25", "Zones 2-5"}};
inline constexpr Libelle NaturesVoie[] = {
    {"AV", "avenue"}, {"BD", "boulevard"}, {"CHE", "chemin"}, {"IMP", "impasse"},
    {"PL", "place"},  {"RTE", "route"},    {"RUE", "rue"}};
inline constexpr Libelle TitresSejour[] = {{"01", "Carte de résident"},
                                           {"02", "Carte de séjour temporaire"},
                                           {"03", "Carte de séjour pluriannuelle"},
                                           {"04", "Récépissé de demande"}};

struct Profil {
  const char* code;
  const char* libelle;
  const char* mandataire;
  const char* rubriques;  // parted by blanks
};
inline constexpr Profil Profils[] = {
    {"110", "Intervenant horaire", "0", "100 120 620 680"},
    {"120", "Intervenant mensualisé", "0", "101 120 680"},
    {"130", "Administratif mensualisé", "0", "101 130"},
    {"140", "Stagiaire", "0", "190"},
    {"210", "Mandataire horaire", "1", "100 120"},
    {"220", "Mandataire mensualisé", "1", "101 120"},
};

// Contracts of provident schemes by agreement.
struct Prevoyance {
  const char* code;
  const char* libelle;
  const char* convention;
};
inline constexpr Prevoyance Prevoyances[] = {
    {"01", "Prévoyance de branche - non cadres", "01"},
    {"02", "Prévoyance de branche - cadres", "01"},
    {"03", "Prévoyance des salariés du particulier employeur", "02"},
    {"04", "Prévoyance des services à la personne", "03"},
    {"05", "Prévoyance hospitalisation privée", "05"},
    {"06", "Prévoyance personnes inadaptées", "06"},
    {"99", "Sans contrat de prévoyance", ""},
};

struct PaysConnu {
  const char* code;
  const char* nom;
  const char* zone;  // "C" Community
  int poids;
};
inline constexpr PaysConnu ListePays[] = {
    {"99100", "FRANCE", "C", 92},      {"99109", "ALLEMAGNE", "C", 0},
    {"99114", "ROUMANIE", "C", 1},     {"99131", "BELGIQUE", "C", 1},
    {"99134", "ESPAGNE", "C", 1},      {"99139", "PORTUGAL", "C", 2},
    {"99326", "CÔTE D'IVOIRE", "", 1}, {"99341", "SÉNÉGAL", "", 1},
    {"99350", "MAROC", "", 2},         {"99351", "TUNISIE", "", 1},
};

// Minimum hourly wage on 1 January, thousandths of a euro, from the year below on.
inline constexpr int PremiereAnneeSmic = 2016;
inline constexpr int Smic[] = {9670,  9760,  9880,  10030, 10150, 10250,
                               10570, 11270, 11650, 11880, 12020};

}  // namespace demo
