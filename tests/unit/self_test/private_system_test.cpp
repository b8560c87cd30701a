// The programs on the private system of the self-test: whatever they do, the machine outside one registry key
// and one folder stays unchanged.
#include "self_test/private_system.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "app/form1.h"
#include "memory/memory_block.h"
#include "os/simulated/simulated_machine.h"
#include "registry/registry_key.h"
#include "registry/registry_paths.h"
#include "registry/settings_store.h"

namespace qdix::tests {
namespace {

constexpr const char* kOwnKey = "Software\\VB and VBA Program Settings\\QDIX Self-Test";
constexpr const char* kSettingsKey = "Software\\VB and VBA Program Settings\\QDIX\\Settings";
constexpr const char* kOwnFolder = "C:\\TEMP\\QDIXTEST";
constexpr const char* kIni = "[vcache]\r\nMinFileCache=2048\r\n";
constexpr std::uint32_t kMegabyte = 1024 * 1024;

std::string InOwnKey(const char* root, const std::string& path) {
  return std::string(kOwnKey) + "\\" + root + "\\" + path;
}

class PrivateSystem : public testing::Test {
 protected:
  PrivateSystem() {
    machine.SetMemory(64 * kMegabyte, 32 * kMegabyte, 64 * kMegabyte, 48 * kMegabyte);
    machine.WriteFile("C:\\WINDOWS\\system.ini", kIni);
    machine.SetRegistryValue(os::kHkeyCurrentUser, kSettingsKey, "Warnings", "0");
  }
  ~PrivateSystem() override {
    EXPECT_EQ(machine.ReadFile("C:\\WINDOWS\\system.ini"), kIni);
    EXPECT_FALSE(machine.ReadFile("C:\\WINDOWS\\system.qdix").has_value());
    EXPECT_FALSE(machine.KeyExists(os::kHkeyLocalMachine, "SOFTWARE"));
    EXPECT_EQ(machine.RegistryTexts(os::kHkeyCurrentUser, kSettingsKey),
              (std::map<std::string, std::string>{{"Warnings", "0"}}));
    EXPECT_EQ(machine.OpenKeyCount(), 0);
    EXPECT_EQ(machine.OpenFileCount(), 0);
    EXPECT_TRUE(machine.Misuses().empty());
  }

  [[nodiscard]] os::Registry& Registry() const { return system.GetSystem().registry; }
  [[nodiscard]] os::Files& Files() const { return system.GetSystem().files; }
  [[nodiscard]] os::ProfileFiles& ProfileFiles() const { return system.GetSystem().profile_files; }

  os::SimulatedMachine machine;
  self_test::PrivateSystem system{machine.GetSystem(), {.key = kOwnKey, .folder = kOwnFolder}};
};

TEST_F(PrivateSystem, EveryRegistryRootIsInsideItsOwnKey) {
  EXPECT_TRUE(
      registry::RegistryKey::Create(Registry(), os::kHkeyLocalMachine, "SOFTWARE\\QDIX").WriteText("A", "1"));
  EXPECT_TRUE(
      registry::RegistryKey::Create(Registry(), os::kHkeyCurrentUser, "Software\\QDIX").WriteText("B", "2"));
  EXPECT_EQ(machine.RegistryText(os::kHkeyCurrentUser, InOwnKey("Root2", "SOFTWARE\\QDIX"), "A"), "1");
  EXPECT_EQ(machine.RegistryText(os::kHkeyCurrentUser, InOwnKey("Root1", "Software\\QDIX"), "B"), "2");
  const auto read =
      registry::RegistryKey::Open(Registry(), os::kHkeyLocalMachine, "SOFTWARE\\QDIX", os::kKeyQueryValue);
  EXPECT_EQ(read.ReadText("A"), "1");
}

TEST_F(PrivateSystem, OldRegistryCallsAlsoUseItsOwnKey) {
  os::KeyHandle key = 0;
  ASSERT_EQ(Registry().RegCreateKeyA(os::kHkeyUsers, "A", key), os::kErrorSuccess);
  EXPECT_EQ(Registry().RegCloseKey(key), os::kErrorSuccess);
  ASSERT_EQ(Registry().RegOpenKeyA(os::kHkeyUsers, "A", key), os::kErrorSuccess);
  EXPECT_EQ(Registry().RegCloseKey(key), os::kErrorSuccess);
  EXPECT_TRUE(machine.KeyExists(os::kHkeyCurrentUser, InOwnKey("Root3", "A")));
  EXPECT_FALSE(machine.KeyExists(os::kHkeyUsers, "A"));
}

TEST_F(PrivateSystem, PathByNamesAlsoUsesItsOwnKey) {
  registry::RegistryPaths paths(Registry());
  paths.CreateRegistryKey("A\\B", os::kHkeyLocalMachine);
  const std::int32_t key = paths.GetSubkeyHandle("HKEY_LOCAL_MACHINE\\A\\B");
  ASSERT_NE(key, registry::RegistryPaths::kNoKey);
  EXPECT_FALSE(paths.CloseSubkey(key));
}

TEST_F(PrivateSystem, RootsHaveNoValuesAndAcceptNone) {
  std::uint8_t byte = 0;
  std::uint32_t type = 0;
  std::uint32_t size_bytes = 1;
  EXPECT_EQ(Registry().RegSetValueExA(os::kHkeyCurrentUser, "A", os::kRegBinary, &byte, 1),
            os::kErrorAccessDenied);
  EXPECT_EQ(Registry().RegDeleteValueA(os::kHkeyCurrentUser, "A"), os::kErrorAccessDenied);
  EXPECT_EQ(Registry().RegQueryValueExA(os::kHkeyCurrentUser, "A", type, &byte, size_bytes),
            os::kErrorFileNotFound);
}

TEST_F(PrivateSystem, ValueInItsOwnKeyIsDeleted) {
  auto key = registry::RegistryKey::Create(Registry(), os::kHkeyCurrentUser, "Software\\QDIX");
  ASSERT_TRUE(key.WriteText("B", "2"));
  EXPECT_TRUE(key.DeleteValue("B"));
  EXPECT_EQ(machine.RegistryText(os::kHkeyCurrentUser, InOwnKey("Root1", "Software\\QDIX"), "B"),
            std::nullopt);
  EXPECT_FALSE(key.DeleteValue("B"));
}

TEST_F(PrivateSystem, StatisticIsTheRealOneAndReadOnly) {
  machine.CreateRegistryKey(os::kHkeyDynData, "PerfStats\\StatData");
  os::KeyHandle key = 0;
  ASSERT_EQ(Registry().RegOpenKeyExA(os::kHkeyDynData, "PerfStats\\StatData", os::kKeyQueryValue, key),
            os::kErrorSuccess);
  EXPECT_EQ(Registry().RegCloseKey(key), os::kErrorSuccess);
  EXPECT_EQ(Registry().RegOpenKeyExA(os::kHkeyDynData, "PerfStats\\StatData", os::kKeyAllAccess, key),
            os::kErrorAccessDenied);
}

TEST_F(PrivateSystem, FilesAreChangedOnlyInItsOwnFolder) {
  machine.WriteFile("C:\\A.TXT", "a");
  EXPECT_FALSE(Files().DeleteFileA("C:\\A.TXT"));
  EXPECT_FALSE(Files().DeleteFileA("A.TXT"));
  EXPECT_FALSE(Files().CopyFileA("C:\\A.TXT", "C:\\B.TXT"));
  EXPECT_FALSE(Files().MoveFileA("C:\\A.TXT", "C:\\TEMP\\QDIXTEST\\A.TXT"));
  EXPECT_EQ(Files().CreateFileA("C:\\A.TXT", os::kGenericWrite, os::kOpenExisting), os::kInvalidFile);
  EXPECT_EQ(Files().CreateFileA("C:\\N.TXT", os::kGenericRead, os::kOpenAlways), os::kInvalidFile);
  EXPECT_EQ(Files().CreateFileA("C:\\TEMP\\QDIXTEST\\..\\N.TXT", os::kGenericWrite, os::kCreateAlways),
            os::kInvalidFile);
  EXPECT_EQ(Files().CreateFileA("C:\\TEMP\\QDIXTEST\\", os::kGenericWrite, os::kCreateAlways),
            os::kInvalidFile)
      << "a folder is not a file";
  EXPECT_EQ(machine.ReadFile("C:\\A.TXT"), "a");

  EXPECT_TRUE(Files().CopyFileA("C:\\A.TXT", "C:\\TEMP\\QDIXTEST\\A.TXT"));
  EXPECT_TRUE(Files().MoveFileA("c:\\temp\\qdixtest\\A.TXT", "C:\\TEMP\\QDIXTEST\\B.TXT"));
  EXPECT_EQ(machine.ReadFile("C:\\TEMP\\QDIXTEST\\B.TXT"), "a");
  EXPECT_TRUE(Files().DeleteFileA("C:\\TEMP\\QDIXTEST\\B.TXT"));
}

TEST_F(PrivateSystem, FileInItsOwnFolderIsWrittenAndRead) {
  const char* const path = "C:\\TEMP\\QDIXTEST\\A.TXT";
  const os::FileHandle file = Files().CreateFileA(path, os::kGenericWrite, os::kCreateAlways);
  ASSERT_NE(file, os::kInvalidFile);
  std::uint32_t written_bytes = 0;
  EXPECT_TRUE(Files().WriteFile(file, "abc", 3, written_bytes));
  EXPECT_EQ(written_bytes, 3U);
  EXPECT_TRUE(Files().FlushFileBuffers(file));
  Files().CloseHandle(file);
  EXPECT_EQ(machine.ReadFile(path), "abc");
}

TEST_F(PrivateSystem, EveryFileCanBeFoundAndItsOwnKeysFlushed) {
  machine.WriteFile("C:\\A.TXT", "a");
  os::FoundFile found;
  EXPECT_TRUE(Files().FindFirstFileA("C:\\A.TXT", found));
  EXPECT_EQ(found.dos_name, "A.TXT");
  auto key = registry::RegistryKey::Create(Registry(), os::kHkeyLocalMachine, "SOFTWARE\\QDIX");
  EXPECT_TRUE(key.Flush());
  EXPECT_EQ(Registry().RegFlushKey(os::kHkeyLocalMachine), os::kErrorSuccess) << "there is nothing to write";
}

TEST_F(PrivateSystem, SystemIniIsItsOwn) {
  char text[16] = {};
  EXPECT_TRUE(ProfileFiles().WritePrivateProfileStringA("vcache", "MinFileCache", "1", "system.ini"));
  EXPECT_EQ(
      ProfileFiles().GetPrivateProfileStringA("vcache", "MinFileCache", "", text, sizeof text, "system.ini"),
      1U);
  EXPECT_EQ(text[0], '1');
  EXPECT_FALSE(ProfileFiles().WritePrivateProfileStringA("vcache", "A", "1", "C:\\WINDOWS\\system.ini"));
  EXPECT_TRUE(machine.ReadFile("C:\\TEMP\\QDIXTEST\\system.ini").has_value());
}

TEST_F(PrivateSystem, WindowsFolderIsItsOwn) {
  const std::size_t length = std::string_view(kOwnFolder).size();
  char folder[32];
  std::fill(std::begin(folder), std::end(folder), '?');
  EXPECT_EQ(Files().GetWindowsDirectoryA(folder, static_cast<std::uint32_t>(length) + 1), length);
  EXPECT_STREQ(folder, kOwnFolder);
  EXPECT_EQ(folder[length + 1], '?') << "wrote beyond the end of the buffer";
  folder[0] = '?';
  EXPECT_EQ(Files().GetWindowsDirectoryA(folder, static_cast<std::uint32_t>(length)), length + 1);
  EXPECT_EQ(folder[0], '?');
}

TEST_F(PrivateSystem, MemoryIsAllocatedInSmallBlocksAndCounted) {
  os::Memory& memory = system.GetSystem().memory;
  EXPECT_EQ(memory.VirtualAlloc(self_test::LimitedMemory::kMaxBytes + 1), nullptr);
  void* const largest = memory.VirtualAlloc(self_test::LimitedMemory::kMaxBytes);
  EXPECT_NE(largest, nullptr);
  memory.TouchPages(largest, self_test::LimitedMemory::kMaxBytes);
  EXPECT_EQ(system.Memory().TouchedBytes(), self_test::LimitedMemory::kMaxBytes);
  memory.VirtualFree(largest);
  {
    memory::MemoryBlock block(memory);
    EXPECT_TRUE(block.Allocate(999999).Ok());
    EXPECT_EQ(system.Memory().Taken(), 2);
    EXPECT_EQ(system.Memory().GivenBack(), 1);
  }
  EXPECT_EQ(system.Memory().GivenBack(), 2);
  EXPECT_EQ(system.Memory().TouchedBytes(), self_test::LimitedMemory::kMaxBytes + 1000000U);
}

TEST_F(PrivateSystem, MessagesAreKeptInOneLineUntilTheyAreRead) {
  os::Dialogs& dialogs = system.GetSystem().dialogs;
  EXPECT_EQ(dialogs.MessageBoxA("one\r\ntwo", "", os::kMbYesNo), os::kIdNone);
  EXPECT_EQ(dialogs.MessageBoxA("three", "", os::kMbOk), os::kIdNone);
  EXPECT_EQ(system.Dialogs().TakeTexts(), "one  two / three");
  EXPECT_EQ(system.Dialogs().TakeTexts(), "");
}

TEST_F(PrivateSystem, FirstStartAndUseOfEverythingLeaveTheMachineAlone) {
  const auto form1 = std::make_unique<app::Form1>(system.GetSystem());
  form1->Start();
  ASSERT_FALSE(form1->Form().Unloaded()) << system.Dialogs().TakeTexts();
  for (int tab = 0; tab < form1->MainWindow().SSTab1.Count(); ++tab) {
    form1->MainWindow().SSTab1.ChooseTab(tab);
    for (ui::Button* button : {&form1->StartupScreen().Command5, &form1->QuondixScreen().Command21})
      button->Press();
    form1->StartupScreen().Check2.Press();
    form1->StartupScreen().Check4.Press();
  }
  form1->Form().Unload();
  EXPECT_EQ(registry::SettingsStore(Registry()).NumberOr(setting::kLastTab, -1), 7);
}

}  // namespace
}  // namespace qdix::tests
