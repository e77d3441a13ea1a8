// Reading and writing the configuration file.
#include <benchmark/benchmark.h>
#include <ini.h>

#include <QSettings>
#include <fstream>
#include <map>

#include "base/text.h"
#include "bench_data.h"
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "core/module1.h"
#include "startup/startup.h"

namespace {

const std::string& Text() {
  static const std::string text = [] {
    bench::FillState();
    return config::ConfigText();
  }();
  return text;
}

void Parse(benchmark::State& state) {
  const auto& text = Text();
  for (auto _ : state) {
    state.PauseTiming();
    auto configuration = config::Defaults(Module1::AppFolder);
    state.ResumeTiming();
    config::ParseConfigText(text, configuration);
    if (configuration.Profiles.size() != bench::kGames + 1U) state.SkipWithError("not all read");
  }
}
BENCHMARK(Parse)->Name("ParseConfigText");

int Store(void* user, const char* section, const char* name, const char* value) {
  (*static_cast<std::map<std::string, std::string>*>(user))[std::string(section) + "/" + name] =
      value;
  return 1;
}

void ParseWithInih(benchmark::State& state) {
  const auto& text = Text();
  for (auto _ : state) {
    std::map<std::string, std::string> values;
    ini_parse_string(text.c_str(), Store, &values);
    benchmark::DoNotOptimize(values);
  }
}
BENCHMARK(ParseWithInih)->Name("ParseConfigText/inih");

void ParseWithQSettings(benchmark::State& state) {
  const auto file = bench::NewFolder() + "/settings.ini";
  std::ofstream(file) << Text();
  int copy = 0;
  for (auto _ : state) {
    // Qt caches a file that it has read, so each iteration reads a file with a new name.
    state.PauseTiming();
    const auto name = file + std::to_string(copy++);
    std::ofstream(name) << Text();
    state.ResumeTiming();
    const QSettings settings(QString::fromStdString(name), QSettings::IniFormat);
    benchmark::DoNotOptimize(settings.allKeys());
  }
}
BENCHMARK(ParseWithQSettings)->Name("ParseConfigText/QSettings");

void Write(benchmark::State& state) {
  bench::FillState();
  for (auto _ : state) benchmark::DoNotOptimize(config::ConfigText());
}
BENCHMARK(Write)->Name("WriteConfigText");

void CopyLines(benchmark::State& state) {
  const auto& text = Text();
  const auto lines = base::Split(text, base::kLineEnd);
  for (auto _ : state) {
    std::string copy;
    for (const auto line : lines) {
      copy += line;
      copy += base::kLineEnd;
    }
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(CopyLines)->Name("WriteConfigText/copying lines");

}  // namespace
