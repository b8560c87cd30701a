// Starting other programs: what each error code of the system means to the program.
#include "shell/start_program.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::shell {
namespace {

/// A system that returns the same code for each start.
class FakeProcesses final : public os::Processes {
 public:
  explicit FakeProcesses(std::int32_t code) : code_(code) {}
  bool MutexExistedBefore(const char* /*name*/) override { return false; }
  std::string ModuleFileName() override { return {}; }
  bool SetCurrentDirectoryA(const std::string& /*folder*/) override { return false; }
  std::int32_t CreateProcessA(const std::string& /*command_line*/) override { return code_; }

 private:
  std::int32_t code_;
};

int ErrorFor(std::int32_t code) {
  FakeProcesses processes(code);
  return StartProgram(processes, "defrag C:").Error().number;
}

TEST(StartProgram, PassesTheCommandLineUnchanged) {
  os::SimulatedMachine machine;
  EXPECT_TRUE(StartProgram(machine.GetSystem().processes, "defrag  C:").Ok());
  EXPECT_EQ(machine.StartedPrograms(), std::vector<std::string>{"defrag  C:"});
}

TEST(StartProgram, MissingProgramIsError53) {
  os::SimulatedMachine machine;
  EXPECT_EQ(StartProgram(machine.GetSystem().processes, "nothing.exe").Error(), base::kFileNotFound);
  EXPECT_EQ(ErrorFor(os::kErrorPathNotFound), 53);
  EXPECT_TRUE(machine.StartedPrograms().empty());
}

TEST(StartProgram, ForbiddenProgramIsError70) { EXPECT_EQ(ErrorFor(os::kErrorAccessDenied), 70); }

TEST(StartProgram, FileThatIsNoProgramIsError5) {
  constexpr std::int32_t kBadExeFormat = 193;
  EXPECT_EQ(ErrorFor(kBadExeFormat), 5);
}

TEST(StartProgram, EmptyTextIsError5AndNotPassedOn) {
  os::SimulatedMachine machine;
  EXPECT_EQ(StartProgram(machine.GetSystem().processes, " ").Error(), base::kInvalidProcedureCall);
  EXPECT_TRUE(machine.Calls().empty());
}

}  // namespace
}  // namespace qdix::shell
