#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "core/module1.h"
#include "launch/process_capture.h"
#include "platform/process.h"
#include "platform/program_start.h"
#include "support/temp_app.h"

namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class PosixProcess : public support::TempApp {
 protected:
  static std::string capture(const std::string& command) {
    return launch::ShellExecuteCapture(AppFolder + "\\" + command, false);
  }
  static int run(const char* command) {
    platform::StartedProcess process(command);
    while (process.ExitStatus() == platform::kStillActive)
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return process.ExitStatus();
  }
};

TEST_F(PosixProcess, CaptureGivesStandardOutputAsTextIfThereIsAny) {
  writeProgram("a tool.exe",
               "printf 'caf\\351\\r\\n'; echo lost >&2; ls; echo $#-$2; read x || echo no input");
  EXPECT_EQ(capture("a tool.exe one \"two three\""), "café\r\na tool.exe\n2-two three\nno input\n");
  fs::remove(path("a tool.exe"));
  writeProgram("quiet.exe", "echo only this >&2; exit 3");
  write("plain.exe", "#!/bin/sh\necho x");
  fs::create_directory(path("folder.exe"));
  write("garbage.exe", "\x7F");
  fs::permissions(path("garbage.exe"), fs::perms(0755));
  for (const auto* program : {"quiet.exe", "plain.exe", "folder.exe", "garbage.exe", "a tool.exe"})
    EXPECT_EQ(capture(program), "") << program;
}

TEST_F(PosixProcess, AProgramForWindowsIsHandedToWine) {
  write("tool.exe", "MZ");
  writeProgram("bin/wine", "echo \"$#:$1:$2:$3\"");
  const std::string before = getenv("PATH");
  setenv("PATH", (path("bin").string() + ":" + before).c_str(), 1);
  EXPECT_EQ(capture("tool.exe -a \"b c\""), "3:" + path("tool.exe").string() + ":-a:b c\r\n");
  setenv("PATH", before.c_str(), 1);
}

TEST_F(PosixProcess, StartedProgramIsNotTiedToUs) {
  writeProgram("tool.exe", "cut -d ' ' -f 6 /proc/$$/stat > session; exit 7");
  EXPECT_EQ(run("tool"), 7);
  EXPECT_NE(read("session"), std::to_string(getsid(0)) + "\n");
  writeProgram("tool.exe", "kill -9 $$");
  EXPECT_NE(run("tool"), 0);
}

// Does the step in a child process, which must end by itself then.
template <class Step>
pid_t Fork(const Step& step) {
  const pid_t child = fork();
  if (child != 0) return child;
  alarm(30);
  _exit(step());
}

int StatusOf(pid_t child) {
  int status = -1;
  waitpid(child, &status, 0);
  return status;
}

TEST_F(PosixProcess, AListingEndsWithUsAndAPlayDoesNot) {
  writeProgram("hang.exe", "echo $$ > new; mv new pid; exec sleep 30");
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  for (const bool play : {false, true}) {
    fs::remove(path("pid"));
    const auto us = Fork([&] {
      if (play)
        run("hang");
      else
        capture("hang.exe");
      return 0;
    });
    while (!exists("pid")) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    kill(us, SIGTERM);
    StatusOf(us);
    const auto emulator = std::stoi(read("pid"));
    if (play) kill(emulator, SIGINT);
    EXPECT_EQ(StatusOf(emulator), play ? SIGINT : SIGKILL);
  }
}

TEST_F(PosixProcess, AProgramWithoutStandardHandlesRunsOthersAndWithstandsItsOutputsEnd) {
  writeProgram("tool.exe", "echo out; kill -PIPE $$; echo the signal is ignored");
  EXPECT_EQ(StatusOf(Fork([&] {
              for (const int standard : {0, 1, 2}) close(standard);
              platform::PrepareProgram();
              for (const int signal : {SIGPIPE, SIGXFSZ}) raise(signal);
              return capture("tool.exe") == "out\r\n" ? 0 : 1;
            })),
            0);
}

}  // namespace
