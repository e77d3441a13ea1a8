#include "platform/settings_store.h"

#include <QSettings>
#include <chrono>
#include <future>
#include <thread>
#include <utility>
#include <vector>

#include "base/error_boundary.h"

namespace platform {

struct SettingsStore::Native {
  QString application;
  std::vector<std::pair<QString, QString>> texts;

  void write() const {
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, application);
    for (const auto& [key, value] : texts) settings.setValue(key, value);
  }
};

SettingsStore::SettingsStore(const std::string& application)
    : native_(new Native{QString::fromStdString(application), {}}) {}

// Writing blocks if a pipe stands in place of the store's file or another program has locked it.
// So a separate thread writes, and is left behind after a second.
SettingsStore::~SettingsStore() {
  base::RunGuarded([this] {
    constexpr std::chrono::seconds kTimeout(1);
    std::packaged_task<void()> writing([native = std::move(native_)] { native->write(); });
    const auto written = writing.get_future();
    std::thread thread(std::move(writing));
    if (written.wait_for(kTimeout) == std::future_status::ready)
      thread.join();
    else
      thread.detach();
  });
}

void SettingsStore::save(const std::string& section, const std::string& key,
                         const std::string& value) {
  // A separator in a key would create a section.
  const auto plainKey = QString::fromStdString(key)
                            .replace('/', QStringLiteral("%2F"))
                            .replace('\\', QStringLiteral("%5C"));
  native_->texts.emplace_back(QString::fromStdString(section) + '/' + plainKey,
                              QString::fromStdString(value));
}

}  // namespace platform
