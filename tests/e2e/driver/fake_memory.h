// Fakes the available memory that one program sees, from outside: the machine's own changes all the time, and
// Wine shows the same figure for all amounts of 2 GB and more.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>

#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

class FakeMemory {
 public:
  explicit FakeMemory(HANDLE process) : process_(process), page_(process) {}

  /// Makes the program's memory status calls return this available memory from now on; all other figures stay
  /// the machine's. Returns false if the program does not import that function.
  [[nodiscard]] bool SetAvailable(std::uint32_t available_bytes);

 private:
  [[nodiscard]] bool Redirect();

  HANDLE process_;
  ForeignPage page_;
  bool is_redirected_ = false;
};

}  // namespace qdix::e2e
