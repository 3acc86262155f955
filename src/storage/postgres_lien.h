#pragma once
// libpq's connection as an object: orders go out one behind the other, and one wait, one trip over
// the line, brings the answers to all of them. For the store's own sources; libpq is seen in
// postgres_lien.cpp alone.

#include <cstdint>
#include <deque>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "storage/postgres_erreur.h"

struct pg_conn;
struct pg_result;

namespace storage {

// A statement. With a name it is prepared once for each connection.
struct Ordre {
  const char* nom;
  const char* sql;
};

// The parameters of an order, in their order. Texts are not copied: they live until it is sent.
// Every text stands on the server as its bytes, so that neither a locale nor an encoding counts.
class Parametres {
 public:
  Parametres& Texte(std::string_view texte);
  Parametres& Nombre(std::int64_t nombre);
  Parametres& Textes(const std::vector<std::string_view>& textes);
  Parametres& Nombres(const std::vector<std::int64_t>& nombres);

  const std::vector<std::string_view>& Valeurs() const { return valeurs_; }

 private:
  Parametres& Garder(std::string octets);

  std::vector<std::string_view> valeurs_;
  std::deque<std::string> gardes_;
};

class Reponse {
 public:
  explicit Reponse(pg_result* resultat);
  int Lignes() const;
  // Rows and columns count from 0. Views live as long as the answer does.
  std::string_view Texte(int ligne, int colonne) const;
  std::int64_t Nombre(int ligne, int colonne) const;
  bool Vrai(int ligne, int colonne) const;
  // Rows that a write touched.
  long Touchees() const;
  // Whether the order was done; what libpq calls the end of a trip is told apart.
  bool Faite() const;
  bool FinDeVoyage() const;
  PanneServeur Panne(const std::string& adresse, const Acte& acte) const;

 private:
  struct Liberer {
    void operator()(pg_result* resultat) const;
  };
  std::unique_ptr<pg_result, Liberer> resultat_;
};

class Lien {
 public:
  // Connects. StoreError when that fails. A write waits for another station `attenteMs` at most.
  Lien(std::string base, int attenteMs, const Acte& acte);
  ~Lien();
  Lien(const Lien&) = delete;
  Lien& operator=(const Lien&) = delete;

  // The address to show: it holds no password.
  const std::string& Adresse() const { return adresse_; }
  // Connects anew when the server has closed the line meanwhile: false then, and what was under way
  // is no more.
  bool Assurer(const Acte& acte);
  void Reconnecter(const Acte& acte);

  void Envoyer(const Ordre& ordre, const Parametres& parametres, const Acte& acte);
  // What follows is done whether what precedes it is or not, and is waited for by itself. It goes
  // along on the same trip.
  void Borner(const Acte& acte);
  // The answers to all that was sent since the last wait, in order, up to the next border. The
  // first failure of one is a PanneServeur, after which the rest of them was not done; what follows
  // a border then comes back and is dropped.
  std::vector<Reponse> Attendre();
  // Sends what was put on its way, without waiting for an answer.
  void Partir();
  std::size_t Attendus() const { return attendus_.size(); }

  // Trips over the line since the beginning, those of connecting aside.
  long Voyages() const { return voyages_; }

 private:
  struct Attendu {
    const char* prepare;  // null for an order; else what was prepared, "" when all was let go of,
                          // kBorne
    std::string acte;
    std::string fichier;
    std::string cle;
  };
  struct Fermer {
    void operator()(pg_conn* connexion) const;
  };

  void Connecter(const Acte& acte);
  void Regler();
  bool Vivant();
  void Replanifier(const Acte& acte);
  void Noter(const char* prepare, const Acte& acte);
  Reponse Recevoir();
  [[noreturn]] void Couper();

  std::string base_;
  std::string adresse_;
  int attenteMs_;
  std::unique_ptr<pg_conn, Fermer> connexion_;
  std::deque<Attendu> attendus_;
  std::set<std::string_view> prepares_;
  long voyages_ = 0;
  bool enPartance_ = false;  // something was sent since the last wait
  long envois_ = 0;          // over this connection
  long prochainPlan_ = 0;
  int generation_ = 0;  // of the statements that are prepared
};

}  // namespace storage
