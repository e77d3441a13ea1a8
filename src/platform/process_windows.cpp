#include "platform/process.h"

#include <algorithm>

#include "base/failure.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/system_windows.h"

namespace platform {
namespace {

std::wstring Quoted(const std::string& word) {
  if (!word.empty() && word.find_first_of(" \t") == std::string::npos) return ToWide(word);
  // In front of the closing quote a backslash would make it a part of the word.
  const auto backslashes = word.size() - (word.find_last_not_of('\\') + 1);
  return ToWide('"' + word + std::string(backslashes, '\\') + '"');
}

// The command as one text that the program's own library cuts into the same words again.
std::wstring LineOf(const Command& command) {
  auto line = Quoted(command.program);
  for (const auto& argument : command.arguments) line += L' ' + Quoted(argument);
  return line;
}

// The program's file as the system takes it. Other programs may not know the mark of a full name,
// which would be in what they are told of their own place, so that it stands where it must only.
std::wstring FileOf(const Command& command) {
  auto full = FullName(command.program);
  return full.size() < MAX_PATH ? ToWide(command.program) : full;
}

// Starts the command line with its standard output at `output`, or nowhere, and ends it with `job`
// if there is one. The caller closes the result.
HANDLE Start(std::string_view commandLine, WORD showState, HANDLE output, HANDLE job) {
  const auto command = FindCommand(commandLine);
  if (!command) throw base::Failure("no such program");
  // The system may write into this text.
  auto line = LineOf(*command);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
  startup.wShowWindow = showState;
  startup.hStdOutput = output;
  PROCESS_INFORMATION process{};
  // The file is named, so that no other than the one that was found can run.
  Check(CreateProcessW(FileOf(*command).c_str(), line.data(), nullptr, nullptr, output != nullptr,
                       NORMAL_PRIORITY_CLASS | CREATE_SUSPENDED, nullptr, nullptr, &startup,
                       &process) != 0);
  if (job) AssignProcessToJobObject(job, process.hProcess);
  ResumeThread(process.hThread);
  CloseHandle(process.hThread);
  return process.hProcess;
}

// What runs in it, without what that starts, ends when the job's handle is closed: at our end too.
HANDLE NewJob() {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags =
      JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_SILENT_BREAKAWAY_OK;
  auto* const job = CreateJobObjectW(nullptr, nullptr);
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

// Takes what the pipe holds at this moment, if anything, and drops what is beyond the limit;
// whoever still writes to it is not waited for.
bool DrainInto(std::string& bytes, HANDLE pipe) {
  DWORD left = 0;
  if (!PeekNamedPipe(pipe, nullptr, 0, nullptr, &left, nullptr) || left == 0) return false;
  std::string part(left, '\0');
  DWORD count = 0;
  Check(ReadFile(pipe, part.data(), left, &count, nullptr) != 0);
  bytes.append(part, 0, std::min<std::size_t>(count, kMostOutput - bytes.size()));
  return true;
}

}  // namespace

std::string CaptureOutput(std::string_view commandLine, bool showWindow) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  Handle readEnd;
  Handle writeEnd;
  Check(CreatePipe(readEnd.address(), writeEnd.address(), &inherited, 0) != 0);
  Check(SetHandleInformation(readEnd.get(), HANDLE_FLAG_INHERIT, 0) != 0);

  const Handle job(NewJob());
  const Handle child(
      Start(commandLine, showWindow ? SW_SHOWNORMAL : SW_HIDE, writeEnd.get(), job.get()));
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

struct StartedProcess::Native {
  Handle handle;
};

StartedProcess::StartedProcess(std::string_view commandLine)
    : native_(new Native{Handle(Start(commandLine, SW_MINIMIZE, nullptr, nullptr))}) {}

StartedProcess::~StartedProcess() = default;

int StartedProcess::ExitStatus() {
  if (status_ != kStillActive) return status_;
  if (WaitForSingleObject(native_->handle.get(), 0) == WAIT_TIMEOUT) return kStillActive;
  DWORD status = 1;
  GetExitCodeProcess(native_->handle.get(), &status);
  // A program may end with the very number that means still active.
  status_ = status == STILL_ACTIVE ? 1 : static_cast<int>(status);
  return status_;
}

}  // namespace platform
