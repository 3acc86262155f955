#include "storage/signature_index.h"

#include <string>

#include "data/citem.h"
#include "data/dictionary.h"
#include "data/index.h"
#include "data/layouts/contrat.h"
#include "storage/controle.h"

namespace storage {

namespace {

// Every letter that a name may be written with, and numbers in several forms: what an index takes
// of them differently than before gives another signature.
std::string exemples() {
  std::string texte;
  for (char c = ' '; c <= '~'; ++c) texte += c;
  for (int point = 0xC0; point <= 0x17F; ++point) {
    texte += static_cast<char>(0xC0 | (point >> 6));
    texte += static_cast<char>(0x80 | (point & 0x3F));
  }
  for (const char* nombre : {"+12.50", ".50", "012", "-0"}) (texte += data::SepValeur) += nombre;
  return texte;
}

// A contract with each of the days that must not be missed, as far as its type has them.
std::string contratExemple(const char* type) {
  namespace C = data::Contrat;
  data::CItem contrat;
  contrat.Set(C::Type, type);
  contrat.Set(C::DateDebut, "21520");
  contrat.Set(C::PeriodeEssai, "30");
  contrat.Set(C::DateFinPresumee, "21600");
  contrat.Set(C::Modulation, "C");
  contrat.Set(C::SuiviPeriode, "202701");
  return contrat.Text();
}

std::int64_t calculerSignature() {
  Controle controle;
  const std::string contenu = exemples();
  for (const data::Index& index : data::IndexTenus) {
    controle.Texte(index.fichier);
    controle.Texte(data::champIndex(index));
    if (index.valeurs != nullptr) {
      for (const char* type : {"D", "I"}) {
        for (const auto& valeur : index.valeurs(contratExemple(type))) controle.Texte(valeur);
      }
      continue;
    }
    data::CItem exemple;
    exemple.Set(
        index.nom.empty() ? index.attribut : data::findDefinition(index.fichier, index.nom)->a,
        contenu);
    for (const auto& entree : data::entreesDe(index.fichier, "00001001", exemple.Text())) {
      controle.Texte(entree.valeur);
    }
  }
  const std::int64_t signature = controle.Valeur();
  return signature == 0 ? 1 : signature;
}

}  // namespace

std::int64_t signatureIndex() {
  static const std::int64_t signature = calculerSignature();
  return signature;
}

}  // namespace storage
