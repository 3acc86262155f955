// bench_hote: what a user waits for at the screen. --dossier=DIR says where the data files stand;
// of the words demarrage, touches, liste, frise, suivi, papier and rapport those given are
// measured, else all.

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>

#include "bases.h"
#include "mesures.h"

namespace {

const std::vector<bench::Rapport> Rapports{
    {"first window on a display / empty window", "fenetreHoteEcran", "fenetreVideEcran", 1.5},
    {"first window, offscreen / empty window", "fenetreHote", "fenetreVide", 0},
    {"first window / window with one word", "fenetreHote", "fenetreMot", 1.5},
    {"first window, 200,000 contracts / first window", "fenetreHoteGrande", "fenetreHote", 1.25},
    {"start to the carers' list / empty window", "aidantsListes", "fenetreVide", 0},
    {"start to a carer's contracts / empty window", "contratsListes", "fenetreVide", 0},
    {"a key in the editor's slowest field / a bare text line", "toucheEditeur", "toucheLigneNue", 0,
     4000},
    {"a key among 2,000 activities and 500 profiles / a bare text line", "toucheChoix",
     "toucheLigneNue", 0, 4000},
    {"list of 999 contracts shown / searched without screen", "listeAffichee", "listeSansEcran", 2},
    {"strip of time of 60 contracts drawn / laid out", "friseDessinee", "friseCalculee", 0, 4000},
    {"one of 120 months of paid hours corrected / without screen", "suiviRemunere",
     "suiviRemunereSeul", 0, 4000},
    {"one of 120 months of effective time / without screen", "suiviEffectif", "suiviEffectifSeul",
     0, 4000},
    {"declaration on its form, to a PDF file / an empty page", "declarationFormulaire", "pageVide",
     0, 150000},
    {"declaration of the dot-matrix form / an empty page", "declarationMatricielle", "pageVide", 0,
     150000},
    {"report of 5,000 interventions shown", "rapportAffiche", "rapportAffiche", 0, 100000},
    {"a page further in it", "rapportTourne", "rapportTourne", 0, 16000},
    {"printed to a PDF file", "rapportImprime", "rapportImprime", 0, 500000},
    {"a letter merged / a file of its size written", "lettre", "fichierNu", 0, 100000},
};

const std::vector<std::pair<std::string, void (*)(bench::Medianes&)>> Mesures{
    {"demarrage", bench::mesurerDemarrage}, {"touches", bench::mesurerTouches},
    {"liste", bench::mesurerListe},         {"frise", bench::mesurerFrise},
    {"suivi", bench::mesurerSuivi},         {"papier", bench::mesurerPapier},
    {"rapport", bench::mesurerRapport},
};

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> choix;
  for (int i = 1; i < argc; ++i) {
    if (std::strncmp(argv[i], "--dossier=", 10) == 0) {
      bench::dossier() = argv[i] + 10;
    } else {
      choix.push_back(argv[i]);
    }
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  bench::Medianes medianes;
  try {
    for (const auto& [nom, mesurer] : Mesures) {
      const bool choisie = choix.empty() || std::count(choix.begin(), choix.end(), nom) > 0;
      if (choisie) mesurer(medianes);
    }
  } catch (const std::exception& erreur) {
    std::fprintf(stderr, "bench_hote: %s\n", erreur.what());
    return 2;
  }
  return bench::imprimerRapports(Rapports, medianes) ? 0 : 1;
}
