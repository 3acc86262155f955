#pragma once
// The activities of the contract that stands on the screen, one line each: label and share side by
// side, and behind them the activity's code. Only an administrative contract has shares.

#include <string>
#include <vector>

#include "rules/repartition.h"
#include "screen/colonnes.h"
#include "session/saisie.h"

namespace editor {

class LignesActivites {
 public:
  // A share in percent.
  static constexpr session::FormeNombre FormePart{
      .avant = 3, .apres = 2, .affichage = session::FormeNombre::Serree};
  // Rows that the lists show at a time.
  static constexpr int Visibles = 6;

  LignesActivites(const data::Lib& lib, screen::ListBox& activites, screen::ListBox& parts,
                  screen::ScrollBar& barre)
      : lib_(lib), colonnes_({&activites, &parts}, barre, Visibles), barre_(barre) {}

  int Nombre() const { return colonnes_.Nombre(); }
  // `part`: as it is to be shown.
  void Ajouter(const std::string& code, const std::string& libelle, const std::string& part);
  void Retirer(int ligne);
  void Vider();
  void ChangerPart(int ligne, const std::string& part);
  // One share a line: an activity that has none yet has nothing.
  void CompleterParts();

  bool Contient(const std::string& code) const;
  const std::vector<std::string>& Codes() const { return codes_; }
  std::string Libelle(int ligne) const { return colonnes_.A(ligne).front(); }
  std::string Part(int ligne) const { return colonnes_.A(ligne).back(); }
  // The split that the lines make, and its total in hundredths of a percent.
  rules::Repartition::Parts Parts() const;
  long long Total() const { return rules::Repartition::Total(Parts()); }

  // A share on file as it is shown; what is no number stays as it is.
  std::string PartAffichee(const std::string& centiemes) const;

  // A line was clicked; a line was clicked twice.
  void Suivre(std::function<void(int)> choix, std::function<void(int)> doubleClic);
  void Deselectionner() { colonnes_.Choisir(-1); }
  void Activer(bool actives) { colonnes_.Activer(actives); }
  void ActiverBarre(bool active) { barre_.SetEnabled(active); }

 private:
  const data::Lib& lib_;
  screen::Colonnes colonnes_;
  screen::ScrollBar& barre_;
  std::vector<std::string> codes_;
};

}  // namespace editor
