#include "rapports.h"

#include <cstdio>

namespace bench {

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
  std::printf("\n%-58s %10s %10s %7s %7s\n", "rapport", "mesure us", "brut us", "rapport", "borne");
  for (const Rapport& r : rapports_) {
    const auto mesure = medianes_.find(r.mesure);
    const auto brut = medianes_.find(r.brut);
    if (mesure == medianes_.end() || brut == medianes_.end()) continue;
    const double rapport = mesure->second / brut->second;
    const bool tenu = rapport <= r.borne;
    tenus_ = tenus_ && tenu;
    std::printf("%-58s %10.1f %10.1f %7.2f %7.2f %s\n", r.attente.c_str(), mesure->second / 1e3,
                brut->second / 1e3, rapport, r.borne, tenu ? "" : "DEPASSE");
  }
}

}  // namespace bench
