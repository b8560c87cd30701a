// How long a run of chance is and where it begins, from the environment: short by itself, long when asked
// for.
#pragma once

#include <cstdlib>

namespace qdix::tests {

/// The number in this variable of the environment; `otherwise` where there is none.
inline unsigned long NumberFromEnvironment(const char* variable, unsigned long otherwise) {
  const char* const text = std::getenv(variable);
  const unsigned long number = text == nullptr ? 0 : std::strtoul(text, nullptr, 10);
  return number == 0 ? otherwise : number;
}

/// The first seed of a run; a failing one is replayed by naming it.
inline unsigned FirstSeed() { return static_cast<unsigned>(NumberFromEnvironment("QDIX_SEED", 1)); }

}  // namespace qdix::tests
