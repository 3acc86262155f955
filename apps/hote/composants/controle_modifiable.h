#pragma once
// A control in which a clerk changes something: it asks before it is left with changes, and answers
// its form in the form's own words.

#include <functional>

#include "composants/controle_suite.h"

namespace hote {

class ControleModifiable : public ControleVisible {
 public:
  // `sortie`: the property by which the form asks whether it can go, with the answer that lets it
  // and the one that keeps it.
  struct Sortie {
    const char* propriete;
    const char* libre;
    const char* retenu;
  };

  ControleModifiable(Bureau& bureau, const ObjetsSuite& objets, Sortie sortie)
      : bureau_(bureau), objets_(objets), sortie_(sortie) {}

  // The question of leaving is asked here.
  std::string Lire(const std::string& propriete) const override;

 protected:
  // True when nothing is left to be kept: all was stored, or nothing was changed.
  virtual bool Modifie() const = 0;
  // Why it was not stored, in French, "" when it was.
  virtual std::string Enregistrer() const = 0;

  // Stores, or says why not; false then. An error of the store is told too.
  bool EnregistrerOuDire() const;
  void Dire(const std::string& texte) const;
  bool Plein(const std::string& droit) const { return objets_.W_Droits->Lookup(droit).Complet(); }
  const ObjetsSuite& Objets() const { return objets_; }
  Bureau& LeBureau() const { return bureau_; }

 private:
  Bureau& bureau_;
  const ObjetsSuite& objets_;
  Sortie sortie_;
};

}  // namespace hote
