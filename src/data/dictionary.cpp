#include "data/dictionary.h"

#include "data/citem.h"
#include "data/layouts/fichiers.h"
#include "data/layouts/voisins.h"
#include "data/texte.h"

namespace data {

namespace {

using Source = Definition::Source;

constexpr Definition keySlice(std::string_view fichier, std::string_view nom, int position,
                              int longueur) {
  return {fichier, nom, Source::Tranche, 0, 0, position, longueur, {}};
}

using TpsDetailsInterv::LongueurActivite;
using TpsDetailsInterv::PosActivite;

constexpr Definition definitions[] = {
    keySlice(fichier::ABSENCESAIDANT, "TypeAbs", AbsencesAidant::PosType,
             AbsencesAidant::LongueurType),
    keySlice(fichier::ABSENCESAIDANT, "DebAbsAidant", AbsencesAidant::PosDebut, 0),
    {fichier::CIVILAIDANT, "NomPrenomAidant", Source::Capitales, CivilAidant::Nom,
     CivilAidant::Prenom},
    {fichier::CIVILAIDE, "NomPrenomAide", Source::Capitales, CivilAide::Nom, CivilAide::Prenom},
    {fichier::CIVILAIDE, "CodeAideElts", Source::SiExiste, 0, 0, 0, 0, fichier::ELTSPARTEMP},
    {fichier::CONTRATSPREV, "ConvColPrev", Source::Attribut, ContratsPrev::Convention},
    keySlice(fichier::TPSAIDANTINDISPO, "DateDebIndispo", 6, 5),
    keySlice(fichier::TPSDETAILSINTERV, "CodeAide", TpsDetailsInterv::PosAide, 5),
    keySlice(fichier::TPSDETAILSINTERV, "DateDebInterv", TpsDetailsInterv::PosDebut, 5),
    keySlice(fichier::TPSDETAILSINTERV, "CodeActInterv", PosActivite, LongueurActivite),
    keySlice(fichier::TPSDETAILSINTERV, "JourInterv", TpsDetailsInterv::PosJour, 1),
    keySlice(fichier::TPSDETAILSINTERV, "HeureInterv", TpsDetailsInterv::PosHeure, 4),
    {fichier::TPSDETAILSINTERV, "TypeActDetailInterv", Source::ParTranche, Activites::Genre, 0,
     PosActivite, LongueurActivite, fichier::ACTIVITES},
    keySlice(fichier::TPSEXCEPTIONS, "DateDebExcep", 6, 5),
};

// Keys are ASCII: positions are bytes.
std::string_view slice(std::string_view cle, const Definition& definition) {
  const auto before = static_cast<std::size_t>(definition.position - 1);
  if (cle.size() <= before) return {};
  cle.remove_prefix(before);
  if (definition.longueur == 0) return cle;
  return cle.substr(0, static_cast<std::size_t>(definition.longueur));
}

}  // namespace

const Definition* findDefinition(std::string_view fichier, std::string_view nom) {
  for (const Definition& definition : definitions) {
    if (definition.nom == nom && definition.fichier == fichier) return &definition;
  }
  return nullptr;
}

std::string_view compared(const Definition& definition, std::string_view content,
                          std::string& buffer) {
  if (definition.source != Source::Capitales) return content;
  buffer = plier(content);
  return buffer;
}

// Null when there is no such record. The same key may be asked of two files.
const std::string* DictionaryReader::record(std::string_view fichier, std::string_view cle) {
  if (cle.empty() || storage_ == nullptr) return nullptr;
  std::string name(fichier);
  (name += SepAttribut) += cle;
  const auto [place, fresh] = kept_.try_emplace(std::move(name));
  Kept& kept = place->second;
  if (fresh) kept.found = storage_->Get(fichier, cle, kept.text);
  return kept.found ? &kept.text : nullptr;
}

std::string_view DictionaryReader::read(const Definition& definition, std::string_view cle,
                                        std::string_view a, std::string_view b) {
  switch (definition.source) {
    case Source::Attribut:
      return a;
    case Source::Capitales:
      if (a.empty() && b.empty()) return {};
      buffer_.assign(a);
      (buffer_ += ' ') += b;
      buffer_ = majuscules(buffer_);
      return buffer_;
    case Source::Tranche:
      return slice(cle, definition);
    case Source::SiExiste:
      return record(definition.autre, cle) == nullptr ? std::string_view() : cle;
    case Source::ParTranche: {
      const std::string* other = record(definition.autre, slice(cle, definition));
      if (other == nullptr) return {};
      buffer_ = CItem(*other)(definition.a);
      return buffer_;
    }
  }
  return {};
}

}  // namespace data
