// Tests the parts of the driver that protect the machine under test. The only program they need is this one.
#include <gtest/gtest.h>

#include "tests/e2e/driver/restart_watch.h"
#include "tests/e2e/driver/system_ini_keeper.h"

namespace qdix::e2e {
namespace {

constexpr const char* kKeyBelow = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates\\Server";

TEST(Driver, RestartIsDetectedAndBlocked) {
  RestartWatch watch(GetCurrentProcess());
  ASSERT_TRUE(watch.Begin());
  EXPECT_EQ(watch.Count(), 0U);
  EXPECT_TRUE(ExitWindowsEx(EWX_REBOOT, 7));
  EXPECT_EQ(watch.Count(), 1U);
  EXPECT_EQ(watch.Flags(), EWX_REBOOT);
  EXPECT_EQ(watch.Reserved(), 7U);
  EXPECT_TRUE(ExitWindowsEx(EWX_LOGOFF, 0));
  EXPECT_EQ(watch.Count(), 2U);
  EXPECT_EQ(watch.Flags(), EWX_LOGOFF);
}

TEST(Driver, ChangesToTheSystemAreUndone) {
  const SystemIniKeeper before;
  {
    const SystemIniKeeper keeper;
    SetWindowsFile(kSystemBackup, "a backup");
    EXPECT_FALSE(before.NothingChanged());
    SetSystemIniText("vcache", "MinFileCache", "2048");
    EXPECT_EQ(SystemIniText("VCACHE", "minfilecache"), "2048");
    EXPECT_EQ(SystemIniText("vcache", "NoSuchEntry"), std::nullopt);
    SetRegistryText(kMachineKey, "FirstSave", "1");
    SetRegistryText({HKEY_LOCAL_MACHINE, kKeyBelow}, "PathCache", "64");
    SetRegistryText(kTemplates, "", "Server");
    EXPECT_EQ(RegistryText(kTemplates, ""), "Server");
  }
  EXPECT_TRUE(before.NothingChanged());
}

TEST(Driver, FilesOfTheWindowsDirectoryAreRestoredByteForByte) {
  const SystemIniKeeper keeper;
  const std::string bytes("[s]\r\nk=1\r\n\0\n\xFF;", 14);
  SetWindowsFile(kSystemIni, bytes);
  EXPECT_EQ(WindowsFile(kSystemIni), bytes);
  SetWindowsFile(kSystemIni, std::nullopt);
  EXPECT_EQ(WindowsFile(kSystemIni), std::nullopt);
}

}  // namespace
}  // namespace qdix::e2e
