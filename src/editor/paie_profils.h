#pragma once
// The one or two pay profiles of the contract: code boxes with their lists. A profile is a private
// employer's or not, as the contract is; the profiles on file stay what they are, also those that
// the list no longer offers.

#include <optional>
#include <string>

#include "session/paire_code.h"
#include "session/session.h"
#include "session/zones.h"

namespace editor {

class Frm_ElementsContrat;

class PaieProfils {
 public:
  PaieProfils(Frm_ElementsContrat& editeur, screen::Frame& page, session::Sourdine& sourdine);

  std::vector<session::Zone> Zones();
  // Refills both lists for the agreement; what stands in the boxes stays.
  void ProfilContrat();
  // The profiles of the contract on file.
  void Afficher();
  // The profile that a private employer proposes, where none is chosen.
  void Proposer(const std::string& employeur);
  // Profiles of the other kind of employer go.
  void ChangerConvention();

  // The codes that stand in the boxes, "" for none.
  std::vector<std::string> Cles() const {
    return {Txt_ProfilContrat.Text(), Txt_ProfilContrat2.Text()};
  }
  bool Manque() const;
  // The profile rule for the boxes, or for the profiles on file: monthly paid production staff have
  // no profile with a home help heading. False after a message.
  bool Verif_Profil();

 private:
  static constexpr int LongueurProfil = 3;
  static constexpr int LongueurLibelle = 60;

  session::RegleCode Regle(bool premier);
  std::optional<std::string> Libelle(const std::string& code) const;
  const char* Refus(const std::string& code, bool premier) const;
  void Garder(session::PaireCode& paire, const std::string& code, const std::string& libelle);
  void ActiverSecond();
  const char* RefusMensuel(const std::string& code) const;
  bool Particuliers() const;
  session::Session& Session() const;

  Frm_ElementsContrat& editeur_;
  screen::Frame& page_;
  session::Sourdine& sourdine_;

  screen::Label Etq_ProfilContrat{page_, "Etq_ProfilContrat", "Profil n° 1"};
  screen::TextField Txt_ProfilContrat{page_, "Txt_ProfilContrat", LongueurProfil};
  screen::ComboBox Cbo_LibProfilContrat{page_, "Cbo_LibProfilContrat", true, LongueurLibelle};
  screen::Label Etq_ProfilContrat2{page_, "Etq_ProfilContrat2", "Profil n° 2"};
  screen::TextField Txt_ProfilContrat2{page_, "Txt_ProfilContrat2", LongueurProfil};
  screen::ComboBox Cbo_LibProfilContrat2{page_, "Cbo_LibProfilContrat2", true, LongueurLibelle};

  session::PaireCode premier_{Txt_ProfilContrat, Cbo_LibProfilContrat, sourdine_, Regle(true)};
  session::PaireCode second_{Txt_ProfilContrat2, Cbo_LibProfilContrat2, sourdine_, Regle(false)};
};

}  // namespace editor
