// docs/donnees.md says what is true: its sessions are run, its table of files is the real one.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

#include "base/executer.h"
#include "data/layouts/fichiers.h"
#include "support/temp_dir.h"

namespace {

std::string document() {
  std::ifstream fichier(std::string(CONTRATS_SOURCE_DIR) + "/docs/donnees.md");
  return {std::istreambuf_iterator<char>(fichier), {}};
}

// The words of a command line as a shell parts them; quotes of both kinds, no escapes.
std::vector<std::string> mots(const std::string& ligne) {
  std::vector<std::string> mots;
  const std::regex mot(R"((?:'[^']*'|"[^"]*"|[^\s'"]+)+)");
  for (std::sregex_iterator i(ligne.begin(), ligne.end(), mot), fin; i != fin; ++i) {
    std::string texte;
    char guillemet = '\0';
    for (const char c : i->str()) {
      if (guillemet == '\0' && (c == '\'' || c == '"')) {
        guillemet = c;
      } else if (c == guillemet) {
        guillemet = '\0';
      } else {
        texte += c;
      }
    }
    mots.push_back(std::move(texte));
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
    std::ostream& sortie = redirection == ">" ? static_cast<std::ostream&>(fichier) : ecran;
    code_ = base::executer(args, entree, sortie, ecran);
    return ecran.str();
  }

 private:
  int code_ = 0;
};

// The expected text, in which three dots in one character stand for anything, and a moment and a
// user for any moment and user.
bool convient(const std::string& texte, const std::string& attendu) {
  const std::regex moment("\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\t[^\t]*\t");
  std::string motif = std::regex_replace(attendu, std::regex(R"([.*+?^$(){}|\[\]\\])"), "\\$&");
  motif = std::regex_replace(motif, std::regex("…"), "[^\n]*");
  motif = std::regex_replace(motif, moment, "MOMENT\t");
  return std::regex_match(std::regex_replace(texte, moment, "MOMENT\t"), std::regex(motif));
}

TEST(Documentation, SesSessionsDonnentCeQuElleMontre) {
  const support::TempDir dossier;
  const std::filesystem::path avant = std::filesystem::current_path();
  std::filesystem::current_path(dossier.Dossier());

  Terminal terminal;
  int commandes = 0;
  std::istringstream lignes(document());
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

TEST(Documentation, DecritTousLesFichiers) {
  const std::string texte = document();
  for (const auto& fichier : data::FichiersConnus) {
    const std::string rangee = "| `" + std::string(fichier.nom) + (fichier.prefixe ? "…" : "") +
                               "` | " + std::string(fichier.contenu) + " |";
    EXPECT_NE(texte.find(rangee), std::string::npos) << rangee;
  }
}

}  // namespace
