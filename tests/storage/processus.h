#pragma once
// Other processes in the storage tests: users without rights, programs that die.

#include <grp.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>

namespace essai {

// Runs `acte` in a process of its own: what it answers.
inline std::string ailleurs(const std::function<std::string()>& acte) {
  constexpr std::size_t kPlace = 4096;
  void* const partage =
      mmap(nullptr, kPlace, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (partage == MAP_FAILED) return "no memory";
  const pid_t enfant = fork();
  if (enfant == 0) {
    acte().copy(static_cast<char*>(partage), kPlace - 1);
    _exit(0);
  }
  int fin = 0;
  waitpid(enfant, &fin, 0);
  std::string reponse(static_cast<const char*>(partage));
  munmap(partage, kPlace);
  return WIFSIGNALED(fin) ? "signal " + std::to_string(WTERMSIG(fin)) : reponse;
}

// The same as a user without rights, in the group `groupe` too. A test that is not run by root
// stays who it is.
inline std::string sansDroits(const std::function<std::string()>& acte, gid_t groupe = 65534) {
  return ailleurs([&]() -> std::string {
    constexpr gid_t kPersonne = 65534;
    const bool change = geteuid() != 0 || (setgroups(1, &groupe) == 0 && setgid(kPersonne) == 0 &&
                                           setuid(kPersonne) == 0);
    return change ? acte() : "still root";
  });
}

}  // namespace essai
