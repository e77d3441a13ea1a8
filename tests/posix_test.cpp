// What only POSIX systems have: names in one letter case, pipes, signals, scripts.
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <thread>

#include "config/user_settings.h"
#include "platform/file_search.h"
#include "platform/files.h"
#include "platform/program_start.h"
#include "support/temp_app.h"

namespace platform {
namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class Posix : public support::TempApp {};

TEST_F(Posix, FilesAreFoundInAnySpelling) {
  for (const auto* name : {"ROMs/Éclair One.ZIP", "ROMs/two.zip", "ROMs/TWO.zip", "ROMs/three.zip",
                           "ROMs/FOUR.zip", "TWO.ZIP", "Éclair one.zip", "Three.ZIP"})
    write(name, "");
  for (const auto* folder : {"ROMs/folder.zip", "three.zip"}) fs::create_directory(path(folder));
  fs::create_symlink("gone.zip", path("ROMs/link.zip"));
  fs::create_directory_symlink(".", path("ROMs/loop"));
  const struct {
    const char *name, *file;  // empty if there is no such file
  } rows[] = {{"\\roms\\éclair one.zip", "ROMs/Éclair One.ZIP"},
              {"/roms\\two.zip", "ROMs/two.zip"},
              {"\\roms\\TWO.zip", "ROMs/TWO.zip"},
              {"\\roms\\\\two.zip", "ROMs/two.zip"},
              {"\\roms\\LOOP\\loop\\two.zip", "ROMs/two.zip"},
              {"\\roms\\link.zip", ""},
              {"\\roms\\folder.zip", ""},
              {"\\roms\\two.zip\\x", ""},
              {"\\none\\two.zip", ""}};
  for (const auto& [name, file] : rows) {
    EXPECT_EQ(IsFile(AppFolder + name), *file != '\0') << name;
    EXPECT_TRUE(!*file || fs::equivalent(SystemPath(AppFolder + name), path(file))) << name;
  }
  // A different spelling in an earlier folder comes before the exact spelling in a later one.
  EXPECT_EQ(FirstFolderOfEach({"two.zip", "éclair one.zip", "Three.ZIP", "three.zip", "four.zip",
                               "link.zip", "folder.zip", "loop"},
                              {AppFolder + "\\none", AppFolder, AppFolder + "\\ROMS\\loop"}),
            std::vector<std::size_t>({1, 1, 1, 2, 2, 3, 3, 3}));
  auto shared = "\\\\" + AppFolder.substr(1) + "\\\\roms\\\\two.zip";
  EXPECT_TRUE(FileExists(shared));
  EXPECT_EQ(shared, "\\\\" + AppFolder.substr(1) + "\\roms\\two.zip");
  EXPECT_TRUE(IsFolder(AppFolder + "\\roms\\") && !IsFolder(AppFolder + "\\roms\\two.zip"));
  EXPECT_TRUE(IsFile("roms\\two.zip") && !IsFile("")) << "relative to the working folder";
}

TEST_F(Posix, FilesAreNoticedWhenTheyWereJustCreatedOrDeleted) {
  fs::create_directory(path("ROMs"));
  const auto name = AppFolder + "\\ROMS\\GAME.ZIP";
  const auto now = fs::file_time_type::clock::now();
  const auto old = now - std::chrono::milliseconds(12345);
  const auto coarse = std::chrono::floor<std::chrono::seconds>(now - std::chrono::seconds(1));
  for (const auto& changed : {now, fs::file_time_type(coarse), old}) {
    fs::last_write_time(path("ROMs"), changed);
    ASSERT_FALSE(IsFile(name));
    write("ROMs/game.zip", "");
    // A second change within one tick of the file system's clock does not change the folder's time.
    if (changed != old) fs::last_write_time(path("ROMs"), changed);
    EXPECT_TRUE(IsFile(name));
    fs::remove(path("ROMs/game.zip"));
    EXPECT_FALSE(IsFile(name));
  }
}

TEST_F(Posix, FilesAreListedWithoutAskingEachBecauseAVolumeMayNotAnswer) {
  write("listed/a.zip", "");
  fs::create_directory(path("listed/folder"));
  fs::permissions(path("listed"), fs::perms(0444));  // no entry can be asked
  {
    const support::Unprivileged user;
    EXPECT_EQ(SubfolderNames(AppFolder + "\\listed"), std::vector<std::string>({"folder"}));
    EXPECT_EQ(FileNames(AppFolder + "\\listed"), std::vector<std::string>({"a.zip"}));
  }
  fs::permissions(path("listed"), fs::perms(0777));
}

TEST_F(Posix, APipeIsNeitherReadNorWaitedFor) {
  mkfifo(path("pipe").c_str(), 0666);
  EXPECT_FALSE(IsFile(AppFolder + "\\pipe"));
  EXPECT_ANY_THROW(ReadBytes(AppFolder + "\\pipe"));
  EXPECT_ANY_THROW(WriteBytes(AppFolder + "\\pipe", "x"));
}

TEST_F(Posix, ALockedSettingsStoreBlocksNobodyAndIsWrittenLater) {
  const fs::path lock = std::string(getenv("XDG_CONFIG_HOME")) + "/Kestrivane UI.conf.lock";
  std::ofstream(lock) << "another";
  config::SaveUserSettings();
  EXPECT_EQ(settings(), "");
  fs::remove(lock);
  while (settings().empty()) std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

TEST_F(Posix, CaptureReturnsStandardOutputAsText) {
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
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "ended processes are left";
}

TEST_F(Posix, AProgramForWindowsIsHandedToWine) {
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

TEST_F(Posix, AListingEndsWithTheProgramAndAPlayDoesNot) {
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

TEST_F(Posix, ListingHasTheFirstEnvironmentAndNeedsNoHandlesAndSignalsAreIgnored) {
  writeProgram("tool.exe", "echo out$LATER; kill -PIPE $$; echo the signal is ignored");
  const auto us = Fork([&] {
    for (const int standard : {0, 1, 2}) close(standard);
    PrepareProgram();
    setenv("LATER", "; the environment was changed", 1);
    for (const int signal : {SIGPIPE, SIGXFSZ}) raise(signal);
    return capture("tool.exe") == "out\r\n" ? 0 : 1;
  });
  EXPECT_EQ(StatusOf(us), 0);
}

}  // namespace
}  // namespace platform
