#include "self_test/report.h"

#include "base/numbers.h"
#include "base/text.h"

namespace qdix::self_test {

namespace {

/// Names of facts, and of checks and questions, are padded to these columns.
constexpr std::size_t kFactColumn = 20;
constexpr std::size_t kCheckColumn = 48;

std::string FilledUp(std::string_view text, std::size_t column, char with) {
  std::string filled(text);
  filled += ' ';
  while (filled.size() < column) filled += with;
  filled += ' ';
  return filled;
}

}  // namespace

Report::Report(os::Files& files, os::Clock& clock, const std::string& path, const std::string& other_path)
    : files_(files), clock_(clock), run_began_(clock.GetTickCount()) {
  if (Opens(path)) {
    path_ = path;
  } else if (Opens(other_path)) {
    path_ = other_path;
  }
}

Report::~Report() {
  if (file_ != os::kInvalidFile) files_.CloseHandle(file_);
}

bool Report::Opens(const std::string& path) {
  file_ = files_.CreateFileA(path.c_str(), os::kGenericWrite, os::kCreateAlways);
  return file_ != os::kInvalidFile;
}

void Report::Line(std::string_view text) { Write(std::string(text) + std::string(base::kLineBreak)); }

void Report::Fact(std::string_view name, std::string_view value) {
  Line(FilledUp(name, kFactColumn, ' ') + std::string(value));
}

void Report::Begin(std::string_view name) {
  Write(FilledUp(name, kCheckColumn, '.'));
  line_began_ = clock_.GetTickCount();
}

void Report::End(const Outcome& outcome) {
  const std::string time = MsSince(line_began_);
  ++checks_;
  if (!outcome.is_ok) ++failures_;
  std::string result = outcome.is_ok ? "ok" : "FAILED: " + outcome.remark;
  if (outcome.is_ok && !outcome.remark.empty()) result += " (" + outcome.remark + ")";
  Line(result + ", " + time);
}

void Report::Answer(const std::string& answer) {
  const std::string time = MsSince(line_began_);
  Line("answer: " + answer + ", " + time);
}

void Report::Finish() {
  Line("");
  Line(base::TextOf(checks_) + " checks, " + base::TextOf(checks_ - failures_) + " ok, " +
       base::TextOf(failures_) + " failed, " + MsSince(run_began_));
}

std::string Report::MsSince(std::uint32_t tick) const {
  return base::ShortestText(clock_.GetTickCount() - tick) + " ms";
}

void Report::Write(std::string_view text) {
  if (file_ == os::kInvalidFile) return;
  std::uint32_t written_bytes = 0;
  const bool is_written =
      files_.WriteFile(file_, text.data(), static_cast<std::uint32_t>(text.size()), written_bytes) &&
      files_.FlushFileBuffers(file_);
  if (!is_written) is_incomplete_ = true;
}

}  // namespace qdix::self_test
