#include "base/error_boundary.h"

#include <cstdio>
#include <exception>

namespace base {
namespace {

void Report(const char* what) {
  if (const auto& handle = UnexpectedErrorHandler())
    handle(what);
  else
    std::fprintf(stderr, "KestrivaneUI: unexpected error: %s\n", what);
}

}  // namespace

std::function<void(const std::string& what)>& UnexpectedErrorHandler() {
  static std::function<void(const std::string&)> handler;
  return handler;
}

void ReportUnexpectedError() noexcept {
  try {
    throw;
  } catch (const std::exception& error) {
    Report(error.what());
  } catch (...) {
    Report("unknown");
  }
}

}  // namespace base
