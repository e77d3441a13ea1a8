#include "support/temp_app.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <utility>

#include "base/quietly.h"
#include "core/module1.h"
#include "platform/app_folder.h"

namespace support {
namespace {

namespace fs = std::filesystem;

fs::path NewFolder() {
  std::string name = (fs::temp_directory_path() / "kestrivane-test-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
  fs::permissions(name, fs::perms(0755));
  return name;
}

// The toolkit remembers where its settings are, so that the place is the same for the whole run.
struct SettingsFolder : testing::Environment {
  void SetUp() override { setenv("XDG_CONFIG_HOME", (folder = NewFolder()).c_str(), 1); }
  void TearDown() override { fs::remove_all(folder); }
  static inline fs::path folder;
};

const auto* const kSettingsFolder = testing::AddGlobalTestEnvironment(new SettingsFolder);

std::string ReadFile(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

TempApp::TempApp()
    : root_(NewFolder()),
      oldWorkingFolder_(fs::current_path()),
      oldProgramFolder_(platform::ProgramFolder()) {
  Module1::AppFolder = (root_ / "Mis juegos é").string();
  fs::create_directory(Module1::AppFolder);
  platform::SetProgramFolder(Module1::AppFolder);
  platform::SetWorkingFolder(Module1::AppFolder);
  startup::FillSharedState();
  fs::remove_all(settingsFile());
  base::OnFault() = [](const std::string& what) {
    ADD_FAILURE() << "a fault, not a failure: " << what;
  };
}

TempApp::~TempApp() {
  base::OnFault() = nullptr;
  platform::SetProgramFolder(oldProgramFolder_);
  fs::current_path(oldWorkingFolder_);
  fs::remove_all(root_);
}

std::optional<i18n::Message> TempApp::load() {
  auto loaded = startup::BeginLoading(Module1::AppFolder).get();
  const auto failure = loaded.failure;
  startup::Adopt(std::move(loaded));
  return failure;
}

fs::path TempApp::path(std::string_view name) { return fs::path(Module1::AppFolder) / name; }

std::string TempApp::read(std::string_view name) { return ReadFile(path(name)); }

void TempApp::write(std::string_view name, std::string_view bytes) {
  fs::create_directories(path(name).parent_path());
  std::ofstream(path(name), std::ios::binary) << bytes;
}

void TempApp::writeProgram(std::string_view name, std::string_view script) {
  write(name, "#!/bin/sh\n" + std::string(script) + "\n");
  fs::permissions(path(name), fs::perms(0755));
}

void TempApp::addEmulator(std::string_view fault) {
  fs::remove(path("Kestrivane.exe"));
  fs::copy_file(STANDIN, path("Kestrivane.exe"));
  write("standin.mode", fault);
}

void TempApp::addGames(std::string_view names) {
  writeProgram("Kestrivane.exe",
               "printf '%s\\r\\n' '-------         -----'; for game in " + std::string(names) +
                   "; do printf '%-16s%s\\r\\n' $game $(echo $game | tr a-z A-Z); done");
}

fs::path TempApp::settingsFile() { return SettingsFolder::folder / "Kestrivane UI.conf"; }

std::string TempApp::settings() { return ReadFile(settingsFile()); }

Unprivileged::Unprivileged(fs::path locked) : locked_(std::move(locked)) {
  constexpr uid_t kNobody = 65534;
  if (!locked_.empty()) fs::permissions(locked_, fs::perms(0222), fs::perm_options::remove);
  if (geteuid() == 0 && seteuid(kNobody) != 0) throw std::runtime_error("user can't be changed");
}

Unprivileged::~Unprivileged() {
  if (seteuid(getuid()) != 0) std::abort();
  if (!locked_.empty()) fs::permissions(locked_, fs::perms::owner_write, fs::perm_options::add);
}

}  // namespace support
