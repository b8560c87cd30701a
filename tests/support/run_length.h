// Length and first seed of a random run, from the environment: short by default, long on demand.
#pragma once

#include <cstdlib>

namespace qdix::tests {

/// Returns the number in this environment variable, or `otherwise` if it is not set.
inline unsigned long NumberFromEnvironment(const char* variable, unsigned long otherwise) {
  const char* const text = std::getenv(variable);
  const unsigned long number = text == nullptr ? 0 : std::strtoul(text, nullptr, 10);
  return number == 0 ? otherwise : number;
}

/// Returns the first seed of a run. Setting it to the seed of a failed run replays that run.
inline unsigned FirstSeed() { return static_cast<unsigned>(NumberFromEnvironment("QDIX_SEED", 1)); }

}  // namespace qdix::tests
