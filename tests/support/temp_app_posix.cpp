#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "support/temp_app.h"

namespace support {
namespace {

namespace fs = std::filesystem;

// Qt remembers the folder of its settings, so there is one folder for the whole run.
struct SettingsFolder : testing::Environment {
  void SetUp() override { setenv("XDG_CONFIG_HOME", folder.c_str(), 1); }
  void TearDown() override { fs::remove_all(folder); }
  static inline const fs::path folder = NewFolder(), file = folder / "Kestrivane UI.conf";
};

const auto* const kSettingsFolder = testing::AddGlobalTestEnvironment(new SettingsFolder);

}  // namespace

void TempApp::writeProgram(std::string_view name, std::string_view script) {
  write(name, "#!/bin/sh\n" + std::string(script) + "\n");
  fs::permissions(path(name), fs::perms(0755));
}

void TempApp::clearSettings() { fs::remove_all(SettingsFolder::file); }

std::string TempApp::settings() { return ReadFile(SettingsFolder::file); }

void RemoveAll(const fs::path& folder) { fs::remove_all(folder); }

void WaitForChild() {
  siginfo_t ended;
  waitid(P_ALL, 0, &ended, WEXITED | WNOWAIT);
}

Unprivileged::Unprivileged(const fs::path& locked) {
  constexpr uid_t kNobody = 65534;
  if (!locked.empty()) fs::permissions(locked, fs::perms(0222), fs::perm_options::remove);
  if (geteuid() == 0 && seteuid(kNobody) != 0) throw std::runtime_error("user can't be changed");
  undo_ = [locked] {
    if (seteuid(getuid()) != 0) std::abort();
    if (!locked.empty()) fs::permissions(locked, fs::perms::owner_write, fs::perm_options::add);
  };
}

}  // namespace support
