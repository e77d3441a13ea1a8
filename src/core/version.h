#pragma once

namespace core {

inline constexpr int kMajor = 0;
inline constexpr int kMinor = 9;
inline constexpr int kRevision = 151;

}  // namespace core
