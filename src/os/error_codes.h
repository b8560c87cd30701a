// The Windows error codes that the program distinguishes.
#pragma once

#include <cstdint>

namespace qdix::os {

inline constexpr std::int32_t kErrorSuccess = 0;
inline constexpr std::int32_t kErrorFileNotFound = 2;
inline constexpr std::int32_t kErrorPathNotFound = 3;
inline constexpr std::int32_t kErrorAccessDenied = 5;
inline constexpr std::int32_t kErrorInvalidHandle = 6;
inline constexpr std::int32_t kErrorNotReady = 21;
inline constexpr std::int32_t kErrorMoreData = 234;

}  // namespace qdix::os
