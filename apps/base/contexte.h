#pragma once
// What every command of the data tool works with: its streams, its arguments, its exit code.

#include <functional>
#include <istream>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace base {

// Exit codes; scripts rely on them.
enum Code : int {
  Fait = 0,
  Refuse = 1,        // data refused, a record that does not exist, anomalies found
  MauvaisUsage = 2,  // command line or query that cannot be understood
  Panne = 3,         // a file that cannot be opened, read or written
};

// Ends a command; what() is the French text for the user, complete.
class Echec : public std::runtime_error {
 public:
  Echec(Code code, const std::string& message) : std::runtime_error(message), code_(code) {}
  Code CodeRetour() const { return code_; }

 private:
  Code code_;
};

// What a file asked for by a name under which nothing stands is told with, whichever the command.
std::string fichierSansArticle(std::string_view nom);

struct Contexte {
  std::istream& entree;
  std::ostream& sortie;
  std::ostream& erreurs;
  bool terminal = false;  // `erreurs` is a terminal: long works may show their progress

  // Writes to `sortie`; Echec when it takes no more (full disk, closed pipe).
  void Ecrit(std::string_view texte);
};

// Arguments by the names that the command's table gives them: "CLE", "--json".
class Arguments {
 public:
  void Ajoute(std::string_view nom, std::string valeur) {
    valeurs_[std::string(nom)].push_back(std::move(valeur));
  }

  bool Donne(std::string_view nom) const { return !Tous(nom).empty(); }
  // The first value, `defaut` when there is none.
  std::string Texte(std::string_view nom, std::string_view defaut = {}) const;
  const std::vector<std::string>& Tous(std::string_view nom) const;
  // A whole number from `min` on. Echec(MauvaisUsage) for any other text.
  long Entier(std::string_view nom, long min, long defaut) const;

 private:
  std::map<std::string, std::vector<std::string>, std::less<>> valeurs_;
};

}  // namespace base
