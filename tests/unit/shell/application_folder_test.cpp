// The folder that contains the program.
#include "shell/application_folder.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::shell {
namespace {

TEST(ApplicationFolder, HasOneBackslashAtItsEnd) {
  os::SimulatedMachine machine;
  machine.SetModuleFileName("D:\\Program Files\\QDIX\\QDIX.exe");
  EXPECT_EQ(ApplicationFolder(machine.GetSystem().processes), "D:\\Program Files\\QDIX\\");
  machine.SetModuleFileName("A:\\QDIX.exe");
  EXPECT_EQ(ApplicationFolder(machine.GetSystem().processes), "A:\\");
}

TEST(ApplicationFolder, IsABackslashIfTheSystemFails) {
  os::SimulatedMachine machine;
  machine.FailNextCall("ModuleFileName");
  EXPECT_EQ(ApplicationFolder(machine.GetSystem().processes), "\\");
}

}  // namespace
}  // namespace qdix::shell
