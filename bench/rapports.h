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
  double borne;
};

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
  // Median time of each benchmark, in nanoseconds.
  std::map<std::string, double> medianes_;
  bool tenus_ = true;
};

}  // namespace bench
