#pragma once
// A form with a field of every kind. Every event goes to one journal, and may then be given
// something to do: essai.Sur("Txt_A.LostFocus", [&] { essai.Txt_A.SetFocus(); }).

#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>

#include "screen/form.h"
#include "screen/headless/hote.h"
#include "screen/user.h"
#include "support/table.h"

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

// What the program or the user does, in words of the tables: "texte Txt_A abc; cliquer Cmd_OK"; Frm
// is the form itself. What the last act of the user came to.
inline Acte faire(Essai& e, const std::string& actes) {
  Acte rendu = Acte::Fait;
  for (std::size_t debut = 0; debut < actes.size();) {
    const std::size_t fin = std::min(actes.find("; ", debut), actes.size());
    std::istringstream mots(actes.substr(debut, fin - debut));
    debut = fin + 2;
    std::string verbe, nom, reste;
    mots >> verbe >> nom;
    std::getline(mots >> std::ws, reste);
    const int n = std::atoi(reste.c_str());
    const std::string suite = reste.substr(std::min(reste.find(' '), reste.size() - 1) + 1);
    Field* const champ = e.Find(nom);
    auto* const rangees = dynamic_cast<RowsField*>(champ);
    auto* const combo = dynamic_cast<ComboBox*>(champ);
    auto* const barre = dynamic_cast<ScrollBar*>(champ);
    if (verbe == "sur") e.Sur(nom, [&e, reste] { faire(e, reste); });
    if (verbe == "journal") e.Journal();
    if (verbe == "texte") {
      combo != nullptr ? combo->SetText(reste) : dynamic_cast<TextField&>(*champ).SetText(reste);
    }
    if (verbe == "ligne") rangees->SetListIndex(n);
    if (verbe == "inserer") rangees->InsertItem(n, suite);
    if (verbe == "retirer") rangees->RemoveItem(n);
    if (verbe == "recrire") rangees->SetList(n, suite);
    if (verbe == "vider") rangees->Clear();
    if (verbe == "valeur") {
      if (auto* const option = dynamic_cast<OptionButton*>(champ)) option->SetValue(n != 0);
      if (auto* const coche = dynamic_cast<CheckBox*>(champ)) coche->SetValue(n);
      if (barre != nullptr) barre->SetValue(n);
    }
    if (verbe == "message") e.MessageBox("non");
    if (verbe == "max") barre->SetMax(n);
    if (verbe == "onglet") dynamic_cast<TabStrip&>(*champ).SetTab(n);
    if (verbe == "focus") champ->SetFocus();
    if (verbe == "cacher") champ != nullptr ? champ->SetVisible(false) : e.Hide();
    if (verbe == "fermer" || verbe == "ouvrir") {
      champ != nullptr ? champ->SetEnabled(verbe == "ouvrir") : e.SetEnabled(verbe == "ouvrir");
    }
    if (verbe == "cliquer") rendu = User(e).Cliquer(*champ);
    if (verbe == "quitter") rendu = User(e).Quitter();
    if (verbe == "barre") rendu = User(e).Barre(*barre, n);
  }
  return rendu;
}

}  // namespace screen
