// What the windows do while the user waits: filling, selecting, opening.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QTimer>
#include <algorithm>

#include "bench_data.h"
#include "config/config_writer.h"
#include "core/module1.h"
#include "platform/forms/form.h"
#include "ui/main/form1.h"
#include "ui/options/form2.h"

namespace {

QWidget* Child(const char* name) {
  for (auto* window : QApplication::topLevelWidgets())
    if (auto* child = window->findChild<QWidget*>(name)) return child;
  return nullptr;
}

// The main window with the measured data. Running the emulator is not part of these figures.
class MainWindow : public ui::Form1 {
 public:
  MainWindow() {
    bench::FillState();
    Form_Load(bench::Loaded());
  }
};

void Refill(benchmark::State& state) {
  MainWindow form;
  for (auto _ : state) form.RefreshGameList();
}
BENCHMARK(Refill)->Name("RefreshGameList");

void FillPlainList(benchmark::State& state) {
  bench::FillState();
  QListWidget list;
  list.show();
  std::vector<QString> titles;
  for (const auto& game : Module1::GameCatalog)
    titles.push_back(QString::fromStdString(game.Title));
  std::sort(titles.begin(), titles.end());
  for (auto _ : state) {
    list.clear();
    for (const auto& title : titles) list.addItem(title);
    list.setCurrentRow(0);
  }
}
BENCHMARK(FillPlainList)->Name("RefreshGameList/plain list");

std::string NewPictureFolder() {
  const auto folder = bench::NewFolder();
  QImage picture(1920, 1080, QImage::Format_RGB32);
  QPainter painter(&picture);
  for (int y = 0; y < 1080; y += 8)
    for (int x = 0; x < 1920; x += 8)
      painter.fillRect(x, y, 8, 8, QColor::fromHsv((x * y / 64) % 360, 180, 200));
  painter.end();
  for (const int game : {0, 1})
    picture.save(QString::fromStdString(folder + "/" + bench::GameName(game) + ".jpg"), "JPEG", 90);
  for (const int game : {0, 1})
    picture.scaled(32, 32).save(
        QString::fromStdString(folder + "/" + bench::GameName(game) + ".ico"), "ICO");
  return folder;
}

void SelectGame(benchmark::State& state) {
  static const auto folder = NewPictureFolder();
  MainWindow form;
  Module1::GameCatalog.resize(3);  // two games, since the last row is not listed
  Module1::SnapPaths[0] = Module1::IconPaths[0] = folder;
  form.RefreshGameList();
  auto* list = qobject_cast<QListWidget*>(Child("lstGames"));
  int row = 0;
  for (auto _ : state) list->setCurrentRow(row = 1 - row);
}
BENCHMARK(SelectGame)->Name("Selection step");

void DecodeAtBoxSize(benchmark::State& state) {
  static const auto file =
      QString::fromStdString(NewPictureFolder() + "/" + bench::GameName(0) + ".jpg");
  for (auto _ : state) {
    QImageReader reader(file, "jpeg");
    reader.setScaledSize(QSize(394, 344));  // imgGames in pixels
    benchmark::DoNotOptimize(QPixmap::fromImage(reader.read()));
  }
}
BENCHMARK(DecodeAtBoxSize)->Name("Selection step/decoding alone");

void OpenOptions(benchmark::State& state) {
  MainWindow form;
  Module1::OptionScope = core::kGlobalScope;
  for (auto _ : state) {
    ui::Form2 options(form);
    options.centreOver(form);
    options.onActivate = [&] { options.close(); };
    options.showModal(form);
  }
}
BENCHMARK(OpenOptions)->Name("Form2 opening")->Unit(benchmark::kMillisecond)->UseRealTime();

void OpenEmptyWindow(benchmark::State& state) {
  MainWindow form;
  for (auto _ : state) {
    forms::Form empty("empty", forms::Border::FixedTool, 7965, 4950);
    empty.centreOver(form);
    empty.onActivate = [&] { empty.close(); };
    empty.showModal(form);
  }
}
BENCHMARK(OpenEmptyWindow)
    ->Name("Form2 opening/empty modal window")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
