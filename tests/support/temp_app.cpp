#include "support/temp_app.h"

#include <fstream>
#include <random>
#include <thread>

#include "base/error_boundary.h"
#include "launch/process_capture.h"
#include "platform/app_folder.h"
#include "platform/process.h"

namespace support {

namespace fs = std::filesystem;

fs::path ToPath(std::string_view text) { return std::u8string(text.begin(), text.end()); }

std::string ToText(const fs::path& path) {
  const auto text = path.u8string();
  return {text.begin(), text.end()};
}

fs::path NewFolder() {
  std::random_device random;
  fs::path folder;
  do folder = fs::temp_directory_path() / ("kestrivane-test-" + std::to_string(random()));
  while (!fs::create_directory(folder));
  return folder;
}

TempApp::TempApp() : root_(NewFolder()) {
  Module1::AppFolder = ToText(root_ / ToPath("Mis juegos é"));
  fs::create_directory(ToPath(Module1::AppFolder));
  platform::SetProgramFolder(Module1::AppFolder);
  platform::SetWorkingFolder(Module1::AppFolder);
  startup::FillSharedState();
  clearSettings();
  base::UnexpectedErrorHandler() = [](const std::string& what) {
    ADD_FAILURE() << "unexpected error: " << what;
  };
}

TempApp::~TempApp() {
  base::UnexpectedErrorHandler() = nullptr;
  fs::current_path(root_.parent_path());
  RemoveAll(root_);
}

std::optional<i18n::Message> TempApp::load() {
  auto loaded = startup::BeginLoading(Module1::AppFolder).get();
  const auto failure = loaded.failure;
  startup::Adopt(std::move(loaded));
  return failure;
}

fs::path TempApp::path(std::string_view name) { return ToPath(Module1::AppFolder) / ToPath(name); }

std::string ReadFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void TempApp::write(std::string_view name, std::string_view bytes) {
  fs::create_directories(path(name).parent_path());
  std::ofstream(path(name), std::ios::binary) << bytes;
}

void TempApp::addEmulator(std::string_view fault) {
  fs::remove(path("Kestrivane.exe"));
  fs::copy_file(STANDIN, path("Kestrivane.exe"));
  write("standin.mode", fault);
}

std::string TempApp::capture(const std::string& command) {
  return launch::ShellExecuteCapture(Module1::AppFolder + "\\" + command, false);
}

int TempApp::run(const std::string& command) {
  platform::StartedProcess process(command);
  while (process.ExitStatus() == platform::kStillActive)
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  return process.ExitStatus();
}

}  // namespace support
