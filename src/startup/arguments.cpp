#include "startup/arguments.h"

#include "core/version.h"

namespace startup {
namespace {

std::string Version() {
  return "Kestrivane UI " + std::to_string(core::kMajor) + "." + std::to_string(core::kMinor) +
         "." + std::to_string(core::kRevision) + "\n";
}

constexpr const char* kHelp =
    "Usage: KestrivaneUI [--version | --help]\n"
    "\n"
    "The front-end for the arcade emulator Kestrivane, which\n"
    "has to be in the same folder as Kestrivane.exe. Without an\n"
    "argument the front-end opens its window.\n"
    "\n"
    "  --version  print the version and end\n"
    "  --help     print this text and end\n";

}  // namespace

Answer AnswerTo(const std::vector<std::string>& arguments) {
  Answer answer;
  for (const auto& argument : arguments) {
    const bool version = argument == "--version";
    if (!version && argument != "--help")
      answer.complaint += "KestrivaneUI: unknown argument ignored: " + argument + "\n";
    else if (answer.output.empty())
      answer.output = version ? Version() : kHelp;
  }
  return answer;
}

}  // namespace startup
