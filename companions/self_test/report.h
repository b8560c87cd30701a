// The log of a run: facts about the machine, one line per check or question, the totals. Every part is
// written to the disk at once: if the machine hangs or crashes, the log ends with the name of the check or
// question that caused it.
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
  /// Creates the log, replacing an earlier one, in the first of the two places that works. Files and clock
  /// must outlive this object.
  Report(os::Files& files, os::Clock& clock, const std::string& path, const std::string& other_path);
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
  ~Report();

  /// Returns the path of the log; empty if neither place worked.
  [[nodiscard]] const std::string& Path() const { return path_; }

  void Line(std::string_view text);
  /// Writes a line with a name and its value.
  void Fact(std::string_view name, std::string_view value);

  /// Runs a check, which takes no arguments and returns an Outcome, and writes its line: name, result, time
  /// in milliseconds.
  template <class Check>
  void Run(std::string_view name, const Check& check) {
    Begin(name);
    End(check());
  }

  /// Asks the system a question that has no wrong answer, and writes its line: name, answer, time in
  /// milliseconds. `question` takes no arguments and returns the answer as text. It does not count as a
  /// check.
  template <class Question>
  void Ask(std::string_view name, const Question& question) {
    Begin(name);
    Answer(question());
  }

  /// Writes the totals of the checks. Call once, at the end.
  void Finish();

  [[nodiscard]] int Checks() const { return checks_; }
  [[nodiscard]] int Failures() const { return failures_; }
  /// True if some part of the log could not be written.
  [[nodiscard]] bool IsIncomplete() const { return is_incomplete_; }

 private:
  [[nodiscard]] bool Opens(const std::string& path);
  void Begin(std::string_view name);
  void End(const Outcome& outcome);
  void Answer(const std::string& answer);
  void Write(std::string_view text);
  [[nodiscard]] std::string MsSince(std::uint32_t tick) const;

  os::Files& files_;
  os::Clock& clock_;
  std::string path_;
  os::FileHandle file_ = os::kInvalidFile;
  std::uint32_t run_began_;
  std::uint32_t line_began_ = 0;
  int checks_ = 0;
  int failures_ = 0;
  bool is_incomplete_ = false;
};

}  // namespace qdix::self_test
