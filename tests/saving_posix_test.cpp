#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdarg>
#include <thread>

#include "config/config_reader.h"
#include "config/config_writer.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "support/fake_clock.h"
#include "support/temp_app.h"

namespace {

// Makes one system call fail, counted from 1; if it lasts, also later calls of the same name.
// Without an error, the process ends at that call.
thread_local struct Fault {
  int call = 0;
  int error = 0;
  bool lasts = false;
  bool isShort = false;  // the call gets half of its bytes, and the next one fails
  bool isCounting = false;
  int calls = 0;
  std::string name{};
} fault;

bool Fails(const char* name) {
  if (!fault.isCounting) return false;
  const bool isNext = ++fault.calls == fault.call;
  if (isNext && fault.error == 0) _exit(0);
  if (isNext) fault.name = name;
  const bool isOneMore = fault.lasts && fault.calls > fault.call && fault.name == name;
  if (isNext || isOneMore) errno = fault.error;
  return isNext || isOneMore;
}

// Whether a call for `size` bytes succeeds, perhaps for half of them.
bool Does(const char* name, std::size_t& size) {
  if (!fault.isCounting || !fault.isShort || fault.calls + 1 != fault.call || size < 2)
    return !Fails(name);
  fault.isShort = false;
  fault.name = name;
  fault.calls += 1;
  fault.call += fault.lasts ? 0 : 1;
  size /= 2;
  return true;
}

template <class Function>
Function* Next(Function*, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// The library's own function, or one that only fails.
template <class Result, class... Types>
auto Call(Result (*function)(Types...), const char* name) {
  return Fails(name) ? [](Types...) { return std::is_pointer_v<Result> ? Result() : Result(-1); }
                     : Next(function, name);
}

}  // namespace

#define NEXT(function) Next(&(function), #function)
#define CALL(function) Call(&(function), #function)

// These replace the library's functions in this program.
extern "C" {
int stat(const char* path, struct stat* status) noexcept { return CALL(stat)(path, status); }
int fstat(int file, struct stat* status) noexcept { return CALL(fstat)(file, status); }
DIR* opendir(const char* path) { return CALL(opendir)(path); }
dirent* readdir(DIR* folder) { return CALL(readdir)(folder); }
ssize_t readlink(const char* path, char* text, size_t size) noexcept {
  return CALL(readlink)(path, text, size);
}
int open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const auto mode = va_arg(more, mode_t);
  va_end(more);
  return Fails("open") ? -1 : NEXT(open)(path, flags, mode);
}
int flock(int file, int lock) noexcept { return CALL(flock)(file, lock); }
ssize_t pread(int file, void* bytes, size_t size, off_t at) {
  return Does("pread", size) ? NEXT(pread)(file, bytes, size, at) : -1;
}
ssize_t pwrite(int file, const void* bytes, size_t size, off_t at) {
  return Does("write", size) ? NEXT(pwrite)(file, bytes, size, at) : -1;
}
ssize_t write(int file, const void* bytes, size_t size) {
  return Does("write", size) ? NEXT(write)(file, bytes, size) : -1;
}
int fallocate(int file, int mode, off_t at, off_t n) { return CALL(fallocate)(file, mode, at, n); }
int ftruncate(int file, off_t size) noexcept { return CALL(ftruncate)(file, size); }
int fchmod(int file, mode_t mode) noexcept { return CALL(fchmod)(file, mode); }
int linkat(int from, const char* old, int to, const char* name, int flags) noexcept {
  return CALL(linkat)(from, old, to, name, flags);
}
// A test needs no real syncs, which take long.
int fdatasync(int) { return Fails("sync") ? -1 : 0; }
int fsync(int) { return Fails("sync") ? -1 : 0; }
}

namespace platform {
namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

constexpr const char* kFile = "Config/Kestrivane.ini";

// The text of a file as a reader decodes it, without empty lines at its end.
std::string WithoutEmptyLines(const std::string& bytes) {
  auto text = DecodeLines(bytes);
  return text.erase(text.find_last_not_of("\r\n") + 1);
}

class Saving : public support::TempApp {
 protected:
  Saving() { fs::create_directory(path("Config")); }

  // Runs a start, a change by another program, and a save, with a fault; in a child process if the
  // fault kills it. Returns the number of system calls, or nothing of use if the fault
  // kills.
  static int run(const std::string& change, std::size_t plays, const Fault& with = {}) {
    const bool kills = with.call > 0 && with.error == 0;
    const pid_t child = kills ? fork() : 0;
    if (child != 0) return waitpid(child, nullptr, 0);
    startup::FillSharedState();
    fault = with;
    fault.isCounting = true;
    config::Adopt(config::LoadConfigFile(AppFolder));
    fault.isCounting = false;
    if (!change.empty()) write(kFile, change);
    Module1::PlayLog.fill({});
    for (std::size_t play = 0; play < plays; ++play)
      Module1::PlayLog[play] = {std::string(99, 'g'), "1", "30"};
    fault.isCounting = true;
    config::WriteConfigFile();
    fault.isCounting = false;
    if (kills) _exit(0);
    return fault.calls;
  }

  static bool isKept(const std::string& text) {
    for (const auto& file : fs::directory_iterator(path("Config")))
      if (WithoutEmptyLines(read("Config/" + support::ToText(file.path().filename()))) ==
          WithoutEmptyLines(text))
        return true;
    return false;
  }
  static std::string stored() { return WithoutEmptyLines(read(kFile)); }
};

TEST_F(Saving, AFaultAtAnySystemCallLeavesTheOldTextOrTheNewOrACopy) {
  const support::ShortPatience patience(std::chrono::microseconds(50));
  startup::FillSharedState();
  config::WriteConfigFile();
  const auto few = read(kFile);
  run("", 40);
  const auto many = read(kFile);
  const std::string foreign = "Vsync = 0\n[ a ]\nThrottle = 0\n",
                    bad = foreign + ";InputMethod=x\n";
  const struct {
    const char* what;
    std::string old, change;  // an old text that begins with ">" is the target of a link
    std::size_t plays;
  } cases[] = {{"first", "", "", 1},
               {"through a link", ">target", "", 1},
               {"grow", few, "", 40},
               {"shrink", many, "", 0},
               {"shrink a little", "; a note\r\n" + many, "", 30},
               {"same size", many, "", 40},
               {"foreign", foreign, "", 40},
               {"read in part", bad, "", 40},
               {"changed", few, many + "; by hand\r\n", 1},
               {"appeared", "", few, 1}};
  const Fault kinds[] = {{0, 0},     {0, EIO, true},        {0, EOPNOTSUPP, true},
                         {0, EINTR}, {0, EIO, false, true}, {0, ENOSPC, true, true}};
  int faults = 0;
  for (const auto& [what, old, change, plays] : cases) {
    const bool isLink = old.starts_with('>');
    const auto prepare = [&, &old = old] {
      fs::remove_all(path("Config"));
      fs::create_directory(path("Config"));
      if (isLink)
        fs::create_symlink(old.substr(1), path(kFile));
      else if (!old.empty())
        write(kFile, old);
    };
    const auto& lost = change.empty() ? old : change;
    prepare();
    const int calls = run(change, plays);
    const auto saved = stored();
    ASSERT_EQ(saved, WithoutEmptyLines(EncodeCodePage(config::ConfigText()))) << what;
    const auto files = [] { return std::distance(fs::directory_iterator(path("Config")), {}); };
    const auto before = files();
    config::WriteConfigFile();
    EXPECT_EQ(files(), before) << what << ": what this run wrote is known";
    EXPECT_EQ(fs::is_symlink(path(kFile)), isLink) << what;
    struct stat status {};
    ASSERT_EQ(stat(path(kFile).c_str(), &status), 0);
    EXPECT_LT(status.st_blocks * 512, status.st_size + 4096) << what << ": no room is kept";
    for (auto kind : kinds)
      for (kind.call = 1; kind.call <= calls; ++kind.call, ++faults) {
        SCOPED_TRACE(std::string(what) + ", call " + std::to_string(kind.call) + ", error " +
                     std::to_string(kind.error) + (kind.lasts ? ", lasting" : "") +
                     (kind.isShort ? ", short" : ""));
        prepare();
        run(change, plays, kind);
        // Checks the file after the fault, and after another save without a fault.
        for (const bool again : {false, true}) {
          const auto now = stored();
          const bool isAsBefore = kind.error == 0 && now == WithoutEmptyLines(old);
          EXPECT_TRUE(now == saved ||
                      (lost.empty() || isLink ? !exists(kFile) : isKept(lost) || isAsBefore))
              << again << now;
          if (again || kind.error == 0) break;
          const bool isTriedAgain =
              fault.name == "stat" || fault.name == "write" || fault.name == "sync";
          EXPECT_TRUE(now == saved || kind.lasts || !isTriedAgain) << fault.name << now;
          config::WriteConfigFile();
          EXPECT_EQ(stored(), WithoutEmptyLines(EncodeCodePage(config::ConfigText())));
          EXPECT_FALSE(now == WithoutEmptyLines(lost) && exists("Config/Kestrivane.ini.unread2"));
        }
      }
  }
  EXPECT_GT(faults, 2000);
}

TEST_F(Saving, AFileThatAnotherProgramHasLockedIsReadButNotWritten) {
  const support::ShortPatience patience;
  const auto file = AppFolder + "\\a.ini";
  write("a.ini", "old");
  const int other = open(path("a.ini").c_str(), O_RDWR);
  flock(other, LOCK_EX);
  EXPECT_ANY_THROW(WriteBytes(file, "new"));
  EXPECT_EQ(ReadBytes(file), "old");
  flock(other, LOCK_SH);
  EXPECT_ANY_THROW(WriteBytes(file, "new")) << "a reader holds the lock";
  flock(other, LOCK_EX);
  FilePatience() = std::chrono::seconds(20);
  std::thread unlocking([other] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    flock(other, LOCK_UN);
  });
  WriteBytes(file, "new");
  unlocking.join();
  EXPECT_EQ(ReadBytes(file), "new");
  close(other);
}

}  // namespace
}  // namespace platform
