#include "rapports.h"

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

// "-" where there is no bound.
std::string borneDe(double borne) {
  if (borne == 0) return "-";
  char texte[32];
  std::snprintf(texte, sizeof texte, "%.2f", borne);
  return texte;
}

}  // namespace

double mediane(std::vector<double> valeurs) {
  const auto milieu = valeurs.begin() + static_cast<std::ptrdiff_t>(valeurs.size() / 2);
  std::nth_element(valeurs.begin(), milieu, valeurs.end());
  return *milieu;
}

bool imprimerRapports(const std::vector<Rapport>& rapports, const Medianes& medianes) {
  bool tous = true;
  std::printf("\n%-58s %10s %10s %7s %7s\n", "rapport", "mesure us", "brut us", "rapport", "borne");
  for (const Rapport& r : rapports) {
    const auto mesure = medianes.find(r.mesure);
    const auto brut = medianes.find(r.brut);
    if (mesure == medianes.end() || brut == medianes.end()) continue;
    const double microsecondes = mesure->second / 1e3;
    const double rapport = mesure->second / brut->second;
    const bool tenu = (r.borne == 0 || rapport <= r.borne) &&
                      (r.borneMicrosecondes == 0 || microsecondes <= r.borneMicrosecondes);
    tous = tous && tenu;
    std::printf("%-58s %10.1f %10.1f %7.2f %7s", r.attente.c_str(), microsecondes,
                brut->second / 1e3, rapport, borneDe(r.borne).c_str());
    if (r.borneMicrosecondes != 0) std::printf(" (%.0f us)", r.borneMicrosecondes);
    std::printf(" %s\n", tenu ? "" : "DEPASSE");
  }
  return tous;
}

void Rapporteur::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
      // Durable writes wait for the disk and are timed by the clock; everything else by the
      // processor, which other work on the machine does not disturb.
      const bool horloge = run.run_name.time_type == "real_time";
      const double temps = horloge ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
      medianes_[run.run_name.function_name] =
          temps * benchmark::GetTimeUnitMultiplier(benchmark::kNanosecond) /
          benchmark::GetTimeUnitMultiplier(run.time_unit);
    }
  }
  ConsoleReporter::ReportRuns(runs);
}

void Rapporteur::Finalize() {
  tenus_ = imprimerRapports(rapports_, medianes_);
}

}  // namespace bench
