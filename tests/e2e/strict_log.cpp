#include "tests/e2e/strict_log.h"

#include <array>
#include <cstdlib>
#include <sstream>

#include "tests/e2e/driver/file_keeper.h"

namespace qdix::e2e {

namespace {

constexpr const char* kViolation = "violation ";

}  // namespace

StrictLog::StrictLog() {
  std::array<char, MAX_PATH> folder{};
  GetTempPathA(folder.size(), folder.data());
  path_ = folder.data() + std::to_string(GetCurrentProcessId()) + "-strict.txt";
  const char* const kept = std::getenv(kStrictLogVariable);
  if (kept != nullptr) kept_path_ = kept;
  SetFileBytes(path_, std::nullopt);
  SetEnvironmentVariableA(kStrictLogVariable, path_.c_str());
}

StrictLog::~StrictLog() { SetFileBytes(path_, std::nullopt); }

void StrictLog::OnTestEnd(const testing::TestInfo& /*test*/) {
  const std::string text = FileBytes(path_).value_or("");
  SetFileBytes(path_, std::nullopt);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(kViolation)) ADD_FAILURE() << "strict Windows 95: " << line;
  }
  if (!kept_path_.empty()) SetFileBytes(kept_path_, FileBytes(kept_path_).value_or("") + text);
}

}  // namespace qdix::e2e
