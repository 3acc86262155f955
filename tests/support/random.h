#pragma once
// Choices from a seed, the same on every machine.

#include <cstddef>
#include <random>

namespace support {

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  std::size_t below(std::size_t n) { return engine_() % n; }
  template <typename T, std::size_t n>
  T of(const T (&table)[n]) {
    return table[below(n)];
  }

 private:
  std::mt19937 engine_;
};

}  // namespace support
