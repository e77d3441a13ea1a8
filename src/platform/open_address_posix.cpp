#include "platform/open_address.h"

#include <QDesktopServices>
#include <QUrl>

namespace platform {

void OpenAddress(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

}  // namespace platform
