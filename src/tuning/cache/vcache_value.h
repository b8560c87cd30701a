// Sizes of the disk cache.
#pragma once

#include <cstdint>

#include "base/result.h"

namespace qdix::tuning {

/// Returns the multiple of 512 KB nearest to a size in KB, ties to the even multiple. Error 6 if it does not
/// fit 32 bits.
[[nodiscard]] base::Result<std::int32_t> GetVCACHEValue(std::int32_t size_kb);

}  // namespace qdix::tuning
