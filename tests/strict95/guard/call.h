// A call from the guarded program to the system, and the handlers that watch calls.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "tests/strict95/guard/imports.h"
#include "tests/strict95/machine.h"

namespace qdix::strict95 {

struct Call {
  const Import* import = nullptr;
  /// Before the call: the arguments that the system will receive; handlers may change them. Afterwards: a
  /// copy.
  std::uint32_t* arguments = nullptr;
  /// The return address in the program.
  std::uintptr_t caller = 0;
  /// The system's answer. Handlers that run after the call may change it.
  std::uint32_t result = 0;
  /// If set before the call, the system is not called and `result` is the answer.
  bool is_refused = false;

  /// Returns an argument by its number, from 1.
  template <typename Value = std::uint32_t>
  [[nodiscard]] Value Argument(unsigned number) const {
    // Every argument on the stack is one word of 32 bits, a number or an address.
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

/// Holds the handlers of each function. The rules add them once, at the start.
class Watches {
 public:
  struct Function {
    std::vector<Handler> before;
    std::vector<Handler> after;
  };

  Watches();
  /// Does nothing if no program imports the function. Aborts if no Windows has a function of this name.
  void Before(std::string_view function, Handler handler);
  void After(std::string_view function, Handler handler);
  [[nodiscard]] Function& At(std::size_t index) { return functions_[index]; }

 private:
  Function& Checked(std::string_view name);

  std::vector<Function> functions_;
  Function unowned_;
};

/// Returns the index of a function among the imports; kImportCount if no program imports it.
[[nodiscard]] std::size_t ImportNumber(std::string_view name);

}  // namespace qdix::strict95
