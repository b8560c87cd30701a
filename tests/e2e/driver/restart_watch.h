// Detects a program's request to restart the machine, and blocks it.
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

  /// Records the program's calls of ExitWindowsEx from now on and returns TRUE from them; nothing restarts.
  /// The program must have its window. Returns false if the program does not import the function. A test must
  /// then not go on to a restart, because it would be a real one.
  [[nodiscard]] bool Begin();

  /// Returns the number of calls, also after the end of the program.
  [[nodiscard]] std::uint32_t Count() const;
  /// The arguments of the last call; 0 before the first.
  [[nodiscard]] std::uint32_t Flags() const;
  [[nodiscard]] std::uint32_t Reserved() const;

 private:
  /// Memory shared with the program, so that it outlives the program.
  struct Notes {
    std::uint32_t flags;
    std::uint32_t reserved;
    std::uint32_t count;
  };

  /// Returns the address of the notes in the program, or 0 if they could not be mapped there.
  [[nodiscard]] std::uint32_t ShareNotes() const;

  HANDLE process_;
  ForeignPage page_;
  HANDLE memory_;
  /// Null if there was no memory to share.
  const volatile Notes* notes_;
};

}  // namespace qdix::e2e
