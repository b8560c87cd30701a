// Runs the end-to-end tests in a process of their own and watches it from outside. A test that hangs, or that
// ends the test program, fails alone: the screen is photographed, the processes are listed, what the test
// left is removed, and a new process runs the tests that are still to come.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

#include "tests/e2e/supervisor/machine_state.h"
#include "tests/e2e/supervisor/processes.h"

namespace qdix::e2e {

/// Name of the environment variable with the milliseconds that one test may take, instead of what is
/// measured.
inline constexpr const char* kTestLimitVariable = "QDIX_E2E_LIMIT_MS";

class Supervisor {
 public:
  /// The arguments that the tests get, the path of the program first.
  explicit Supervisor(std::vector<std::string> arguments);

  /// The exit code for all tests: 0 where every one of them passed.
  [[nodiscard]] int Run();

 private:
  enum class End {
    kComplete,
    kHung,
    kDied
  };

  /// How long one test may take: a minute, and longer on a machine that takes long to start a program. The
  /// tests learn from their environment how much longer.
  [[nodiscard]] static DWORD MeasureTestLimitMs();
  [[nodiscard]] HANDLE StartTests() const;
  [[nodiscard]] End Watch(HANDLE tests) const;
  void WriteFilter() const;
  void ReportAndCleanUp(End end, const std::string& test);

  std::vector<std::string> arguments_;
  std::string filter_ = "*";
  const std::string progress_path_;
  const std::string flags_path_;
  const MachineState state_;
  const std::vector<RunningProcess> processes_before_;
  const DWORD test_limit_ms_;
  std::vector<std::string> finished_;
  std::vector<std::string> stopped_;
};

}  // namespace qdix::e2e
