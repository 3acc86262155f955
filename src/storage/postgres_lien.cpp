#include "storage/postgres_lien.h"

#include <libpq-fe.h>
#include <poll.h>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <utility>

#include "storage/adresse.h"

namespace storage {

namespace {

constexpr int kBinaire = 1;
constexpr const char* kBorne = "|";
constexpr int kAttenteConnexionMs = 10000;
// Orders after which statements are planned anew, and how much later each time.
constexpr long kPremierPlan = 100;
constexpr long kPasPlan = 4;
constexpr std::uint32_t kTypeOctets = 17;
constexpr std::uint32_t kTypeEntier = 20;
// Of the first server whose statements are all that is asked of one here.
constexpr int kVersionMinimale = 110000;

// A line that died without a word is noticed within half a minute. Then what the address says;
// then what must not be said otherwise.
constexpr const char* kReglages[][2] = {{"keepalives_idle", "15"},
                                        {"keepalives_interval", "5"},
                                        {"keepalives_count", "3"},
                                        {"tcp_user_timeout", "30000"},
                                        {"dbname", nullptr},
                                        {"client_encoding", "UTF8"},
                                        {"fallback_application_name", "contrats"}};

template <typename Entier>
std::string grosBoutiste(Entier nombre) {
  std::string octets(sizeof nombre, '\0');
  for (auto octet = octets.rbegin(); octet != octets.rend(); ++octet) {
    *octet = static_cast<char>(nombre & 0xFF);
    nombre >>= 8;
  }
  return octets;
}

std::string mot32(std::size_t nombre) {
  return grosBoutiste(static_cast<std::uint32_t>(nombre));
}

std::string enteteTableau(std::uint32_t type, std::size_t nombre) {
  std::string octets = mot32(nombre == 0 ? 0 : 1) + mot32(0) + mot32(type);
  if (nombre > 0) octets += mot32(nombre) + mot32(1);
  return octets;
}

void taire(void* /*rien*/, const char* /*message*/) {}

int delaiConnexion(PGconn* connexion) {
  const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(PQconninfo(connexion),
                                                                             PQconninfoFree);
  for (const PQconninfoOption* o = options.get(); o != nullptr && o->keyword != nullptr; ++o) {
    if (std::string_view(o->keyword) != "connect_timeout" || o->val == nullptr) continue;
    const int secondes = std::atoi(o->val);
    if (secondes > 0) return secondes * 1000;
  }
  return kAttenteConnexionMs;
}

// False when the connection was refused, or not made in time.
bool attendreConnexion(PGconn* connexion) {
  using Horloge = std::chrono::steady_clock;
  const auto limite = Horloge::now() + std::chrono::milliseconds(delaiConnexion(connexion));
  for (auto etat = PGRES_POLLING_WRITING; etat != PGRES_POLLING_OK;
       etat = PQconnectPoll(connexion)) {
    if (etat == PGRES_POLLING_FAILED || PQstatus(connexion) == CONNECTION_BAD) return false;
    const auto reste =
        std::chrono::duration_cast<std::chrono::milliseconds>(limite - Horloge::now()).count();
    pollfd attente{PQsocket(connexion),
                   static_cast<short>(etat == PGRES_POLLING_READING ? POLLIN : POLLOUT), 0};
    if (reste <= 0 || poll(&attente, 1, static_cast<int>(reste)) == 0) return false;
  }
  return true;
}

}  // namespace

Parametres& Parametres::Garder(std::string octets) {
  gardes_.push_back(std::move(octets));
  valeurs_.emplace_back(gardes_.back());
  return *this;
}

Parametres& Parametres::Texte(std::string_view texte) {
  valeurs_.push_back(texte);
  return *this;
}

Parametres& Parametres::Nombre(std::int64_t nombre) {
  return Garder(grosBoutiste(nombre));
}

Parametres& Parametres::Textes(const std::vector<std::string_view>& textes) {
  std::string octets = enteteTableau(kTypeOctets, textes.size());
  for (const std::string_view texte : textes) octets.append(mot32(texte.size())).append(texte);
  return Garder(std::move(octets));
}

Parametres& Parametres::Nombres(const std::vector<std::int64_t>& nombres) {
  std::string octets = enteteTableau(kTypeEntier, nombres.size());
  for (const std::int64_t n : nombres) octets.append(mot32(sizeof n)).append(grosBoutiste(n));
  return Garder(std::move(octets));
}

Reponse::Reponse(pg_result* resultat) : resultat_(resultat) {}

void Reponse::Liberer::operator()(pg_result* resultat) const {
  PQclear(resultat);
}

int Reponse::Lignes() const {
  return PQntuples(resultat_.get());
}

std::string_view Reponse::Texte(int ligne, int colonne) const {
  return {PQgetvalue(resultat_.get(), ligne, colonne),
          static_cast<std::size_t>(PQgetlength(resultat_.get(), ligne, colonne))};
}

std::int64_t Reponse::Nombre(int ligne, int colonne) const {
  std::uint64_t nombre = 0;
  for (const char c : Texte(ligne, colonne)) nombre = nombre << 8 | static_cast<unsigned char>(c);
  return static_cast<std::int64_t>(nombre);
}

bool Reponse::Vrai(int ligne, int colonne) const {
  return Nombre(ligne, colonne) != 0;
}

long Reponse::Touchees() const {
  return std::atol(PQcmdTuples(resultat_.get()));
}

bool Reponse::Faite() const {
  const ExecStatusType etat = PQresultStatus(resultat_.get());
  return etat == PGRES_TUPLES_OK || etat == PGRES_COMMAND_OK;
}

bool Reponse::FinDeVoyage() const {
  return PQresultStatus(resultat_.get()) == PGRES_PIPELINE_SYNC;
}

PanneServeur Reponse::Panne(const std::string& adresse, const Acte& acte) const {
  const char* const etat = PQresultErrorField(resultat_.get(), PG_DIAG_SQLSTATE);
  const char* const message = PQresultErrorField(resultat_.get(), PG_DIAG_MESSAGE_PRIMARY);
  return erreurServeur(etat == nullptr ? "" : etat, message == nullptr ? "" : message, adresse,
                       acte);
}

void Lien::Fermer::operator()(pg_conn* connexion) const {
  PQfinish(connexion);
}

Lien::Lien(std::string base, int attenteMs, const Acte& acte)
    : base_(std::move(base)), adresse_(sansMotDePasse(base_)), attenteMs_(attenteMs) {
  Connecter(acte);
}

Lien::~Lien() = default;

void Lien::Connecter(const Acte& acte) {
  std::vector<const char*> noms;
  std::vector<const char*> valeurs;
  for (const auto& [nom, valeur] : kReglages) {
    noms.push_back(nom);
    valeurs.push_back(valeur == nullptr ? base_.c_str() : valeur);
  }
  noms.push_back(nullptr);
  valeurs.push_back(nullptr);
  prepares_.clear();
  attendus_.clear();
  enPartance_ = false;
  envois_ = 0;
  prochainPlan_ = kPremierPlan;
  connexion_.reset(PQconnectStartParams(noms.data(), valeurs.data(), 1));
  PGconn* const c = connexion_.get();
  if (c == nullptr) throw erreurConnexion("", adresse_, acte);
  // With the state in the text: libpq gives it no other way for a connection.
  PQsetErrorVerbosity(c, PQERRORS_VERBOSE);
  PQsetNoticeProcessor(c, taire, nullptr);
  if (PQstatus(c) == CONNECTION_BAD || !attendreConnexion(c)) {
    const std::string message = PQerrorMessage(c);
    connexion_.reset();
    throw erreurConnexion(message, adresse_, acte);
  }
  if (PQserverVersion(c) < kVersionMinimale) {
    throw erreur(data::NumeroErreur::VersionInconnue, adresse_, acte,
                 "ce serveur est d'une version trop ancienne. Il faut PostgreSQL 11 ou plus "
                 "récent : prévenez la personne qui gère le serveur.");
  }
  PQenterPipelineMode(c);
  Regler();
}

// What an engine does not know, it does without.
void Lien::Regler() {
  const Acte acte{"Ouverture de"};
  const std::string reglages[] = {
      "SET lock_timeout = " + std::to_string(attenteMs_),
      // A station that is switched off in the middle of a write does not keep the others waiting.
      "SET idle_in_transaction_session_timeout = 60000",
      // By their keys, always: a scan of a small table would stand in every other writer's way.
      "SET enable_seqscan = off",
      // It takes longer than any statement of ours.
      "SET jit = off",
  };
  const long avant = voyages_;
  for (const std::string& reglage : reglages) {
    try {
      Envoyer({"", reglage.c_str()}, {}, acte);
      Attendre();
    } catch (const PanneServeur& panne) {
      if (panne.Coupure()) throw;
    }
  }
  voyages_ = avant;
}

bool Lien::Vivant() {
  PGconn* const c = connexion_.get();
  if (c == nullptr || PQstatus(c) == CONNECTION_BAD) return false;
  // What a server sends unasked is a notice, or its farewell and the end of the line behind it.
  for (;;) {
    pollfd attente{PQsocket(c), POLLIN, 0};
    if (poll(&attente, 1, 0) <= 0) return true;
    if (PQconsumeInput(c) == 0 || PQstatus(c) == CONNECTION_BAD) return false;
    PQisBusy(c);
  }
}

bool Lien::Assurer(const Acte& acte) {
  if (Vivant()) return true;
  Connecter(acte);
  return false;
}

void Lien::Reconnecter(const Acte& acte) {
  Connecter(acte);
}

void Lien::Noter(const char* prepare, const Acte& acte) {
  enPartance_ = true;
  attendus_.push_back(
      {prepare, std::string(acte.nom), std::string(acte.fichier), std::string(acte.cle)});
}

void Lien::Couper() {
  Acte acte{"Accès à"};
  const Attendu premier = attendus_.empty() ? Attendu{} : attendus_.back();
  if (!attendus_.empty()) acte = {premier.acte, premier.fichier, premier.cle};
  connexion_.reset();
  attendus_.clear();
  throw erreurCoupure(adresse_, acte);
}

void Lien::Envoyer(const Ordre& ordre, const Parametres& parametres, const Acte& acte) {
  PGconn* const c = connexion_.get();
  if (c == nullptr) throw erreurCoupure(adresse_, acte);
  const bool nomme = *ordre.nom != '\0';
  if (nomme && ++envois_ == prochainPlan_) Replanifier(acte);
  const std::string nom = nomme ? ordre.nom + std::to_string(generation_) : std::string();
  if (nomme && !prepares_.contains(ordre.nom)) {
    Noter(ordre.nom, acte);
    if (PQsendPrepare(c, nom.c_str(), ordre.sql, 0, nullptr) == 0) Couper();
    prepares_.insert(ordre.nom);
  }
  std::vector<const char*> valeurs;
  std::vector<int> longueurs;
  for (const std::string_view valeur : parametres.Valeurs()) {
    valeurs.push_back(valeur.data() == nullptr ? "" : valeur.data());
    longueurs.push_back(static_cast<int>(valeur.size()));
  }
  const std::vector<int> formats(valeurs.size(), kBinaire);
  const int nombre = static_cast<int>(valeurs.size());
  Noter(nullptr, acte);
  const int envoye = nomme ? PQsendQueryPrepared(c, nom.c_str(), nombre, valeurs.data(),
                                                 longueurs.data(), formats.data(), kBinaire)
                           : PQsendQueryParams(c, ordre.sql, nombre, nullptr, valeurs.data(),
                                               longueurs.data(), formats.data(), kBinaire);
  if (envoye == 0) Couper();
}

// A plan that was good for the tables of a new base is not when they have grown under it.
void Lien::Replanifier(const Acte& acte) {
  prochainPlan_ *= kPasPlan;
  ++generation_;
  prepares_.clear();
  Noter("", acte);
  if (PQsendQueryParams(connexion_.get(), "DEALLOCATE ALL", 0, nullptr, nullptr, nullptr, nullptr,
                        kBinaire) == 0) {
    Couper();
  }
}

void Lien::Partir() {
  if (connexion_ != nullptr && PQflush(connexion_.get()) != 0) Couper();
}

void Lien::Borner(const Acte& acte) {
  PGconn* const c = connexion_.get();
  if (c == nullptr || PQpipelineSync(c) == 0) Couper();
  Noter(kBorne, acte);
}

// The answer to the first of what is waited for, which stays there.
Reponse Lien::Recevoir() {
  PGconn* const c = connexion_.get();
  Reponse reponse(PQgetResult(c));
  const bool borne = attendus_.front().prepare == kBorne;
  if (PQstatus(c) == CONNECTION_BAD || reponse.FinDeVoyage() != borne) Couper();
  if (!borne) PQclear(PQgetResult(c));  // the end of this order's answer, nothing
  return reponse;
}

std::vector<Reponse> Lien::Attendre() {
  std::vector<Reponse> reponses;
  if (attendus_.empty()) return reponses;
  if (std::exchange(enPartance_, false)) {
    ++voyages_;
    const Attendu& dernier = attendus_.back();
    if (dernier.prepare != kBorne) Borner({dernier.acte, dernier.fichier, dernier.cle});
    enPartance_ = false;
  }
  std::optional<PanneServeur> panne;
  for (bool encore = true; encore && !attendus_.empty(); attendus_.pop_front()) {
    Reponse reponse = Recevoir();
    const Attendu& attendu = attendus_.front();
    if (attendu.prepare == kBorne) {
      encore = panne.has_value();
      continue;
    }
    const bool fait = reponse.Faite();
    if (!fait && attendu.prepare != nullptr) prepares_.erase(attendu.prepare);
    if (!fait && !panne) {
      panne = reponse.Panne(adresse_, {attendu.acte, attendu.fichier, attendu.cle});
    }
    if (attendu.prepare == nullptr) reponses.push_back(std::move(reponse));
  }
  if (panne) throw *panne;
  return reponses;
}

}  // namespace storage
