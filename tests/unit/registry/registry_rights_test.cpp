// The access rights with which each registry key is opened. Requesting too many fails for a user who lacks
// them; requesting too few makes later calls fail.
#include <gtest/gtest.h>

#include <set>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

using Texts = std::set<std::string>;

constexpr std::uint32_t kToRead = 1;
constexpr std::uint32_t kToWrite = 2;
constexpr std::uint32_t kAllOfAPath = 63;
constexpr std::uint32_t kToMakeAKey = 0xF003F;

/// Returns every key that was opened or created, with its rights.
Texts Openings(const os::SimulatedMachine& machine, std::size_t first_call = 0) {
  Texts openings;
  for (std::size_t i = first_call; i < machine.Calls().size(); ++i) {
    const std::string& call = machine.Calls()[i];
    if (call.starts_with("RegOpenKey") || call.starts_with("RegCreateKey")) openings.insert(call);
  }
  return openings;
}

std::string Opened(const std::string& path, std::uint32_t rights) {
  return "RegOpenKeyExA(" + path + ", " + std::to_string(rights) + ")";
}
std::string Made(const std::string& path, std::uint32_t rights) {
  return "RegCreateKeyExA(" + path + ", " + std::to_string(rights) + ")";
}
std::string Store(const char* section) { return "HKCU\\" + ProgramRig::SectionPath(section); }

TEST(RegistryRights, OfAFirstStartItsTickAndItsClose) {
  ProgramRig rig;
  rig.machine.SetCpuLoad(10);
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run");
  rig.Start();
  rig.AdvanceMs(kRefreshMs);
  rig.program->Form().Unload();
  EXPECT_EQ(
      Openings(rig.machine),
      (Texts{Made("HKLM\\SOFTWARE\\QDIX", kToMakeAKey), Made("HKLM\\SOFTWARE\\QDIX", kToWrite),
             Opened("HKLM\\SOFTWARE\\QDIX", kToRead), Opened("HKCU\\Software\\QDIX", kToRead),
             Opened("HKDD\\PerfStats\\StartStat", kToRead), Opened("HKDD\\PerfStats\\StatData", kToRead),
             Opened(Store("Settings"), kToRead), Made(Store("Settings"), kToWrite),
             Opened(Store("Startup"), kToRead), Made(Store("Startup"), kToWrite),
             Opened("HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", kToRead),
             Opened("HKLM\\Software", kAllOfAPath), Opened("HKLM\\Software\\Microsoft", kAllOfAPath),
             Opened("HKLM\\Software\\Microsoft\\Windows", kAllOfAPath),
             Opened("HKLM\\Software\\Microsoft\\Windows\\CurrentVersion", kAllOfAPath),
             Opened("HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", kAllOfAPath),
             "RegOpenKeyA(HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates\\Quondix)"}));
}

TEST(RegistryRights, OfTheRemovedEntry) {
  TuningRig rig;
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                               "Quondix", "C:\\Program Files\\QDIX\\QDIX.exe");
  rig.StartAt(screens::kStartupTab);
  const std::size_t before = rig.machine.Calls().size();
  rig.program->StartupScreen().Check2.Press();
  Texts expected;
  for (const std::string root : {"HKLM\\Software", "HKLM\\SOFTWARE"}) {
    for (const char* const below :
         {"", "\\Microsoft", "\\Microsoft\\Windows", "\\Microsoft\\Windows\\CurrentVersion",
          "\\Microsoft\\Windows\\CurrentVersion\\Run"}) {
      expected.insert(Opened(root + below, kAllOfAPath));
    }
  }
  EXPECT_EQ(Openings(rig.machine, before), expected);
}

TEST(RegistryRights, OfTheRecordAndTheTemplateThatASaveWrites) {
  TuningRig rig;
  rig.StartAt(screens::kCacheTab);
  rig.program->CacheScreen().Check8.Press();
  rig.Answer({os::kIdYes, os::kIdNo});
  const std::size_t before = rig.machine.Calls().size();
  rig.program->CacheScreen().Command11.Press();
  const Texts openings = Openings(rig.machine, before);
  for (const std::string& call :
       {Made("HKLM\\SOFTWARE\\QDIX", kToMakeAKey), std::string("RegOpenKeyA(HKLM\\SOFTWARE\\QDIX)"),
        "RegOpenKeyA(HKLM\\" + std::string(kTemplatesPath) + ")",
        "RegOpenKeyA(HKLM\\" + std::string(kOwnTemplatePath) + ")",
        "RegCreateKeyA(HKLM\\" + std::string(kOwnTemplatePath) + ")"}) {
    EXPECT_TRUE(openings.contains(call)) << call;
  }
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "NameCache"), "3: A5 02 00 00");
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "PathCache"), "3: 20 00 00 00");
  EXPECT_EQ(rig.ValueBytes(kTemplatesPath, ""), "1: 51 75 6F 6E 64 69 78 00");
}

}  // namespace
}  // namespace qdix::tests
