// Runs the end-to-end tests in their own process and watches it from outside. A test that hangs, or that ends
// the test program, fails alone: the supervisor photographs the screen, lists the processes, removes what the
// test left, and starts a new process for the remaining tests.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

#include "tests/e2e/supervisor/machine_state.h"
#include "tests/e2e/supervisor/processes.h"

namespace qdix::e2e {

/// Name of the environment variable with the milliseconds that one test may take, instead of the measured
/// limit.
inline constexpr const char* kTestLimitVariable = "QDIX_E2E_LIMIT_MS";

class Supervisor {
 public:
  /// Takes the arguments for the tests, the path of the program first.
  explicit Supervisor(std::vector<std::string> arguments);

  /// Returns the exit code for all tests: 0 if every test passed.
  [[nodiscard]] int Run();

 private:
  enum class End {
    kComplete,
    kHung,
    kDied
  };

  /// Returns how long one test may take: a minute, or more on a machine that starts programs slowly. The
  /// tests read from their environment how much more.
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
