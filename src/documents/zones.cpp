#include "documents/zones.h"

#include <initializer_list>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/liste_codes.h"
#include "data/nombre.h"
#include "data/texte.h"

namespace documents {

namespace {

using namespace data;
namespace C = data::Contrat;

// Blanks over the gap between two groups of boxes.
constexpr const char* Ecart = "  ";
// The registration number of an entity: its first group of boxes.
constexpr int PremierGroupe = 6;
// Characters that the box of the qualification holds; the trial period stands behind it.
constexpr int LargeurQualification = 24;
constexpr const char* HeureEmbauche[] = {"0 8", "0 0"};
constexpr const char* FrequenceMensuelle = "3";

std::string joindre(std::initializer_list<std::string> parties) {
  std::string texte;
  for (const std::string& partie : parties) {
    if (!partie.empty()) texte += (texte.empty() ? "" : " ") + partie;
  }
  return texte;
}

// A number as a person writes it: without leading zeros. Another text stays.
std::string nombreSimple(const std::string& texte) {
  const std::string brut = sansAucunBlanc(texte);
  const auto debut = brut.find_first_not_of('0');
  return debut == std::string::npos || !estNombre(brut) ? brut : brut.substr(debut);
}

// Written in groups of boxes: the gap stands before the month, the place and the order of birth.
// The letters of a birth in Corsica stay.
std::string zoneSecu(const std::string& numero, const std::string& cle) {
  const std::string chiffres = sansAucunBlanc(numero);
  if (chiffres.empty()) return "";
  std::string zone;
  for (int i = 1; i <= longueur(chiffres); ++i) {
    if (i == 4 || i == 8 || i == 11) zone += Ecart;
    zone += espacer(milieu(chiffres, i, 1));
  }
  return zone + Ecart + espacer(gauche(cle, 2));
}

// Hours in the contract's frequency; the whole hours of a week for a monthly one.
std::string dureeTravail(const CItem& contrat) {
  if (contrat.Vue(C::DureeTravail, 1).empty()) return "";
  const long long duree = entier(contrat.Vue(C::DureeTravail, 1));
  if (contrat.Vue(C::Frequence, 1) != FrequenceMensuelle) return decimal(duree);
  constexpr long long SemainesParAn = 52, MoisParAn = 12;
  constexpr long long CentiemesDeSemaines = 100 * SemainesParAn;
  return std::to_string((duree * MoisParAn + CentiemesDeSemaines / 2) / CentiemesDeSemaines);
}

}  // namespace

std::string espacer(std::string_view texte) {
  std::string zone;
  for (int i = 1; i <= longueur(texte); ++i) zone += milieu(texte, i, 1) + " ";
  return zone;
}

std::string decimal(long long centiemes) {
  std::string texte = std::to_string(centiemes / 100);
  const long long reste = centiemes % 100;
  if (reste != 0) texte += "," + completeAGauche(std::to_string(reste), 2, '0');
  if (reste != 0 && reste % 10 == 0) texte.pop_back();
  return texte;
}

std::string chiffresDate(const std::string& interne) {
  if (interne.empty()) return "";
  std::string chiffres;
  for (const char c : dateAffichee(static_cast<long>(entier(interne)))) {
    if (c != '/') chiffres += c;
  }
  return chiffres;
}

std::string zoneDate(const std::string& interne) {
  const std::string chiffres = chiffresDate(interne);
  if (chiffres.empty()) return "";
  return espacer(chiffres.substr(0, 2)) + Ecart + espacer(chiffres.substr(2));
}

std::optional<std::string> libelle(const CItem& table, std::string_view code) {
  const auto liste = ListeCodes::DeTable(table);
  const auto* const ligne = liste.ParCode(code);
  return ligne == nullptr ? std::nullopt : std::optional(ligne->libelle);
}

ZonesEmployeur Mise_En_Forme_Empl(const DossierDeclaration& d) {
  // The numbers of the places are the same in both files.
  namespace E = data::Etablissement;
  const bool parEntite = !d.etablissement.Vue(E::Association).empty();
  const CItem& e = parEntite ? d.declarant : d.etablissement;
  ZonesEmployeur z;
  z.siret = espacer(e(E::Siret));
  z.codeApe = espacer(e(E::CodeApe));
  z.nom = e(E::Libelle);
  z.adresse = joindre({e(E::Adresse1), e(E::Adresse2), e(E::Adresse3)});
  z.codePostal = espacer(e(E::CodePostal));
  z.ville = e(E::Ville);
  z.numeroEmployeur = espacer(nombreSimple(e(E::NumeroEmployeur)));
  const std::string immatriculation = e(E::Immatriculation);
  z.immatriculation = espacer(gauche(immatriculation, PremierGroupe));
  if (parEntite && !immatriculation.empty()) z.immatriculation += " ";
  z.immatriculation += espacer(milieu(immatriculation, PremierGroupe + 1));
  return z;
}

ZonesSalarie Mise_En_Forme_Sal(const DossierDeclaration& d) {
  namespace S = data::CivilAidant;
  const CItem& a = d.aidant;
  ZonesSalarie z;
  z.nomNaissance = a(S::NomNaissance);
  z.nom = a(S::Nom);
  z.prenom = a(S::Prenom);
  z.sexe = a(S::Sexe);
  z.numeroSecu = zoneSecu(a(S::NumeroSecu), a(S::CleSecu));
  z.dateNaissance = zoneDate(a(S::DateNaissance));
  z.nationalite = z.paysNationalite = a(S::Nationalite);
  z.departementNaissance = espacer(gauche(a(S::DepartementNaissance), 2));
  z.lieuNaissance = a(S::LieuNaissance);
  z.paysNaissance = a(S::PaysNaissance);
  const std::string nature = a(S::VoieNature);
  z.adresse = joindre({a(S::VoieNumero), a(S::VoieBis),
                       libelle(d.naturesVoie, nature).value_or(nature), a(S::VoieNom)});
  z.codePostal = espacer(a(S::CodePostal));
  z.ville = a(S::Ville);
  return z;
}

ZonesContrat Mise_En_Forme_Contrat(const DossierDeclaration& d) {
  const CItem& c = d.contrat;
  ZonesContrat z;
  z.dateEmbauche = zoneDate(c(C::DateDebut));
  z.heureEmbauche = std::string(HeureEmbauche[0]) + " " + HeureEmbauche[1];
  z.codeCentreMedical = d.codeCentreMedical;
  z.adresseCentreMedical =
      joindre({d.centreMedical(CentreMedical::Adresse), d.centreMedical(CentreMedical::CodePostal),
               d.centreMedical(CentreMedical::Ville)});
  z.qualification = gauche(c(C::Qualification, 1), LargeurQualification);
  z.periodeEssai = c(C::PeriodeEssai);
  z.dureeTravail = dureeTravail(c);
  // At the hiring a fixed term has the end that is foreseen.
  const std::string finPrevue = c(C::DateFinPresumee);
  if (c.Vue(C::Type) == "D") z.dateFin = zoneDate(finPrevue.empty() ? c(C::DateFin) : finPrevue);
  z.lieu = d.association(Association::Ville);
  const std::string jour = dateAffichee(d.aujourdhui);
  z.aujourdhui = gauche(jour, 6) + droite(jour, 2);
  return z;
}

}  // namespace documents
