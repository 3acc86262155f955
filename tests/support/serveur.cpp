#include "support/serveur.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace support {

namespace {

std::string programme(const std::string& nom) {
  return std::string(POSTGRES_PROGRAMMES) + "/" + nom;
}

bool attendre(pid_t enfant) {
  int fin = -1;
  waitpid(enfant, &fin, 0);
  return fin == 0;
}

}  // namespace

Serveur& Serveur::Commun() {
  static Serveur serveur;
  return serveur;
}

Serveur::Serveur(int postes) : postes_(postes) {
  std::filesystem::permissions(dossier_.Dossier(), std::filesystem::perms(0755));
  std::filesystem::create_directory(donnees_);
  if (const passwd* const autre = geteuid() == 0 ? getpwnam("nobody") : nullptr) {
    utilisateur_ = autre->pw_uid;
    groupe_ = autre->pw_gid;
    if (chown(donnees_.c_str(), utilisateur_, groupe_) != 0) throw std::runtime_error("chown");
  }
  // Neither encoding nor locale of the databases may count.
  if (!attendre(Lancer({"initdb", "--pgdata=" + donnees_, "--username=essai", "--auth=trust",
                        "--no-sync", "--encoding=LATIN1", "--locale=C"}))) {
    throw std::runtime_error("initdb failed: is the package postgresql installed?\n" + Journal());
  }
  std::ofstream(donnees_ + "/pg_hba.conf")
      << "local all secret scram-sha-256\nlocal all all trust\n";
  Demarrer();
  Sql("postgres", "CREATE ROLE secret LOGIN PASSWORD 'sesame'");
}

std::string Serveur::Adresse(const std::string& base) const {
  return "postgresql://essai@/" + base + "?host=" + donnees_;
}

std::string Serveur::NouvelleBase() {
  const std::string base = "base" + std::to_string(getpid()) + "_" + std::to_string(++bases_);
  Sql("postgres", "CREATE DATABASE " + base);
  return Adresse(base);
}

// A database takes long to make, its few records do not take long to put back. The tables wait for
// whoever was killed while writing to them.
std::string Serveur::Copie(const std::string& adresse) {
  const std::size_t debut = adresse.find("@/") + 2;
  const std::string base = adresse.substr(debut, adresse.find('?') - debut);
  const std::string copie = base + "_copie";
  const bool nouvelle = copies_.insert(base).second;
  if (nouvelle) Sql("postgres", "CREATE DATABASE " + copie + " TEMPLATE " + base);
  std::string remettre = nouvelle ? "CREATE SCHEMA modele;" : "";
  for (const std::string table : {"etat", "article", "ancien", "entree"}) {
    const std::string modele = " modele." + table;
    remettre += nouvelle ? "CREATE TABLE" + modele + " AS TABLE contrats." + table + ";"
                         : "TRUNCATE contrats." + table + "; INSERT INTO contrats." + table +
                               " TABLE" + modele + ";";
  }
  Sql(copie, remettre);
  return Adresse(copie);
}

std::string Serveur::Sql(const std::string& base, const std::string& sql) const {
  const std::string adresse = base.starts_with("postgresql:") ? base : Adresse(base);
  const std::string commande =
      programme("psql") + " -XqAt -v ON_ERROR_STOP=1 -c \"" + sql + "\" '" + adresse + "' 2>&1";
  std::string reponse;
  FILE* const tube = popen(commande.c_str(), "r");
  for (int c = 0; tube != nullptr && (c = std::fgetc(tube)) != EOF;) {
    reponse += static_cast<char>(c);
  }
  if (tube == nullptr || pclose(tube) != 0) throw std::runtime_error(sql + ": " + reponse);
  if (!reponse.empty()) reponse.pop_back();
  return reponse;
}

void Serveur::Demarrer() {
  serveur_ = Lancer({"postgres", "-D", donnees_, "-k", donnees_, "-c", "listen_addresses=", "-c",
                     "fsync=off", "-c", "max_connections=" + std::to_string(postes_)});
  constexpr int kEssais = 600;
  for (int essai = 0; essai < kEssais; ++essai) {
    try {
      Sql("postgres", "SELECT 1");
      return;
    } catch (const std::runtime_error&) {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
  }
  throw std::runtime_error("the server does not start\n" + Journal());
}

void Serveur::Arreter(int signal) {
  if (serveur_ <= 0 || proprietaire_ != getpid()) return;
  kill(serveur_, signal);
  attendre(serveur_);
  serveur_ = 0;
}

void Serveur::CouperTout() const {
  // Told to end, a process takes its time on a busy machine; until then its line looks alive.
  Sql("postgres",
      "SELECT pg_terminate_backend(pid, 10000) FROM pg_stat_activity "
      "WHERE usename IS NOT NULL AND pid <> pg_backend_pid()");
}

// Ends with this program, even when that is killed.
pid_t Serveur::Lancer(const std::vector<std::string>& commande) const {
  const pid_t enfant = fork();
  if (enfant != 0) return enfant;
  const int sortie = open(journal_.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
  dup2(sortie, STDOUT_FILENO);
  dup2(sortie, STDERR_FILENO);
  if (groupe_ != 0 && (setgroups(0, nullptr) != 0 || setgid(groupe_) != 0)) _exit(1);
  if (utilisateur_ != 0 && setuid(utilisateur_) != 0) _exit(1);
  if (chdir(donnees_.c_str()) != 0) _exit(1);
  prctl(PR_SET_PDEATHSIG, SIGQUIT);
  std::vector<std::string> mots = commande;
  std::vector<char*> arguments;
  for (std::string& mot : mots) arguments.push_back(mot.data());
  arguments.push_back(nullptr);
  execv(programme(commande.front()).c_str(), arguments.data());
  _exit(127);
}

std::string Serveur::Journal() const {
  std::ifstream journal(journal_);
  return {std::istreambuf_iterator<char>(journal), {}};
}

}  // namespace support
