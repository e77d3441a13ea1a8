// The emulator's report is everything after the seventh line of any file, unless that part says
// that the run ended well.
#include <fstream>

#include "core/module1.h"
#include "launch/error_log.h"
#include "platform/code_page.h"
#include "support.h"

void fuzz::Examine(std::string_view bytes) {
  static const auto folder = MakeApp();
  std::ofstream(folder / "error.log", std::ios::binary) << bytes;
  Module1::ErrorText = "as before";
  const bool failed = launch::ReadErrorLog();

  auto report = platform::DecodeLines(bytes);
  for (int line = 0; line < 7 && !report.empty(); ++line) report.erase(0, report.find("\r\n") + 2);
  const bool good = base::FoldCase(report).find("program terminated normally.") != report.npos;
  report.erase(0, report.find_first_not_of(' '));
  Require(failed != good, "the good end decides");
  Require(Module1::ErrorText == (failed ? report : "as before"), "the report is the rest");
  Require(IsUtf8(Module1::ErrorText), "the report is UTF-8");
  Require(!exists(folder / "error.log"), "the file is gone");
}
