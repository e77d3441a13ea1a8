// Files as the system opens them, for reading and saving.
#pragma once

#include <sys/types.h>

#include <cerrno>
#include <chrono>
#include <string>

#include "platform/clock.h"

namespace platform {

// Repeats a system call that was interrupted or would have to wait for another program, for at most
// a second. Its last answer.
template <class Call>
auto Patiently(const Call& call) {
  constexpr int kTries = 200;
  constexpr std::chrono::milliseconds kPause(5);
  for (int tries = 1;; ++tries) {
    const auto answer = call();
    if (answer >= 0 || (errno != EINTR && errno != EAGAIN) || tries == kTries) return answer;
    TheClock().sleep(kPause);
  }
}

// An open regular file, never a pipe or the like. Readers share it, a writer has it alone: a file
// that another program keeps locked is read all the same, but not written.
class OpenFile {
 public:
  // `mode` as the system's open takes it. Fails if the file can't be had.
  OpenFile(const std::string& path, int mode);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  int descriptor() const { return descriptor_; }
  off_t size() const;

 private:
  int descriptor_;
};

}  // namespace platform
