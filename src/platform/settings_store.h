// Writes texts to the desktop's per-user settings store, under application, section and key.
#pragma once

#include <memory>
#include <string>

namespace platform {

class SettingsStore {
 public:
  explicit SettingsStore(const std::string& application);
  // Writes everything that was saved, and waits for it at most a second. A store that can't be
  // written is no error.
  ~SettingsStore();
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;

  void save(const std::string& section, const std::string& key, const std::string& value);

 private:
  struct Native;
  std::unique_ptr<Native> native_;
};

}  // namespace platform
