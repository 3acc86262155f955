#pragma once
// The nomenclature of professions: a category, and in it a function with its code. The code alone
// is enough: it brings its function and its category.

#include "data/liste_codes.h"
#include "session/paire_code.h"
#include "session/zones.h"

namespace editor {

class NomenclaturePCS {
 public:
  // `sourdine` is the tab's.
  NomenclaturePCS(session::Session& session, screen::Frame& page, session::Sourdine& sourdine);

  void Montrer(const data::CItem& contrat, int rang);
  void MontrerNouveau();
  void Ecrire(data::CItem& contrat, int rang) const;
  // What an agreement proposes: the profession of home help, for an entity or a private employer.
  void Proposer(const std::string& convention);

  bool CategorieAbsente() const { return Cbo_CategPCSContrat.Text().empty(); }
  bool FonctionAbsente() const { return Cbo_FoncPCSContrat.Text().empty(); }
  // The label shown is the nomenclature's for the code.
  bool CategorieJuste() const;
  bool FonctionJuste() const;
  // Of the category and the function, as the nomenclature keys them.
  std::vector<std::string> Cles() const;

 private:
  static constexpr int LongueurCode = 4;
  static constexpr std::size_t LongueurCategorie = 2;
  static constexpr int LongueurLibelle = 100;

  session::RegleCode RegleFonction();
  std::optional<std::string> Chercher(const std::string& code);
  void Remplir_PCS();
  void Remplir_FoncPCS(const std::string& categorie);
  void ChoisirCategorie(const std::string& categorie);
  void Cbo_CategPCSContrat_Change();
  void Cbo_FoncPCSContrat_DropDown();
  std::string Libelle(const std::string& cle) const;

  session::Session& session_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;
  // The categories that Cbo_CategPCSContrat offers.
  data::ListeCodes ListePCS_;

  screen::Frame Cdr_PCS{page_, "Cdr_PCS", "Nomenclature P.C.S. "};
  screen::Label Etq_CategPCSContrat{Cdr_PCS, "Etq_CategPCSContrat", "Catégorie"};
  screen::ComboBox Cbo_CategPCSContrat{Cdr_PCS, "Cbo_CategPCSContrat", true, LongueurLibelle};
  screen::Label Etq_CodPCSContrat{Cdr_PCS, "Etq_CodPCSContrat", "Code P.C.S."};
  screen::TextField Txt_CodPCSContrat{Cdr_PCS, "Txt_CodPCSContrat", LongueurCode};
  screen::Label Etq_FoncPCSContrat{Cdr_PCS, "Etq_FoncPCSContrat", "Fonction"};
  screen::ComboBox Cbo_FoncPCSContrat{Cdr_PCS, "Cbo_FoncPCSContrat", true, LongueurLibelle};

  session::PaireCode fonction_;
  session::Zones zones_;
};

}  // namespace editor
