#pragma once
// The workstation as the logic sees it: the clock, the user's name and the decimal separator.
// Nothing else in the system reads the clock or the environment, so that a test or a scenario can
// fix the day.

#include <string>

namespace data {

class Poste {
 public:
  virtual ~Poste() = default;

  // Today as an internal day number (day 0 is 31/12/1967).
  virtual long Aujourdhui() const = 0;
  // Local time as "AAAA-MM-JJ HH:MM:SS", for the marks left in the history of a record.
  virtual std::string Horodatage() const = 0;
  // The logged-on user's name, at most 20 characters.
  virtual std::string NomUtilisateur() const = 0;
  // One character, "," on a French workstation.
  virtual std::string SeparateurDecimal() const = 0;
};

// The real workstation: system clock, the user of the session, a decimal comma.
class PosteSysteme : public Poste {
 public:
  long Aujourdhui() const override;
  std::string Horodatage() const override;
  std::string NomUtilisateur() const override;
  std::string SeparateurDecimal() const override { return ","; }
};

// A workstation whose day, user and separator are set, for tests, scenarios and demonstration data.
class PosteFixe : public Poste {
 public:
  explicit PosteFixe(long aujourdhui, std::string utilisateur = "TEST")
      : aujourdhui_(aujourdhui), utilisateur_(std::move(utilisateur)) {}

  void SetAujourdhui(long jour) { aujourdhui_ = jour; }
  void SetUtilisateur(std::string nom) { utilisateur_ = std::move(nom); }
  void SetSeparateurDecimal(std::string separateur) { separateur_ = std::move(separateur); }

  long Aujourdhui() const override { return aujourdhui_; }
  // Midnight of the fixed day.
  std::string Horodatage() const override;
  std::string NomUtilisateur() const override { return utilisateur_; }
  std::string SeparateurDecimal() const override { return separateur_; }

 private:
  long aujourdhui_;
  std::string utilisateur_;
  std::string separateur_ = ",";
};

}  // namespace data
