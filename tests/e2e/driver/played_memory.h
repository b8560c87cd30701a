// Available memory of the machine as one program sees it, played from outside: the machine's own does not
// stand still, and Wine shows the same figure for all amounts of 2 GB and more.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>

#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

class PlayedMemory {
 public:
  explicit PlayedMemory(HANDLE process) : process_(process), page_(process) {}

  /// From now on the program's question for the state of the memory is answered with this available memory;
  /// all other figures stay the machine's. False where the program does not import that question.
  [[nodiscard]] bool Play(std::uint32_t available_bytes);

 private:
  [[nodiscard]] bool Redirect();

  HANDLE process_;
  ForeignPage page_;
  bool is_redirected_ = false;
};

}  // namespace qdix::e2e
