#pragma once
// A line with a delay, on this machine: whoever connects to the relay's socket talks to the server
// behind it, and each way takes half the delay. A trip there and back takes all of it.

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace bench {

class Relais {
 public:
  // Listens in the folder `ici`, as a server does that is found there by its socket, and connects
  // to the one in `la`.
  Relais(const std::string& ici, const std::string& la, std::chrono::microseconds delai);
  ~Relais();
  Relais(const Relais&) = delete;
  Relais& operator=(const Relais&) = delete;

 private:
  void Accueillir();

  std::string la_;
  std::chrono::microseconds moitie_;
  int ecoute_;
  std::atomic<bool> fini_ = false;
  std::vector<std::thread> fils_;
  std::vector<int> prises_;
  std::thread accueil_;
};

}  // namespace bench
