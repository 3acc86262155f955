#pragma once
// A PostgreSQL server of the tests' own: in a scratch folder, on a Unix socket, started when a test
// first asks for it and gone with the test program, however that ends. Root starts it as another
// user, since the server refuses root. A machine without the server fails the tests that need it.

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "support/temp_dir.h"

namespace support {

class Serveur {
 public:
  static Serveur& Commun() {
    static Serveur serveur;
    return serveur;
  }

  Serveur() {
    std::filesystem::permissions(dossier_.Dossier(), std::filesystem::perms(0755));
    std::filesystem::create_directory(donnees_);
    if (const passwd* const autre = geteuid() == 0 ? getpwnam("nobody") : nullptr) {
      utilisateur_ = autre->pw_uid;
      groupe_ = autre->pw_gid;
      if (chown(donnees_.c_str(), utilisateur_, groupe_) != 0) throw std::runtime_error("chown");
    }
    if (!Attendre(Lancer({"initdb", "--pgdata=" + donnees_, "--username=essai", "--auth=trust",
                          "--no-sync", "--encoding=LATIN1", "--locale=C"}))) {
      throw std::runtime_error("initdb failed: is the package postgresql installed?\n" + Journal());
    }
    Demarrer();
  }
  ~Serveur() { Arreter(SIGQUIT); }
  Serveur(const Serveur&) = delete;
  Serveur& operator=(const Serveur&) = delete;

  // The address of a database of the server. With `utilisateur`, another one's.
  std::string Adresse(const std::string& base, const std::string& utilisateur = "essai") const {
    return "postgresql://" + utilisateur + "@/" + base + "?host=" + donnees_;
  }
  // That of a new database, empty.
  std::string NouvelleBase() {
    const std::string base = "base" + std::to_string(getpid()) + "_" + std::to_string(++bases_);
    Sql("postgres", "CREATE DATABASE " + base);
    return Adresse(base);
  }
  // What psql answers, without its frame.
  std::string Sql(const std::string& base, const std::string& sql) const {
    const std::string adresse = base.starts_with("postgresql:") ? base : Adresse(base);
    const std::string commande =
        Programme("psql") + " -XqAt -v ON_ERROR_STOP=1 -c \"" + sql + "\" '" + adresse + "' 2>&1";
    std::string reponse;
    FILE* const tube = popen(commande.c_str(), "r");
    for (int c = 0; tube != nullptr && (c = std::fgetc(tube)) != EOF;) {
      reponse += static_cast<char>(c);
    }
    if (tube == nullptr || pclose(tube) != 0) throw std::runtime_error(sql + ": " + reponse);
    if (!reponse.empty()) reponse.pop_back();
    return reponse;
  }

  void Demarrer() {
    serveur_ = Lancer({"postgres", "-D", donnees_, "-k", donnees_, "-c", "listen_addresses=", "-c",
                       "fsync=off", "-c", "max_connections=60"});
    for (int essai = 0; essai < 300; ++essai) {
      try {
        Sql("postgres", "SELECT 1");
        return;
      } catch (const std::runtime_error&) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
      }
    }
    throw std::runtime_error("the server does not start\n" + Journal());
  }
  // SIGQUIT is as sudden as a power cut.
  void Arreter(int signal = SIGQUIT) {
    if (serveur_ <= 0 || proprietaire_ != getpid()) return;
    kill(serveur_, signal);
    Attendre(serveur_);
    serveur_ = 0;
  }
  // Ends every connection but its own, as a restart of a router does.
  void CouperTout() const {
    Sql("postgres",
        "SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
        "WHERE usename IS NOT NULL AND pid <> pg_backend_pid()");
  }

 private:
  static std::string Programme(const std::string& nom) {
    return std::string(POSTGRES_PROGRAMMES) + "/" + nom;
  }
  std::string Journal() const {
    std::ifstream journal(journal_);
    return {std::istreambuf_iterator<char>(journal), {}};
  }
  static bool Attendre(pid_t enfant) {
    int fin = -1;
    waitpid(enfant, &fin, 0);
    return fin == 0;
  }
  // Ends with this program, even when that is killed.
  pid_t Lancer(const std::vector<std::string>& commande) const {
    const pid_t enfant = fork();
    if (enfant != 0) return enfant;
    const int sortie = open(journal_.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    dup2(sortie, STDOUT_FILENO);
    dup2(sortie, STDERR_FILENO);
    if (groupe_ != 0 && (setgroups(0, nullptr) != 0 || setgid(groupe_) != 0)) _exit(1);
    if (utilisateur_ != 0 && setuid(utilisateur_) != 0) _exit(1);
    if (chdir(donnees_.c_str()) != 0) _exit(1);
    prctl(PR_SET_PDEATHSIG, SIGQUIT);
    std::vector<char*> arguments;
    for (const std::string& mot : commande) arguments.push_back(const_cast<char*>(mot.c_str()));
    arguments.push_back(nullptr);
    execv(Programme(commande.front()).c_str(), arguments.data());
    _exit(127);
  }

  TempDir dossier_;
  std::string donnees_ = dossier_.Chemin("d");
  std::string journal_ = dossier_.Chemin("journal");
  uid_t utilisateur_ = 0;
  gid_t groupe_ = 0;
  pid_t serveur_ = 0;
  pid_t proprietaire_ = getpid();
  int bases_ = 0;
};

}  // namespace support
