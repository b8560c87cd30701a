// Fakes the free disk space that one program sees, from outside: a test cannot fill the disk that it runs on.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <string>

#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

class FakeDisk {
 public:
  explicit FakeDisk(HANDLE process) : process_(process), page_(process) {}

  /// Makes both free space functions return this figure to the program as the size and the free space of any
  /// drive from now on; the classic one rounds down to clusters and to the 2 GB that it can answer. Returns
  /// false if the replacements cannot be installed.
  [[nodiscard]] bool Play(std::uint64_t free_bytes);

 private:
  [[nodiscard]] bool RedirectBoth();
  [[nodiscard]] bool Redirect(const char* name, std::uint32_t offset, const std::string& code) const;

  HANDLE process_;
  ForeignPage page_;
  bool is_redirected_ = false;
};

}  // namespace qdix::e2e
