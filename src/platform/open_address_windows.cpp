#include "platform/open_address.h"
#include "platform/system_windows.h"

namespace platform {

void OpenAddress(const std::string& address) {
  ShellExecuteW(nullptr, L"open", ToWide(address).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace platform
