#include "documents/declaration_matricielle.h"

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/texte.h"

namespace documents {

namespace {

using namespace data;
namespace C = data::Contrat;
using Z = ZonesDeclaration;

constexpr const char* Croix = "X";
constexpr double PointsMatriciels = 11;
// Where the paper ends, short of the printer's margin.
constexpr double BordDroit = 20.5;
// The boxes of the number of the establishment: 14 digits, each with its blank.
constexpr int LargeurSiret = 28;

std::string blancs(int n) {
  return std::string(static_cast<std::size_t>(n), ' ');
}

template <auto Groupe, auto Zone>
std::string zone(const Z& z) {
  return z.*Groupe.*Zone;
}

std::string codes(const Z& z) {
  return z.empl.siret + blancs(13) + blancs(LargeurSiret - longueur(z.empl.siret)) + z.empl.codeApe;
}
std::string postalEmployeur(const Z& z) {
  return z.empl.codePostal + blancs(2) + z.empl.ville;
}
std::string numeros(const Z& z) {
  return z.empl.numeroEmployeur + blancs(15) + z.empl.immatriculation;
}

// The title's cross falls into one of three boxes before the names.
std::string titreEtNom(const Z& z) {
  constexpr int LargeurTitres = 12, NomMax = 27;
  const struct {
    const char* titre;
    const char* croix;
  } titres[] = {{"MR", "X"}, {"MME", "   X"}, {"MLE", "       X"}};
  const std::string titre = milieu(z.dossier.aidant(CivilAidant::CentreEtCivilite), 4);
  std::string ligne;
  for (const auto& t : titres) {
    if (titre == t.titre) ligne = t.croix;
  }
  return completeADroite(ligne, LargeurTitres) + gauche(z.sal.nomNaissance, NomMax);
}
std::string nationalite(const Z& z) {
  if (z.sal.nationalite == NationaliteFrance) return Croix;
  return blancs(9) + Croix + blancs(15) + z.sal.paysNationalite;
}
std::string naissance(const Z& z) {
  return z.sal.departementNaissance + " " + z.sal.lieuNaissance + blancs(4) + "( " +
         z.sal.paysNaissance + " )";
}
std::string postalSalarie(const Z& z) {
  return z.sal.codePostal + blancs(2) + z.sal.ville;
}

std::string embauche(const Z& z) {
  return z.contrat.dateEmbauche + blancs(28) + z.contrat.heureEmbauche;
}
// The number of persons falls into four boxes, its last digit into the last one.
std::string effectif(const Z& z) {
  constexpr int Boites = 4;
  const auto centiemes = z.dossier.etablissement.Vue(Etablissement::Effectif, 1);
  if (centiemes.empty()) return "";
  const std::string nombre = decimal(entier(centiemes));
  const int chiffres = longueur(nombre);
  if (chiffres < 2 || chiffres > Boites || nombre.find(',') != std::string::npos) {
    return blancs(6) + nombre;
  }
  return blancs(2 * (Boites - chiffres)) + sansBlancsADroite(espacer(nombre));
}
std::string toujours(const Z&) {
  return Croix;
}

std::string qualification(const Z& z) {
  return z.contrat.qualification + blancs(34) + z.contrat.periodeEssai;
}
template <char Frequence>
std::string duree(const Z& z) {
  const std::string choisie{Frequence};
  return z.dossier.contrat.Vue(C::Frequence, 1) == choisie ? z.contrat.dureeTravail : "";
}
std::string genre(const Z& z) {
  const auto type = z.dossier.contrat.Vue(C::Type);
  if (type == "I") return Croix;
  return type == "D" ? blancs(20) + Croix + blancs(40) + z.contrat.dateFin : "";
}
std::string sansNumero(const Z& z) {
  return z.sal.numeroSecu.empty() ? Croix : "";
}
std::string villeEmployeur(const Z& z) {
  const std::string ville = z.dossier.etablissement(Etablissement::Ville);
  return ville.empty() ? z.dossier.association(Association::Ville) : ville;
}
std::string aujourdhui(const Z& z) {
  return dateAffichee(z.dossier.aujourdhui);
}

constexpr double Chasse = ChasseFixe * PointsMatriciels / PointsParCentimetre;

// Puts a text on the page. One that is too long for the paper keeps its columns: its last zone is
// drawn narrower, or all of it when even that zone would begin off the paper.
void poser(Page& page, double x, double y, const std::string& ligne) {
  const Police police{.points = PointsMatriciels};
  const auto trou = ligne.rfind("   ");
  if (x + longueur(ligne) * Chasse > BordDroit && trou != std::string::npos) {
    const std::string debut = ligne.substr(0, trou + 3);
    const double fin = x + longueur(debut) * Chasse;
    if (fin < BordDroit) {
      page.elements.emplace_back(Texte{x, y, debut, police});
      page.elements.emplace_back(
          Texte{fin, y, ligne.substr(debut.size()), police, BordDroit - fin});
      return;
    }
  }
  page.elements.emplace_back(Texte{x, y, ligne, police, BordDroit - x});
}

// A text that is too long for its own place is drawn narrower, and moves nothing behind it.
void poser(Page& page, const LigneMatricielle& ligne, const Z& zones) {
  const std::string texte = ligne.texte(zones);
  const std::string suite = ligne.suite == nullptr ? "" : ligne.suite(zones);
  if (ligne.largeur == 0 || longueur(texte) * Chasse <= ligne.largeur) {
    const std::string entiere =
        suite.empty() ? texte : completeADroite(texte, ligne.colonnes) + suite;
    if (!entiere.empty()) poser(page, ligne.x, ligne.y, entiere);
    return;
  }
  page.elements.emplace_back(
      Texte{ligne.x, ligne.y, texte, Police{.points = PointsMatriciels}, ligne.largeur});
  if (!suite.empty()) poser(page, ligne.x + ligne.colonnes * Chasse, ligne.y, suite);
}

}  // namespace

ZonesDeclaration::ZonesDeclaration(const DossierDeclaration& d)
    : dossier(d),
      empl(Mise_En_Forme_Empl(d)),
      sal(Mise_En_Forme_Sal(d)),
      contrat(Mise_En_Forme_Contrat(d)) {}

const std::vector<LigneMatricielle>& lignesMatricielles() {
  static const std::vector<LigneMatricielle> Lignes{
      {3.7, 4.6, codes},
      {4.5, 7.1, zone<&Z::empl, &ZonesEmployeur::nom>},
      {5.25, 4.25, zone<&Z::empl, &ZonesEmployeur::adresse>},
      {6.1, 4.3, postalEmployeur},
      {8.3, 7, numeros},
      {10.1, 4.4, titreEtNom, 44, zone<&Z::sal, &ZonesSalarie::nom>},
      {10.75, 4.45, zone<&Z::sal, &ZonesSalarie::prenom>, 60, zone<&Z::sal, &ZonesSalarie::sexe>,
       13.2},
      {11.7, 4.55, zone<&Z::sal, &ZonesSalarie::numeroSecu>, 48,
       zone<&Z::sal, &ZonesSalarie::dateNaissance>, 11},
      {12.55, 4.5, nationalite},
      {13.3, 4.75, naissance},
      {14.15, 4.35, zone<&Z::sal, &ZonesSalarie::adresse>},
      {14.9, 4.35, postalSalarie},
      {15.75, 7.5, embauche},
      {17.7, 5.6, zone<&Z::contrat, &ZonesContrat::codeCentreMedical>},
      {18.5, 5.6, zone<&Z::contrat, &ZonesContrat::adresseCentreMedical>},
      {19.3, 7.4, effectif},
      {19.95, 11, toujours},
      {22, 6, qualification},
      {23.3, 8.25, duree<'1'>},
      {23.3, 8.45, duree<'2'>},
      {23.3, 12.1, duree<'3'>},
      {23.3, 17, duree<'4'>},
      {24.95, 1.7, genre},
      {21.5, 18.95, sansNumero},
      {26.3, 2, zone<&Z::contrat, &ZonesContrat::lieu>, 37,
       zone<&Z::contrat, &ZonesContrat::aujourdhui>, 7.7},
      {28.2, 2, villeEmployeur, 0, nullptr, 3.9},
      {28.2, 6.6, aujourdhui},
  };
  return Lignes;
}

Page declarationMatricielle(const DossierDeclaration& d) {
  const ZonesDeclaration zones(d);
  Page page;
  page.elements.emplace_back(fond(d, FondDue));
  for (const LigneMatricielle& ligne : lignesMatricielles()) poser(page, ligne, zones);
  signer(page, d);
  return page;
}

}  // namespace documents
