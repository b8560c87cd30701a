// The supervisor of these tests, with planted tests that misbehave. It runs as a second copy of this program.
#include "tests/e2e/supervisor/supervisor.h"

#include <array>

#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/session.h"
#include "tests/e2e/supervisor/progress.h"

namespace qdix::e2e {
namespace {

constexpr const char* kLimitMs = "20000";
constexpr int kLongerThanTheLimitMs = 3600000;
/// What a planted test leaves behind.
constexpr const char* kLeftValue = "LeftBehind";

// Only the second copy runs them.
TEST(DISABLED_Planted, A_Hangs) {
  ShippedProgram left{Undo()};
  ASSERT_TRUE(left.Start());
  SetRegistryText(kUserKey, kLeftValue, "1");
  EXPECT_TRUE(Eventually([] { return false; }, kLongerThanTheLimitMs));
}
TEST(DISABLED_Planted, B_EndsTheTestProgram) { ExitProcess(0); }
TEST(DISABLED_Planted, C_RunsBehindThem) { EXPECT_EQ(RegistryText(kUserKey, kLeftValue), std::nullopt); }

std::string OwnPath() {
  std::array<char, MAX_PATH> path{};
  GetModuleFileNameA(nullptr, path.data(), path.size());
  return path.data();
}

/// Runs the planted tests under a supervisor; their output goes to the file.
int RunPlantedTests(const std::string& output_path) {
  SetEnvironmentVariableA(kTestLimitVariable, kLimitMs);
  // The second copy is supervised, as the first was.
  std::array<char, MAX_PATH> progress{};
  GetEnvironmentVariableA(kProgressVariable, progress.data(), progress.size());
  SetEnvironmentVariableA(kProgressVariable, nullptr);
  SECURITY_ATTRIBUTES inherited = {};
  inherited.nLength = sizeof inherited;
  inherited.bInheritHandle = TRUE;
  const HANDLE output = CreateFileA(output_path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    &inherited, CREATE_ALWAYS, 0, nullptr);
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = output;
  startup.hStdError = output;
  PROCESS_INFORMATION started = {};
  std::string command_line =
      "\"" + OwnPath() + "\" --gtest_also_run_disabled_tests --gtest_filter=DISABLED_Planted.*";
  const BOOL is_started = CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                         nullptr, &startup, &started);
  SetEnvironmentVariableA(kProgressVariable, progress.data());
  SetEnvironmentVariableA(kTestLimitVariable, nullptr);
  CloseHandle(output);
  if (is_started == 0) return -1;
  DWORD code = 0;
  const bool ended =
      Eventually([&] { return WaitForSingleObject(started.hProcess, 0) == WAIT_OBJECT_0; }, 8 * kDeadlineMs);
  GetExitCodeProcess(started.hProcess, &code);
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return ended ? static_cast<int>(code) : -1;
}

using SupervisorSession = Session;

TEST_F(SupervisorSession, HungAndDeadTestsFailAloneAndLeaveNothing) {
  const FileKeeper progress_of_second{"C:\\planted.txt"};
  EXPECT_EQ(RunPlantedTests(progress_of_second.Path()), 1);
  const std::string output = progress_of_second.Bytes().value_or("");
  EXPECT_NE(output.find("DISABLED_Planted.A_Hangs hangs"), std::string::npos) << output;
  EXPECT_NE(output.find("undo.exe"), std::string::npos) << "the process list is missing: " << output;
  EXPECT_NE(output.find("DISABLED_Planted.B_EndsTheTestProgram has ended the test program"),
            std::string::npos)
      << output;
  EXPECT_NE(output.find("[       OK ] DISABLED_Planted.C_RunsBehindThem"), std::string::npos) << output;
  EXPECT_EQ(output.find("[       OK ] DISABLED_Planted.A_Hangs"), std::string::npos);
  ShippedProgram left{Undo()};
  EXPECT_FALSE(left.Attach()) << "the program that the hung test started is still running";
  EXPECT_EQ(RegistryText(kUserKey, kLeftValue), std::nullopt);
}

}  // namespace
}  // namespace qdix::e2e
