#include "tests/e2e/supervisor/progress.h"

#include <cstdlib>

#include "tests/e2e/driver/file_keeper.h"

namespace qdix::e2e {

namespace {

constexpr std::string_view kComplete = "complete";

}  // namespace

Progress ReadProgress(const std::string& path) {
  Progress progress;
  const std::string text = FileBytes(path).value_or("");
  std::size_t begin = 0;
  // A line that is still being written has no end yet.
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
    const std::string line = text.substr(begin, end - begin);
    const std::size_t blank = line.find(' ');
    begin = end + 1;
    if (line == kComplete) {
      progress.is_complete = true;
    } else {
      progress.begun.push_back(line.substr(0, blank));
      progress.since_ms = std::strtoul(line.c_str() + blank + 1, nullptr, 10);
    }
  }
  return progress;
}

void ProgressWriter::OnTestStart(const testing::TestInfo& test) {
  AddLine(std::string(test.test_suite_name()) + "." + test.name() + " " + std::to_string(GetTickCount()));
}

void ProgressWriter::OnTestProgramEnd(const testing::UnitTest& /*program*/) {
  AddLine(std::string(kComplete));
}

void ProgressWriter::AddLine(const std::string& line) const {
  const HANDLE file = CreateFileA(path_.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  SetFilePointer(file, 0, nullptr, FILE_END);
  const std::string bytes = line + "\n";
  DWORD count = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  CloseHandle(file);
}

}  // namespace qdix::e2e
