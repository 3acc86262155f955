#include "control/frise.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using control::ContratAidant;

constexpr long Jour = 1000;  // today

// "numero portee debut fin presumee annule", "-" for none: portee is an entity, or "p" and the
// private employer's letter.
ContratAidant contrat(const std::string& texte) {
  std::istringstream mots(texte);
  std::string numero, portee, fin, presumee, annule;
  ContratAidant c;
  mots >> numero >> portee >> c.dates.debut >> fin >> presumee >> annule;
  if (numero == "-") numero.clear();
  c.cle = numero.empty() ? "" : "00001" + numero;
  const bool particulier = portee.front() == 'p';
  c.portee = {"00001", numero, particulier ? "02" : "01", particulier ? "E" : portee,
              particulier ? portee : portee + "1"};
  if (fin != "-") c.dates.fin = std::stol(fin);
  if (presumee != "-") c.finPresumee = std::stol(presumee);
  c.annule = annule == "O";
  return c;
}

// Each bar as "numero@row first-last", with ">" for no end, "~certain" for a presumed end, "!" for
// an overlap, "*" for the contract in hand, and its state's letter.
std::string dire(const control::Frise& frise) {
  std::string texte;
  for (const control::Barre& b : frise.barres) {
    texte += texte.empty() ? "" : " | ";
    texte += (b.cle.empty() ? "-" : b.cle.substr(5)) + "@" + std::to_string(b.rang) + " " +
             std::to_string(b.debut) + "-" + (b.sansFin ? ">" : std::to_string(b.fin));
    if (b.certaine != b.fin) texte += "~" + std::to_string(b.certaine);
    texte += std::string(b.chevauche ? "!" : "") + (b.enMain ? "*" : "") +
             "CTFA"[static_cast<int>(b.etat)];
  }
  return texte;
}

TEST(Frise, ChaqueContratASaPlace) {
  const struct {
    const char* nom;
    std::vector<const char*> contrats;
    const char* enMain;
    const char* attendu;
  } cas[] = {
      {"none", {}, "", ""},
      {"without a start", {"001 E 0 - - N"}, "", ""},
      {"one after the other in one row, also on touching days' neighbours",
       {"002 E 901 - - N", "001 E 800 900 - N"},
       "",
       "001@0 800-900T | 002@0 901->C"},
      {"entities before private employers, each in a band",
       {"001 pA 100 200 - N", "002 E 900 950 - N", "003 F 300 400 - N", "004 pB 50 60 - N"},
       "",
       "003@0 300-400T | 002@1 900-950T | 004@2 50-60T | 001@3 100-200T"},
      {"what shares a day overlaps, also across another one",
       {"001 E 100 500 - N", "002 E 200 300 - N", "003 E 500 600 - N", "004 E 601 700 - N"},
       "",
       "001@0 100-500!T | 002@1 200-300!T | 003@1 500-600!T | 004@0 601-700T"},
      {"what was cancelled overlaps nothing and displaces nothing",
       {"001 E 100 - - O", "002 E 200 300 - N"},
       "",
       "002@0 200-300T | 001@1 100->A"},
      {"and stands beside them where its days are free",
       {"001 E 100 150 - O", "002 E 200 300 - N", "003 E 150 160 - O"},
       "",
       "002@0 200-300T | 001@0 100-150A | 003@1 150-160A"},
      {"a presumed end is dashed from today on, or from the start",
       {"001 E 900 - 1100 N", "002 pA 1010 - 1100 N", "003 pB 900 - 950 N", "004 pC 900 940 950 N"},
       "",
       "001@0 900-1100~1000C | 003@1 900-1000C | 004@2 900-940T | 002@3 1010-1100~1009F"},
      {"the contract in hand takes its own place and does not see itself",
       {"001 E 100 500 - N", "002 E 501 - - N"},
       "002 E 500 - - N",
       "001@0 100-500!T | 002@1 500->!*C"},
      {"a new one", {"001 E 100 - - N"}, "- E 1200 - - N", "001@0 100->!C | -@1 1200->!*F"},
      {"a new one with another employer",
       {"001 E 100 - - N"},
       "- pA 1200 - - N",
       "001@0 100->C | -@1 1200->*F"},
      {"a new one whose start is not typed yet",
       {"001 E 100 - - N"},
       "- E 0 - - N",
       "001@0 100->C"},
  };
  for (const auto& c : cas) {
    std::vector<ContratAidant> contrats;
    for (const char* const texte : c.contrats) contrats.push_back(contrat(texte));
    std::optional<ContratAidant> enMain;
    if (*c.enMain != '\0') enMain = contrat(c.enMain);
    const control::Frise frise = control::faireFrise(contrats, enMain, Jour);
    EXPECT_EQ(dire(frise), c.attendu) << c.nom;
    // The axis holds today and every day drawn.
    EXPECT_TRUE(frise.du < Jour && Jour < frise.au) << c.nom;
    for (const auto& barre : frise.barres) {
      EXPECT_TRUE(frise.du <= barre.debut && barre.fin <= frise.au) << c.nom;
    }
  }
}

}  // namespace
