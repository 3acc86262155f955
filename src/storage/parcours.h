#pragma once

namespace storage {

// Counts a scan as under way for as long as it lives, also when the visitor throws.
class Parcours {
 public:
  explicit Parcours(int& compte) : compte_(compte) { ++compte_; }
  ~Parcours() { --compte_; }
  Parcours(const Parcours&) = delete;
  Parcours& operator=(const Parcours&) = delete;

 private:
  int& compte_;
};

}  // namespace storage
