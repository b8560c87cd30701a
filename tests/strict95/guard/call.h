// One call of the guarded program to the system, and who wants to see which of them.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "tests/strict95/guard/imports.h"

namespace qdix::strict95 {

struct Call {
  const Import* import = nullptr;
  /// Before the call those that the system is going to get, which may be changed; after it a copy.
  std::uint32_t* arguments = nullptr;
  /// Where the program goes on.
  std::uintptr_t caller = 0;
  /// The system's answer, which may be changed after the call.
  std::uint32_t result = 0;
  /// Set before the call, the system is not asked and `result` is the answer.
  bool is_refused = false;

  /// Argument by its number, from 1.
  template <typename Value = std::uint32_t>
  [[nodiscard]] Value Argument(unsigned number) const {
    // Everything that the system takes on its stack has the size of a word, whether number or address.
    union {
      std::uint32_t word;
      Value value;
    } both{arguments[number - 1]};
    return both.value;
  }

  void Refuse(std::uint32_t answer) {
    is_refused = true;
    result = answer;
  }
};

using Handler = std::function<void(Call&)>;

/// The handlers of each function, filled once by the rules.
class Watches {
 public:
  struct Function {
    std::vector<Handler> before;
    std::vector<Handler> after;
  };

  Watches();
  /// Nothing happens where no program imports the function, which has to be one of Windows 95.
  void Before(std::string_view function, Handler handler);
  void After(std::string_view function, Handler handler);
  [[nodiscard]] Function& At(std::size_t index) { return functions_[index]; }

 private:
  Function& Checked(std::string_view name);

  std::vector<Function> functions_;
  Function of_nobody_;
};

/// Number of a function among the imports; kImportCount where no program imports it.
[[nodiscard]] std::size_t ImportNumber(std::string_view name);

enum class Machine {
  /// 4.00.950, with the common controls 4.00.
  kRtm,
  /// 4.10: extended disk query, foreground lock.
  k98
};

/// The machine that the environment variable QDIX_STRICT names, "rtm" or "98".
[[nodiscard]] Machine ChosenMachine();

}  // namespace qdix::strict95
