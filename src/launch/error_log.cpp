#include "launch/error_log.h"

#include <string>

#include "base/quietly.h"
#include "base/text.h"
#include "core/emulator_contract.h"
#include "core/module1.h"
#include "platform/files.h"

namespace launch {
namespace {

using namespace Module1;

std::string LogText() {
  const auto* const separator = AppFolder.ends_with('\\') || AppFolder.ends_with('/') ? "" : "\\";
  const auto file = AppFolder + separator + std::string(core::kErrorLog);
  const auto text = platform::ReadText(file);
  std::size_t at = 0;
  for (int line = 0; line < core::kErrorLogHeaderLines && at < text.size(); ++line)
    at = text.find(base::kLineEnd, at) + base::kLineEnd.size();
  platform::DeleteFile(file);
  return text.substr(at);
}

}  // namespace

bool ReadErrorLog() {
  bool failed = false;
  base::Quietly([&] {
    const auto text = LogText();
    if (base::ContainsIgnoringCase(text, core::kGoodEnd)) return;
    ErrorText = base::Trim(text);
    failed = true;
  });
  return failed;
}

}  // namespace launch
