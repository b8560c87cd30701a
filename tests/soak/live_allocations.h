// Counts live allocations, to show that a long run does not accumulate them.
#pragma once

#include <cstdint>

namespace qdix::tests {

/// Returns the number of allocations of this whole process that have not been freed.
[[nodiscard]] std::int64_t LiveAllocations();

}  // namespace qdix::tests
