#pragma once
// The zones of the declaration for the dot-matrix printer: one text a group of boxes, its
// characters parted so that each falls into a box of the pre-printed form.
//
//   espacer("35300")           "3 5 3 0 0 "
//   zoneDate("21511")          "2 2   1 1 2 0 2 6 "     22/11/2026: a gap after the day
//
// A zone whose source is empty is empty.

#include <optional>
#include <string>
#include <string_view>

#include "documents/dossier_declaration.h"

namespace documents {

inline constexpr const char* NationaliteFrance = "FRANCE";

struct ZonesEmployeur {
  std::string siret, codeApe;
  std::string nom, adresse, codePostal, ville;
  std::string numeroEmployeur, immatriculation;
};

struct ZonesSalarie {
  std::string nomNaissance, nom, prenom, sexe;
  std::string numeroSecu, dateNaissance;
  // Tested, then printed.
  std::string nationalite, paysNationalite;
  std::string departementNaissance, lieuNaissance, paysNaissance;
  std::string adresse, codePostal, ville;
};

struct ZonesContrat {
  std::string dateEmbauche, heureEmbauche;
  std::string codeCentreMedical, adresseCentreMedical;
  std::string qualification, periodeEssai;
  std::string dureeTravail;
  std::string dateFin;
  std::string lieu, aujourdhui;
};

// The establishment, or the entity that declares in its place.
ZonesEmployeur Mise_En_Forme_Empl(const DossierDeclaration& dossier);
ZonesSalarie Mise_En_Forme_Sal(const DossierDeclaration& dossier);
ZonesContrat Mise_En_Forme_Contrat(const DossierDeclaration& dossier);

// One blank after each character.
std::string espacer(std::string_view texte);
// Hundredths as a person writes them: "35", "35,5", "35,25".
std::string decimal(long long centiemes);
// The eight digits of an internal date; "" gives "".
std::string chiffresDate(const std::string& interne);
std::string zoneDate(const std::string& interne);
// The label beside that code in an item of TABLES; nothing for a code that does not stand there.
std::optional<std::string> libelle(const data::CItem& table, std::string_view code);

}  // namespace documents
