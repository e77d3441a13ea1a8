#include "config/loading.h"

#include "config/config_reader.h"
#include "core/startup.h"

namespace config {

std::future<std::optional<unsigned char>> StartLoading() {
  return std::async(std::launch::async | std::launch::deferred, [] {
    core::FillSharedState();
    core::EnsureFolders();
    return LoadConfigFile();
  });
}

}  // namespace config
