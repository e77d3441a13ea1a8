#include "support.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "base/error_boundary.h"
#include "core/module1.h"
#include "platform/app_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The error boundary must not hide an unexpected error.
  base::UnexpectedErrorHandler() = [](auto& what) { fuzz::Require(false, what.c_str()); };
  fuzz::Examine({reinterpret_cast<const char*>(data), size});
  return 0;
}

namespace fuzz {

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

std::filesystem::path MakeApp(std::initializer_list<std::string_view> files) {
  auto name = (std::filesystem::temp_directory_path() / "kestrivane-fuzz-XXXXXX").string();
  Require(mkdtemp(name.data()), "a folder can be made");
  const std::filesystem::path folder = name;
  for (const auto file : files) {
    std::filesystem::create_directories((folder / file).parent_path());
    std::ofstream(folder / file).flush();
  }
  Module1::AppFolder = name;
  platform::SetProgramFolder(name);
  platform::SetWorkingFolder(name);
  return folder;
}

}  // namespace fuzz
