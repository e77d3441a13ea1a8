#pragma once

namespace core {

// The numbers come from the project's CMakeLists.txt.
inline constexpr int kMajor = KESTRIVANE_MAJOR;
inline constexpr int kMinor = KESTRIVANE_MINOR;
inline constexpr int kRevision = KESTRIVANE_REVISION;

}  // namespace core
