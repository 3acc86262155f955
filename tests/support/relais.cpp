#include "support/relais.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <stdexcept>

namespace support {

namespace {

using Horloge = std::chrono::steady_clock;

sockaddr_un adresse(const std::string& dossier) {
  sockaddr_un lieu{};
  lieu.sun_family = AF_UNIX;
  const std::string chemin = dossier + "/.s.PGSQL.5432";
  if (chemin.size() >= sizeof lieu.sun_path) throw std::runtime_error("path too long");
  chemin.copy(lieu.sun_path, chemin.size());
  return lieu;
}

int prise() {
  return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

// One way of one connection: what is read now is written after the delay, in order. `perdre`, if
// any, asks for the next of it to be lost, with the connection.
void porter(int de, int vers, std::chrono::microseconds delai, std::atomic<bool>* perdre) {
  struct Envoi {
    Horloge::time_point heure;
    std::string octets;
  };
  std::mutex verrou;
  std::condition_variable signal;
  std::deque<Envoi> envois;
  std::thread lecture([&] {
    char tampon[65536];
    for (ssize_t lus = 1; lus > 0;) {
      lus = read(de, tampon, sizeof tampon);
      if (perdre != nullptr && perdre->exchange(false)) lus = 0;
      const std::lock_guard<std::mutex> garde(verrou);
      envois.push_back({Horloge::now() + delai,
                        std::string(tampon, lus > 0 ? static_cast<std::size_t>(lus) : 0)});
      signal.notify_one();
    }
  });
  for (bool ouvert = true; ouvert;) {
    Envoi envoi;
    {
      std::unique_lock<std::mutex> garde(verrou);
      signal.wait(garde, [&] { return !envois.empty(); });
      envoi = std::move(envois.front());
      envois.pop_front();
    }
    // The system wakes a sleeper late, by a part of what is to be measured.
    while (Horloge::now() < envoi.heure) std::this_thread::yield();
    std::size_t ecrits = 0;
    while (ecrits < envoi.octets.size()) {
      const ssize_t n = write(vers, envoi.octets.data() + ecrits, envoi.octets.size() - ecrits);
      if (n <= 0) break;
      ecrits += static_cast<std::size_t>(n);
    }
    ouvert = !envoi.octets.empty() && ecrits == envoi.octets.size();
  }
  for (const int bout : {de, vers}) shutdown(bout, SHUT_RDWR);
  lecture.join();
}

}  // namespace

Relais::Relais(const std::string& ici, const std::string& la, std::chrono::microseconds delai)
    : la_(la), moitie_(delai / 2), ecoute_(prise()) {
  const sockaddr_un lieu = adresse(ici);
  if (bind(ecoute_, reinterpret_cast<const sockaddr*>(&lieu), sizeof lieu) != 0 ||
      listen(ecoute_, 16) != 0) {
    throw std::runtime_error("the relay cannot listen");
  }
  accueil_ = std::thread([this] { Accueillir(); });
}

Relais::~Relais() {
  fini_ = true;
  accueil_.join();
  for (const int p : prises_) shutdown(p, SHUT_RDWR);
  for (std::thread& fil : fils_) fil.join();
  for (const int p : prises_) close(p);
  close(ecoute_);
}

void Relais::PerdreLaReponse(bool pourDeBon) {
  perdre_ = true;
  ferme_ = pourDeBon;
}

void Relais::Accueillir() {
  while (!fini_) {
    pollfd attente{ecoute_, POLLIN, 0};
    if (poll(&attente, 1, 50) <= 0) continue;
    const int client = accept(ecoute_, nullptr, nullptr);
    if (ferme_) {
      close(client);
      continue;
    }
    const int serveur = prise();
    const sockaddr_un lieu = adresse(la_);
    prises_.insert(prises_.end(), {client, serveur});
    if (connect(serveur, reinterpret_cast<const sockaddr*>(&lieu), sizeof lieu) != 0) {
      shutdown(client, SHUT_RDWR);
      continue;
    }
    fils_.emplace_back([=, this] { porter(client, serveur, moitie_, nullptr); });
    fils_.emplace_back([=, this] { porter(serveur, client, moitie_, &perdre_); });
  }
}

}  // namespace support
