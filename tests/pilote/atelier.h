#pragma once
// A small screen to play scenarios on: a list, and a dialogue opened from inside a click, which
// opens another. What the dialogue brings back is shown, and written, by the list.

#include <sstream>

#include "pilote/pilote.h"
#include "screen/headless/hote.h"
#include "storage/memory.h"

namespace pilote {

class Dialogue : public screen::Form {
 public:
  explicit Dialogue(screen::Platform& platform, int profondeur = 1)
      : Form(platform, "Frm_Dialogue" + std::to_string(profondeur)) {
    Txt_Nom.LostFocus = [this] {
      if (Txt_Nom.Text() == "?") MessageBox("Nom refusé."), Txt_Nom.SetFocus();
    };
    Cmd_OK.Click = [this] { valide = true, Hide(); };
    Cmd_Suite.Click = [this, profondeur] {
      Dialogue suite(Services(), profondeur + 1);
      suite.ShowModal();
      Txt_Nom.SetText(suite.Txt_Nom.Text());
      if (suite.valide && suite.Txt_Nom.Text() == "fin") Hide();
    };
  }

  screen::TextField Txt_Nom{*this, "Txt_Nom", 10};
  screen::Button Cmd_OK{*this, "Cmd_OK", "OK"};
  screen::Button Cmd_Suite{*this, "Cmd_Suite", "Suite"};
  bool valide = false;

 protected:
  bool QueryUnload() override {
    return MessageBox("Quitter ?", screen::Boutons::OuiNon) == screen::Reponse::Oui;
  }
};

class Ecran : public screen::Form {
 public:
  Ecran(screen::Platform& platform, data::Db& db) : Form(platform, "Frm_Ecran"), db_(db) {
    Lst_Noms.AddItem("Rose");
    Lst_Noms.AddItem("Hervé");
    Lst_Noms.AddItem("Rose");
    Cbo_Nature.DropDown = [this] {
      Cbo_Nature.Clear();
      Cbo_Nature.AddItem("Stage");
    };
    Cmd_Ajouter.Click = [this] { Ajouter(); };
    Cmd_Avaler.Click = [this] {
      try {
        Ajouter();
        MessageBox("Sûr ?", screen::Boutons::OuiNon);
      } catch (...) {
        Txt_Fige.SetText("avalé");
      }
    };
    Cmd_Panne.Click = [] { throw std::runtime_error("disque plein"); };
    Cmd_Fermer.Click = [this] { Hide(); };
    Txt_Fige.SetEnabled(false);
    Opt_A.SetValue(true);
    Cdr_Ferme.SetEnabled(false);
    Bdv_A.SetMax(5);
  }

  screen::ListBox Lst_Noms{*this, "Lst_Noms"};
  screen::ComboBox Cbo_Nature{*this, "Cbo_Nature", false};
  screen::TabStrip Ong{*this, "Ong", {"a", "b"}};
  screen::Frame Cdr_Ferme{*this, "Cdr_Ferme", "Fermé"};
  screen::OptionButton Opt_A{Cdr_Ferme, "Opt_A", "A"};
  screen::CheckBox Cac_A{*this, "Cac_A", "Cocher"};
  screen::TextField Txt_Fige{*this, "Txt_Fige"};
  screen::ScrollBar Bdv_A{*this, "Bdv_A"};
  screen::Button Cmd_Ajouter{*this, "Cmd_Ajouter", "Ajouter"};
  screen::Button Cmd_Avaler{*this, "Cmd_Avaler", "Avaler"};
  screen::Button Cmd_Panne{*this, "Cmd_Panne", "Panne"};
  screen::Button Cmd_Fermer{*this, "Cmd_Fermer", "Fermer"};

 private:
  void Ajouter() {
    Dialogue dialogue(Services());
    dialogue.ShowModal();
    Lst_Noms.AddItem(dialogue.Txt_Nom.Text());
    data::CItem item = db_.OpenFile("NOMS").NewItem("1");
    item.Set(2, 2, 3, dialogue.Txt_Nom.Text());
    item.Set(3, "a^b");
    item.DBWrite();
  }

  data::Db& db_;
};

struct Atelier {
  screen::headless::Hote hote;
  data::Db db{std::make_shared<storage::MemoryStorage>(hote.poste)};
  Ecran ecran{hote.platform, db};
  std::ostringstream sortie;

  // "" when all held, else "ligne: attendu / trouvé".
  std::string Jouer(const std::string& texte) {
    std::istringstream entree(texte);
    const Scenario scenario = lireScenario(entree);
    if (!scenario.fautes.empty()) return "faute: " + scenario.fautes.front().raison;
    Pilote pilote(hote, db, sortie);
    const auto echec = pilote.Jouer(scenario, ecran, [&] { ecran.Show(); });
    if (!echec) return "";
    return std::to_string(echec->ligne) + ": " + echec->attendu + " / " + echec->trouve;
  }
};

}  // namespace pilote
