#pragma once
// A departure date, the days by which it is suspended, and the date after them: for the career grid
// and for seniority. The days are hundredths on file, and are shown with as few decimals as they
// need; a half day does not move the date.

#include <functional>
#include <string>

#include "data/citem.h"
#include "screen/field.h"
#include "session/session.h"

namespace editor {

class DateReference {
 public:
  // `attribut`: where the contract holds the days. `debut` gives the displayed start of the
  // contract, which stands for a departure that is not given.
  DateReference(session::Session& session, screen::TextField& depart, screen::TextField& jours,
                screen::TextField& reference, int attribut, std::function<std::string()> debut);

  // After the departure was shown.
  void Montrer(const data::CItem& contrat);
  void MontrerNouveau();
  void Ecrire(data::CItem& contrat) const;
  // The departure has been left: false when it is no date, which keeps the focus. An empty one has
  // no reference.
  bool QuitterDepart();

 private:
  void QuitterJours();
  void Calculer(const std::string& base);
  std::string Base() const;

  session::Session& session_;
  screen::TextField& depart_;
  screen::TextField& jours_;
  screen::TextField& reference_;
  int attribut_;
  std::function<std::string()> debut_;
  // The days as they stand untouched; nothing is on file for a new contract.
  bool surFichier_ = false;
  std::string montres_;
};

}  // namespace editor
