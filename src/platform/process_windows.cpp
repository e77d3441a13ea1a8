#include "platform/process.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/failure.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/system_windows.h"

namespace platform {
namespace {

std::wstring Quoted(const std::string& argument) {
  if (!argument.empty() && argument.find_first_of(" \t") == std::string::npos)
    return ToWide(argument);
  // Backslashes at the end are doubled, because a single one would escape the closing quote.
  const auto backslashes = argument.size() - (argument.find_last_not_of('\\') + 1);
  return ToWide('"' + argument + std::string(backslashes, '\\') + '"');
}

// The arguments as one text, which the started program splits into the same arguments.
std::wstring ArgumentsOf(const Command& command) {
  std::wstring line;
  for (const auto& argument : command.arguments) line += L' ' + Quoted(argument);
  return line;
}

std::wstring LineOf(const Command& command) {
  return Quoted(command.program) + ArgumentsOf(command);
}

// The program's path for the system. The prefix of a full name is used for long paths only, because
// the started program gets it as part of its own path and may not understand it.
std::wstring FileOf(const Command& command) {
  auto full = FullName(command.program);
  return full.size() < MAX_PATH ? ToWide(command.program) : full;
}

// Makes a new process inherit this handle only, and no other inheritable one of this program.
class Inheritance {
 public:
  explicit Inheritance(HANDLE handle) : handle_(handle) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    bytes_.resize(size);
    Check(InitializeProcThreadAttributeList(list(), 1, 0, &size) != 0);
    Check(UpdateProcThreadAttribute(list(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, &handle_,
                                    sizeof handle_, nullptr, nullptr) != 0);
  }
  ~Inheritance() { DeleteProcThreadAttributeList(list()); }
  Inheritance(const Inheritance&) = delete;
  Inheritance& operator=(const Inheritance&) = delete;

  LPPROC_THREAD_ATTRIBUTE_LIST list() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(bytes_.data());
  }

 private:
  HANDLE handle_;
  std::vector<char> bytes_;
};

// Creates the command's process in suspended state. `output` is its standard output, null for none.
// Returns false on failure, with the reason in GetLastError.
bool Create(const Command& command, WORD showState, HANDLE output, PROCESS_INFORMATION& process) {
  // CreateProcessW may write into this text.
  auto line = LineOf(command);
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
  startup.StartupInfo.wShowWindow = showState;
  startup.StartupInfo.hStdOutput = output;
  std::optional<Inheritance> inheritance;
  if (output) startup.lpAttributeList = inheritance.emplace(output).list();
  // A listing runs unseen. A play shows the system's message boxes, such as one about a library
  // that is missing, although this program suppresses its own.
  const DWORD errorMode = output ? 0 : CREATE_DEFAULT_ERROR_MODE;
  const DWORD flags =
      NORMAL_PRIORITY_CLASS | CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT | errorMode;
  // With the file given, no program can run but the one that was found.
  return CreateProcessW(FileOf(command).c_str(), line.data(), nullptr, nullptr, output != nullptr,
                        flags, nullptr, nullptr, &startup.StartupInfo, &process) != 0;
}

// While it exists, a program whose file asks for administrator rights is started without them.
class WithoutElevation {
 public:
  WithoutElevation() { SetEnvironmentVariableW(kName, L"RunAsInvoker"); }
  ~WithoutElevation() { SetEnvironmentVariableW(kName, nullptr); }
  WithoutElevation(const WithoutElevation&) = delete;
  WithoutElevation& operator=(const WithoutElevation&) = delete;

 private:
  static constexpr auto* kName = L"__COMPAT_LAYER";
};

HANDLE Resumed(const PROCESS_INFORMATION& process) {
  ResumeThread(process.hThread);
  CloseHandle(process.hThread);
  return process.hProcess;
}

Command Found(std::string_view commandLine) {
  auto command = FindCommand(commandLine);
  if (!command) throw base::Failure("no such program");
  return *std::move(command);
}

// Lets the shell start the command. The shell asks the user for the administrator rights.
HANDLE StartElevated(const Command& command, int showState) {
  const auto file = FileOf(command);
  const auto arguments = ArgumentsOf(command);
  std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  SHELLEXECUTEINFOW start{};
  start.cbSize = sizeof start;
  start.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
  start.lpFile = file.c_str();
  start.lpParameters = arguments.c_str();
  // Without a folder the program would start in the system's.
  start.lpDirectory = folder.c_str();
  start.nShow = showState;
  Check(ShellExecuteExW(&start) != 0);
  // The shell may have handed the command to a program that runs already.
  if (!start.hProcess) throw base::Failure("no process to wait for");
  return start.hProcess;
}

// The caller closes the result.
HANDLE StartPlay(std::string_view commandLine) {
  const auto command = Found(commandLine);
  PROCESS_INFORMATION process{};
  if (Create(command, SW_MINIMIZE, nullptr, process)) return Resumed(process);
  Check(GetLastError() == kElevationRequired);
  return StartElevated(command, SW_MINIMIZE);
}

// Starts a command that only prints, and puts it into `job`. The caller closes the result.
HANDLE StartListing(std::string_view commandLine, WORD showState, HANDLE output, HANDLE job) {
  const auto command = Found(commandLine);
  PROCESS_INFORMATION process{};
  if (!Create(command, showState, output, process)) {
    Check(GetLastError() == kElevationRequired);
    // A program with administrator rights can't write to our pipe, and printing does not need them.
    const WithoutElevation layer;
    Check(Create(command, showState, output, process));
  }
  if (job) AssignProcessToJobObject(job, process.hProcess);
  return Resumed(process);
}

// A job whose process ends when the job's handle is closed, so also when this program ends.
// Processes that it starts are not part of the job.
HANDLE NewJob() {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags =
      JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_SILENT_BREAKAWAY_OK;
  auto* const job = CreateJobObjectW(nullptr, nullptr);
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

// Appends what the pipe holds now, without waiting for more, and drops what exceeds kMostOutput.
// Returns false if the pipe was empty.
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
      StartListing(commandLine, showWindow ? SW_SHOWNORMAL : SW_HIDE, writeEnd.get(), job.get()));
  writeEnd.close();
  constexpr DWORD kPollIntervalMs = 20;
  std::string bytes;
  DWORD waitMs = 0;
  for (bool running = true; running;) {
    running = WaitForSingleObject(child.get(), waitMs) == WAIT_TIMEOUT;
    // A child that had filled the pipe writes on at once, now that there is room.
    waitMs = DrainInto(bytes, readEnd.get()) ? 0 : kPollIntervalMs;
  }
  return DecodeCodePage(bytes);
}

struct StartedProcess::Native {
  Handle handle;
};

StartedProcess::StartedProcess(std::string_view commandLine)
    : native_(new Native{Handle(StartPlay(commandLine))}) {}

StartedProcess::~StartedProcess() = default;

int StartedProcess::ExitStatus() {
  if (status_ != kStillActive) return status_;
  if (WaitForSingleObject(native_->handle.get(), 0) == WAIT_TIMEOUT) return kStillActive;
  DWORD status = 1;
  GetExitCodeProcess(native_->handle.get(), &status);
  // The program's own exit status may be the number that means "still active".
  status_ = status == STILL_ACTIVE ? 1 : static_cast<int>(status);
  return status_;
}

}  // namespace platform
