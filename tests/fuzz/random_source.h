// Random numbers that a seed repeats.
#pragma once

#include <cstdint>
#include <random>

namespace qdix::tests {

class RandomSource {
 public:
  explicit RandomSource(unsigned seed) : random_(seed) {}

  [[nodiscard]] unsigned Random() { return static_cast<unsigned>(random_()); }
  [[nodiscard]] bool Chance(unsigned one_in) { return Random() % one_in == 0; }
  [[nodiscard]] std::uint32_t Word() { return static_cast<std::uint32_t>(random_()); }
  char AnyByte() { return static_cast<char>(Random() % 256); }

 private:
  std::mt19937 random_;
};

}  // namespace qdix::tests
