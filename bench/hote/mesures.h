#pragma once
// What bench_hote measures. Each function fills in the medians of its benchmarks; all that runs
// without a display is timed by the processor, of which other programs take nothing.

#include "rapports.h"

namespace bench {

// Processor time of this process so far, its threads included, in nanoseconds.
double tempsProcesseur();

// Starts of the host and of an empty window, whole processes: "fenetreVide", "fenetreMot" (one word
// in a menu and a label), "fenetreHote", "fenetreHoteGrande" (on a file of 200,000 contracts),
// "aidantsListes", "contratsListes"; with an X display, "fenetreVideEcran", "fenetreHoteEcran".
void mesurerDemarrage(Medianes& medianes);
// A key in the editor's fields: "toucheEditeur", the field whose median is the worst, beside
// "toucheLigneNue", a text line alone in its window, and "toucheChoix" among 2,000 activities and
// 500 profiles. Prints every field.
void mesurerTouches(Medianes& medianes);
// The search of a carer with 999 contracts: "listeAffichee" at the screen, "listeSansEcran".
void mesurerListe(Medianes& medianes);
// The strip of time of 60 contracts: "friseDessinee"; laid out alone, "friseCalculee".
void mesurerFrise(Medianes& medianes);
// One of 120 months corrected in the annual follow-up and shown: "suiviRemunere", "suiviEffectif";
// the same without a screen, "suiviRemunereSeul" and "suiviEffectifSeul".
void mesurerSuivi(Medianes& medianes);
// A page brought to a PDF file: "declarationFormulaire", "declarationMatricielle", "pageVide".
void mesurerPapier(Medianes& medianes);
// The report of 5,000 interventions: "rapportAffiche", "rapportTourne" by a page, "rapportImprime".
void mesurerRapport(Medianes& medianes);

}  // namespace bench
