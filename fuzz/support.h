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

using base::IsUtf8;

// A new folder as AppFolder, program folder and working folder, with an empty file of each of these
// names. Its parent is the run's own and goes with the run.
std::filesystem::path MakeApp(std::initializer_list<std::string_view> files = {});

}  // namespace fuzz
