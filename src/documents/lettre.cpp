#include "documents/lettre.h"

#include <algorithm>

#include "data/layouts/contrat.h"
#include "data/texte.h"

namespace documents {

namespace {

namespace C = data::Contrat;
using Dossier = DossierLettre;

}  // namespace

std::span<const ModeleLettre> modelesLettres() {
  static constexpr ModeleLettre Modeles[] = {
      {"avenant", "Avenant", [](const Dossier& d) { return !d.avenant.empty(); }},
      {"stage", "Convention de stage",
       [](const Dossier& d) { return d.contrat.Vue(C::Nature) == C::NatureStage; }},
      {"particulier", "Contrat d'un particulier employeur",
       [](const Dossier& d) { return d.Particuliers(); }},
      {"cdd", "Contrat à durée déterminée",
       [](const Dossier& d) { return d.contrat.Vue(C::Type) == "D"; }},
      {"cdi", "Contrat à durée indéterminée", [](const Dossier&) { return true; }},
  };
  return Modeles;
}

const ModeleLettre& modeleLettre(const Dossier& d) {
  const auto modeles = modelesLettres();
  return *std::find_if(modeles.begin(), modeles.end(),
                       [&](const ModeleLettre& m) { return m.convient(d); });
}

const ChampLettre* champLettre(std::string_view nom) {
  for (const ThemeLettre& theme : champsLettres()) {
    for (const ChampLettre& champ : theme.champs) {
      if (champ.nom == nom) return &champ;
    }
  }
  return nullptr;
}

Fusion fusionner(const std::vector<std::string>& noms, const Dossier& d) {
  Fusion fusion;
  for (const std::string& nom : noms) {
    if (fusion.valeurs.contains(nom) || std::ranges::count(fusion.inconnus, nom) > 0) continue;
    const ChampLettre* const champ = champLettre(nom);
    if (champ == nullptr) {
      fusion.inconnus.push_back(nom);
      continue;
    }
    std::string valeur = champ->valeur(d);
    if (data::sansBlancs(valeur).empty() && !champ->facultatif) fusion.vides.push_back(nom);
    fusion.valeurs.emplace(nom, std::move(valeur));
  }
  return fusion;
}

}  // namespace documents
