// The version of the program.
#pragma once

namespace qdix::app {

inline constexpr int kMajorVersion = 2;
inline constexpr int kMinorVersion = 1;
inline constexpr int kRevision = 0;

}  // namespace qdix::app
