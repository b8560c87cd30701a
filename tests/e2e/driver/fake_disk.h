// Fakes the free disk space that one program sees, from outside: a test cannot fill the disk that it runs on.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>

#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

class FakeDisk {
 public:
  explicit FakeDisk(HANDLE process) : process_(process), page_(process) {}

  /// Makes the program's calls of the extended free space function return this figure for size and free space
  /// of any drive from now on. Returns false if the replacement cannot be installed.
  [[nodiscard]] bool Play(std::uint64_t free_bytes);

 private:
  [[nodiscard]] bool Redirect();

  HANDLE process_;
  ForeignPage page_;
  bool is_redirected_ = false;
};

}  // namespace qdix::e2e
