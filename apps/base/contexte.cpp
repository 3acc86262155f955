#include "base/contexte.h"

#include <charconv>

namespace base {

void Contexte::Ecrit(std::string_view texte) {
  sortie << texte;
  if (!sortie.good()) {
    throw Echec(Panne, "La sortie ne peut pas être écrite : disque plein ou tube fermé.");
  }
}

std::string fichierSansArticle(std::string_view nom) {
  return "Le fichier " + std::string(nom) +
         " n'a pas d'article ; « fichiers » donne la liste de ceux qui en ont.";
}

const std::vector<std::string>& Arguments::Tous(std::string_view nom) const {
  static const std::vector<std::string> Aucun;
  const auto place = valeurs_.find(nom);
  return place == valeurs_.end() ? Aucun : place->second;
}

std::string Arguments::Texte(std::string_view nom, std::string_view defaut) const {
  return Donne(nom) ? Tous(nom).front() : std::string(defaut);
}

long Arguments::Entier(std::string_view nom, long min, long defaut) const {
  if (!Donne(nom)) return defaut;
  const std::string& texte = Tous(nom).front();
  long nombre = 0;
  const char* const fin = texte.data() + texte.size();
  const auto lu = std::from_chars(texte.data(), fin, nombre);
  if (lu.ec != std::errc{} || lu.ptr != fin || nombre < min) {
    throw Echec(MauvaisUsage, std::string(nom) + " : « " + texte +
                                  " » n'est pas un nombre entier à partir de " +
                                  std::to_string(min) + '.');
  }
  return nombre;
}

}  // namespace base
