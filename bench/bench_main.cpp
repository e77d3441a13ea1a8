// Prints Google Benchmark's rows and then, for each pair "X" and "X/baseline", the ratio.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "platform/forms/application.h"

namespace {

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const auto& run : runs)
      if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
        // Processor time varies less; benchmarks that wait for disk or screen ask for real time.
        medians_[run.run_name.function_name] =
            run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
  }
  void PrintRatios() const {
    std::printf("\n%-44s %s\n", "Measured against its baseline", "ratio");
    for (const auto& [name, time] : medians_) {
      const auto slash = name.find('/');
      if (slash == std::string::npos) continue;
      std::printf("%-44s %.3f\n", name.c_str(), medians_.at(name.substr(0, slash)) / time);
    }
  }

 private:
  std::map<std::string, double> medians_;
};

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  forms::Application application;
  std::vector<char*> arguments(argv, argv + argc);
  std::string repetitions = "--benchmark_repetitions=7";
  std::string minTime = "--benchmark_min_time=0.1";
  std::string interleave = "--benchmark_enable_random_interleaving=true";
  std::string aggregates = "--benchmark_report_aggregates_only=true";
  for (auto* argument : {&repetitions, &minTime, &interleave, &aggregates})
    arguments.insert(arguments.begin() + 1, argument->data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintRatios();
  std::fflush(stdout);
  std::_Exit(0);
}
