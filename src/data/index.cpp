#include "data/index.h"

#include <algorithm>
#include <iterator>

#include "data/citem.h"
#include "data/dictionary.h"
#include "data/select.h"

namespace data {

namespace {

void ajouterValeur(std::vector<EntreeIndex>& entrees, const Index& index, std::string_view valeur) {
  if (valeur.empty()) return;
  std::string cherchee = formeCherchee(valeur);
  if (cherchee != valeur) entrees.push_back({&index, std::move(cherchee)});
  entrees.push_back({&index, std::string(valeur)});
}

void ajouterValeurs(std::vector<EntreeIndex>& entrees, const Index& index,
                    std::string_view contenu) {
  constexpr char kSeparateurs[] = {SepValeur, SepSousValeur};
  while (!contenu.empty()) {
    const auto fin = contenu.find_first_of(std::string_view(kSeparateurs, sizeof kSeparateurs));
    ajouterValeur(entrees, index, contenu.substr(0, fin));
    contenu.remove_prefix(fin == std::string_view::npos ? contenu.size() : fin + 1);
  }
}

std::string_view attribut(std::string_view texte, int numero) {
  if (numero == 0) return {};
  AttributeReader lecteur({numero});
  lecteur.open(texte);
  return lecteur[0];
}

}  // namespace

int rangIndex(const Index& index) {
  return static_cast<int>(&index - IndexTenus);
}

std::string champIndex(const Index& index) {
  return index.nom.empty() ? std::to_string(index.attribut) : std::string(index.nom);
}

const Index* indexDe(std::string_view fichier, const Field& champ) {
  if (champ.isKey()) return nullptr;
  for (const Index& index : IndexTenus) {
    if (index.fichier != fichier || index.valeurs != nullptr) continue;
    const bool meme = champ.definition == nullptr ? index.attribut == champ.attribute
                                                  : index.nom == champ.definition->nom;
    if (meme) return &index;
  }
  return nullptr;
}

bool aDesIndex(std::string_view fichier) {
  return std::any_of(std::begin(IndexTenus), std::end(IndexTenus),
                     [&](const Index& index) { return index.fichier == fichier; });
}

std::set<std::string_view> fichiersIndexes() {
  std::set<std::string_view> fichiers;
  for (const Index& index : IndexTenus) fichiers.insert(index.fichier);
  return fichiers;
}

std::string formeCherchee(std::string_view texte) {
  const Number nombre = readNumber(texte);
  if (!nombre.valid || nombre.leadingZero) return std::string(texte);
  std::string forme = nombre.negative ? "-" : "";
  forme += nombre.whole;
  if (!nombre.decimals.empty()) (forme += '.') += nombre.decimals;
  return forme.empty() ? "0" : forme;
}

std::vector<EntreeIndex> entreesDe(std::string_view fichier, std::string_view cle,
                                   std::string_view texte) {
  std::vector<EntreeIndex> entrees;
  for (const Index& index : IndexTenus) {
    if (index.fichier != fichier) continue;
    if (index.valeurs != nullptr) {
      for (std::string& valeur : index.valeurs(texte)) {
        entrees.push_back({&index, std::move(valeur)});
      }
      continue;
    }
    if (index.nom.empty()) {
      ajouterValeurs(entrees, index, attribut(texte, index.attribut));
      continue;
    }
    const Definition& definition = *findDefinition(fichier, index.nom);
    DictionaryReader lecteur;
    const std::string_view contenu =
        lecteur.read(definition, cle, attribut(texte, definition.a), attribut(texte, definition.b));
    std::string plie;
    ajouterValeurs(entrees, index, compared(definition, contenu, plie));
  }
  std::sort(entrees.begin(), entrees.end());
  entrees.erase(std::unique(entrees.begin(), entrees.end()), entrees.end());
  return entrees;
}

ChangementIndex changementIndex(std::string_view fichier, std::string_view cle,
                                const std::optional<std::string_view>& avant,
                                const std::optional<std::string_view>& apres) {
  ChangementIndex changement;
  if (!aDesIndex(fichier)) return changement;
  std::vector<EntreeIndex> anciennes;
  std::vector<EntreeIndex> nouvelles;
  if (avant) anciennes = entreesDe(fichier, cle, *avant);
  if (apres) nouvelles = entreesDe(fichier, cle, *apres);
  std::set_difference(anciennes.begin(), anciennes.end(), nouvelles.begin(), nouvelles.end(),
                      std::back_inserter(changement.retraits));
  std::set_difference(nouvelles.begin(), nouvelles.end(), anciennes.begin(), anciennes.end(),
                      std::back_inserter(changement.ajouts));
  return changement;
}

}  // namespace data
