// Registry keys by textual path.
#include "registry/registry_paths.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::tests {
namespace {

constexpr const char* kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class RegistryPaths : public testing::Test {
 protected:
  ~RegistryPaths() override {
    EXPECT_EQ(machine.OpenKeyCount(), 0) << "a key is still open at the end";
    EXPECT_TRUE(machine.Misuses().empty());
  }
  /// Opens the key, closes it, and returns whether that worked.
  bool Opens(const std::string& path) {
    const std::int32_t handle = paths.GetSubkeyHandle(path);
    if (handle == registry::RegistryPaths::kNoKey) return false;
    EXPECT_EQ(machine.OpenKeyCount(), 1) << "the parent keys are closed";
    EXPECT_FALSE(paths.CloseSubkey(handle));
    return true;
  }

  os::SimulatedMachine machine;
  registry::RegistryPaths paths{machine.GetSystem().registry};
};

TEST_F(RegistryPaths, OpensElementByElementWithAllRights) {
  machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software\\A\\B");
  EXPECT_TRUE(Opens("HKEY_LOCAL_MACHINE\\Software\\A\\B"));
  EXPECT_EQ(machine.Calls(), (std::vector<std::string>{"RegOpenKeyExA(HKLM\\Software, 63)",
                                                       "RegOpenKeyExA(HKLM\\Software\\A, 63)",
                                                       "RegOpenKeyExA(HKLM\\Software\\A\\B, 63)",
                                                       "RegCloseKey()", "RegCloseKey()", "RegCloseKey()"}));
}

TEST_F(RegistryPaths, RootInLowerCaseOpens) {
  machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software");
  EXPECT_TRUE(Opens("hkey_local_machine\\Software"));
}

TEST_F(RegistryPaths, DoubledSeparatorsCountAsSingleOnes) {
  machine.CreateRegistryKey(os::kHkeyCurrentUser, "Software\\A");
  EXPECT_TRUE(Opens("HKEY_CURRENT_USER\\\\Software\\\\\\A\\"));
  EXPECT_TRUE(Opens("\\HKEY_CURRENT_USER\\Software"));
}

TEST_F(RegistryPaths, SurroundingBlanksAreTrimmed) {
  machine.CreateRegistryKey(os::kHkeyUsers, "X Y");
  EXPECT_TRUE(Opens("  HKEY_USERS\\X Y  "));
}

TEST_F(RegistryPaths, RootOfTheStatisticsIsNotInTheTable) {
  machine.SetCpuLoad(1);
  EXPECT_FALSE(Opens("HKEY_DYN_DATA\\PerfStats"));
}

TEST_F(RegistryPaths, SixRootsAreKnown) {
  const std::vector<std::pair<std::string, std::uint32_t>> roots{
      {"HKEY_CLASSES_ROOT", 0x80000000U},     {"HKEY_CURRENT_USER", 0x80000001U},
      {"HKEY_LOCAL_MACHINE", 0x80000002U},    {"HKEY_USERS", 0x80000003U},
      {"HKEY_PERFORMANCE_DATA", 0x80000004U}, {"HKEY_CURRENT_CONFIG", 0x80000005U}};
  for (const auto& [name, handle] : roots) {
    EXPECT_EQ(static_cast<std::uint32_t>(paths.GetSubkeyHandle(name)), handle)
        << "a bare root returns its own handle";
    machine.CreateRegistryKey(handle, "Below");
    EXPECT_TRUE(Opens(name + "\\Below")) << name;
  }
}

TEST_F(RegistryPaths, EmptyPathIsNoKey) {
  EXPECT_EQ(paths.GetSubkeyHandle(""), -1);
  EXPECT_EQ(paths.GetSubkeyHandle("  \\\\ "), -1);
}

TEST_F(RegistryPaths, MissingElementClosesTheOpenedKeys) {
  machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software\\A");
  EXPECT_EQ(paths.GetSubkeyHandle("HKEY_LOCAL_MACHINE\\Software\\A\\Missing\\B"), -1);
}

TEST_F(RegistryPaths, ThirtyTwoLevelsOpenAndThirtyThreeDoNot) {
  std::string below;
  for (int level = 0; level < 33; ++level) below += "\\k";
  machine.CreateRegistryKey(os::kHkeyLocalMachine, below.substr(1));
  EXPECT_TRUE(Opens("HKEY_LOCAL_MACHINE" + below.substr(2)));
  EXPECT_FALSE(Opens("HKEY_LOCAL_MACHINE" + below));
}

TEST_F(RegistryPaths, CloseOfAClosedKeyReportsTheError) {
  machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software");
  const std::int32_t handle = paths.GetSubkeyHandle("HKEY_LOCAL_MACHINE\\Software");
  EXPECT_FALSE(paths.CloseSubkey(handle));
  const std::size_t before = machine.Misuses().size();
  EXPECT_TRUE(paths.CloseSubkey(handle));
  EXPECT_EQ(machine.Misuses().size(), before + 1);
  machine.ClearMisuses();
}

TEST_F(RegistryPaths, RegDeleteRemovesOnlyTheEntryOfTheProgram) {
  machine.SetRegistryValue(os::kHkeyLocalMachine, kRun, "Quondix", "C:\\Q\\QDIX.exe");
  machine.SetRegistryValue(os::kHkeyLocalMachine, kRun, "Other", "x");
  EXPECT_EQ(paths.RegDelete(), "");
  EXPECT_EQ(machine.RegistryText(os::kHkeyLocalMachine, kRun, "Quondix"), std::nullopt);
  EXPECT_EQ(machine.RegistryText(os::kHkeyLocalMachine, kRun, "Other"), "x");
}

TEST_F(RegistryPaths, RegDeleteCreatesNoKey) {
  EXPECT_EQ(paths.RegDelete(), "");
  EXPECT_FALSE(machine.KeyExists(os::kHkeyLocalMachine, kRun));
}

TEST_F(RegistryPaths, CreateCreatesTheKeyAndClosesIt) {
  paths.CreateRegistryKey("SOFTWARE\\A\\B", os::kHkeyLocalMachine);
  EXPECT_TRUE(machine.KeyExists(os::kHkeyLocalMachine, "SOFTWARE\\A\\B"));
  machine.FailNextCall("RegCreateKeyExA");
  paths.CreateRegistryKey("SOFTWARE\\C", os::kHkeyLocalMachine);
  EXPECT_FALSE(machine.KeyExists(os::kHkeyLocalMachine, "SOFTWARE\\C"));
}

}  // namespace
}  // namespace qdix::tests
