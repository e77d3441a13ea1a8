// What the fuzzers share.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/text.h"

namespace fuzz {

// Each fuzzer defines this: it hands the bytes to the program and checks what must hold then.
void Examine(std::string_view bytes);

// Something that must hold whatever the input; ends the run as a finding if it does not.
void Require(bool holds, const char* what);

using base::IsUtf8;

// A folder of this run's own as AppFolder, program folder and working folder; gone at its end.
class TempApp {
 public:
  // Holds an empty file of each of these names, in folders of its own.
  explicit TempApp(std::initializer_list<std::string_view> files = {});
  ~TempApp();
  TempApp(const TempApp&) = delete;
  TempApp& operator=(const TempApp&) = delete;

  const std::filesystem::path& folder() const { return folder_; }

 private:
  std::filesystem::path folder_;
};

}  // namespace fuzz
