#include "platform/settings_store.h"

#include "platform/system_windows.h"

namespace platform {

struct SettingsStore::Native {
  std::wstring key;
};

SettingsStore::SettingsStore(const std::string& application)
    : native_(new Native{L"Software\\" + ToWide(application) + L'\\'}) {}

SettingsStore::~SettingsStore() = default;

void SettingsStore::save(const std::string& section, const std::string& key,
                         const std::string& value) {
  const auto text = ToWide(value);
  RegSetKeyValueW(HKEY_CURRENT_USER, (native_->key + ToWide(section)).c_str(), ToWide(key).c_str(),
                  REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

}  // namespace platform
