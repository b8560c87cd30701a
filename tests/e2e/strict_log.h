// What the strict Windows 95 says of the programs that a test runs: each line of its log is a failure of the
// test in whose time it was written. On the untouched programs nobody writes one.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace qdix::e2e {

/// Name of the environment variable with the path of the log.
inline constexpr const char* kStrictLogVariable = "QDIX_STRICT_LOG";

class StrictLog : public testing::EmptyTestEventListener {
 public:
  /// Names a file for temporary files as the log of every program that is started from now on. What the
  /// programs held at most goes on to the file that the variable named before.
  StrictLog();
  ~StrictLog() override;

  void OnTestEnd(const testing::TestInfo& test) override;

 private:
  std::string path_;
  std::string kept_path_;
};

}  // namespace qdix::e2e
