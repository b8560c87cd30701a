// Replaces functions of the system with functions of a test.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdint>
#include <cstring>

namespace qdix::contract {

/// Redirects a system function to another with the same parameters during its lifetime.
class Detour {
 public:
  Detour(const char* function, const void* replacement, const char* library = "kernel32.dll")
      : place_(reinterpret_cast<char*>(GetProcAddress(GetModuleHandleA(library), function))) {
    std::memcpy(former_.data(), place_, former_.size());
    const auto distance =
        static_cast<std::int32_t>(static_cast<const char*>(replacement) - (place_ + former_.size()));
    std::array<char, kJumpBytes> jump{'\xE9'};
    std::memcpy(jump.data() + 1, &distance, sizeof distance);
    Write(jump);
  }
  Detour(const Detour&) = delete;
  Detour& operator=(const Detour&) = delete;
  ~Detour() { Write(former_); }

 private:
  static constexpr std::size_t kJumpBytes = 5;

  void Write(const std::array<char, kJumpBytes>& code) {
    DWORD protection = 0;
    ASSERT_TRUE(VirtualProtect(place_, code.size(), PAGE_EXECUTE_READWRITE, &protection));
    std::memcpy(place_, code.data(), code.size());
    VirtualProtect(place_, code.size(), protection, &protection);
    FlushInstructionCache(GetCurrentProcess(), place_, code.size());
  }

  char* place_;
  std::array<char, kJumpBytes> former_{};
};

}  // namespace qdix::contract
