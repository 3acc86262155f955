#pragma once
// A process beside the test's own.

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace support {

// A child that runs `acte`, exits with 0 when it returns and with 1 when it throws.
inline pid_t Lancer(const std::function<void()>& acte) {
  const pid_t enfant = fork();
  if (enfant != 0) return enfant;
  try {
    acte();
  } catch (...) {
    _exit(1);
  }
  _exit(0);
}

inline int Attendre(pid_t enfant) {
  int fin = -1;
  waitpid(enfant, &fin, 0);
  return fin;
}

}  // namespace support
