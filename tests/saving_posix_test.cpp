#include <fcntl.h>
#include <sys/file.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/error_boundary.h"
#include "platform/files.h"
#include "support/fake_clock.h"
#include "support/temp_app.h"

namespace {

constexpr int kKill = 0;

// The system call of a save that fails, counted from 1, and what it leaves in errno.
struct {
  int call = 0, error = 0, calls = 0;
} fault;

template <class... Arguments>
int Call(long number, Arguments... arguments) {
  if (++fault.calls != fault.call) return static_cast<int>(syscall(number, arguments...));
  if (fault.error == kKill) _exit(0);
  errno = fault.error;
  return -1;
}

}  // namespace

// Those of the library, for this whole program.
extern "C" {
int flock(int file, int lock) noexcept { return Call(SYS_flock, file, lock); }
int fallocate(int file, int mode, off_t at, off_t n) {
  return Call(SYS_fallocate, file, mode, at, n);
}
int ftruncate(int file, off_t size) noexcept { return Call(SYS_ftruncate, file, size); }
ssize_t pwrite(int file, const void* bytes, size_t size, off_t at) {
  return Call(SYS_pwrite64, file, bytes, size, at);
}
int fdatasync(int file) { return Call(SYS_fdatasync, file); }
int fsync(int file) { return Call(SYS_fsync, file); }
}

namespace platform {
namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class Saving : public support::TempApp {
 protected:
  // Saves, in a child process if it is to be killed; how many of its system calls were made.
  int save(const std::string& text, int call, int error) const {
    fault = {call, error, 0};
    const bool dies = call > 0 && error == kKill;
    const pid_t child = dies ? fork() : 0;
    const bool saved = child == 0 && base::RunGuarded([&] { WriteBytes(file, text); });
    if (dies && child == 0) _exit(0);
    if (dies) waitpid(child, nullptr, 0);
    EXPECT_TRUE(saved || call > 0);
    fault.call = 0;
    return fault.calls;
  }
  // What a reader makes of the file, whatever empty lines stand at its end.
  std::string saved() const {
    if (!exists("a.ini")) return "none";
    auto text = ReadText(file);
    return text.erase(text.find_last_not_of("\r\n") + 1);
  }

  const std::string file = AppFolder + "\\a.ini";
};

TEST_F(Saving, AFaultAtAnySystemCallLeavesTheOldTextOrTheNew) {
  const std::string old = "old\r\n\r\nlines", longer(20000, 'x'), shorter = "new", odd = "odd!";
  // Some file systems know no files without a name.
  const int probe = open(AppFolder.c_str(), O_TMPFILE | O_WRONLY, 0600);
  const bool nameless = probe >= 0;
  close(probe);
  for (const auto& text : {longer, shorter, odd, std::string("new\r\n\r\nlines")}) {
    write("a.ini", old);
    const int calls = save(text, 0, 0);
    EXPECT_EQ(read("a.ini"), text);
    EXPECT_EQ(calls, text.size() > old.size() ? 6 : text.size() < old.size() ? 7 : 5);
    for (int call = 1; call <= calls; ++call)
      for (const int error : {kKill, EIO, ENOSPC, EOPNOTSUPP, EINTR}) {
        SCOPED_TRACE(text.substr(0, 5) + std::to_string(call) + "/" + std::to_string(error));
        write("a.ini", old);
        save(text, call, error);
        EXPECT_TRUE(saved() == old || saved() == text) << saved();
        fs::remove(path("a.ini"));
        save(text, call, error);
        EXPECT_TRUE(saved() == "none" || saved() == text || (!nameless && saved().empty()))
            << saved();
        fs::remove(path("a.ini"));
      }
  }
}

TEST_F(Saving, ALinkStaysAndItsFileIsWritten) {
  fs::create_symlink("target.ini", path("link.ini"));
  WriteBytes(AppFolder + "\\link.ini", "new");
  EXPECT_EQ(read("target.ini"), "new");
  EXPECT_TRUE(fs::is_symlink(path("link.ini")));
}

TEST_F(Saving, AnotherProgramsFileIsReadAndAfterASecondNotWritten) {
  support::FakeClock clock;
  write("a.ini", "old");
  const int other = open(path("a.ini").c_str(), O_RDWR);
  flock(other, LOCK_EX);
  EXPECT_ANY_THROW(WriteBytes(file, "new"));
  EXPECT_EQ(clock.sleeps.size(), 199U);
  EXPECT_EQ(ReadBytes(file), "old");
  flock(other, LOCK_SH);
  EXPECT_ANY_THROW(WriteBytes(file, "new")) << "a reader's";
  clock.onSleep = [&] { flock(other, LOCK_UN); };
  flock(other, LOCK_EX);
  WriteBytes(file, "new");
  EXPECT_EQ(ReadBytes(file), "new");
  close(other);
}

}  // namespace
}  // namespace platform
