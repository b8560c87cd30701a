// How much is allocated at the moment, to see that a long run does not make it more.
#pragma once

#include <cstdint>

namespace qdix::tests {

/// Allocations of this whole process that have not been given back.
[[nodiscard]] std::int64_t LiveAllocations();

}  // namespace qdix::tests
