#include "documents/declaration_formulaire.h"

#include <algorithm>
#include <initializer_list>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "data/layouts/voisins.h"
#include "data/nombre.h"
#include "data/texte.h"
#include "documents/zones.h"

namespace documents {

namespace {

using namespace data;
namespace C = data::Contrat;
using Dossier = DossierDeclaration;

constexpr const char* Croix = "X";
constexpr int AdresseEmployeurMax = 34;  // characters, as PaysMax
constexpr int PaysMax = 17;

// A column of boxes, one digit each.
const std::vector<double> DateHaute{2.9, 3.2, 3.6, 3.9, 4.3, 4.6, 4.9, 5.2};
const std::vector<double> DateContrat{6.9, 7.2, 7.6, 7.9, 8.3, 8.6, 8.9, 9.2};
const std::vector<double> PostalAide{12.1, 12.4, 12.7, 13, 13.3};
const std::vector<double> PostalAidant{12.4, 12.7, 13, 13.3, 13.6};
const std::vector<double> NumeroSecu{4.9, 5.2, 5.5, 5.8, 6.1, 6.4, 6.7, 7, 7.3, 7.5, 7.8, 8.1, 8.4};

template <CItem Dossier::*Item, int Attribut>
std::string lu(const Dossier& d) {
  return (d.*Item)(Attribut);
}
// The digits of a date, "" where there is none.
template <CItem Dossier::*Item, int Attribut>
std::string date(const Dossier& d) {
  return chiffresDate((d.*Item)(Attribut));
}

// Number, complement, kind, name and place of the street. The kind stands in the record as a code:
// the form looks it up among the stay permits, as the suite always has, and only then among the
// kinds of street, so that a reader sees "rue" all the same. `complement` is the person whose
// record decides whether "bis" or "ter" is printed.
std::string adresse(const Dossier& d, const CItem& personne, const CItem& complement) {
  namespace P = data::CivilAidant;
  const std::string nature = personne(P::VoieNature);
  const auto titre = libelle(d.titres, nature);
  std::string ligne = personne(P::VoieNumero) + " ";
  if (!complement.Vue(P::VoieBis).empty()) ligne += personne(P::VoieBis) + " ";
  ligne += titre ? *titre : libelle(d.naturesVoie, nature).value_or(nature);
  return ligne + " " + personne(P::VoieNom) + " " + personne(P::AdresseComplement);
}

std::string entete(const Dossier& d) {
  return d.centre(CentreUrssaf::Libelle) + " / " + d.association(Association::Nom) + " - " +
         d.association(Association::Ville);
}
std::string adresseAide(const Dossier& d) {
  return gauche(adresse(d, d.aide, d.aide), AdresseEmployeurMax);
}
// Whether "bis" or "ter" is printed has always been decided by the employer's address.
std::string adresseAidant(const Dossier& d) {
  return adresse(d, d.aidant, d.aide);
}

bool sansNumero(const Dossier& d) {
  return d.aidant.Vue(CivilAidant::NumeroSecu).empty();
}
// The digits of the number, which stands in groups parted by blanks.
std::string numeroSecu(const Dossier& d) {
  const std::string numero = d.aidant(CivilAidant::NumeroSecu);
  std::string chiffres;
  if (numero.empty()) return chiffres;
  for (const int place : {1, 3, 4, 6, 7, 9, 10, 12, 13, 14, 16, 17, 18}) {
    chiffres += colonne(milieu(numero, place, 1), 1);
  }
  return chiffres;
}
std::string cleSecu(const Dossier& d) {
  return sansNumero(d) ? "" : d.aidant(CivilAidant::CleSecu);
}

// A carer without a number yet: where he comes from.
enum class Origine { Connue, France, Communaute, Autre };
Origine origine(const Dossier& d) {
  if (!sansNumero(d)) return Origine::Connue;
  if (d.aidant.Vue(CivilAidant::Nationalite) == NationaliteFrance) return Origine::France;
  return d.paysNationalite.Vue(Pays::Zone) == "C" ? Origine::Communaute : Origine::Autre;
}
template <Origine Cas>
std::string croixOrigine(const Dossier& d) {
  return origine(d) == Cas ? Croix : "";
}
std::string paysCommunaute(const Dossier& d) {
  return origine(d) == Origine::Communaute ? gauche(d.paysNationalite(Pays::Libelle), PaysMax) : "";
}
std::string titreSejour(const Dossier& d) {
  if (origine(d) != Origine::Autre) return "";
  const auto rang = static_cast<int>(entier(d.etranger(Etranger::PositionTitre)));
  return d.titres(Tables::Libelles, rang) + "/ n°" + d.etranger(Etranger::NumeroTitre);
}
template <std::string (*Texte)(const Dossier&)>
std::string siSansNumero(const Dossier& d) {
  return sansNumero(d) ? Texte(d) : "";
}

std::string fonction(const Dossier& d) {
  return d.contrat(C::FonctionPCS, std::max(1, d.contrat.DCount(C::FonctionPCS)));
}
template <bool Femme>
std::string croixConstante(const Dossier& d) {
  return (d.contrat.Vue(C::ConstanteB) == "F") == Femme ? Croix : "";
}

bool employeurParmi(const Dossier& d, std::initializer_list<std::string_view> codes) {
  const auto code = d.part.Vue(EltsPartEmp::TypeEmployeur);
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}
std::string croixSeul(const Dossier& d) {
  return employeurParmi(d, {"01", "00"}) ? Croix : "";
}
std::string croixExonere(const Dossier& d) {
  return employeurParmi(d, {"01", "00"}) ? "" : Croix;
}
// Codes are written on two digits; most boxes stand for two of them.
template <int A, int B = A>
std::string croixType(const Dossier& d) {
  const auto code = [](int n) {
    return std::string{static_cast<char>('0' + n / 10), static_cast<char>('0' + n % 10)};
  };
  return employeurParmi(d, {code(A), code(B)}) ? Croix : "";
}

std::string faitA(const Dossier& d) {
  return d.association(Association::Ville) + "  à  " + dateAffichee(d.aujourdhui);
}

}  // namespace

const std::vector<Place>& placesFormulaire() {
  namespace A = data::CivilAide;
  namespace S = data::CivilAidant;
  using D = Dossier;
  static const std::vector<Place> Places{
      {1.4, {4.3}, entete, 16, true},
      {6.7, {5.6}, lu<&D::aide, A::Nom>, 8.1},
      {6.7, {15.2}, lu<&D::aide, A::Prenom>, 5.1},
      {7.2, DateHaute, date<&D::aide, A::DateNaissance>},
      {7.2, {16.65}, lu<&D::aide, A::Telephone>, 3.7},
      {7.6, {2.9}, adresseAide, 8.2},
      {7.6, PostalAide, lu<&D::aide, A::CodePostal>},
      {7.6, {14.8}, lu<&D::aide, A::Ville>, 5.5},
      {8, {11.5}, lu<&D::part, EltsPartEmp::Reference>, 8.9},
      {8.8, DateContrat, date<&D::contrat, C::DateDebut>},
      {9.2, {2.5}, lu<&D::aidant, S::Nom>, 4.8},
      {9.2, {10}, lu<&D::aidant, S::NomNaissance>, 5},
      {9.2, {16.8}, lu<&D::aidant, S::Prenom>, 3.5},
      {9.65, {9}, lu<&D::aidant, S::Nationalite>, 11.4},
      {10.1, {2.9}, adresseAidant, 8.4},
      {10.1, PostalAidant, lu<&D::aidant, S::CodePostal>},
      {10, {15.2}, lu<&D::aidant, S::Ville>, 5.1},
      {10.5, NumeroSecu, numeroSecu},
      {10.5, {8.8, 9.1}, cleSecu},
      {11.3, {2}, fonction, 18.4},
      {11.6, {8.5}, croixConstante<true>},
      {11.6, {13}, croixConstante<false>},
      {13.25, {5.75}, croixOrigine<Origine::France>},
      {13.25, {8.2}, croixOrigine<Origine::Communaute>},
      {13.25, {11.7}, paysCommunaute, 2.9},
      {13.25, {14.8}, croixOrigine<Origine::Autre>},
      {16.2, {6.9}, titreSejour, 13.5},
      {13.65, DateHaute, siSansNumero<date<&D::aidant, S::DateNaissance>>},
      {13.65, {8.3}, siSansNumero<lu<&D::aidant, S::LieuNaissance>>, 5.2},
      {13.65, {16.7, 17}, siSansNumero<lu<&D::aidant, S::DepartementNaissance>>},
      {14.7, {4.75}, siSansNumero<lu<&D::paysNaissance, Pays::Libelle>>, 15.6},
      {22.55, {1.9}, croixSeul},
      {22, {1.9}, croixExonere},
      {23.8, {2}, croixType<4>},
      {23.8, {3.2}, croixType<2>},
      {23.8, {4.4}, croixType<3>},
      {23.8, {5.6}, croixType<7, 6>},
      {23.8, {6.8}, croixType<10, 8>},
      {23.8, {8}, croixType<9, 5>},
      {27.2, {3}, faitA, 8},
  };
  return Places;
}

Page declarationFormulaire(const Dossier& d) {
  Page page;
  page.elements.emplace_back(fond(d, FondUrssaf));
  for (const Place& place : placesFormulaire()) {
    const std::string texte = place.texte(d);
    if (texte.empty()) continue;
    const Police police{.points = place.titre ? 11.0 : 10.0, .gras = place.titre};
    if (place.x.size() == 1) {
      page.elements.emplace_back(Texte{place.x[0], place.y, texte, police, place.largeur});
      continue;
    }
    for (int i = 1; i <= static_cast<int>(place.x.size()); ++i) {
      const std::string signe = milieu(texte, i, 1);
      if (signe.empty() || signe == " ") continue;
      page.elements.emplace_back(
          Texte{place.x[static_cast<std::size_t>(i - 1)], place.y, signe, police});
    }
  }
  signer(page, d);
  return page;
}

}  // namespace documents
