// What the fuzzers share.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/text.h"

namespace fuzz {

// Each fuzzer defines this function, which passes the bytes to the program and checks the result.
void Examine(std::string_view bytes);

// Ends the run with a finding if `holds` is false.
void Require(bool holds, const char* what);

// Creates a folder with empty files of these names, and makes it AppFolder, program folder and
// working folder. run.sh removes it.
std::filesystem::path MakeApp(std::initializer_list<std::string_view> files = {});

}  // namespace fuzz
