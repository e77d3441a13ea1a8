#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

#include "platform/program_start.h"
#include "support/temp_app.h"

namespace {

namespace fs = std::filesystem;

class PosixProcess : public support::TempApp {};

TEST_F(PosixProcess, CaptureReturnsStandardOutputAsText) {
  writeProgram("a tool.exe",
               "printf 'caf\\351\\r\\n'; echo lost >&2; ls; echo $#-$2; read x || echo no input");
  EXPECT_EQ(capture("a tool.exe one \"two three\""), "café\r\na tool.exe\n2-two three\nno input\n");
  writeProgram("quiet.exe", "echo only this >&2; exit 3");
  write("plain.exe", "#!/bin/sh\necho x");
  fs::create_directory(path("folder.exe"));
  write("garbage.exe", "\x7F");
  fs::permissions(path("garbage.exe"), fs::perms(0755));
  for (const auto* program : {"quiet.exe", "plain.exe", "folder.exe", "garbage.exe", "none.exe"})
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

// Runs the step in a child process, which ends with the step's result as its status.
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

TEST_F(PosixProcess, AListingEndsWithTheProgramAndAPlayDoesNot) {
  writeProgram("hang.exe", "echo $$ > new; mv new pid; exec sleep 30");
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  for (const bool play : {false, true}) {
    fs::remove(path("pid"));
    const auto us =
        Fork([&] { return play ? run("hang") : static_cast<int>(capture("hang.exe").size()); });
    while (!exists("pid")) std::this_thread::sleep_for(std::chrono::milliseconds(2));
    const auto emulator = std::stoi(read("pid"));
    EXPECT_EQ(getsid(emulator) != getsid(us), play)
        << "closing a terminal must end the listing only";
    kill(us, SIGTERM);
    StatusOf(us);
    if (play) kill(emulator, SIGTERM);
    EXPECT_EQ(StatusOf(emulator), play ? SIGTERM : SIGKILL);
  }
}

TEST_F(PosixProcess, ProgramsRunWithoutStandardHandlesAndSignalsOfOutputAreIgnored) {
  writeProgram("tool.exe", "echo out; kill -PIPE $$; echo the signal is ignored");
  const auto us = Fork([&] {
    for (const int standard : {0, 1, 2}) close(standard);
    platform::PrepareProgram();
    for (const int signal : {SIGPIPE, SIGXFSZ}) raise(signal);
    return capture("tool.exe") == "out\r\n" ? 0 : 1;
  });
  EXPECT_EQ(StatusOf(us), 0);
}

}  // namespace
