#pragma once
// A PostgreSQL server of the tests' own: in a scratch folder, on a Unix socket, started when a test
// first asks for it and gone with the test program, however that ends. Root starts it as another
// user, since the server refuses root. A machine without the server fails the tests that need it.

#include <sys/types.h>
#include <unistd.h>

#include <csignal>
#include <set>
#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace support {

class Serveur {
 public:
  static Serveur& Commun();

  // For at most so many stations at once.
  explicit Serveur(int postes = 60);
  ~Serveur() { Arreter(SIGQUIT); }
  Serveur(const Serveur&) = delete;
  Serveur& operator=(const Serveur&) = delete;

  // The address of a database of the server, for its owner. The account "secret" has the password
  // "sesame"; every other one is let in without.
  std::string Adresse(const std::string& base) const;
  // That of a new database, empty.
  std::string NouvelleBase();
  // That of a copy of a base, which nobody has open; again as the base was, at every later call.
  std::string Copie(const std::string& adresse);
  // What psql answers, without its frame. `base` is a name or an address.
  std::string Sql(const std::string& base, const std::string& sql) const;

  void Demarrer();
  // SIGQUIT is as sudden as a power cut.
  void Arreter(int signal = SIGQUIT);
  // Ends every connection but its own, as a restart of a router does; all are gone on return.
  void CouperTout() const;

 private:
  pid_t Lancer(const std::vector<std::string>& commande) const;
  std::string Journal() const;

  TempDir dossier_;
  std::string donnees_ = dossier_.Chemin("d");
  std::string journal_ = dossier_.Chemin("journal");
  uid_t utilisateur_ = 0;
  gid_t groupe_ = 0;
  pid_t serveur_ = 0;
  pid_t proprietaire_ = getpid();
  int postes_;
  int bases_ = 0;
  std::set<std::string> copies_;
};

}  // namespace support
