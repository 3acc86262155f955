#include "pilote/scenario.h"

#include <algorithm>

#include "data/texte.h"
#include "pilote/commandes.h"

namespace pilote {

namespace {

bool blank(char c) {
  return c == ' ' || c == '\t';
}

bool digits(std::string_view texte) {
  return !texte.empty() && texte.find_first_not_of("0123456789") == std::string_view::npos;
}

// Cuts one line into words. Throws the Faute, without its line number.
class Decoupe {
 public:
  explicit Decoupe(std::string_view ligne) : ligne_(ligne) {}

  std::vector<Mot> Mots() {
    std::vector<Mot> mots;
    while (Avancer(!mots.empty())) mots.push_back(ligne_[i_] == '"' ? Cite() : Simple());
    return mots;
  }
  // The part of the line that was words.
  std::string Source() const {
    std::string_view source = ligne_.substr(0, i_);
    while (!source.empty() && blank(source.back())) source.remove_suffix(1);
    while (!source.empty() && blank(source.front())) source.remove_prefix(1);
    return std::string(source);
  }

 private:
  // To the next word; false at the end of the line or at a comment.
  bool Avancer(bool rangPermis) {
    while (i_ < ligne_.size() && blank(ligne_[i_])) ++i_;
    if (i_ == ligne_.size()) return false;
    if (ligne_[i_] != '#') return true;
    return rangPermis && digits(Jusquau(ligne_.find_first_of(" \t", i_)).substr(1));
  }
  std::string_view Jusquau(std::size_t fin) const { return ligne_.substr(i_, fin - i_); }
  int Colonne() const { return data::longueur(ligne_.substr(0, i_)) + 1; }

  Mot Simple() {
    Mot mot{{}, false, Colonne()};
    mot.texte = Jusquau(std::min(ligne_.find_first_of(" \t", i_), ligne_.size()));
    if (const auto guillemet = mot.texte.find('"'); guillemet != std::string::npos) {
      i_ += guillemet;
      throw Faute{0, Colonne(), "Un guillemet ne peut pas se trouver au milieu d'un mot."};
    }
    i_ += mot.texte.size();
    return mot;
  }

  Mot Cite() {
    Mot mot{{}, true, Colonne()};
    while (++i_ < ligne_.size()) {
      if (ligne_[i_] != '"') {
        mot.texte += ligne_[i_];
      } else if (i_ + 1 < ligne_.size() && ligne_[i_ + 1] == '"') {
        mot.texte += ligne_[i_++];
      } else {
        if (++i_ < ligne_.size() && !blank(ligne_[i_])) {
          throw Faute{0, Colonne(), "Un blanc est attendu après le guillemet fermant."};
        }
        return mot;
      }
    }
    throw Faute{0, mot.colonne, "Le guillemet ouvert ici n'est pas fermé."};
  }

  std::string_view ligne_;
  std::size_t i_ = 0;
};

void verifierCaracteres(std::string_view ligne) {
  if (!data::utf8Valide(ligne)) throw Faute{0, 1, "La ligne n'est pas un texte UTF-8."};
  for (std::size_t i = 0; i < ligne.size(); ++i) {
    const auto c = static_cast<unsigned char>(ligne[i]);
    if ((c < 0x20 && c != '\t') || c == 0x7F) {
      throw Faute{0, data::longueur(ligne.substr(0, i)) + 1,
                  "Un caractère de contrôle ne peut pas figurer dans un scénario."};
    }
  }
}

// The command of one line; without definition for a line of blanks or comment.
Commande lireLigne(std::string_view ligne) {
  verifierCaracteres(ligne);
  Decoupe decoupe(ligne);
  Commande commande;
  commande.mots = decoupe.Mots();
  if (commande.mots.empty()) return commande;
  commande.source = decoupe.Source();
  const Mot nom = commande.mots.front();
  commande.mots.erase(commande.mots.begin());
  const Definition* const definition = nom.cite ? nullptr : trouverDefinition(nom.texte);
  if (definition == nullptr) {
    throw Faute{0, nom.colonne, "La commande « " + nom.texte + " » n'existe pas."};
  }
  commande.definition = definition;
  const auto nombre = static_cast<int>(commande.mots.size());
  if (nombre < definition->motsMin || nombre > definition->motsMax) {
    throw Faute{0, nom.colonne, "Cette commande s'écrit : " + std::string(definition->usage) + "."};
  }
  if (definition->verifier != nullptr) definition->verifier(commande);
  return commande;
}

}  // namespace

Scenario lireScenario(std::istream& entree) {
  Scenario scenario;
  std::string ligne;
  for (int numero = 1; std::getline(entree, ligne); ++numero) {
    if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
    if (numero == 1 && ligne.starts_with("\xEF\xBB\xBF")) ligne.erase(0, 3);
    try {
      Commande commande = lireLigne(ligne);
      if (commande.definition == nullptr) continue;
      commande.ligne = numero;
      scenario.commandes.push_back(std::move(commande));
    } catch (Faute& faute) {
      faute.ligne = numero;
      scenario.fautes.push_back(std::move(faute));
    }
  }
  if (entree.bad()) scenario.fautes.push_back({0, 0, "Le scénario ne peut pas être lu."});
  return scenario;
}

}  // namespace pilote
