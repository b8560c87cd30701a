// This process among others: the single-instance mutex, the path of the program's own file.
#include "base/text.h"
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using ProcessesContract = ContractTest;

TEST_F(ProcessesContract, MutexExistsAfterTheFirstCall) {
  EXPECT_FALSE(system.processes.MutexExistedBefore("QDIX.ContractTests.Once"));
  EXPECT_TRUE(system.processes.MutexExistedBefore("QDIX.ContractTests.Once"));
}

TEST_F(ProcessesContract, MutexesOfDifferentNamesAreDistinct) {
  EXPECT_FALSE(system.processes.MutexExistedBefore("QDIX.ContractTests.A"));
  EXPECT_FALSE(system.processes.MutexExistedBefore("QDIX.ContractTests.B"));
}

TEST_F(ProcessesContract, ModuleFileNameIsAFullPathOfAProgram) {
  const std::string path = system.processes.ModuleFileName();
  ASSERT_GT(path.size(), 7U);
  EXPECT_EQ(path.substr(1, 2), ":\\");
  EXPECT_TRUE(base::EqualsIgnoringCase(path.substr(path.size() - 4), ".exe")) << path;
}

TEST_F(ProcessesContract, ExistingProgramIsStarted) {
  EXPECT_EQ(system.processes.CreateProcessA("cmd /c exit"), os::kErrorSuccess);
}

TEST_F(ProcessesContract, MissingProgramIsNotFound) {
  EXPECT_EQ(system.processes.CreateProcessA("qdix_no_such_program C:"), os::kErrorFileNotFound);
}

TEST_F(ProcessesContract, ExistingFolderBecomesTheCurrentOne) {
  EXPECT_TRUE(system.processes.SetCurrentDirectoryA("C:"));
  EXPECT_TRUE(system.processes.SetCurrentDirectoryA("C:\\windows"));
  EXPECT_FALSE(system.processes.SetCurrentDirectoryA("C:\\qdix no such folder"));
  EXPECT_FALSE(system.processes.SetCurrentDirectoryA("?:"));
  EXPECT_TRUE(system.processes.SetCurrentDirectoryA("C:\\"));
}

}  // namespace
}  // namespace qdix::contract
