#include "demo/referentiel.h"

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/listes.h"

namespace demo {
namespace {

using data::CItem;
namespace fichier = data::fichier;

void ecrireEntites(Sortie& sortie) {
  namespace A = data::Association;
  long rang = 0;
  for (const Entite& entite : Entites) {
    CItem item;
    item.Set(A::Nom, entite.nom);
    item.Set(A::Siret, entite.siret);
    item.Set(A::CodeApe, "8810A");
    item.Set(A::Adresse1, entite.adresse);
    item.Set(A::CodePostal, entite.codePostal);
    item.Set(A::Ville, entite.ville);
    item.Set(A::NumeroEmployeur, texte(35700000012345 + 1111 * ++rang));
    item.Set(A::Immatriculation, texte(350104270 + rang));
    item.Set(A::ExerciceDecembre, entite.decembre);
    item.Set(A::Telegestion, entite.telegestion);
    sortie.ecrire(fichier::ASSOCIATION, entite.code, item);
  }
}

void ecrireEtablissements(Sortie& sortie) {
  namespace E = data::Etablissement;
  long rang = 0;
  for (const Etablissement& etablissement : Etablissements) {
    const Entite& entite = Entites[etablissement.code[2] - '1'];
    CItem item;
    item.Set(E::Libelle, etablissement.libelle);
    item.Set(E::Association, etablissement.association);
    item.Set(E::Siret, std::string(entite.siret).substr(0, 9) + chiffres(10 + 13 * ++rang, 5));
    item.Set(E::CodeApe, "8810A");
    item.Set(E::Adresse1, entite.adresse);
    item.Set(E::CodePostal, entite.codePostal);
    item.Set(E::Ville, entite.ville);
    item.Set(E::NumeroEmployeur, texte(35700000078900 + rang));
    item.Set(E::Immatriculation, texte(350104880 + rang));
    item.Set(E::Effectif, 1, texte((20 + 17 * rang) * 100));
    item.Set(E::MoisCloture, etablissement.cloture);
    sortie.ecrire(fichier::ETABLISSEMENT, etablissement.code, item);
  }
}

void ecrireConventions(Sortie& sortie) {
  namespace C = data::ConventionCol;
  for (const Convention& convention : Conventions) {
    CItem item;
    item.Set(C::Libelle, convention.libelle);
    item.Set(C::ModeCP, convention.modeCP);
    item.Set(C::ModeAnciennete, convention.modeCP);
    const bool particuliers = std::string_view(convention.code) == "02";
    item.Set(C::VirementParDefaut, particuliers ? "1" : "");
    item.Set(C::PaiementParEntiteParDefaut, particuliers ? "1" : "");
    item.Set(C::CategorieLibre, convention.categorieLibre);
    item.Set(C::PrevoyanceObligatoire, convention.prevoyance);
    item.Set(C::SuiviTte, convention.suivi);
    item.Set(C::ModeDelaiPrev, convention.modeCP);
    sortie.ecrire(fichier::CONVENTIONCOL, convention.code, item);
  }
  for (const Prevoyance& prevoyance : Prevoyances) {
    CItem item;
    item.Set(data::ContratsPrev::Libelle, prevoyance.libelle);
    item.Set(data::ContratsPrev::LibelleParticulier, prevoyance.libelle);
    item.Set(data::ContratsPrev::Convention, prevoyance.convention);
    sortie.ecrire(fichier::CONTRATSPREV, prevoyance.code, item);
  }
  for (const Libelle& grille : Grilles) {
    CItem item;
    item.Set(data::GrillesCC::Libelle, grille.libelle);
    // Levels of private employers have no category letter.
    const std::string categorie(1, grille.code[2]);
    item.Set(data::GrillesCC::Categorie, categorie == "N" ? "" : categorie);
    sortie.ecrire(fichier::GRILLESCC, grille.code, item);
  }
}

void ecrireActivites(Sortie& sortie) {
  for (const Entite& entite : Entites) {
    for (const Activite& activite : Activites) {
      CItem item;
      item.Set(data::Activites::Libelle, activite.libelle);
      item.Set(data::Activites::Genre, activite.genre);
      sortie.ecrire(fichier::ACTIVITES, std::string(entite.code) + activite.suffixe, item);
    }
  }
}

void ecrireOrganismes(Sortie& sortie) {
  struct Organisme {
    const char* suffixe;
    const char* libelle;
    const char* genre;
  };
  constexpr Organisme Organismes[] = {{"01", "URSSAF", "01"},
                                      {"03", "AG2R Agirc-Arrco", "03"},
                                      {"04", "Malakoff Humanis Agirc-Arrco", "03"}};
  for (const Entite& entite : Entites) {
    for (const Organisme& organisme : Organismes) {
      CItem item;
      item.Set(data::OrganismeSocial::Libelle, organisme.libelle);
      item.Set(data::OrganismeSocial::Genre, organisme.genre);
      sortie.ecrire(fichier::ORGANISMESOCIAL, std::string(entite.code) + organisme.suffixe, item);
    }
  }
  constexpr Libelle Centres[] = {{"351", "URSSAF de Bretagne"},
                                 {"501", "URSSAF de la Manche"},
                                 {"531", "URSSAF de la Mayenne"}};
  for (const Libelle& centre : Centres) {
    CItem item;
    item.Set(data::CentreUrssaf::Libelle, centre.libelle);
    sortie.ecrire(fichier::CENTREURSSAF, centre.code, item);
  }
  for (const Entite& entite : Entites) {
    CItem item;
    const bool voyelle = std::string_view("AEIOUY").find(*entite.ville) != std::string_view::npos;
    item.Set(data::CentreMedical::Libelle,
             std::string("Santé au travail ") + (voyelle ? "d'" : "de ") + entite.ville);
    item.Set(data::CentreMedical::Adresse, "8 boulevard Pasteur");
    item.Set(data::CentreMedical::CodePostal, entite.codePostal);
    item.Set(data::CentreMedical::Ville, entite.ville);
    sortie.ecrire(fichier::CENTREMEDICAL, entite.code, item);
  }
}

// Codes and labels of a table at the places where most tables have them.
template <typename T, std::size_t N>
CItem table(const T (&lignes)[N], int codes = data::Tables::Codes,
            int libelles = data::Tables::Libelles) {
  CItem item;
  int rang = 0;
  for (const T& ligne : lignes) {
    item.Set(codes, ++rang, ligne.code);
    item.Set(libelles, rang, ligne.libelle);
  }
  return item;
}

void ecrireTables(Sortie& sortie) {
  namespace T = data::Tables;
  CItem fins = table(MotifsFin);
  for (int i = 0; const MotifFin& motif : MotifsFin) fins.Set(T::FinObsoletes, ++i, motif.obsolete);
  CItem natures = table(Natures);
  for (int i = 0; const Nature& nature : Natures) {
    natures.Set(T::NatureChoisissables, ++i, nature.choisissable);
  }
  CItem qualifications;
  for (int i = 0; const Metier& metier : Metiers) {
    qualifications.Set(T::QualifLibelles, ++i, metier.qualification);
    qualifications.Set(T::QualifRegroupements, i, metier.regroupement);
  }
  sortie.ecrire(fichier::TABLES, T::Absences, table(TypesAbsence));
  sortie.ecrire(fichier::TABLES, T::CarteOrange, table(ZonesTransport));
  sortie.ecrire(fichier::TABLES, T::FinContrat, fins);
  sortie.ecrire(fichier::TABLES, T::MotifEmbauche,
                table(MotifsEmbauche, T::MotifCodes, T::MotifLibelles));
  sortie.ecrire(fichier::TABLES, T::NatureContrat, natures);
  sortie.ecrire(fichier::TABLES, T::NatureVoie, table(NaturesVoie));
  sortie.ecrire(fichier::TABLES, T::Qualif, qualifications);
  sortie.ecrire(fichier::TABLES, T::RegroupBudget, table(Regroupements));
  sortie.ecrire(fichier::TABLES, T::TitresSejour, table(TitresSejour));
  for (const Libelle& ligne : NomenclaturePCS) {
    CItem item;
    item.Set(data::Pcs::Libelle, ligne.libelle);
    sortie.ecrire(fichier::PCS, ligne.code, item);
  }
  for (const PaysConnu& pays : ListePays) {
    CItem item;
    item.Set(data::Pays::Libelle, pays.nom);
    item.Set(data::Pays::Zone, pays.zone);
    sortie.ecrire(fichier::PAYS, pays.code, item);
  }
}

// Several values of one attribute, written parted by blanks.
void setMots(CItem& item, int attribut, std::string_view mots) {
  for (int rang = 1; !mots.empty(); ++rang) {
    const std::size_t fin = mots.find(' ');
    item.Set(attribut, rang, mots.substr(0, fin));
    mots = fin == std::string_view::npos ? std::string_view() : mots.substr(fin + 1);
  }
}

void ecrireRubriques(Sortie& sortie) {
  struct Charge {
    const char* code;
    const char* libelle;
    const char* baseSalariale;
    const char* basePatronale;
    const char* famille;
    const char* aideDomicile;
    const char* inactive;
  };
  constexpr Charge Charges[] = {
      {"600", "Maladie", "Brut", "Brut", "01", "", ""},
      {"610", "Vieillesse plafonnée", "Tranche", "Tranche", "01", "", ""},
      {"620", "Exonération aide à domicile", "", "Brut", "02", "1", ""},
      {"621", "Exonération aide à domicile (ancienne)", "", "Brut", "02", "1", "1"},
      {"680", "Mutuelle - isolé", "Montant", "Montant", "08", "", ""},
      {"681", "Mutuelle - famille", "Montant", "Montant", "08", "", ""},
      {"682", "Mutuelle - part patronale", "Plafond", "Montant", "08", "", ""},
      {"689", "Mutuelle - ancien contrat", "Montant", "Montant", "08", "", "1"},
  };
  namespace C = data::RubCharge;
  for (const Charge& charge : Charges) {
    CItem item;
    item.Set(C::Libelle, charge.libelle);
    item.Set(C::BaseSalariale, 1, charge.baseSalariale);
    item.Set(C::BasePatronale, 1, charge.basePatronale);
    item.Set(C::Famille, charge.famille);
    item.Set(C::AideDomicile, charge.aideDomicile);
    item.Set(C::Inactive, charge.inactive);
    sortie.ecrire(fichier::RUBCHARGE, charge.code, item);
  }
  struct Saisie {
    const char* code;
    const char* libelle;
    const char* filtre;
    const char* genres;  // base, rate, amount, a digit each
    const char* coefficient;
    const char* taux;
    const char* montant;
    const char* exclue;
  };
  constexpr Saisie Saisies[] = {
      {"300", "Prime d'ancienneté", "0", "222", "", "", "", ""},
      {"310", "Indemnité kilométrique", "0", "012", "100", "3500", "", ""},
      {"320", "Prime de dimanche", "0", "002", "", "", "", ""},
      {"330", "Acompte", "0", "330", "", "", "", ""},
      {"340", "Indemnité de repas", "0", "112", "100", "54000", "", ""},
      {"350", "Prime de tutorat", "0", "331", "", "", "7500", ""},
      {"360", "Prime exceptionnelle (ancienne)", "0", "330", "", "", "", "1"},
      {"370", "Régularisation interne", "1", "330", "", "", "", ""},
  };
  namespace S = data::RubSaisie;
  for (const Saisie& saisie : Saisies) {
    const std::string_view genres = saisie.genres;
    CItem item;
    item.Set(S::Libelle, saisie.libelle);
    item.Set(S::Filtre, saisie.filtre);
    item.Set(S::GenreBase, genres.substr(0, 1));
    item.Set(S::Coefficient, saisie.coefficient);
    item.Set(S::GenreTaux, genres.substr(1, 1));
    item.Set(S::Taux, saisie.taux);
    item.Set(S::GenreMontant, genres.substr(2, 1));
    item.Set(S::Montant, saisie.montant);
    item.Set(S::Exclue, saisie.exclue);
    sortie.ecrire(fichier::RUBSAISIE, saisie.code, item);
  }
  for (const Profil& profil : Profils) {
    CItem item;
    item.Set(data::Profil::Libelle, profil.libelle);
    setMots(item, data::Profil::Rubriques, profil.rubriques);
    item.Set(data::Profil::Mandataire, profil.mandataire);
    sortie.ecrire(fichier::PROFIL, profil.code, item);
  }
}

void ecrireReglages(Sortie& sortie, const Parametres& parametres) {
  CItem compteur;
  compteur.Set(data::Compteur::Planning, "1");
  sortie.ecrire(fichier::COMPTEUR, data::Compteur::Cle, compteur);
  CItem constantes;
  constantes.Set(data::ConstantesPaie::MaximumHebdo, "4800");
  sortie.ecrire(fichier::CONSTANTESPAIE, data::ConstantesPaie::Cle, constantes);
  CItem periodes;
  periodes.Set(data::PeriodesPaie::Courante, parametres.periodeCourante);
  periodes.Set(data::PeriodesPaie::Seconde, data::decalePeriode(parametres.periodeCourante, 1));
  sortie.ecrire(fichier::PERIODESPAIE, data::PeriodesPaie::Cle, periodes);
  CItem planning;
  planning.Set(data::TpsParam::Mode, "1");
  planning.Set(data::TpsParam::Notation, "2");
  sortie.ecrire(fichier::TPSPARAM, data::TpsParam::Cle, planning);
}

}  // namespace

void ecrireReferentiel(Sortie& sortie, const Parametres& parametres) {
  ecrireEntites(sortie);
  ecrireEtablissements(sortie);
  ecrireConventions(sortie);
  ecrireActivites(sortie);
  ecrireOrganismes(sortie);
  ecrireTables(sortie);
  ecrireRubriques(sortie);
  ecrireReglages(sortie, parametres);
}

}  // namespace demo
