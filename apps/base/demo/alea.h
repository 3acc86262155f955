#pragma once
// The demonstration data's own chance. Same seed, same numbers, on every machine and compiler:
// nothing of <random>, whose distributions differ from one library to the next.
//
// Each person and each contract draws from a stream of its own, named by a domain and a number, so
// that nobody's data depend on who was made before.

#include <cstddef>
#include <cstdint>

namespace demo {

enum class Domaine : std::uint64_t { Aide = 1, Base, Etat, Carriere, Contrat, Paie, Planning };

class Alea {
 public:
  Alea(std::uint64_t graine, Domaine domaine, std::uint64_t numero, std::uint64_t rang = 0) {
    for (std::uint64_t part : {graine, static_cast<std::uint64_t>(domaine), numero, rang}) {
      etat_ ^= part * 0x9E3779B97F4A7C15U;
      etat_ = suivant();
    }
  }

  // 64 even bits (the splitmix64 step).
  std::uint64_t suivant() {
    etat_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = etat_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
  }

  // Both bounds included. `max` below `min` gives `min`.
  long entre(long min, long max) {
    if (max <= min) return min;
    const auto etendue = static_cast<std::uint64_t>(max - min) + 1;
    return min + static_cast<long>(((suivant() >> 32) * etendue) >> 32);
  }

  // True so many times out of a hundred.
  bool surCent(int fois) { return entre(1, 100) <= fois; }

  template <typename T, std::size_t N>
  const T& parmi(const T (&table)[N]) {
    return table[static_cast<std::size_t>(entre(0, static_cast<long>(N) - 1))];
  }

  // A row of a table, in proportion to its `poids`.
  template <typename T, std::size_t N>
  const T& parmiPoids(const T (&table)[N]) {
    long total = 0;
    for (const T& ligne : table) total += ligne.poids;
    long tirage = entre(1, total);
    for (const T& ligne : table) {
      tirage -= ligne.poids;
      if (tirage <= 0) return ligne;
    }
    return table[N - 1];
  }

 private:
  std::uint64_t etat_ = 0;
};

}  // namespace demo
