#pragma once
// The ratios that the benchmarks are about: each pair is measured in one run, on one machine, and
// the bound is on the ratio of their times.

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

struct Rapport {
  std::string attente;  // what a user waits for
  std::string mesure;   // name of the benchmark measured
  std::string brut;     // name of the benchmark that does the raw work underneath
  double borne;         // of the ratio; 0 for a ratio that is told only
  // Bound of the measure itself, in microseconds; 0 when the ratio alone is bounded.
  double borneMicrosecondes = 0;
};

// Median time of each benchmark, in nanoseconds.
using Medianes = std::map<std::string, double>;

// The middle one; of an even number, the upper of the two. There is at least one value.
double mediane(std::vector<double> valeurs);
// Prints the ratios of those that were measured, with their bounds. Whether all bounds were kept.
bool imprimerRapports(const std::vector<Rapport>& rapports, const Medianes& medianes);

// Prints every measure, then the ratios with their bounds.
class Rapporteur : public benchmark::ConsoleReporter {
 public:
  explicit Rapporteur(std::vector<Rapport> rapports)
      : ConsoleReporter(OO_Tabular), rapports_(std::move(rapports)) {}

  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;
  // Whether every ratio that was measured kept its bound.
  bool Tenus() const { return tenus_; }

 private:
  std::vector<Rapport> rapports_;
  Medianes medianes_;
  bool tenus_ = true;
};

}  // namespace bench
