#pragma once
// The line that tells a person at a terminal how far a long work has come. Silent elsewhere, so
// that logs and pipes stay clean.

#include <chrono>
#include <functional>
#include <ostream>
#include <string>

namespace base {

class Progres {
 public:
  // Time since any fixed moment.
  using Chrono = std::function<std::chrono::milliseconds()>;

  Progres(std::ostream& terminal, bool actif, std::string libelle, Chrono chrono = Ecoule);
  ~Progres() { Efface(); }
  Progres(const Progres&) = delete;
  Progres& operator=(const Progres&) = delete;

  // Shows the count, at most five times a second; a total of 0 is one that nobody knows. Cheap
  // enough to be called for each record.
  void Avance(long fait, long total = 0);
  // Wipes the line: before other texts go to the terminal, and at the end.
  void Efface();

 private:
  static std::chrono::milliseconds Ecoule();

  std::ostream& terminal_;
  bool actif_;
  bool montre_ = false;
  std::string libelle_;
  Chrono chrono_;
  std::chrono::milliseconds prochain_;
};

}  // namespace base
