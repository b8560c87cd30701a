// Sizes of the disk cache.
#pragma once

#include <cstdint>

#include "base/result.h"

namespace qdix::tuning {

/// The multiple of 512 KB nearest to a size in KB, ties to the even multiple. Error 6 where 32 bits do not
/// hold it.
[[nodiscard]] base::Result<std::int32_t> GetVCACHEValue(std::int32_t size_kb);

}  // namespace qdix::tuning
