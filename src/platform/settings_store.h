// The desktop's per-user settings store: texts under application, section and key. Output only.
#pragma once

#include <memory>
#include <string>

namespace platform {

class SettingsStore {
 public:
  explicit SettingsStore(const std::string& application);
  // What was saved goes to the store here, which takes at most a second; a store that can't be
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
