// Measures the front-end's memory and processor time from the second minute to the end of an
// hour's play, with a clock that does not wait. using.sh measures real seconds.
#include <sys/resource.h>

#include <QApplication>
#include <QPushButton>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "bench_data.h"
#include "core/module1.h"
#include "platform/clock.h"
#include "platform/forms/application.h"
#include "ui/main/form1.h"

namespace {

namespace fs = std::filesystem;

long ResidentKiB() {
  std::ifstream file("/proc/self/statm");
  long pages = 0;
  file >> pages >> pages;
  return pages * 4;
}

long ProcessorMs() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000 +
         (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000;
}

}  // namespace

int main() {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  forms::Application application;
  bench::FillState();
  const auto folder = bench::NewFolder();
  Module1::AppFolder = folder;
  fs::current_path(folder);
  std::ofstream("Kestrivane.exe") << "#!/bin/sh\nuntil test -e over; do sleep 0.1; done\n";
  fs::permissions("Kestrivane.exe", fs::perms(0755));

  constexpr int kWarm = 60;
  constexpr int kHour = 3600;
  int seconds = 0;
  long memory = 0;
  long processor = 0;
  platform::Moment now{};
  platform::TheClock() = {
      [&] { return now; },
      [&](std::chrono::milliseconds time) {
        now += time;
        if (++seconds == kWarm) memory = ResidentKiB(), processor = ProcessorMs();
        if (seconds == kHour) {
          std::printf(
              "An hour's play: memory grew by %ld KiB; processor time %.3f %% of one core\n",
              ResidentKiB() - memory,
              0.1 * static_cast<double>(ProcessorMs() - processor) / (kHour - kWarm));
          std::ofstream("over") << "";
        }
        if (seconds >= kHour) std::this_thread::sleep_for(std::chrono::milliseconds(20));
      }};
  ui::Form1 form;
  form.Form_Load(bench::Loaded());
  Module1::GameCatalog[0].Available = true;
  for (auto* window : QApplication::topLevelWidgets())
    if (auto* play = window->findChild<QPushButton*>("cmdPlay")) {
      play->setEnabled(true);
      play->click();
    }
  fs::current_path("/");
  fs::remove_all(folder);
  std::fflush(stdout);
  std::_Exit(seconds < kHour);
}
