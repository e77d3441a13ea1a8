#pragma once

namespace core {

// The numbers come from the project's CMakeLists.txt. The last is the patch level there, and in the
// configuration file the "build".
inline constexpr int kMajor = KESTRIVANE_MAJOR;
inline constexpr int kMinor = KESTRIVANE_MINOR;
inline constexpr int kRevision = KESTRIVANE_REVISION;

}  // namespace core
