// The log of a run: facts of the machine, one line for each check, the totals. Every piece is on the disk as
// soon as it is known, so that a machine that hangs or crashes leaves the name of the check that did it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "os/clock.h"
#include "os/files.h"
#include "self_test/outcome.h"

namespace qdix::self_test {

class Report {
 public:
  /// Makes the log anew, in the first of the two places that takes it. Files and clock must outlive this.
  Report(os::Files& files, os::Clock& clock, const std::string& path, const std::string& other_path);
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
  ~Report();

  /// Where the log is; empty where neither place took it.
  [[nodiscard]] const std::string& Path() const { return path_; }

  /// A line of its own.
  void Line(std::string_view text);
  /// A line of a name and what it is.
  void Fact(std::string_view name, std::string_view value);

  /// Runs a check, which is called without arguments and gives an Outcome, and writes its line: name,
  /// result, time in milliseconds.
  template <class Check>
  void Run(std::string_view name, const Check& check) {
    Begin(name);
    End(check());
  }

  /// Writes the totals. Once, at the end.
  void Finish();

  [[nodiscard]] int Checks() const { return checks_; }
  [[nodiscard]] int Failures() const { return failures_; }
  /// The disk did not take everything.
  [[nodiscard]] bool IsIncomplete() const { return is_incomplete_; }

 private:
  [[nodiscard]] bool Opens(const std::string& path);
  void Begin(std::string_view name);
  void End(const Outcome& outcome);
  void Write(std::string_view text);
  [[nodiscard]] std::string MsSince(std::uint32_t tick) const;

  os::Files& files_;
  os::Clock& clock_;
  std::string path_;
  os::FileHandle file_ = os::kInvalidFile;
  std::uint32_t run_began_;
  std::uint32_t check_began_ = 0;
  int checks_ = 0;
  int failures_ = 0;
  bool is_incomplete_ = false;
};

}  // namespace qdix::self_test
