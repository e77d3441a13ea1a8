#include "launch/process_capture.h"

#include "base/error_boundary.h"
#include "platform/open_address.h"
#include "platform/process.h"

namespace launch {

std::string ShellExecuteCapture(const std::string& sCommandLine, bool bShowWindow) {
  std::string output;
  base::RunGuarded([&] { output = platform::CaptureOutput(sCommandLine, bShowWindow); });
  return output;
}

void OpenUrl(const std::string& address) {
  base::RunGuarded([&] { platform::OpenAddress(address); });
}

}  // namespace launch
