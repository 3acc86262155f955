#pragma once
// A window in which the suite's parameter-table control lets the user maintain one table of codes.
// The window is as large as the control asks for, with a margin round it.

#include "dialogs/forme_hebergee.h"

namespace dialogs {

class FormeParamTable : public FormeHebergee {
 public:
  static constexpr int Marge = 240;  // twips, window round the control
  // The control's name among those of a host, and the property by which it can be left.
  static constexpr const char* NomControle = "Ctr_ParamTable";
  static constexpr const char* ProprieteSortie = "W_Sortir";
  static constexpr const char* SortieRetenue = "0";

  // Size of the window in twips, once the form is shown.
  int Largeur() const { return largeur_; }
  int Hauteur() const { return hauteur_; }

 protected:
  // `table`: the item of TABLES; `droits`: the right that lets it be changed.
  FormeParamTable(screen::Platform& platform, std::string nom, std::string titre,
                  const Hebergement& hebergement, const char* table, const char* droits)
      : FormeHebergee(platform, std::move(nom), std::move(titre), hebergement),
        table_(table),
        droits_(droits) {}

  std::vector<Propriete> Contexte() const override;
  void Activate() override { AdapteExe(); }
  virtual void AdapteExe();

 private:
  const char* table_;
  const char* droits_;
  int largeur_ = 0;
  int hauteur_ = 0;
};

}  // namespace dialogs
