#pragma once
// First tab, "Origine": what the contract is. Codes, kind, duration, nature and subsidised
// employment have a file of their own each (origine_*.h). Its values steer the other tabs, above
// all the agreement: with "02" the person helped is the employer.

#include <string>

#include "editor/onglet.h"
#include "editor/origine_codes.h"
#include "editor/origine_duree.h"
#include "editor/origine_emploi_aide.h"
#include "editor/origine_genre.h"
#include "editor/origine_nature.h"

namespace editor {

class OngletOrigine : public Onglet {
 public:
  explicit OngletOrigine(Frm_ElementsContrat& editeur);

  void Afficher_Ong1();
  // Run again on other fields, it leaves what a single run on them would.
  void Ecrire_Ong1();
  bool Verif_Ong1();
  void Remplir_Combos() { codes_.Remplir_Combos(); }
  void SelonConvention(const std::string& convention) override;
  // The employer is another one.
  void RafraichirEmployeur() { duree_.Ouvrir(); }
  void Txt_DatDebContrat_LostFocus() { duree_.Txt_DatDebContrat_LostFocus(); }
  // The start of the contract is missing for what was to be done: says so, and goes to its box.
  void DemanderDebut();
  // To the first field in which a new contract begins.
  void Commencer() { codes_.SetFocus(); }

  const std::string& Convention() const { return codes_.Convention(); }
  // The label of the contract's nature.
  const std::string& Nature() const { return nature_.Libelle(); }
  const std::string& Entite() const { return codes_.Entite(); }
  const std::string& Employeur() const { return codes_.Employeur(); }
  bool Particuliers() const { return codes_.Particuliers(); }
  // The three with their labels.
  const CodesOrigine& Codes() const { return codes_; }
  // Term, pay basis and status.
  const GenreOrigine& Genre() const { return genre_; }
  // The start as displayed, and its internal day; nothing for what is no date.
  const std::string& DateDebut() const { return duree_.DateDebut(); }
  std::optional<long> Debut() const { return duree_.Debut(); }
  std::optional<long> FinPresumee() const { return duree_.FinPresumee(); }

 private:
  static const rules::Verification<OngletOrigine> Verifications[];

  void Afficher_Ong() override { Afficher_Ong1(); }
  bool Verif_Ong() override { return Verif_Ong1(); }
  void Ecrire_Ong() override { Ecrire_Ong1(); }
  void Vider_Ong() override;

  // The contract is for a fixed term, or is not any more.
  void SelonType();
  void Cmd_MotifCDD_Click();

  screen::Label Etq_NumContrat{Page, "Etq_NumContrat", "N° Contrat"};
  screen::TextField Txt_NumContrat{Page, "Txt_NumContrat", 3};
  CodesOrigine codes_{editeur_, Page, sourdine_};

  GenreOrigine genre_{editeur_, Page, sourdine_};
  DureeOrigine duree_{editeur_, Page};
  NatureOrigine nature_{editeur_, Page};
  screen::Button Cmd_MotifCDD{Page, "Cmd_MotifCDD", "Motif C.D.D."};
  EmploiAideOrigine emploiAide_{Page, sourdine_};
  screen::Label Etq_Contrepartie{Page, "Etq_Contrepartie", "Contrepartie pour interruption"};
  screen::ComboBox Cbo_Contrepartie{Page, "Cbo_Contrepartie", false};

  session::Zones zones_;
};

}  // namespace editor
