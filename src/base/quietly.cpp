#include "base/quietly.h"

#include <exception>

namespace base {

std::function<void(const std::string& what)>& OnFault() {
  static std::function<void(const std::string&)> observer;
  return observer;
}

void ReportFault() noexcept {
  if (!OnFault()) return;
  try {
    throw;
  } catch (const std::exception& fault) {
    OnFault()(fault.what());
  } catch (...) {
    OnFault()("unknown");
  }
}

}  // namespace base
