#include "demo/personnes.h"

#include <algorithm>

#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "demo/alea.h"
#include "demo/generateur.h"
#include "demo/listes.h"
#include "demo/noms.h"

namespace demo {
namespace {

using data::CItem;
namespace fichier = data::fichier;

struct PoidsParcours {
  Parcours parcours;
  int poids;
};
constexpr PoidsParcours LesParcours[] = {{Parcours::Stable, 38},
                                         {Parcours::Remplacant, 25},
                                         {Parcours::Mandataire, 26},
                                         {Parcours::Administratif, 8},
                                         {Parcours::Stagiaire, 3}};

// The years that contracts may go back to.
constexpr long AncienneteMax = 3300;

// An open-ended contract needs some months to be worth ending or being absent from.
void tirerContratStable(const Parametres& parametres, Alea& alea, BaseAidant& base) {
  base.cdiDebut = base.embauche;
  if (alea.surCent(45) && base.embauche < parametres.aujourdhui - 400) {
    base.cddFin = base.embauche + alea.entre(60, 240);
    base.cdiDebut = base.cddFin + alea.entre(1, 4);
  }
  if (alea.surCent(35) && base.cdiDebut < parametres.aujourdhui - 420) {
    base.cdiFin = alea.entre(base.cdiDebut + 250, parametres.aujourdhui - 30);
  }
  const long borne = base.cdiFin != 0 ? base.cdiFin : parametres.aujourdhui + 40;
  if (alea.surCent(40) && borne - base.cdiDebut > 300) {
    constexpr const char* Longues[] = {"01", "02", "03", "04"};
    base.absenceDebut = alea.entre(base.cdiDebut + 100, borne - 60);
    base.absenceFin = std::min(borne, base.absenceDebut + alea.entre(20, 150));
    base.absenceType = base.femme ? alea.parmi(Longues) : "01";
  }
}

// Number, kind and name of the street, postal code and town: the same places for all persons.
void setAdresse(CItem& item, Alea& alea) {
  namespace A = data::CivilAidant;
  item.Set(A::VoieNumero, texte(alea.entre(1, 140)));
  item.Set(A::VoieBis, alea.surCent(6) ? "bis" : "");
  item.Set(A::VoieNature, alea.parmi(NaturesVoie).code);
  item.Set(A::VoieNom, alea.parmi(NomsVoie));
  item.Set(A::AdresseComplement, alea.surCent(8) ? "Bâtiment B" : "");
  const Commune& commune = alea.parmi(Communes);
  item.Set(A::CodePostal, commune.codePostal);
  item.Set(A::Ville, commune.nom);
  item.Set(A::Telephone, "06 " + chiffres(alea.entre(10, 99), 2) + " " +
                             chiffres(alea.entre(0, 99), 2) + " " + chiffres(alea.entre(0, 99), 2) +
                             " " + chiffres(alea.entre(0, 99), 2));
}

void setNom(CItem& item, Alea& alea, bool femme) {
  namespace A = data::CivilAidant;
  const std::string nom = alea.parmi(NomsFamille);
  item.Set(A::Nom, nom);
  item.Set(A::Prenom, femme ? alea.parmi(PrenomsFemme) : alea.parmi(PrenomsHomme));
  const bool marie = femme && alea.surCent(55);
  item.Set(A::NomNaissance, marie ? std::string(alea.parmi(NomsFamille)) : nom);
}

// Sex, year, month, place and order of birth, parted as on the card; then the control key.
void setNumeroSecu(CItem& item, Alea& alea, bool femme, long naissance, const std::string& lieu) {
  const data::Date date = data::dateDe(naissance);
  const std::string parties[] = {femme ? "2" : "1",      chiffres(date.annee % 100, 2),
                                 chiffres(date.mois, 2), lieu.substr(0, 2),
                                 lieu.substr(2),         chiffres(alea.entre(1, 990), 3)};
  std::string groupes;
  std::string serie;
  for (const std::string& partie : parties) {
    groupes += (groupes.empty() ? "" : " ") + partie;
    serie += partie;
  }
  item.Set(data::CivilAidant::NumeroSecu, groupes);
  item.Set(data::CivilAidant::CleSecu, chiffres(97 - std::stol(serie) % 97, 2));
}

void ecrireTitreSejour(Sortie& sortie, Alea& alea, const std::string& code) {
  CItem item;
  item.Set(data::Etranger::PositionTitre, texte(alea.entre(1, std::size(TitresSejour))));
  item.Set(data::Etranger::NumeroTitre, chiffres(alea.entre(1, 9999999), 10));
  sortie.ecrire(fichier::ETRANGER, code, item);
}

void setNaissance(Sortie& sortie, CItem& item, Alea& alea, const BaseAidant& base) {
  namespace A = data::CivilAidant;
  const PaysConnu& pays = alea.parmiPoids(ListePays);
  const bool francais = &pays == &ListePays[0];
  const Commune& commune = alea.parmi(Communes);
  item.Set(A::Nationalite, pays.nom);
  item.Set(A::PaysNationalite, pays.code);
  item.Set(A::DateNaissance, texte(base.naissance));
  item.Set(A::LieuNaissance, francais ? commune.nom : pays.nom);
  const std::string departement = std::string(commune.codePostal).substr(0, 2);
  item.Set(A::DepartementNaissance, francais ? departement : "99");
  item.Set(A::CodePaysNaissance, pays.code);
  item.Set(A::PaysNaissance, pays.nom);
  // Newcomers wait for their number; the hiring declaration then asks for their birth instead.
  if (!alea.surCent(francais ? 2 : 25)) {
    const std::string lieu =
        francais ? departement + chiffres(alea.entre(1, 360), 3) : std::string(pays.code);
    setNumeroSecu(item, alea, base.femme, base.naissance, lieu);
  }
  if (*pays.zone == '\0') ecrireTitreSejour(sortie, alea, base.code);
}

void ecrireCompte(Sortie& sortie, Alea& alea, const BaseAidant& base) {
  if (!base.compteBancaire) return;
  CItem item;
  item.Set(data::RibAidant::Compte, chiffres(alea.entre(1, 99999999), 11));
  sortie.ecrire(fichier::RIBAIDANT, base.code, item);
}

void ecrireHandicap(Sortie& sortie, Alea& alea, const BaseAidant& base) {
  if (!alea.surCent(7)) return;
  constexpr const char* Types[] = {"01", "02", "03", "08"};
  CItem item;
  item.Set(data::InfosAidant::HandicapDu, texte(base.embauche + alea.entre(-400, 300)));
  item.Set(data::InfosAidant::HandicapType, alea.parmi(Types));
  item.Set(data::InfosAidant::HandicapAu, texte(base.embauche + alea.entre(900, 4500)));
  sortie.ecrire(fichier::INFOSAIDANT, base.code, item);
}

void ecrireEmployeur(Sortie& sortie, Alea& alea, const BaseAide& base) {
  namespace E = data::EltsPartEmp;
  constexpr const char* Centres[] = {"351", "531", "501"};
  constexpr const char* Types[] = {"00", "01", "02", "03", "04", "05", "07", "09", "10"};
  CItem item;
  item.Set(E::CentreUrssaf, Centres[base.entite]);
  item.Set(E::Reference, "Z" + chiffres(alea.entre(1, 9999999), 9));
  item.Set(E::TypeEmployeur, alea.parmi(Types));
  item.Set(E::Profil, alea.surCent(80) ? "210" : "220");
  if (*base.prevoyance != '\0') {
    item.Set(E::DateDebutPrev, texte(base.debut));
    item.Set(E::ContratPrev, base.prevoyance);
  }
  item.Set(E::DerniereFacture, base.derniereFacture);
  sortie.ecrire(fichier::ELTSPARTEMP, base.code, item);
}

// Employers have all that they may employ for; others the first service and some of the rest.
void tirerActivites(Alea& alea, BaseAide& base) {
  for (std::size_t i = 0; i < std::size(Activites); ++i) {
    const bool mandataire = i >= PremiereMandataire;
    base.activites[i] = mandataire == base.employeur && (mandataire || i == 0 || alea.surCent(40));
  }
}

void ecrireActivitesAide(Sortie& sortie, const BaseAide& base) {
  CItem item;
  for (int rang = 1; const std::string& code : base.codesActivites()) {
    item.Set(data::ActivitesAide::Codes, rang, code);
    item.Set(data::ActivitesAide::Debuts, rang, texte(base.debut));
    if (base.depart != 0) item.Set(data::ActivitesAide::Fins, rang, texte(base.depart));
    ++rang;
  }
  sortie.ecrire(fichier::ACTIVITESAIDE, base.code, item);
}

}  // namespace

std::string BaseAidant::cleAbsence() const {
  return code + absenceType + chiffres(absenceDebut, 5);
}

BaseAidant baseAidant(const Parametres& parametres, int numero) {
  Alea alea(parametres.graine, Domaine::Base, static_cast<std::uint64_t>(numero));
  BaseAidant base;
  base.numero = numero;
  base.code = codePersonne(numero);
  base.femme = alea.surCent(88);
  base.compteBancaire = alea.surCent(92);
  const Rattachement& rattachement = alea.parmiPoids(Rattachements);
  base.entite = rattachement.entite;
  base.convention = rattachement.convention;
  base.parcours = alea.parmiPoids(LesParcours).parcours;
  base.embauche = parametres.aujourdhui - alea.entre(40, AncienneteMax);
  if (base.parcours == Parcours::Stable) tirerContratStable(parametres, alea, base);
  base.naissance = base.embauche - alea.entre(19 * 365L, 62 * 365L);
  return base;
}

std::vector<std::string> BaseAide::codesActivites() const {
  std::vector<std::string> codes;
  for (std::size_t i = 0; i < activites.size(); ++i) {
    if (activites[i]) codes.push_back(std::string(Entites[entite].code) + Activites[i].suffixe);
  }
  return codes;
}

BaseAide baseAide(const Parametres& parametres, int numero) {
  Alea alea(parametres.graine, Domaine::Aide, static_cast<std::uint64_t>(numero));
  BaseAide base;
  base.numero = numero;
  base.code = codePersonne(numero);
  base.entite = static_cast<int>(&alea.parmiPoids(Entites) - Entites);
  base.employeur = numero % 2 == 1;
  base.debut = parametres.aujourdhui - AncienneteMax - alea.entre(30, 900);
  if (base.employeur && alea.surCent(70)) base.prevoyance = "03";
  // One employer in eight has not been billed for the last month that was paid.
  const bool enRetard = alea.surCent(12);
  base.derniereFacture =
      enRetard ? data::decalePeriode(parametres.derniereTraitee, -1) : parametres.derniereTraitee;
  tirerActivites(alea, base);
  if (numero % 16 == 8) base.depart = parametres.aujourdhui - alea.entre(20, 700);
  if (base.employeur && numero % 16 == 11) {
    base.depart = parametres.aujourdhui - alea.entre(90, 1500);
    base.derniereFacture = std::min(base.derniereFacture, data::periodeDe(base.depart));
  }
  return base;
}

void ecrireAide(Sortie& sortie, const Parametres& parametres, const BaseAide& base) {
  namespace A = data::CivilAide;
  Alea alea(parametres.graine, Domaine::Aide, static_cast<std::uint64_t>(base.numero), 1);
  CItem item;
  setNom(item, alea, alea.surCent(68));
  setAdresse(item, alea);
  item.Set(A::DateNaissance, texte(parametres.aujourdhui - alea.entre(62 * 365L, 99 * 365L)));
  if (base.depart != 0) item.Set(A::DateFin, texte(base.depart));
  sortie.ecrire(fichier::CIVILAIDE, base.code, item);
  ecrireActivitesAide(sortie, base);
  if (base.employeur) ecrireEmployeur(sortie, alea, base);
}

void ecrireAidant(Sortie& sortie, const Parametres& parametres, const BaseAidant& base,
                  const NumerosAidant& numeros) {
  namespace A = data::CivilAidant;
  Alea alea(parametres.graine, Domaine::Etat, static_cast<std::uint64_t>(base.numero));
  CItem item;
  const char* civilite = !base.femme ? "MR" : alea.surCent(80) ? "MME" : "MLE";
  item.Set(A::CentreEtCivilite, std::string(Entites[base.entite].code) + civilite);
  setNom(item, alea, base.femme);
  setAdresse(item, alea);
  item.Set(A::Sexe, base.femme ? "F" : "M");
  setNaissance(sortie, item, alea, base);
  if (numeros.deces != 0) {
    item.Set(A::DateFin, texte(numeros.deces));
  } else if (numeros.tousFinis && alea.surCent(40)) {
    item.Set(A::DateFin, texte(numeros.derniereFin + alea.entre(1, 20)));
  }
  if (numeros.premiereEmbauche02 != 0) {
    item.Set(A::PremiereEmbauche02, texte(numeros.premiereEmbauche02));
  }
  item.Set(A::DernierNumero, chiffres(numeros.dernier, 3));
  for (int i = 0; const int libre : numeros.libres) {
    item.Set(A::NumerosLibres, ++i, chiffres(libre, 3));
  }
  sortie.ecrire(fichier::CIVILAIDANT, base.code, item);
  ecrireCompte(sortie, alea, base);
  ecrireHandicap(sortie, alea, base);
}

}  // namespace demo
