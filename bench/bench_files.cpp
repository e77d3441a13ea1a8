// The search for archives.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <sys/stat.h>

#include <array>
#include <fstream>

#include "bench_data.h"
#include "core/game_catalogue.h"
#include "core/module1.h"

namespace {

constexpr int kFolders = 4;
constexpr int kManyFiles = 10000;

using Folders = std::array<std::string, kFolders>;

void Touch(const std::string& file) { std::ofstream(file).put('x'); }

void UseFolders(const Folders& folders) {
  bench::FillState();
  std::copy(folders.begin(), folders.end(), Module1::RomPaths.begin());
}

const Folders& AllInTheLast() {
  static const Folders folders = [] {
    Folders made;
    for (auto& folder : made) folder = bench::NewFolder();
    for (int game = 0; game < bench::kGames; ++game)
      Touch(made.back() + "/" + bench::GameName(game) + ".zip");
    return made;
  }();
  return folders;
}

const Folders& FullOfOthers() {
  static const Folders folders = [] {
    Folders made;
    for (auto& folder : made) {
      folder = bench::NewFolder();
      for (int file = 0; file < kManyFiles; ++file)
        Touch(folder + "/other" + std::to_string(file) + ".zip");
    }
    return made;
  }();
  return folders;
}

void FindAll(benchmark::State& state) {
  UseFolders(AllInTheLast());
  for (auto _ : state) core::FindGameArchives(Module1::GameCatalog, Module1::RomPaths);
  if (!Module1::GameCatalog[0].Available) state.SkipWithError("not found");
}
BENCHMARK(FindAll)->Name("FindGameArchives, all there");

void TestFiles(benchmark::State& state) {
  const auto& folders = AllInTheLast();
  for (auto _ : state)
    for (int game = 0; game < bench::kGames; ++game)
      for (const auto& folder : folders) {
        struct stat status {};
        const auto file = folder + "/" + bench::GameName(game) + ".zip";
        benchmark::DoNotOptimize(stat(file.c_str(), &status));
      }
}
BENCHMARK(TestFiles)->Name("FindGameArchives, all there/bare file tests");

void FindNone(benchmark::State& state) {
  UseFolders(FullOfOthers());
  for (auto _ : state) core::FindGameArchives(Module1::GameCatalog, Module1::RomPaths);
}
BENCHMARK(FindNone)->Name("FindGameArchives, none there");

void ListFolders(benchmark::State& state) {
  const auto& folders = FullOfOthers();
  for (auto _ : state)
    for (const auto& folder : folders) {
      DIR* stream = opendir(folder.c_str());
      while (const dirent* entry = readdir(stream)) benchmark::DoNotOptimize(entry->d_name);
      closedir(stream);
    }
}
BENCHMARK(ListFolders)->Name("FindGameArchives, none there/listing once");

}  // namespace
