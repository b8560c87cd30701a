// The progress file that the test program writes for the supervisor, which ends it when a test hangs: one
// line for each test that began.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace qdix::e2e {

/// Name of the environment variable with the path of the file. If it is set, tests run; otherwise they are
/// supervised.
inline constexpr const char* kProgressVariable = "QDIX_E2E_PROGRESS";

struct Progress {
  /// The tests that began, as "Suite.Name". The last one is running, or was when the program ended.
  std::vector<std::string> begun;
  /// Tick count in milliseconds when the last one began.
  std::uint32_t since_ms = 0;
  /// True once all tests have ended.
  bool is_complete = false;
};

[[nodiscard]] Progress ReadProgress(const std::string& path);

/// Writes the file while tests run.
class ProgressWriter : public testing::EmptyTestEventListener {
 public:
  explicit ProgressWriter(std::string path) : path_(std::move(path)) {}

  void OnTestStart(const testing::TestInfo& test) override;
  /// All tests have ended, and so have the environments around them.
  void OnTestProgramEnd(const testing::UnitTest& program) override;

 private:
  void AddLine(const std::string& line) const;

  const std::string path_;
};

}  // namespace qdix::e2e
