// What the fuzzers share.
#pragma once

#include <string_view>

namespace fuzz {

// Each fuzzer defines this function, which passes the bytes to the program and checks the result.
void Examine(std::string_view bytes);

// Ends the run with a finding if `holds` is false.
void Require(bool holds, const char* what);

}  // namespace fuzz
