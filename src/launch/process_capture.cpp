#include "launch/process_capture.h"

#include "base/quietly.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/open_address.h"
#include "platform/process.h"

namespace launch {

std::string ShellExecuteCapture(const std::string& sCommandLine, bool bShowWindow) {
  std::string output;
  base::Quietly([&] { output = platform::CaptureOutput(sCommandLine, bShowWindow); });
  return output;
}

bool FileExists(std::string& FilePath) {
  bool exists = false;
  base::Quietly([&] {
    if (FilePath.find("\\\\") != std::string::npos)
      FilePath = base::ReplaceIgnoringCase(FilePath, "\\\\", "\\");
    exists = platform::IsFile(FilePath);
  });
  return exists;
}

void OpenUrl(const std::string& address) {
  base::Quietly([&] { platform::OpenAddress(address); });
}

}  // namespace launch
