#pragma once
// A line to a server, on this machine: whoever connects to the relay's socket talks to the server
// behind it. It can be slow, each way taking half of its delay, and it can break.

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace support {

class Relais {
 public:
  // Listens in the folder `ici`, as a server does that is found there by its socket, and connects
  // to the one in `la`.
  Relais(const std::string& ici, const std::string& la, std::chrono::microseconds delai);
  ~Relais();
  // The next answer of the server is lost with its connection. With `pourDeBon` none is made anew.
  void PerdreLaReponse(bool pourDeBon = false);
  Relais(const Relais&) = delete;
  Relais& operator=(const Relais&) = delete;

 private:
  void Accueillir();

  std::string la_;
  std::chrono::microseconds moitie_;
  int ecoute_;
  std::atomic<bool> fini_ = false;
  std::atomic<bool> perdre_ = false;
  std::atomic<bool> ferme_ = false;
  std::vector<std::thread> fils_;
  std::vector<int> prises_;
  std::thread accueil_;
};

}  // namespace support
