#pragma once
// A declaration on hand-made records. Aujourd'hui is 22/11/2026, internal day 21511.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "data/jour.h"
#include "data/layouts/contrat.h"
#include "documents/dossier_declaration.h"
#include "support/table.h"

namespace essai {

inline std::string jour(const std::string& affichee) {
  return std::to_string(data::lireDateAffichee(affichee).value());
}

// "2=MARTIN; 20=@14/07/1938", the day of that date behind the @.
inline data::CItem item(const std::string& texte) {
  data::CItem fait;
  for (const auto& [a, valeur] : support::attributs(texte)) {
    fait.Set(a, valeur[0] == '@' ? jour(valeur.substr(1)) : valeur);
  }
  return fait;
}

inline data::CItem table(const std::map<std::string, std::string>& libelles) {
  data::CItem fait;
  for (int v = 0; const auto& [code, libelle] : libelles) {
    fait.Set(2, ++v, code);
    fait.Set(3, v, libelle);
  }
  return fait;
}

// A French carer with her number, taken on by a private employer.
inline documents::DossierDeclaration declaration() {
  documents::DossierDeclaration d;
  d.contrat = item(
      "1=02; 2=001; 3=00007; 4=I; 7=@05/01/2026; 11=60; 16=Auxiliaire de vie; 24=15167; 25=3; "
      "30=B");
  d.contrat.Set(19, 1, "Employée de maison");
  d.contrat.Set(19, 2, "Garde-malade");
  d.association = item(
      "1=Aide du Val; 3=11112222333344; 4=8810A; 5=1 quai Nord; 8=35300; 9=Fougères; 10=000450; "
      "11=1234567890");
  d.aide = item(
      "2=MARTIN; 3=Rose; 5=12; 6=bis; 7=RUE; 8=des Lilas; 10=35300; 11=Fougères; 14=02 99 00 11 "
      "22; "
      "20=@14/07/1938");
  d.part = item("1=351; 2=Z123456; 9=07");
  d.centre = item("9=URSSAF Bretagne");
  d.aidant = item(
      "1=001MME; 2=DURAND; 3=Anne; 4=LEROY; 5=3; 6=ter; 7=AV; 8=du Parc; 9=Bâtiment B; 10=35500; "
      "11=Vitré; "
      "16=F; 17=2 71 03 35 123 456; 18=42; 19=FRANCE; 26=@09/03/1971; 27=Rennes; 28=35; 30=FRANCE");
  d.titres = table({{"01", "Carte de résident"}, {"02", "Récépissé"}});
  d.naturesVoie = table({{"AV", "avenue"}, {"RUE", "rue"}});
  d.etablissement = item(
      "1=Siège; 3=55556666777788; 4=8810B; 5=9 rue Haute; 6=Cedex; 8=53100; 9=Mayenne; 10=007; "
      "11=9876543");
  d.etablissement.Set(17, 1, "1200");
  d.codeCentreMedical = "001";
  d.centreMedical = item("1=Centre; 2=5 rue Basse; 3=35300; 4=Fougères");
  d.aujourdhui = 21511;
  d.dossierImages = "images";
  return d;
}

// "contrat 24=3550; aidant 17=", or that the entity declares for its establishment.
inline void changer(documents::DossierDeclaration& d, const std::string& changements) {
  const std::map<std::string, data::CItem*> dossiers{{"contrat", &d.contrat},
                                                     {"aide", &d.aide},
                                                     {"part", &d.part},
                                                     {"aidant", &d.aidant},
                                                     {"etranger", &d.etranger},
                                                     {"etablissement", &d.etablissement},
                                                     {"paysNationalite", &d.paysNationalite},
                                                     {"paysNaissance", &d.paysNaissance}};
  if (changements == "par l'entité") {
    d.etablissement.Set(2, "001");
    d.declarant = d.association;
    return;
  }
  for (std::size_t debut = 0; debut < changements.size();) {
    const std::size_t fin = std::min(changements.find("; ", debut), changements.size());
    const std::string un = changements.substr(debut, fin - debut);
    const std::size_t blanc = un.find(' '), egal = un.find('=');
    const std::string texte = un.substr(egal + 1);
    dossiers.at(un.substr(0, blanc))
        ->Set(std::stoi(un.substr(blanc)), texte[0] == '@' ? jour(texte.substr(1)) : texte);
    debut = fin + 2;
  }
}

// What stands on a row of the page, in the order of printing: "5.6 MARTIN¦15.2 Rose".
inline std::string rangee(const documents::Page& page, double y) {
  std::string lu;
  for (const auto& element : page.elements) {
    const auto* const texte = std::get_if<documents::Texte>(&element);
    if (texte == nullptr || texte->y != y) continue;
    std::string x = std::to_string(texte->x);
    x.erase(x.find_last_not_of('0') + 1);
    if (x.back() == '.') x.pop_back();
    lu += (lu.empty() ? "" : "¦") + x + " " + texte->texte;
  }
  return lu;
}

// Every row of that table, for the page that `faire` makes.
inline void verifier(const std::string& table, const std::string& titre,
                     const documents::DossierDeclaration& depart,
                     documents::Page (*faire)(const documents::DossierDeclaration&)) {
  for (const auto& [y, textes, changements] : support::table<3>(table, titre)) {
    documents::DossierDeclaration d = depart;
    changer(d, changements);
    EXPECT_EQ(rangee(faire(d), std::stod(y)), support::code(textes)) << y << " " << changements;
  }
}

}  // namespace essai
