#pragma once
// What PostgresStorage holds: the connection, and the state of blocks, scans and roads. For
// storage/postgres*.cpp alone.

#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "data/index.h"
#include "storage/postgres.h"
#include "storage/postgres_lien.h"
#include "storage/postgres_route.h"

namespace storage {

// The places of the indexes that are kept of a file.
std::vector<std::int64_t> indicesDe(std::string_view fichier);

class PostgresStorage::Moteur {
 public:
  Moteur(const std::string& adresse, const data::Poste& poste, const PostgresOptions& options,
         bool lecture);
  ~Moteur();

  // Reads.
  bool Lire(const Acte& acte, std::string& texte);
  void Parcourir(const Acte& acte, const data::KeyRange& cles, const Visiteur& visiteur);
  std::optional<std::size_t> Compter(const Acte& acte, const data::Chemin& chemin,
                                     std::size_t plafond);
  bool ParcourirChemins(const Acte& acte, const std::vector<data::Chemin>& chemins,
                        const Visiteur& visiteur);
  void Annoncer(const std::vector<data::Annonce>& annonces);
  // Begins the transaction of the block to come, and gives it up.
  void Promettre();
  void Renoncer() noexcept;
  // What is fetched behind the end of the block under way.
  void NoterSuite(const std::vector<data::Annonce>& annonces);
  // The answers to the `nombre` orders that `envoyer` sends, in one trip: in the block under way,
  // or over a connection that is made anew when it was lost.
  std::vector<Reponse> Interroger(const Acte& acte, std::size_t nombre,
                                  const std::function<void()>& envoyer);
  // One state of the base for all reads of `travail`, however long they last.
  void EnUnEtat(const Acte& acte, const std::function<void()>& travail);

  // Writes.
  void Poser(const Acte& acte, std::string_view texte);
  bool Oter(const Acte& acte);
  // Sends `nombre` orders in the block under way, or in a transaction of their own; their answers
  // in that case, none in a block.
  std::vector<Reponse> Ecrire(const Acte& acte, std::size_t nombre,
                              const std::function<void()>& envoyer);
  void EnUnBloc(const std::function<void()>& travail);
  void EnvoyerEntrees(const Acte& acte, const std::vector<data::EntreeIndex>& entrees);

  // A question to the user, and the end of the road.
  void OublierRoute() noexcept;
  void FinirRoute() noexcept;

  Lien& LaLigne() { return lien_; }
  MemoireDeRoute& Route() { return route_; }
  void ExigerRepos() const;

 private:
  using Horloge = std::chrono::steady_clock;
  class Attente;
  // A part of what was announced that is not known yet.
  struct Demande {
    std::string_view fichier;
    std::vector<std::string_view> cles;     // either these
    const data::KeyRange* plage = nullptr;  // or that
    const data::Chemin* chemin = nullptr;   // or these
  };

  void ExigerBlocSain() const;
  void ExigerEcriture(const Acte& acte) const;
  // The block is lost; throws what it was first lost by.
  [[noreturn]] void Rompre(const PanneServeur& panne);
  void Annuler() noexcept;
  void Noter(const Acte& acte, std::optional<std::int64_t> controle);
  std::vector<Reponse> Exiger(std::vector<Reponse> reponses, std::size_t nombre) const;
  std::shared_ptr<const Rangs> Relire(const Reponse& reponse, std::string_view fichier,
                                      int colonne) const;
  std::string_view TexteSain(const Reponse& reponse, int ligne, int colonne, const Acte& acte,
                             std::string_view cle) const;
  bool Servir(const Rangs& rangs, const data::KeyRange& cles, const Visiteur& visiteur);
  void Feuilleter(const Acte& acte, data::KeyRange cles, const Visiteur& visiteur);
  std::vector<Demande> Inconnues(const std::vector<data::Annonce>& annonces);
  void EnvoyerDemandes(const std::vector<Demande>& demandes);
  void RetenirDemandes(const std::vector<Demande>& demandes, const std::vector<Reponse>& reponses);
  bool Rappeler(std::string_view fichier, std::string_view cle);
  void OublierAnnonces() noexcept;
  void EnvoyerPoignee(const Acte& acte, const data::Chemin& chemin, std::size_t plafond);
  std::optional<std::size_t> RetenirPoignee(const Reponse& reponse, const data::Chemin& chemin,
                                            std::size_t plafond);
  void EnvoyerChemin(const Acte& acte, const data::Chemin& chemin);
  std::optional<std::size_t> CompterEtRetenir(const Acte& acte, const data::Chemin& chemin,
                                              std::size_t plafond);
  std::optional<Rangs> LireChemins(const Acte& acte, const std::vector<data::Chemin>& chemins);
  bool Tenter(const std::function<void()>& travail, bool& coupee);
  bool Finir(bool& coupee);
  void RetenirSuite();
  // After a connection that was lost with the end of a block on its way: whether it stands.
  bool Confirmer(const Acte& acte);
  bool ToutEcrit(const Acte& acte);

  Lien lien_;
  const data::Poste& poste_;
  PostgresOptions options_;
  bool lecture_;
  MemoireDeRoute route_;
  bool enBloc_ = false;
  bool enUnEtat_ = false;
  bool promis_ = false;  // the transaction of the block to come has begun, for reads so far
  // What was announced on this road, and forgotten over a question; with the block to come.
  std::vector<data::Annonce> annoncees_;
  bool oubliees_ = false;
  bool blocOublie_ = false;
  std::vector<data::Annonce> suite_;  // of the block under way
  std::vector<Demande> demandesSuite_;
  int parcours_ = 0;            // scans under way
  bool ecrit_ = false;          // by the block under way
  std::exception_ptr rupture_;  // the first order of the block that failed
  bool aReprendre_ = false;     // it failed because another station got in between
  bool coupure_ = false;        // or because the line was cut
  // What the block under way has written: the checksum of each record, none of one that went. A
  // block stands whole or not at all: some of its records tell.
  std::map<std::pair<std::string, std::string>, std::optional<std::int64_t>> ecrits_;
};

}  // namespace storage
