// docs/donnees.md says what is true: its sessions are run, its table of files is the real one. The
// sessions of sessions.md go further, into every refusal.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/executer.h"
#include "data/layouts/fichiers.h"
#include "support/temp_dir.h"

namespace {

std::string document(const std::string& nom) {
  std::ifstream fichier(CONTRATS_SOURCE_DIR "/" + nom);
  return {std::istreambuf_iterator<char>(fichier), {}};
}

// The words of a command line as a shell parts them; quotes of both kinds, no escapes.
std::vector<std::string> mots(const std::string& ligne) {
  std::vector<std::string> mots(1);
  char guillemet = '\0';
  for (const char c : ligne) {
    if (guillemet == '\0' && (c == '\'' || c == '"')) {
      guillemet = c;
    } else if (c == guillemet) {
      guillemet = '\0';
    } else if (guillemet == '\0' && c == ' ') {
      mots.emplace_back();
    } else {
      mots.back() += c;
    }
  }
  return mots;
}

// One terminal: what a command prints and its messages come in one text.
class Terminal {
 public:
  std::string Tape(const std::string& ligne) {
    if (ligne == "echo $?") return std::to_string(code_) + '\n';
    std::vector<std::string> args = mots(ligne);
    EXPECT_EQ(args.front(), "contrat-base") << ligne;
    args.erase(args.begin());
    std::ifstream entree;
    std::ofstream fichier;
    const std::string redirection = args.size() > 2 ? args[args.size() - 2] : "";
    if (redirection == "<") entree.open(args.back());
    if (redirection == ">") fichier.open(args.back());
    if (redirection == "<" || redirection == ">") args.resize(args.size() - 2);
    std::ostringstream ecran;
    std::ostringstream erreurs;
    std::ostream& sortie = redirection == ">" ? static_cast<std::ostream&>(fichier) : ecran;
    code_ = base::executer(args, entree, sortie, erreurs);
    EXPECT_TRUE(code_ < 2 || ecran.str().empty()) << ligne;
    return ecran.str() + erreurs.str();
  }

 private:
  int code_ = 0;
};

// Three dots in one character stand for anything on their line.
constexpr std::string_view Points = "…";
// When and by whom the page has a record replaced; any other time and user will do.
constexpr std::string_view MomentMontre = "2026-11-22 09:14:31\tMARIE";

bool convient(std::string_view texte, std::string_view attendu) {
  for (; !attendu.empty(); attendu.remove_prefix(1), texte.remove_prefix(1)) {
    for (const std::string_view joker : {Points, MomentMontre}) {
      if (attendu.substr(0, joker.size()) != joker) continue;
      const std::string_view reste = attendu.substr(joker.size());
      const std::size_t fin = std::min(texte.find('\n'), texte.size());
      for (std::size_t n = 0; n <= fin; ++n) {
        if (convient(texte.substr(n), reste)) return true;
      }
      return false;
    }
    if (texte.empty() || texte.front() != attendu.front()) return false;
  }
  return texte.empty();
}

void jouer(const std::string& nom) {
  const support::TempDir dossier;
  const std::filesystem::path avant = std::filesystem::current_path();
  std::filesystem::current_path(dossier.Dossier());

  Terminal terminal;
  int commandes = 0;
  std::istringstream lignes(document(nom));
  std::string ligne;
  while (std::getline(lignes, ligne)) {
    const bool session = ligne == "```console";
    if (!session && ligne.rfind("```jsonl ", 0) != 0) continue;
    std::ofstream fichier;
    if (!session) fichier.open(ligne.substr(9));
    std::string commande;
    std::string attendu;
    for (bool fini = false; !fini;) {
      fini = !std::getline(lignes, ligne) || ligne == "```";
      if (!session && !fini) fichier << ligne << '\n';
      if (!session) continue;
      const bool tape = ligne.rfind("$ ", 0) == 0;
      if ((fini || tape) && !commande.empty()) {
        const std::string texte = terminal.Tape(commande);
        EXPECT_TRUE(convient(texte, attendu)) << "$ " << commande << '\n' << texte;
        ++commandes;
        attendu.clear();
      }
      if (tape) {
        commande = ligne.substr(2);
      } else {
        attendu += ligne + '\n';
      }
    }
  }
  std::filesystem::current_path(avant);
  EXPECT_GT(commandes, 20);
}

TEST(Documentation, SesSessionsDonnentCeQuElleMontre) {
  for (const char* const nom : {"docs/donnees.md", "tests/base/sessions.md"}) jouer(nom);
}

TEST(Documentation, DecritTousLesFichiers) {
  const std::string texte = document("docs/donnees.md");
  for (const auto& fichier : data::FichiersConnus) {
    const std::string rangee = "| `" + std::string(fichier.nom) + (fichier.prefixe ? "…" : "") +
                               "` | " + std::string(fichier.contenu) + " |";
    EXPECT_NE(texte.find(rangee), std::string::npos) << rangee;
  }
}

}  // namespace
