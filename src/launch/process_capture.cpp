#include "launch/process_capture.h"

#include "base/quietly.h"
#include "platform/open_address.h"
#include "platform/process.h"

namespace launch {

std::string ShellExecuteCapture(const std::string& sCommandLine, bool bShowWindow) {
  std::string output;
  base::Quietly([&] { output = platform::CaptureOutput(sCommandLine, bShowWindow); });
  return output;
}

void OpenUrl(const std::string& address) {
  base::Quietly([&] { platform::OpenAddress(address); });
}

}  // namespace launch
