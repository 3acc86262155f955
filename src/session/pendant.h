#pragma once

namespace session {

// A flag that holds a value for the time of a scope, whatever ends it, and then its former one.
class Pendant {
 public:
  explicit Pendant(bool& drapeau, bool valeur = true) : drapeau_(drapeau), avant_(drapeau) {
    drapeau_ = valeur;
  }
  ~Pendant() { drapeau_ = avant_; }
  Pendant(const Pendant&) = delete;
  Pendant& operator=(const Pendant&) = delete;

 private:
  bool& drapeau_;
  bool avant_;
};

}  // namespace session
