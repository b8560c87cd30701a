// Folders of the shell as paths that a file name can follow.
#include "shell/shell_folders.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::tests {
namespace {

std::string PathOf(const std::string& folder) {
  os::SimulatedMachine machine;
  machine.SetSpecialFolder(os::kDesktopFolder, folder);
  return shell::SpecialFolderPath(machine.GetSystem().shell_files, os::kDesktopFolder);
}

TEST(SpecialFolderPath, EndsWithOneBackslash) {
  EXPECT_EQ(PathOf("C:\\WINDOWS\\Desktop"), "C:\\WINDOWS\\Desktop\\");
  EXPECT_EQ(PathOf("D:\\"), "D:\\");
}

TEST(SpecialFolderPath, IsEmptyIfTheShellHasNoSuchFolder) { EXPECT_EQ(PathOf(""), ""); }

}  // namespace
}  // namespace qdix::tests
