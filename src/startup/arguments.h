#pragma once

#include <string>
#include <vector>

namespace startup {

// What the program prints because of its arguments, before anything else of it starts.
struct Answer {
  std::string output;     // not empty: it goes to standard output, and the program ends
  std::string complaint;  // about arguments that mean nothing to it; goes to standard error
};

// The answer to the arguments behind the program's name. Of "--version" and "--help" the first one
// counts.
Answer AnswerTo(const std::vector<std::string>& arguments);

}  // namespace startup
