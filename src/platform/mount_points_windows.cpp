#include "platform/mount_points.h"

namespace platform {

std::vector<std::string> MountPoints() { return {}; }

}  // namespace platform
