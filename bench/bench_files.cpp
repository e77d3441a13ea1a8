// The search for archives, and the save.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <fstream>

#include "bench_data.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "platform/files.h"

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
      while (dirent* entry = readdir(stream)) benchmark::DoNotOptimize(entry->d_name);
      closedir(stream);
    }
}
BENCHMARK(ListFolders)->Name("FindGameArchives, none there/listing once");

// Each text is in turn shorter and longer than the one before it.
void Save(benchmark::State& state) {
  const auto file = bench::NewFolder() + "/Kestrivane.ini";
  const std::string text(60000, 'x');
  bool shorter = false;
  for (auto _ : state)
    platform::WriteBytes(file, std::string_view(text).substr((shorter = !shorter) ? 30000 : 0));
}
BENCHMARK(Save)->Name("Save")->UseRealTime();

void SyncTwice(benchmark::State& state) {
  const auto file = bench::NewFolder() + "/Kestrivane.ini";
  const std::string text(60000, 'x');
  const int opened = open(file.c_str(), O_RDWR | O_CREAT, 0666);
  for (auto _ : state)
    for (int sync = 0; sync < 2; ++sync) {
      if (pwrite(opened, text.data(), text.size(), 0) < 0) state.SkipWithError("not written");
      fsync(opened);
    }
  close(opened);
}
BENCHMARK(SyncTwice)->Name("Save/two syncs of the disk")->UseRealTime();

}  // namespace
