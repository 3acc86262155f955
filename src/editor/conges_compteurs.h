#pragma once
// Leave counters that are shown and written together. A counter has one line in the table of its
// group: its field, its attribute, the form in which it is typed and shown. One left empty is 0;
// one of half-days goes by half-days, one of whole days by days.

#include <functional>
#include <vector>

#include "session/zones.h"

namespace editor {

struct Compteur {
  screen::TextField& champ;
  int attribut;
  session::FormeNombre forme;
  // Decimals on file; 0: as it is typed.
  int echelle = 2;
  // Half-days: what is said of another number, and the field to be typed anew.
  const char* refus = nullptr;
  screen::TextField* repris = nullptr;
  // After it was left as a number that it can hold.
  std::function<void()> ensuite = {};
};

class CompteursConges {
 public:
  CompteursConges(session::Session& session, std::vector<Compteur> compteurs);
  CompteursConges(const CompteursConges&) = delete;
  CompteursConges& operator=(const CompteursConges&) = delete;

  void Montrer(const data::CItem& contrat);
  // A new contract: every counter will be written as it stands.
  void Oublier() { zones_.Oublier(); }
  void MettreZero() const;
  void Ecrire(data::CItem& contrat) const;
  // `contrat` holds one of them otherwise than `montre`.
  bool Touches(const data::CItem& contrat, const data::CItem& montre) const;
  // A contract without one of its counters has none of it: 0 on file.
  void Completer(data::CItem& contrat) const;

 private:
  void Lier(const Compteur& compteur) const;
  void Quitter(const Compteur& compteur) const;

  session::Session& session_;
  const std::vector<Compteur> compteurs_;
  session::Zones zones_;
};

}  // namespace editor
