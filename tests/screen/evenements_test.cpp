// What a change by program fires, and what it leaves behind.

#include <gtest/gtest.h>

#include "essai.h"

namespace screen {
namespace {

struct Cas {
  const char* nom;
  std::function<void(Essai&)> prealable;
  std::function<void(Essai&)> changement;
  const char* journal;
  std::function<std::string(const Essai&)> etat;
  const char* attendu;
};

std::string options(const Essai& e) {
  std::string allumees;
  for (const OptionButton* o : {&e.Opt_1, &e.Opt_2, &e.Opt_3, &e.Opt_4}) {
    if (o->Value()) allumees += o->Nom().substr(4);
  }
  return allumees;
}
std::string libre(const Essai& e) {
  return e.Cbo_Libre.Text() + "/" + std::to_string(e.Cbo_Libre.ListIndex());
}
std::string liste(const Essai& e) {
  std::string texte;
  for (const auto& ligne : e.Lst_A.Rows()) texte += ligne + ",";
  return texte + std::to_string(e.Lst_A.ListIndex());
}
std::string barre(const Essai& e) {
  return std::to_string(e.Bdv_A.Value());
}
std::string onglet(const Essai& e) {
  return std::to_string(e.Ong_A.Tab());
}

const auto rien = [](Essai&) {};
const auto ligneDeux = [](Essai& e) { e.Lst_A.SetListIndex(1); };
const auto libreDeux = [](Essai& e) { e.Cbo_Libre.SetListIndex(1); };
const auto barreDix = [](Essai& e) { e.Bdv_A.SetValue(10); };

const Cas tous[] = {
    {"texte", rien, [](Essai& e) { e.Txt_A.SetText("a"); }, "Txt_A.Change",
     [](const Essai& e) { return e.Txt_A.Text(); }, "a"},
    {"même texte", [](Essai& e) { e.Txt_A.SetText("a"); }, [](Essai& e) { e.Txt_A.SetText("a"); },
     "", [](const Essai& e) { return e.Txt_A.Text(); }, "a"},
    {"texte plus long que la saisie", rien, [](Essai& e) { e.Txt_A.SetText("abcdefg"); },
     "Txt_A.Change", [](const Essai& e) { return e.Txt_A.Text(); }, "abcdefg"},
    {"texte repris par son gestionnaire",
     [](Essai& e) { e.Sur("Txt_A.Change", [&e] { e.Txt_A.SetText("z"); }); },
     [](Essai& e) { e.Txt_A.SetText("a"); }, "Txt_A.Change Txt_A.Change",
     [](const Essai& e) { return e.Txt_A.Text(); }, "z"},
    {"ligne de liste", rien, ligneDeux, "Lst_A.Click", liste, "un,deux,trois,1"},
    {"même ligne", ligneDeux, ligneDeux, "", liste, "un,deux,trois,1"},
    {"ligne absente", ligneDeux, [](Essai& e) { e.Lst_A.SetListIndex(3); }, "Lst_A.Click", liste,
     "un,deux,trois,-1"},
    {"insertion devant la ligne", ligneDeux, [](Essai& e) { e.Lst_A.InsertItem(1, "n"); }, "",
     liste, "un,n,deux,trois,2"},
    {"insertion derrière la ligne", ligneDeux, [](Essai& e) { e.Lst_A.InsertItem(2, "n"); }, "",
     liste, "un,deux,n,trois,1"},
    {"retrait devant la ligne", ligneDeux, [](Essai& e) { e.Lst_A.RemoveItem(0); }, "", liste,
     "deux,trois,0"},
    {"retrait de la ligne", ligneDeux, [](Essai& e) { e.Lst_A.RemoveItem(1); }, "", liste,
     "un,trois,-1"},
    {"liste vidée", ligneDeux, [](Essai& e) { e.Lst_A.Clear(); }, "", liste, "-1"},
    {"déroulante par sa ligne", rien, libreDeux, "Cbo_Libre.Click", libre, "deux/1"},
    {"déroulante par son texte", libreDeux, [](Essai& e) { e.Cbo_Libre.SetText("autre"); },
     "Cbo_Libre.Change", libre, "autre/-1"},
    {"déroulante au texte de sa ligne", libreDeux, [](Essai& e) { e.Cbo_Libre.SetText("deux"); },
     "", libre, "deux/1"},
    {"ligne choisie récrite", libreDeux, [](Essai& e) { e.Cbo_Libre.SetList(1, "DEUX"); }, "",
     libre, "DEUX/1"},
    {"déroulante vidée", libreDeux, [](Essai& e) { e.Cbo_Libre.Clear(); }, "", libre, "/-1"},
    {"option d'un cadre", [](Essai& e) { e.Opt_1.SetValue(true), e.Opt_3.SetValue(true); },
     [](Essai& e) { e.Opt_2.SetValue(true); }, "Opt_2.Click", options, "23"},
    {"option sans cadre", [](Essai& e) { e.Opt_1.SetValue(true), e.Opt_3.SetValue(true); },
     [](Essai& e) { e.Opt_4.SetValue(true); }, "Opt_4.Click", options, "14"},
    {"option éteinte", [](Essai& e) { e.Opt_1.SetValue(true); },
     [](Essai& e) { e.Opt_1.SetValue(false); }, "", options, ""},
    {"case cochée", rien, [](Essai& e) { e.Cac_A.SetValue(-1), e.Cac_A.SetValue(1); },
     "Cac_A.Click", [](const Essai& e) { return std::to_string(e.Cac_A.Value()); }, "1"},
    {"onglet", [](Essai& e) { e.Ong_A.SetTab(2); }, [](Essai& e) { e.Ong_A.SetTab(1); },
     "Ong_A.Click/2", onglet, "1"},
    {"même onglet", rien, [](Essai& e) { e.Ong_A.SetTab(0); }, "", onglet, "0"},
    {"barre au-delà", rien, [](Essai& e) { e.Bdv_A.SetValue(21); }, "Bdv_A.Change", barre, "20"},
    {"barre déjà au bout", rien, [](Essai& e) { e.Bdv_A.SetValue(-1); }, "", barre, "0"},
    {"borne qui pousse", barreDix, [](Essai& e) { e.Bdv_A.SetMax(4); }, "Bdv_A.Change", barre, "4"},
    {"bornes renversées", barreDix, [](Essai& e) { e.Bdv_A.SetMax(-1), e.Bdv_A.SetValue(-5); },
     "Bdv_A.Change Bdv_A.Change", barre, "-1"},
};

TEST(Evenements, UnChangementParProgramme) {
  for (const Cas& cas : tous) {
    SCOPED_TRACE(cas.nom);
    headless::Hote hote;
    Essai essai(hote.platform);
    cas.prealable(essai);
    essai.Journal();
    cas.changement(essai);
    EXPECT_EQ(essai.Journal(), cas.journal);
    EXPECT_EQ(cas.etat(essai), cas.attendu);
  }
}

TEST(Evenements, UnNomPorteDeuxFois) {
  headless::Hote hote;
  Essai essai(hote.platform);
  EXPECT_THROW(Label(essai, "Txt_A"), std::logic_error);
  EXPECT_EQ(essai.Find("Txt_"), nullptr);
}

}  // namespace
}  // namespace screen
