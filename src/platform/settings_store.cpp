#include "platform/settings_store.h"

#include <QSettings>

namespace platform {

struct SettingsStore::Native {
  QSettings settings;
};

SettingsStore::SettingsStore(const std::string& application)
    : native_(new Native{QSettings(QSettings::NativeFormat, QSettings::UserScope,
                                   QString::fromStdString(application))}) {}

SettingsStore::~SettingsStore() = default;

void SettingsStore::save(const std::string& section, const std::string& key,
                         const std::string& value) {
  // A separator in a key would open a section of its own.
  const auto plainKey = QString::fromStdString(key)
                            .replace('/', QStringLiteral("%2F"))
                            .replace('\\', QStringLiteral("%5C"));
  native_->settings.setValue(QString::fromStdString(section) + '/' + plainKey,
                             QString::fromStdString(value));
}

}  // namespace platform
