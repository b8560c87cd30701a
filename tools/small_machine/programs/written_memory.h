// Memory that a program of the small machine fills and later checks for damage.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <cstdlib>
#include <span>

namespace qdix::small_machine {

using Words = std::span<std::uint32_t>;

/// Generates pages that are all different, within a program and between programs, so that none can be merged
/// or compressed.
class Sequence {
 public:
  explicit Sequence(std::uint32_t number) : word_((number + 1) * 2654435761U) {}
  std::uint32_t Next() {
    word_ ^= word_ << 13;
    word_ ^= word_ >> 17;
    word_ ^= word_ << 5;
    return word_;
  }

 private:
  std::uint32_t word_;
};

/// Returns an empty span if the system refuses. The memory is never freed: it is used until the program ends.
inline Words TakeMemory(const char* megabytes) {
  constexpr std::size_t kBytesPerMegabyte = 1024 * 1024;
  const std::size_t bytes = std::strtoul(megabytes, nullptr, 10) * kBytesPerMegabyte;
  void* const memory = VirtualAlloc(nullptr, bytes, MEM_COMMIT, PAGE_READWRITE);
  if (memory == nullptr) return {};
  return {static_cast<std::uint32_t*>(memory), bytes / sizeof(std::uint32_t)};
}

inline void Fill(Words words, std::uint32_t number) {
  Sequence sequence(number);
  for (std::uint32_t& word : words) word = sequence.Next();
}

inline unsigned long WrongWords(Words words, std::uint32_t number) {
  Sequence sequence(number);
  unsigned long wrong = 0;
  for (const std::uint32_t word : words) wrong += word != sequence.Next() ? 1 : 0;
  return wrong;
}

inline unsigned long MillisecondsSince(DWORD start) { return GetTickCount() - start; }

}  // namespace qdix::small_machine
