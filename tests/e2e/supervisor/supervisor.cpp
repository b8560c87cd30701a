#include "tests/e2e/supervisor/supervisor.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/photograph.h"
#include "tests/e2e/driver/polling.h"
#include "tests/e2e/driver/program_facts.h"
#include "tests/e2e/supervisor/progress.h"

namespace qdix::e2e {

namespace {

constexpr DWORD kMinuteMs = 60000;
constexpr DWORD kLookMs = 200;
/// The time that it takes to start a program of this size and see it end on a machine for which one minute
/// per test is enough.
constexpr DWORD kUsualStartMs = 60;
constexpr DWORD kSlowestFactor = 10;
constexpr std::string_view kFilterFlag = "--gtest_filter=";

/// Returns a path that no other process uses: supervisors may run inside each other.
std::string TemporaryFile(const char* name) {
  std::array<char, MAX_PATH> folder{};
  GetTempPathA(folder.size(), folder.data());
  return folder.data() + std::to_string(GetCurrentProcessId()) + name;
}

HANDLE StartProcess(std::string command_line) {
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    return nullptr;
  }
  CloseHandle(started.hThread);
  return started.hProcess;
}

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ":") + name;
  return text;
}

}  // namespace

Supervisor::Supervisor(std::vector<std::string> arguments)
    : arguments_(std::move(arguments)),
      progress_path_(TemporaryFile("-e2e-progress.txt")),
      flags_path_(TemporaryFile("-e2e-flags.txt")),
      processes_before_(RunningProcesses()),
      test_limit_ms_(MeasureTestLimitMs()) {
  const auto filter = std::find_if(arguments_.begin(), arguments_.end(),
                                   [](const std::string& one) { return one.starts_with(kFilterFlag); });
  if (filter == arguments_.end()) return;
  filter_ = filter->substr(kFilterFlag.size());
  arguments_.erase(filter);
}

int Supervisor::Run() {
  SetEnvironmentVariableA(kProgressVariable, progress_path_.c_str());
  bool all_passed = true;
  for (bool is_complete = false; !is_complete;) {
    WriteFilter();
    SetFileBytes(progress_path_, std::nullopt);
    const HANDLE tests = StartTests();
    if (tests == nullptr) return 1;
    const End end = Watch(tests);
    const Progress progress = ReadProgress(progress_path_);
    if (end != End::kComplete) TerminateProcess(tests, 1);
    DWORD code = 1;
    GetExitCodeProcess(tests, &code);
    CloseHandle(tests);
    all_passed = all_passed && end == End::kComplete && code == 0;
    // Without a test to blame, another attempt would end in the same way.
    is_complete = end == End::kComplete || progress.begun.empty();
    if (!is_complete) ReportAndCleanUp(end, progress.begun.back());
    finished_.insert(finished_.end(), progress.begun.begin(), progress.begun.end());
  }
  // The first start of a test opens a help viewer that stays. It would keep the output open, and whoever
  // reads that would wait for it.
  EndAllOf(HelpViewer().file_name);
  for (const std::string& test : stopped_) std::printf("[  STOPPED ] %s\n", test.c_str());
  return all_passed ? 0 : 1;
}

DWORD Supervisor::MeasureTestLimitMs() {
  const char* const chosen = std::getenv(kTestLimitVariable);
  if (chosen != nullptr) return std::strtoul(chosen, nullptr, 10);
  const DWORD start = GetTickCount();
  const HANDLE process = StartProcess("cmd.exe /c exit");
  if (process == nullptr) return kMinuteMs;
  WaitForSingleObject(process, kSlowestFactor * kUsualStartMs);
  CloseHandle(process);
  const DWORD factor = std::clamp<DWORD>((GetTickCount() - start) / kUsualStartMs, 1, kSlowestFactor);
  SetEnvironmentVariableA(kSlownessVariable, std::to_string(factor).c_str());
  return kMinuteMs * factor;
}

/// A flag file has room for any number of names; a command line has not.
void Supervisor::WriteFilter() const {
  std::string filter = filter_;
  if (!finished_.empty()) {
    filter += filter.find('-') == std::string::npos ? "-" : ":";
    filter += Joined(finished_);
  }
  SetFileBytes(flags_path_, std::string(kFilterFlag) + filter + "\n");
}

HANDLE Supervisor::StartTests() const {
  std::string command_line;
  for (const std::string& argument : arguments_) command_line += "\"" + argument + "\" ";
  return StartProcess(command_line + "\"--gtest_flagfile=" + flags_path_ + "\"");
}

Supervisor::End Supervisor::Watch(HANDLE tests) const {
  const DWORD started_ms = GetTickCount();
  while (WaitForSingleObject(tests, kLookMs) == WAIT_TIMEOUT) {
    const Progress progress = ReadProgress(progress_path_);
    const DWORD since_ms = progress.begun.empty() ? started_ms : progress.since_ms;
    if (GetTickCount() - since_ms > test_limit_ms_) return End::kHung;
  }
  return ReadProgress(progress_path_).is_complete ? End::kComplete : End::kDied;
}

void Supervisor::ReportAndCleanUp(End end, const std::string& test) {
  stopped_.push_back(test);
  const std::string name = "stopped_" + test.substr(test.find('.') + 1);
  std::printf("[  STOPPED ] %s %s; build/photos/%s.png\n%s", test.c_str(),
              end == End::kHung ? "hangs" : "has ended the test program", name.c_str(),
              DescribeProcesses().c_str());
  if (!Photograph(name)) std::printf("  no photograph could be taken\n");
  std::fflush(stdout);
  EndAllBut(processes_before_);
  state_.PutBack();
}

}  // namespace qdix::e2e
