// Free space of the machine's disks as one program sees it, played from outside: a test cannot fill the disk
// that it runs on.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>

#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

class PlayedDisk {
 public:
  explicit PlayedDisk(HANDLE process) : process_(process), page_(process) {}

  /// From now on the program's extended question for a drive's size is answered with this figure for size and
  /// free space, whichever drive it asks for. False where the answer cannot be put there.
  [[nodiscard]] bool Play(std::uint64_t free_bytes);

 private:
  [[nodiscard]] bool Redirect();

  HANDLE process_;
  ForeignPage page_;
  bool is_redirected_ = false;
};

}  // namespace qdix::e2e
