#pragma once

#include <thread>

#include "launch/process_capture.h"
#include "platform/process.h"
#include "support/temp_app.h"

namespace support {

// Runs the programs that a test puts into AppFolder.
class ProcessApp : public TempApp {
 protected:
  static std::string capture(const std::string& command) {
    return launch::ShellExecuteCapture(Module1::AppFolder + "\\" + command, false);
  }
  // Waits for its end; the exit status.
  static int run(const std::string& command) {
    platform::StartedProcess process(command);
    while (process.ExitStatus() == platform::kStillActive)
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return process.ExitStatus();
  }
};

}  // namespace support
