#pragma once
// The attributes of an item of file CONTRAT: one employment contract. Numbers are the file format,
// shared with the payroll side of the suite, and never change. Attributes 67, 95, 101 and 102
// belong to payroll alone: nobody names them here and every write carries them over unchanged.
//
// The key is the carer's code (5 characters) and the contract number on 3 digits.
//
// Units in the comments:
//   date      internal day number, empty = not set
//   period    yyyymm
//   x100      whole number of hundredths (hours, days, amounts); x1000 likewise
//   1/0       "1" set, "0" or empty clear
//   (m)       one value per line of its group; the lines of a group are parallel

namespace data::Contrat {

// Origine.
inline constexpr int Convention = 1;   // CONVENTIONCOL key; "02" = private employers
inline constexpr int Association = 2;  // ASSOCIATION key, legal entity
inline constexpr int Employeur = 3;    // "02": CIVILAIDE key; else ETABLISSEMENT key, entity first
inline constexpr int Type = 4;         // "D" fixed term, "I" open-ended
inline constexpr int Salaire = 5;      // "H" hourly, "M" monthly
inline constexpr int Statut = 6;       // "P" production, "A" administrative
inline constexpr int DateDebut = 7;    // date
inline constexpr int DateFin = 8;      // date; set = the contract is closed, and then 58 is set too
inline constexpr int MotifEmbaucheTexte = 9;    // text of the hiring reason, 2 values
inline constexpr int PersonnesRemplacees = 10;  // names of replaced persons in free text, 5 values
inline constexpr int PeriodeEssai = 11;         // trial period, whole days
inline constexpr int EssaiRenouvelable = 12;    // 1/0
inline constexpr int Nature = 13;               // code of TABLES NATURECONTRAT; "STG" = traineeship

// Caracteristiques: one value per amendment, value 1 being the contract as signed.
inline constexpr int Avenant = 14;        // (m) "0", then "01", "02"...; gives the count
inline constexpr int DateEffet = 15;      // (m) date
inline constexpr int Qualification = 16;  // (m) label of TABLES QUALIF
inline constexpr int CodePCS = 17;        // (m) PCS key, 4 characters
inline constexpr int CategoriePCS = 18;   // (m) label of the PCS category
inline constexpr int FonctionPCS = 19;    // (m) label of the PCS function
inline constexpr int Grille = 20;         // (m) GRILLESCC key, empty = no grid
inline constexpr int DepartGrille = 21;   // (m) date, start of the grid calculation
inline constexpr int Coefficient = 22;    // (m) x1000
inline constexpr int TauxHoraire = 23;    // (m) x1000 euros; "0" when the field is empty
inline constexpr int DureeTravail = 24;   // (m) x100 hours in the frequency of 25
inline constexpr int Frequence = 25;      // (m) 1 weekly, 2 fortnightly, 3 monthly, 4 yearly

// Elements de paie.
inline constexpr int Profil = 26;             // PROFIL key
inline constexpr int ModePaiement = 27;       // 1 transfer, 2 cheque, 3 cash
inline constexpr int PaiementParEntite = 28;  // 1/0; always 1 unless agreement "02"
inline constexpr int ContratPrevoyance = 29;  // CONTRATSPREV key or empty
inline constexpr int ConstanteB = 30;         // always "B"; the hiring declaration reads it
inline constexpr int CongesAuMois = 31;       // 1/0, leave paid monthly
inline constexpr int MutuelleSalariale = 32;  // x100 euros
inline constexpr int MutuellePatronale = 33;  // x100 euros
inline constexpr int IdentificationCRC = 34;  // text
inline constexpr int ZoneTransport = 35;      // code of TABLES CARTEORANGE
inline constexpr int Activites = 36;          // (m) ACTIVITES keys, in force from period 104
inline constexpr int PartsActivites = 37;     // (m) x100 percent, administrative contracts only

// Droits aux conges.
inline constexpr int CPAcquis = 38;                // x100 days, paid leave to use
inline constexpr int CPRestants = 39;              // x100 days
inline constexpr int FractionnementAcquis = 40;    // whole days, not scaled
inline constexpr int FractionnementRestants = 41;  // x100 days
inline constexpr int ValeurJourHeures = 42;        // x100 hours
inline constexpr int ValeurJourMontant = 43;       // x100 euros
inline constexpr int CPEnCoursJours = 44;          // x100 days, leave being acquired
inline constexpr int CPEnCoursHeures = 45;         // x100 hours
inline constexpr int CPEnCoursMontant = 46;        // x100 euros, gross
inline constexpr int AncienneteAcquis = 47;        // whole days, not scaled
inline constexpr int AncienneteRestants = 48;      // x100 days

// Fin du contrat.
inline constexpr int MotifFin = 49;              // code of TABLES FINCONTRAT
inline constexpr int DateNotification = 50;      // date
inline constexpr int DernierJourTravaille = 51;  // date
inline constexpr int PrimePrecarite = 52;        // 1/0, compared as the number 1
inline constexpr int PreavisPayeDu = 53;         // date, notice paid but not worked
inline constexpr int PreavisPayeAu = 54;         // date
inline constexpr int PreavisEffectueDu = 55;     // date, notice worked
inline constexpr int PreavisEffectueAu = 56;     // date
inline constexpr int MotifNonVersement = 57;     // text
inline constexpr int DernierBulletin = 58;       // period of the last payslip
inline constexpr int ObservationsFin = 59;       // text, 2 values
inline constexpr int DateFinPresumee = 60;       // date, fixed term

inline constexpr int ChargeMutuelle = 61;         // RUBCHARGE key
inline constexpr int DureeMinimale = 62;          // text
inline constexpr int PeriodeTraitee = 63;         // last period processed; written by payroll
inline constexpr int Profil2 = 64;                // PROFIL key or empty
inline constexpr int Annule = 65;                 // "O" = no longer exists for the user
inline constexpr int PlafondSecu = 66;            // x100 euros or empty
inline constexpr int Lissage = 68;                // (m) 1/0, with the amendments
inline constexpr int Modulation = 69;             // (m) "C", "L", "S" or empty, with the amendments
inline constexpr int JoursSuspensionGrille = 70;  // x100 days

// Paid hours month by month, previous year then current year (see the follow-up groups).
inline constexpr int SuiviPrecPeriode = 71;     // (m) period
inline constexpr int SuiviPrecHeures = 72;      // (m) x100 hours by contract
inline constexpr int SuiviPrecAbsences = 73;    // (m) x100 hours
inline constexpr int SuiviPrecReel = 74;        // (m) x100 hours
inline constexpr int SuiviPrecDifference = 75;  // (m) x100 hours
inline constexpr int SuiviPeriode = 76;         // (m) period
inline constexpr int SuiviHeures = 77;          // (m) x100 hours by contract
inline constexpr int SuiviAbsences = 78;        // (m) x100 hours
inline constexpr int SuiviReel = 79;            // (m) x100 hours
inline constexpr int SuiviDifference = 80;      // (m) x100 hours: real - (contract - absences)

inline constexpr int DernierCalcul = 81;       // period of the last payslip computed, by payroll
inline constexpr int NormeCRC = 82;            // (m) text, with the amendments
inline constexpr int JoursAnticipation = 83;   // x100 days
inline constexpr int OrganismeRetraite = 84;   // ORGANISMESOCIAL key
inline constexpr int ProvisionCP = 85;         // x100 euros, to use
inline constexpr int ProvisionEnCours = 86;    // x100 euros, being acquired
inline constexpr int CommentairePeriode = 87;  // (m) period
inline constexpr int CommentaireTexte = 88;    // (m) text printed on that month's payslip
inline constexpr int RubriqueCode = 89;        // (m) RUBSAISIE key
inline constexpr int RubriqueBase = 90;        // (m) x100
inline constexpr int RubriqueTaux = 91;        // (m) x10000
inline constexpr int RubriqueMontant = 92;     // (m) x100 euros
inline constexpr int RubriqueActivite = 93;    // (m) ACTIVITES key, empty when administrative
inline constexpr int ProvisionConges = 94;     // 1/0, leave provision wanted
inline constexpr int DateFinReelle = 96;       // date
inline constexpr int DateAnciennete = 97;      // date
inline constexpr int ComplementMotifFin = 98;  // text
inline constexpr int SuiviPrecRegul = 99;      // (m) x100 hours of modulation
inline constexpr int SuiviRegul = 100;         // (m) x100 hours of modulation
inline constexpr int AssietteSecu = 103;       // x100 euros or empty
inline constexpr int PeriodeEffet = 104;       // period from which 36 and 37 hold
inline constexpr int PeriodesEffetAnterieures = 105;  // (m) periods, latest first
inline constexpr int ActivitesAnterieures = 106;      // (m) subvalues: codes of that period
inline constexpr int PartsAnterieures = 107;          // (m) subvalues: x100 percent
inline constexpr int Categorie = 108;                 // (m) text when no grid, with the amendments
inline constexpr int DelaiPrevAcquis = 109;           // whole days; "0" at creation
inline constexpr int DelaiPrevRestants = 110;         // x100 days; "0" at creation
inline constexpr int Commentaire1 = 111;              // (m) text, with the amendments
inline constexpr int Commentaire2 = 112;              // (m) text, with the amendments

// Why a fixed term (9, 10 and 137 belong to it too).
inline constexpr int MotifEmbauche = 113;       // code of TABLES MOTIFEMBAUCHE
inline constexpr int AidantsRemplaces = 114;    // (m) CIVILAIDANT keys
inline constexpr int AbsencesRemplacees = 115;  // (m) ABSENCESAIDANT keys, may be empty

inline constexpr int CongesReportesSur = 116;         // key of the later contract
inline constexpr int CongesReprisDe = 117;            // key of the earlier contract
inline constexpr int DateConventionAidee = 118;       // date, subsidised employment
inline constexpr int ReferenceConventionAidee = 119;  // text, needed when 118 is set
inline constexpr int ChangementSituation = 120;       // (m) "1" or "0", with the amendments

// Public law, one value per amendment.
inline constexpr int PopulationEmploi = 121;     // (m) 2 characters
inline constexpr int StatutJuridique = 122;      // (m) 3 characters
inline constexpr int EmploiStatutaire = 123;     // (m) corps 4, grade 2, job 4, joined
inline constexpr int Echelon = 124;              // (m) 3 characters
inline constexpr int CategorieStatutaire = 125;  // (m) 2 characters
inline constexpr int IndiceBrut = 126;           // (m) 100 to 2500
inline constexpr int IndiceMajore = 127;         // (m) 100 to 2500
inline constexpr int PointsNBI = 128;            // (m) x100, at most 80000

inline constexpr int DateSignatureRupture = 129;  // date, end reason "43" only
inline constexpr int PreavisNonEffectueDu = 130;  // date, notice neither worked nor paid
inline constexpr int PreavisNonEffectueAu = 131;  // date
inline constexpr int CalculLicenciement = 132;    // "1", "0", empty when the reason forbids it
inline constexpr int PopulationPrevoyance = 133;  // (m) text, with the amendments
inline constexpr int DateDeclaration = 134;       // date the hiring declaration was printed
inline constexpr int Grade = 135;                 // (m) text, with the amendments
inline constexpr int Echelle = 136;               // (m) text, with the amendments
inline constexpr int MotifRecours = 137;          // "01" more work, "02" custom, "03" other

// Traineeship, nature "STG".
inline constexpr int StageEcole = 138;    // text
inline constexpr int StageSujet = 139;    // text
inline constexpr int StageTuteur = 140;   // text
inline constexpr int StageService = 141;  // text
inline constexpr int StageSeuil = 142;    // x100 euros an hour

inline constexpr int ContrepartieInterruption = 143;   // 1 to 3 or empty, agreement "01" only
inline constexpr int JoursSuspensionAnciennete = 144;  // x100 days

// Groups: the attributes whose values are parallel, line by line.
inline constexpr int GroupeAvenant[] = {Avenant,
                                        DateEffet,
                                        Qualification,
                                        CodePCS,
                                        CategoriePCS,
                                        FonctionPCS,
                                        Grille,
                                        DepartGrille,
                                        Coefficient,
                                        TauxHoraire,
                                        DureeTravail,
                                        Frequence,
                                        Lissage,
                                        Modulation,
                                        NormeCRC,
                                        Categorie,
                                        Commentaire1,
                                        Commentaire2,
                                        ChangementSituation,
                                        PopulationPrevoyance,
                                        PopulationEmploi,
                                        StatutJuridique,
                                        EmploiStatutaire,
                                        Echelon,
                                        CategorieStatutaire,
                                        IndiceBrut,
                                        IndiceMajore,
                                        PointsNBI,
                                        Grade,
                                        Echelle};
// Those that are padded up to the amendment count when an amendment is written.
inline constexpr int GroupeDroitPublic[] = {
    PopulationEmploi,    StatutJuridique, EmploiStatutaire, Echelon,
    CategorieStatutaire, IndiceBrut,      IndiceMajore,     PointsNBI};
inline constexpr int GroupeActivites[] = {Activites, PartsActivites};
inline constexpr int GroupePeriodesEffet[] = {PeriodesEffetAnterieures, ActivitesAnterieures,
                                              PartsAnterieures};
inline constexpr int GroupeRubriques[] = {RubriqueCode, RubriqueBase, RubriqueTaux, RubriqueMontant,
                                          RubriqueActivite};
inline constexpr int GroupeCommentaires[] = {CommentairePeriode, CommentaireTexte};
// Period, hours by contract, absences, real hours, difference, regularisation, in this order.
inline constexpr int GroupeSuivi[] = {SuiviPeriode, SuiviHeures,     SuiviAbsences,
                                      SuiviReel,    SuiviDifference, SuiviRegul};
inline constexpr int GroupeSuiviPrecedent[] = {SuiviPrecPeriode,    SuiviPrecHeures,
                                               SuiviPrecAbsences,   SuiviPrecReel,
                                               SuiviPrecDifference, SuiviPrecRegul};
// All that tells why a contract is of a fixed term: read, compared and blanked together.
inline constexpr int GroupeMotifCDD[] = {MotifEmbaucheTexte, PersonnesRemplacees, MotifEmbauche,
                                         AidantsRemplaces,   AbsencesRemplacees,  MotifRecours};
inline constexpr int GroupeStage[] = {StageEcole, StageSujet, StageTuteur, StageService,
                                      StageSeuil};

// Values that the rules name.
inline constexpr const char* MarqueAnnule = "O";
inline constexpr const char* NatureStage = "STG";

}  // namespace data::Contrat
