// The letters: which template serves, and what its fields become.

#include "documents/lettre.h"

#include "essai_declaration.h"

namespace {

using documents::DossierLettre;

// An entity's contract of 151.67 hours a month, with an amendment of 20 a week.
DossierLettre lettre(const std::string& autres = "", const std::string& avenant = "") {
  documents::DossierDeclaration d = essai::declaration();
  DossierLettre l;
  l.cle = "00031002";
  l.avenant = avenant;
  d.contrat = essai::item("1=01; 4=I; 5=H; 7=@05/01/2026; 27=1");
  const std::pair<int, std::pair<const char*, const char*>> valeurs[] = {
      {14, {"0", "01"}},        {16, {"Aide à domicile", "Auxiliaire"}},
      {23, {"12020", "12345"}}, {24, {"15167", "2000"}},
      {25, {"3", "1"}},         {22, {"270000", "280500"}}};
  for (const auto& [a, v] : valeurs) {
    d.contrat.Set(a, 1, v.first);
    d.contrat.Set(a, 2, v.second);
  }
  d.contrat.Set(15, 2, essai::jour("01/10/2026"));
  essai::changer(d, autres);
  l.contrat = d.contrat;
  l.association = d.association;
  l.etablissement = d.etablissement;
  l.aide = d.aide;
  l.reference = d.part;
  l.aidant = d.aidant;
  l.naturesVoie = d.naturesVoie;
  l.natures = essai::table({{"CDI", "Contrat normal"}});
  l.motifs.Set(1, 1, "01");
  l.motifs.Set(2, 1, "Remplacement d'un salarié absent");
  l.aujourdhui = 21511;
  return l;
}

TEST(Lettre, TheFirstTemplateThatSuitsServes) {
  const struct {
    const char* contrat;
    const char* avenant;
    const char* modele;
  } cas[] = {
      {"", "", "cdi"},
      {"contrat 4=D", "", "cdd"},
      {"contrat 4=D; contrat 1=02", "", "particulier"},
      {"contrat 4=D; contrat 1=02; contrat 13=STG", "", "stage"},
      {"contrat 13=STG", "01", "avenant"},
  };
  for (const auto& c : cas) {
    EXPECT_STREQ(documents::modeleLettre(lettre(c.contrat, c.avenant)).fichier, c.modele);
  }
}

TEST(Lettre, FieldsHaveTheValuesOfTheContract) {
  const struct {
    const char* champ;
    const char* contrat;
    const char* avenant;
    const char* valeur;
  } cas[] = {
      {"employeur_nom", "", "", "Aide du Val"},
      {"employeur_nom", "contrat 1=02", "", "Rose MARTIN"},
      {"employeur_adresse", "", "", "1 quai Nord, 35300 Fougères"},
      {"employeur_adresse_lignes", "contrat 1=02", "", "12 bis rue des Lilas\n35300 Fougères"},
      {"employeur_numero", "contrat 1=02", "", "Z123456"},
      {"lieu_nom", "", "", "Siège"},
      {"salarie_civilite", "", "", "Madame"},
      {"salarie_secu", "", "", "2 71 03 35 123 456 42"},
      {"contrat_numero", "", "", "002"},
      {"contrat_nature", "contrat 13=CDI", "", "Contrat normal"},
      {"contrat_nature", "contrat 13=CUI", "", "CUI"},
      {"contrat_fin", "contrat 8=@31/03/2026", "", "31/03/2026"},
      {"contrat_fin", "contrat 8=@31/03/2026; contrat 60=@30/06/2026", "", "30/06/2026"},
      {"contrat_essai", "", "", "Le contrat ne comporte pas de période d'essai."},
      {"contrat_essai", "contrat 11=60; contrat 12=1", "",
       "Le contrat débute par une période d'essai de 60 jours, renouvelable une fois."},
      {"recours_motif", "contrat 113=01", "", "Remplacement d'un salarié absent"},
      {"recours_remplaces", "", "", "néant"},
      {"paiement_mode", "", "", "virement bancaire"},
      {"emploi_duree", "", "", "151,67 heures par mois"},
      {"emploi_duree", "", "01", "20 heures par semaine"},
      {"avant_duree", "", "01", "151,67 heures par mois"},
      {"emploi_taux", "", "", "12,02 €"},
      {"emploi_taux", "", "01", "12,345 €"},
      {"emploi_taux", "contrat 23=0", "", ""},
      {"emploi_coefficient", "", "01", "280,5"},
      {"avenant_effet", "", "01", "01/10/2026"},
      // An amendment that the contract does not have.
      {"emploi_duree", "", "07", ""},
      {"avant_duree", "", "07", ""},
      {"date_du_jour", "", "", "22/11/2026"},
  };
  for (const auto& c : cas) {
    const DossierLettre l = lettre(c.contrat, c.avenant);
    EXPECT_EQ(documents::fusionner({c.champ}, l).valeurs.at(c.champ), c.valeur) << c.champ;
  }
}

TEST(Lettre, WhatATemplateNamesInVainIsListedOnce) {
  const auto fusion = documents::fusionner(
      {"prime", "salarie_nom", "contrat_fin", "contrepartie", "prime", "contrat_fin", "x"},
      lettre());
  EXPECT_EQ(fusion.inconnus, (std::vector<std::string>{"prime", "x"}));
  // "contrepartie" may well be empty.
  EXPECT_EQ(fusion.vides, std::vector<std::string>{"contrat_fin"});
  EXPECT_EQ(fusion.valeurs.at("salarie_nom"), "DURAND");
}

}  // namespace
