// The restart of the machine that a program asks for, seen and never let through.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>

#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

class RestartWatch {
 public:
  explicit RestartWatch(HANDLE process);
  RestartWatch(const RestartWatch&) = delete;
  RestartWatch& operator=(const RestartWatch&) = delete;
  ~RestartWatch();

  /// From now on the program's call of ExitWindowsEx is noted and answered with TRUE, and nothing restarts.
  /// The program must have its window. False where it does not import that call; then a test must not go on
  /// to a restart, which would be a real one.
  [[nodiscard]] bool Begin();

  /// How often it was called, also after the end of the program.
  [[nodiscard]] std::uint32_t Count() const;
  /// The arguments of the last call; 0 before the first.
  [[nodiscard]] std::uint32_t Flags() const;
  [[nodiscard]] std::uint32_t Reserved() const;

 private:
  /// Memory that this process shares with the program, so that it outlives it.
  struct Notes {
    std::uint32_t flags;
    std::uint32_t reserved;
    std::uint32_t count;
  };

  /// The address of the notes in the program; 0 where they could not be put there.
  [[nodiscard]] std::uint32_t ShareNotes() const;

  HANDLE process_;
  ForeignPage page_;
  HANDLE memory_;
  /// Null where there was no memory to share.
  const volatile Notes* notes_;
};

}  // namespace qdix::e2e
