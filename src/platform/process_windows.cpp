#include <windows.h>

#include <filesystem>
#include <system_error>

#include "base/failure.h"
#include "platform/code_page.h"
#include "platform/process.h"

namespace platform {
namespace {

void Check(bool success) {
  if (!success)
    throw base::Failure(std::system_category().message(static_cast<int>(GetLastError())));
}

class Handle {
 public:
  Handle() = default;
  ~Handle() { close(); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE get() const { return handle_; }
  HANDLE* address() { return &handle_; }
  void close() {
    if (handle_) CloseHandle(handle_);
    handle_ = nullptr;
  }

 private:
  HANDLE handle_ = nullptr;
};

// Starts the command line with its standard output at `output`, or with no standard handles at all.
// The system finds the program by the rules of FindCommand, which are its own. The caller closes
// the result.
HANDLE Start(std::string_view commandLine, WORD showState, HANDLE output) {
  // The system may write into the text.
  auto text =
      std::filesystem::path(std::u8string(commandLine.begin(), commandLine.end())).wstring();
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = showState;
  if (output) {
    startup.dwFlags |= STARTF_USESTDHANDLES;
    startup.hStdOutput = output;
  }
  PROCESS_INFORMATION process{};
  Check(CreateProcessW(nullptr, text.data(), nullptr, nullptr, output != nullptr,
                       NORMAL_PRIORITY_CLASS, nullptr, nullptr, &startup, &process) != 0);
  CloseHandle(process.hThread);
  return process.hProcess;
}

// Appends what the pipe holds at this moment, if anything; whoever still writes to it is not waited
// for.
bool DrainInto(std::string& bytes, HANDLE pipe) {
  DWORD left = 0;
  if (!PeekNamedPipe(pipe, nullptr, 0, nullptr, &left, nullptr) || left == 0) return false;
  const auto before = bytes.size();
  bytes.resize(before + left);
  DWORD count = 0;
  Check(ReadFile(pipe, bytes.data() + before, left, &count, nullptr) != 0);
  bytes.resize(before + count);
  return true;
}

}  // namespace

std::string CaptureOutput(std::string_view commandLine, bool showWindow) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  Handle readEnd;
  Handle writeEnd;
  Check(CreatePipe(readEnd.address(), writeEnd.address(), &inherited, 0) != 0);
  Check(SetHandleInformation(readEnd.get(), HANDLE_FLAG_INHERIT, 0) != 0);

  Handle child;
  *child.address() = Start(commandLine, showWindow ? SW_SHOWNORMAL : SW_HIDE, writeEnd.get());
  writeEnd.close();
  constexpr DWORD kLookAfterMs = 20;
  std::string bytes;
  DWORD patience = 0;
  for (bool running = true; running;) {
    running = WaitForSingleObject(child.get(), patience) == WAIT_TIMEOUT;
    // A child that has filled the pipe goes on writing as soon as there is room.
    patience = DrainInto(bytes, readEnd.get()) ? 0 : kLookAfterMs;
  }
  return DecodeCodePage(bytes);
}

StartedProcess::StartedProcess(std::string_view commandLine)
    : handle_(Start(commandLine, SW_MINIMIZE, nullptr)) {}

StartedProcess::~StartedProcess() { CloseHandle(handle_); }

int StartedProcess::ExitStatus() {
  if (status_ != kStillActive) return status_;
  if (WaitForSingleObject(handle_, 0) == WAIT_TIMEOUT) return kStillActive;
  DWORD status = 1;
  GetExitCodeProcess(handle_, &status);
  // A program may end with the very number that means still active.
  status_ = status == STILL_ACTIVE ? 1 : static_cast<int>(status);
  return status_;
}

}  // namespace platform
