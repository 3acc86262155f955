#pragma once
// A form with a field of every kind. Every event goes to one journal, and may then be given
// something to do: essai.Sur("Txt_A.LostFocus", [&] { essai.Txt_A.SetFocus(); }).

#include <map>
#include <string>

#include "screen/form.h"
#include "screen/headless/hote.h"
#include "screen/user.h"

namespace screen {

class Essai : public Form {
 public:
  explicit Essai(Platform& platform) : Form(platform, "Frm_Essai") {
    for (TextField* champ : {&Txt_A, &Txt_B, &Txt_C, &Txt_Note}) {
      Suivre(*champ);
      champ->Change = Noter(champ->Nom() + ".Change");
      champ->KeyPress = [this](char32_t& touche) { Filtrer(touche); };
    }
    for (RowsField* champ : std::initializer_list<RowsField*>{&Cbo_Libre, &Cbo_Fixe, &Lst_A}) {
      Suivre(*champ);
      champ->Click = Noter(champ->Nom() + ".Click");
      champ->DblClick = Noter(champ->Nom() + ".DblClick");
      for (const char* ligne : {"un", "deux", "trois"}) champ->AddItem(ligne);
    }
    Cbo_Libre.Change = Noter("Cbo_Libre.Change");
    Cbo_Libre.DropDown = Noter("Cbo_Libre.DropDown");
    for (OptionButton* champ : {&Opt_1, &Opt_2, &Opt_3, &Opt_4}) {
      champ->Click = Noter(champ->Nom() + ".Click");
    }
    Suivre(Cmd_OK);
    Cmd_OK.Click = Noter("Cmd_OK.Click");
    Cac_A.Click = Noter("Cac_A.Click");
    Ong_A.Click = [this](int ancien) { Noter("Ong_A.Click/" + std::to_string(ancien))(); };
    Bdv_A.Change = Noter("Bdv_A.Change");
    Mnu_A.Click = Noter("Mnu_A.Click");
    Bdv_A.SetMax(20);
  }

  void Sur(const std::string& evenement, Handler suite) { suites_[evenement] = std::move(suite); }
  // What was noted since the last call.
  std::string Journal() { return std::exchange(journal_, {}); }
  std::string Actif() const { return Active() != nullptr ? Active()->Nom() : "-"; }

  TextField Txt_A{*this, "Txt_A", 5};
  TextField Txt_B{*this, "Txt_B"};
  TextField Txt_C{*this, "Txt_C"};
  TextField Txt_Note{*this, "Txt_Note"};
  ComboBox Cbo_Libre{*this, "Cbo_Libre"};
  ComboBox Cbo_Fixe{*this, "Cbo_Fixe", false};
  ListBox Lst_A{*this, "Lst_A"};
  Frame Cdr_A{*this, "Cdr_A"};
  Frame Cdr_B{Cdr_A, "Cdr_B", ""};
  OptionButton Opt_1{Cdr_B, "Opt_1", ""};
  OptionButton Opt_2{Cdr_B, "Opt_2", ""};
  OptionButton Opt_3{*this, "Opt_3", ""};
  OptionButton Opt_4{*this, "Opt_4", ""};
  CheckBox Cac_A{*this, "Cac_A", ""};
  TabStrip Ong_A{*this, "Ong_A", {"a", "b", "c"}};
  ScrollBar Bdv_A{*this, "Bdv_A"};
  MenuItem Mnu_A{*this, "Mnu_A", ""};
  Label Etq_A{*this, "Etq_A"};
  Button Cmd_OK{*this, "Cmd_OK", "OK"};

  bool fermetureRefusee = false;

 protected:
  bool QueryUnload() override { return !fermetureRefusee; }
  void Activate() override { Noter("Activate")(); }

 private:
  Handler Noter(const std::string& evenement) {
    return [this, evenement] {
      if (!journal_.empty()) journal_ += ' ';
      journal_ += evenement;
      if (const auto suite = suites_.find(evenement); suite != suites_.end()) {
        const Handler copie = suite->second;
        copie();
      }
    };
  }
  void Suivre(Field& champ) {
    champ.GotFocus = Noter(champ.Nom() + ".GotFocus");
    champ.LostFocus = Noter(champ.Nom() + ".LostFocus");
  }
  // Refuses x, writes a point for a comma.
  void Filtrer(char32_t& touche) {
    if (touche == U'x') touche = 0;
    if (touche == U',') touche = U'.';
    if (touche == ToucheEntree) Noter("Entree")();
  }

  std::string journal_;
  std::map<std::string, Handler> suites_;
};

}  // namespace screen
