// The simulated machine itself. All other tests rely on it.
#include "os/simulated/simulated_machine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace qdix::os {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SimulatedMachineTest : public testing::Test {
 protected:
  SimulatedMachine machine;
  const System& system = machine.GetSystem();
};

// Memory.

TEST_F(SimulatedMachineTest, ReportsTheMemoryThatWasSet) {
  machine.SetMemory(64000000, 16000000, 128000000, 100000000);
  const MemoryStatus status = system.memory.GlobalMemoryStatus();
  EXPECT_EQ(status.length, 32U);
  EXPECT_EQ(status.total_physical, 64000000U);
  EXPECT_EQ(status.available_physical, 16000000U);
  EXPECT_EQ(status.total_page_file, 128000000U);
  EXPECT_EQ(status.available_page_file, 100000000U);
  EXPECT_EQ(status.memory_load_percent, 75U);
}

TEST_F(SimulatedMachineTest, ShowsBlocksWhileTheyAreHeldAndRemembersThemAfterwards) {
  void* first = system.memory.VirtualAlloc(10000);
  void* second = system.memory.VirtualAlloc(4096);
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  EXPECT_THAT(machine.OutstandingBlocks(), ElementsAre(10000U, 4096U));
  EXPECT_THAT(machine.TouchedPages(), ElementsAre(0U, 0U));
  system.memory.TouchPages(first, 10000);
  EXPECT_THAT(machine.TouchedPages(), ElementsAre(3U, 0U));
  system.memory.VirtualFree(first);
  EXPECT_THAT(machine.OutstandingBlocks(), ElementsAre(4096U));
  EXPECT_THAT(machine.AllAllocations(), ElementsAre(10000U, 4096U));
  EXPECT_THAT(machine.Misuses(), IsEmpty());
}

TEST_F(SimulatedMachineTest, RefusesBlocksBeyondTheLimitUntilOthersAreFreed) {
  machine.LimitAllocatableBytes(20000);
  void* block = system.memory.VirtualAlloc(15000);
  EXPECT_EQ(system.memory.VirtualAlloc(6000), nullptr);
  system.memory.TouchPages(block, 15000);
  system.memory.VirtualFree(block);
  EXPECT_NE(system.memory.VirtualAlloc(20000), nullptr);
}

TEST_F(SimulatedMachineTest, RecordsABlockFreedWithUntouchedPages) {
  system.memory.VirtualFree(system.memory.VirtualAlloc(4096));
  EXPECT_THAT(machine.Misuses(), ElementsAre(HasSubstr("not all written")));
}

TEST_F(SimulatedMachineTest, RecordsABlockFreedTwice) {
  void* block = system.memory.VirtualAlloc(4096);
  system.memory.TouchPages(block, 4096);
  system.memory.VirtualFree(block);
  system.memory.VirtualFree(block);
  EXPECT_THAT(machine.Misuses(), ElementsAre(HasSubstr("not held")));
}

TEST_F(SimulatedMachineTest, RecordsPagesTouchedBeyondABlock) {
  system.memory.TouchPages(system.memory.VirtualAlloc(4096), 8192);
  EXPECT_THAT(machine.Misuses(), ElementsAre(HasSubstr("no block of this size")));
}

// Registry. What a real registry also does is in the contract tests; these tests cover what only a test can
// do.

TEST_F(SimulatedMachineTest, ReadsBackWhatATestStored) {
  machine.SetRegistryValue(kHkeyCurrentUser, "Software\\Thing", "Name", "text");
  EXPECT_EQ(machine.RegistryText(kHkeyCurrentUser, "SOFTWARE\\thing", "NAME"), "text");
  EXPECT_TRUE(machine.KeyExists(kHkeyCurrentUser, "software"));
  EXPECT_FALSE(machine.KeyExists(kHkeyLocalMachine, "software"));
  EXPECT_EQ(machine.RegistryText(kHkeyCurrentUser, "Software\\Thing", "Other"), std::nullopt);
}

TEST_F(SimulatedMachineTest, KeepsTheSpellingOfValueNames) {
  machine.SetRegistryValue(kHkeyCurrentUser, "Key", "MixedCase", "1");
  machine.SetRegistryValue(kHkeyCurrentUser, "Key", "MIXEDCASE", "2");
  EXPECT_THAT(machine.RegistryTexts(kHkeyCurrentUser, "Key"), ElementsAre(testing::Pair("MixedCase", "2")));
}

TEST_F(SimulatedMachineTest, DoesNotReturnATypedValueAsText) {
  machine.SetRegistryBytes(kHkeyCurrentUser, "Key", "Number", kRegDword, std::string(4, '\1'));
  EXPECT_EQ(machine.RegistryText(kHkeyCurrentUser, "Key", "Number"), std::nullopt);
}

TEST_F(SimulatedMachineTest, ProtectsOneKeyAgainstWriting) {
  machine.CreateRegistryKey(kHkeyCurrentUser, "Locked\\Below");
  machine.DenyWrites(kHkeyCurrentUser, "Locked");
  KeyHandle key = 0;
  EXPECT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "locked", kKeySetValue, key), kErrorAccessDenied);
  EXPECT_EQ(system.registry.RegCreateKeyExA(kHkeyCurrentUser, "locked", kKeyAllAccess, key),
            kErrorAccessDenied);
  EXPECT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "locked", kKeyQueryValue, key), kErrorSuccess);
  EXPECT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "locked\\below", kKeySetValue, key),
            kErrorSuccess);
}

// As on the NT line; Windows 95 and 98 do not check rights. A program that works here works on both.
TEST_F(SimulatedMachineTest, HandleOpenedForReadingDoesNotWrite) {
  machine.SetRegistryValue(kHkeyCurrentUser, "Key", "Name", "kept");
  KeyHandle key = 0;
  ASSERT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "Key", kKeyQueryValue, key), kErrorSuccess);
  const std::uint8_t byte = 0;
  EXPECT_EQ(system.registry.RegSetValueExA(key, "Name", kRegBinary, &byte, 1), kErrorAccessDenied);
  EXPECT_EQ(system.registry.RegDeleteValueA(key, "Name"), kErrorAccessDenied);
  EXPECT_EQ(machine.RegistryText(kHkeyCurrentUser, "Key", "Name"), "kept");
}

TEST_F(SimulatedMachineTest, HandleOpenedForWritingDoesNotRead) {
  machine.SetRegistryValue(kHkeyCurrentUser, "Key", "Name", "text");
  KeyHandle key = 0;
  ASSERT_EQ(system.registry.RegCreateKeyExA(kHkeyCurrentUser, "Key", kKeySetValue, key), kErrorSuccess);
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  EXPECT_EQ(system.registry.RegQueryValueExA(key, "Name", type, nullptr, size), kErrorAccessDenied);
}

TEST_F(SimulatedMachineTest, CountsOpenKeysAndRecordsAKeyClosedTwice) {
  machine.CreateRegistryKey(kHkeyCurrentUser, "Key");
  KeyHandle key = 0;
  ASSERT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "Key", kKeyQueryValue, key), kErrorSuccess);
  EXPECT_EQ(machine.OpenKeyCount(), 1);
  EXPECT_EQ(system.registry.RegCloseKey(key), kErrorSuccess);
  EXPECT_EQ(machine.OpenKeyCount(), 0);
  EXPECT_EQ(system.registry.RegCloseKey(key), kErrorInvalidHandle);
  EXPECT_THAT(machine.Misuses(), ElementsAre(HasSubstr("not open")));
}

TEST_F(SimulatedMachineTest, RecordsNamesOfWrittenAndQueriedValuesInOrder) {
  KeyHandle key = 0;
  ASSERT_EQ(system.registry.RegCreateKeyExA(kHkeyCurrentUser, "Key", kKeyAllAccess, key), kErrorSuccess);
  const std::uint8_t byte = 0;
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  EXPECT_EQ(system.registry.RegSetValueExA(key, "B", kRegBinary, &byte, 1), kErrorSuccess);
  EXPECT_EQ(system.registry.RegQueryValueExA(key, "C", type, nullptr, size), kErrorFileNotFound);
  const std::size_t calls = machine.Calls().size();
  EXPECT_EQ(system.registry.RegSetValueExA(key, "A", kRegBinary, &byte, 1), kErrorSuccess);
  EXPECT_THAT(machine.WrittenValueNames(), ElementsAre("B", "A"));
  EXPECT_THAT(machine.WrittenValueNames(calls), ElementsAre("A"));
  EXPECT_THAT(machine.QueriedValueNames(), ElementsAre("C"));
}

// Event pump.

TEST_F(SimulatedMachineTest, RunsAnActionInsideEachPump) {
  std::vector<int> pumps;
  machine.OnPump([&](int number) { pumps.push_back(number); });
  system.event_pump.PumpEvents();
  system.event_pump.PumpEvents();
  EXPECT_THAT(pumps, ElementsAre(1, 2));
  EXPECT_EQ(machine.PumpCount(), 2);
}

TEST_F(SimulatedMachineTest, PumpsInsideAPump) {
  machine.OnPump([&](int number) {
    if (number < 3) system.event_pump.PumpEvents();
  });
  system.event_pump.PumpEvents();
  EXPECT_EQ(machine.PumpCount(), 3);
}

// Windows.

TEST_F(SimulatedMachineTest, TheLastOpenedWindowIsInFront) {
  const WindowHandle behind = machine.OpenWindow("Class", "Behind");
  const WindowHandle front = machine.OpenWindow("Class", "Front");
  EXPECT_EQ(system.windows.FindWindowA("class", nullptr), front);
  EXPECT_EQ(system.windows.GetWindow(behind, kGwHwndPrev), front);
  EXPECT_EQ(system.windows.GetWindow(front, kGwHwndPrev), 0U);
}

TEST_F(SimulatedMachineTest, WindowsChangeOrderTitlesAndStates) {
  const WindowHandle hidden = machine.OpenWindow("Hidden", "Title");
  const WindowHandle main = machine.OpenWindow("Main", "Title");
  machine.OpenWindow("Other", "Title");
  machine.PlaceDirectlyBehind(hidden, main);
  EXPECT_EQ(system.windows.GetWindow(hidden, kGwHwndPrev), main);
  machine.SetWindowTitle(main, "Renamed");
  EXPECT_EQ(system.windows.FindWindowA(nullptr, "renamed"), main);
  machine.Minimise(main);
  EXPECT_TRUE(machine.IsMinimised(main));
  EXPECT_TRUE(system.windows.OpenIcon(main));
  EXPECT_FALSE(machine.IsMinimised(main));
  EXPECT_TRUE(system.windows.SetForegroundWindow(main));
  EXPECT_EQ(machine.ForegroundWindow(), main);
  machine.CloseWindow(main);
  EXPECT_FALSE(system.windows.OpenIcon(main));
  EXPECT_FALSE(system.windows.SetForegroundWindow(main));
  EXPECT_EQ(system.windows.GetWindow(main, kGwHwndPrev), 0U);
}

// Message boxes.

TEST_F(SimulatedMachineTest, BoxesGetTheirDefaultButtonUnlessAnAnswerIsQueued) {
  EXPECT_EQ(system.dialogs.MessageBoxA("a", "T", kMbOk), kIdOk);
  EXPECT_EQ(system.dialogs.MessageBoxA("b", "T", kMbYesNo), kIdYes);
  EXPECT_EQ(system.dialogs.MessageBoxA("c", "T", kMbYesNo | kMbDefaultButton2), kIdNo);
  machine.AnswerNextBox(kIdNo);
  machine.AnswerNextBox(kIdYes);
  EXPECT_EQ(system.dialogs.MessageBoxA("d", "T", kMbYesNo), kIdNo);
  EXPECT_EQ(system.dialogs.MessageBoxA("e", "T", kMbYesNo | kMbDefaultButton2), kIdYes);
  ASSERT_EQ(machine.Boxes().size(), 5U);
  EXPECT_EQ(machine.Boxes()[2].text, "c");
  EXPECT_EQ(machine.Boxes()[2].title, "T");
  EXPECT_EQ(machine.Boxes()[2].flags, kMbYesNo | kMbDefaultButton2);
}

TEST_F(SimulatedMachineTest, RunsAnActionWhileABoxIsOpen) {
  std::size_t boxes_then = 0;
  machine.WhileBoxIsOpen([&] { boxes_then = machine.Boxes().size(); });
  EXPECT_EQ(system.dialogs.MessageBoxA("text", "T", kMbOk), kIdOk);
  EXPECT_EQ(boxes_then, 1U);
}

TEST_F(SimulatedMachineTest, BoxDismissedByTheEndIsUnanswered) {
  machine.WhileBoxIsOpen([&] { machine.EndBoxes(); });
  EXPECT_EQ(system.dialogs.MessageBoxA("first", "T", kMbOk), kIdNone);
  EXPECT_EQ(system.dialogs.MessageBoxA("second", "T", kMbOk), kIdNone);
  ASSERT_EQ(machine.Boxes().size(), 1U);
  EXPECT_EQ(machine.Boxes()[0].text, "first");
}

// Notification area.

NotifyIconData IconNumber(std::uint32_t id, const std::string& tip) {
  NotifyIconData data;
  data.id = id;
  std::copy(tip.begin(), tip.end(), data.tip.begin());
  return data;
}

TEST_F(SimulatedMachineTest, KeepsEachIconOnce) {
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(kNimAdd, IconNumber(1, "one")));
  EXPECT_FALSE(system.shell.Shell_NotifyIconA(kNimAdd, IconNumber(1, "again")));
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(kNimAdd, IconNumber(2, "two")));
  EXPECT_EQ(machine.TrayIconCount(), 2);
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(kNimModify, IconNumber(1, "changed")));
  EXPECT_TRUE(system.shell.Shell_NotifyIconA(kNimDelete, IconNumber(1, "")));
  EXPECT_FALSE(system.shell.Shell_NotifyIconA(kNimModify, IconNumber(1, "")));
  EXPECT_FALSE(system.shell.Shell_NotifyIconA(kNimDelete, IconNumber(1, "")));
  EXPECT_EQ(machine.TrayIconCount(), 1);
  ASSERT_EQ(machine.TrayRequests().size(), 7U);
  EXPECT_EQ(machine.TrayRequests()[3].request, kNimModify);
  EXPECT_EQ(machine.TrayRequests()[3].tip, "changed");
}

// Time and this process.

TEST_F(SimulatedMachineTest, TimeStandsStillUntilItIsAdvanced) {
  machine.SetNow(46347.5);
  const std::uint32_t ticks = system.clock.GetTickCount();
  EXPECT_EQ(system.clock.Now(), 46347.5);
  EXPECT_EQ(system.clock.Now(), 46347.5);
  machine.AdvanceMs(21600000);
  EXPECT_EQ(system.clock.Now(), 46347.75);
  EXPECT_EQ(system.clock.GetTickCount(), ticks + 21600000U);
}

TEST_F(SimulatedMachineTest, TicksWrapAround) {
  machine.AdvanceMs(0xFFFFFFFFLL + 6);
  EXPECT_EQ(system.clock.GetTickCount(), 5U);
}

TEST_F(SimulatedMachineTest, FormatsDaysAsEnglishLongDates) {
  EXPECT_EQ(system.clock.LongDate(46347.9), "Saturday, November 21, 2026");
  EXPECT_EQ(system.clock.LongDate(2), "Monday, January 1, 1900");
  EXPECT_EQ(system.clock.LongDate(2958466), "");
}

TEST_F(SimulatedMachineTest, AnotherCopyHoldsTheMutex) {
  EXPECT_FALSE(system.processes.MutexExistedBefore("Name"));
  EXPECT_TRUE(system.processes.MutexExistedBefore("Name"));
  machine.SetOtherCopyRunning(true);
  EXPECT_TRUE(system.processes.MutexExistedBefore("Another"));
}

TEST_F(SimulatedMachineTest, TheProgramIsWhereATestPutsIt) {
  EXPECT_EQ(system.processes.ModuleFileName(), "C:\\Program Files\\QDIX\\QDIX.exe");
  machine.SetModuleFileName("D:\\Tools\\QDIX.exe");
  EXPECT_EQ(system.processes.ModuleFileName(), "D:\\Tools\\QDIX.exe");
}

// Records and faults.

TEST_F(SimulatedMachineTest, RecordsCallsWithTheirArguments) {
  KeyHandle key = 0;
  EXPECT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "Missing\\Key", kKeyQueryValue, key),
            kErrorFileNotFound);
  static_cast<void>(system.memory.VirtualAlloc(4096));
  EXPECT_THAT(machine.Calls(), ElementsAre("RegOpenKeyExA(HKCU\\Missing\\Key, 1)", "VirtualAlloc(4096)"));
}

TEST_F(SimulatedMachineTest, FailsTheNextCallOfAName) {
  machine.FailNextCall("VirtualAlloc");
  EXPECT_FALSE(system.processes.MutexExistedBefore("Name"));
  EXPECT_EQ(system.memory.VirtualAlloc(4096), nullptr);
  EXPECT_NE(system.memory.VirtualAlloc(4096), nullptr);
}

TEST_F(SimulatedMachineTest, FailsACallOnceByItsNumber) {
  machine.FailCallNumber(2);
  EXPECT_NE(system.memory.VirtualAlloc(1), nullptr);
  EXPECT_EQ(system.memory.VirtualAlloc(2), nullptr);
  EXPECT_NE(system.memory.VirtualAlloc(3), nullptr);
  EXPECT_EQ(machine.FaultableCallCount(), 3);
}

TEST_F(SimulatedMachineTest, FailsEveryCallFromANumberOn) {
  machine.FailFromCallNumber(2);
  EXPECT_NE(system.memory.VirtualAlloc(1), nullptr);
  EXPECT_EQ(system.memory.VirtualAlloc(2), nullptr);
  EXPECT_EQ(system.dialogs.MessageBoxA("text", "T", kMbOk), kIdNone);
  EXPECT_THAT(machine.Boxes(), IsEmpty());
}

TEST_F(SimulatedMachineTest, CallsThatCannotFailAreNotCounted) {
  void* block = system.memory.VirtualAlloc(4096);
  static_cast<void>(system.memory.GlobalMemoryStatus());
  system.memory.TouchPages(block, 4096);
  system.memory.VirtualFree(block);
  system.event_pump.PumpEvents();
  static_cast<void>(system.clock.Now());
  static_cast<void>(system.clock.GetTickCount());
  EXPECT_EQ(machine.FaultableCallCount(), 1);
}

TEST_F(SimulatedMachineTest, EveryOtherCallFailsAsTheSystemWould) {
  machine.CreateRegistryKey(kHkeyCurrentUser, "Key");
  const WindowHandle window = machine.OpenWindow("Class", "Title");
  machine.OpenWindow("Class", "In front");
  KeyHandle key = 0;
  ASSERT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "Key", kKeyAllAccess, key), kErrorSuccess);
  const std::uint8_t byte = 0;
  ASSERT_EQ(system.registry.RegSetValueExA(key, "Value", kRegBinary, &byte, 1), kErrorSuccess);
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  KeyHandle opened = 77;

  machine.FailFromCallNumber(1);
  EXPECT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "Key", kKeyQueryValue, opened),
            kErrorAccessDenied);
  EXPECT_EQ(system.registry.RegCreateKeyExA(kHkeyCurrentUser, "New", kKeyAllAccess, opened),
            kErrorAccessDenied);
  EXPECT_EQ(opened, 77U);
  EXPECT_FALSE(machine.KeyExists(kHkeyCurrentUser, "New"));
  EXPECT_NE(system.registry.RegQueryValueExA(key, "Value", type, nullptr, size), kErrorSuccess);
  EXPECT_EQ(system.registry.RegSetValueExA(key, "Value", kRegBinary, &byte, 1), kErrorAccessDenied);
  EXPECT_EQ(system.registry.RegDeleteValueA(key, "Value"), kErrorAccessDenied);
  EXPECT_EQ(system.windows.FindWindowA("Class", nullptr), 0U);
  EXPECT_EQ(system.windows.GetWindow(window, kGwHwndPrev), 0U);
  EXPECT_FALSE(system.windows.OpenIcon(window));
  EXPECT_FALSE(system.windows.SetForegroundWindow(window));
  EXPECT_FALSE(system.shell.Shell_NotifyIconA(kNimAdd, NotifyIconData{}));
  EXPECT_EQ(system.clock.LongDate(46347), "");
  EXPECT_FALSE(system.processes.MutexExistedBefore("Name"));
  EXPECT_EQ(system.processes.ModuleFileName(), "");
}

TEST_F(SimulatedMachineTest, CopyOverACachedProfileFileIsMisuse) {
  machine.WriteFile("C:\\WINDOWS\\a.ini", "[s]\r\nk=1\r\n");
  machine.WriteFile("C:\\WINDOWS\\b.ini", "");
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", "2", "A.INI"));
  system.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, "a.ini");
  EXPECT_TRUE(system.files.CopyFileA("C:\\WINDOWS\\b.ini", "C:\\WINDOWS\\a.ini"));
  EXPECT_TRUE(machine.Misuses().empty());
  std::array<char, 8> value{};
  EXPECT_EQ(system.profile_files.GetPrivateProfileStringA("s", "k", "", value.data(), value.size(), "a.ini"),
            0U);
  EXPECT_TRUE(system.files.CopyFileA("C:\\WINDOWS\\b.ini", "C:\\windows\\a.ini"));
  EXPECT_EQ(machine.Misuses().size(), 1U);
  machine.ClearMisuses();
}

TEST_F(SimulatedMachineTest, FullDiskTakesPartOfACopyAndNoEntryThatMakesAFileGrow) {
  machine.WriteFile("C:\\WINDOWS\\system.ini", "[a]\r\nkey=12345\r\n");
  machine.WriteFile("C:\\COPY", "an earlier file, which the copy empties first");
  machine.LimitFreeBytes(3);
  EXPECT_FALSE(system.files.CopyFileA("C:\\WINDOWS\\system.ini", "C:\\COPY"));
  EXPECT_EQ(machine.ReadFile("C:\\COPY"), "[a]");
  machine.LimitFreeBytes(3);
  EXPECT_FALSE(system.profile_files.WritePrivateProfileStringA("a", "key", "123456789", "system.ini"));
  EXPECT_EQ(machine.ReadFile("C:\\WINDOWS\\system.ini"), "[a]\r\nkey=12345\r\n");
  EXPECT_TRUE(system.profile_files.WritePrivateProfileStringA("a", "key", "1", "system.ini"));
  EXPECT_TRUE(system.profile_files.WritePrivateProfileStringA("a", "key", "1234", "system.ini"));
  EXPECT_FALSE(system.profile_files.WritePrivateProfileStringA("a", "key", "12345", "system.ini"));
}

TEST_F(SimulatedMachineTest, PowerCutLeavesHalfAWriteAndNothingAfterIt) {
  machine.WriteFile("C:\\A", "12345678");
  machine.WriteFile("C:\\B", "earlier");
  machine.CutPowerInDiskWrite(2);
  EXPECT_FALSE(system.files.CopyFileA("C:\\A", "C:\\B"))
      << "the first write emptied it, the second filled half of it";
  EXPECT_EQ(machine.ReadFile("C:\\B"), "1234");
  EXPECT_FALSE(system.files.MoveFileA("C:\\A", "C:\\C"));
  EXPECT_FALSE(system.files.DeleteFileA("C:\\A"));
  EXPECT_EQ(system.files.CreateFileA("C:\\A", kGenericWrite, kCreateAlways), kInvalidFile);
  EXPECT_FALSE(system.profile_files.WritePrivateProfileStringA("a", "key", "1", "C:\\A"));
  EXPECT_EQ(machine.ReadFile("C:\\A"), "12345678");
}

TEST_F(SimulatedMachineTest, PowerCutDuringTheCreationOfAFileLeavesItEmpty) {
  machine.WriteFile("C:\\A", "12345678");
  machine.CutPowerInDiskWrite(1);
  EXPECT_EQ(system.files.CreateFileA("C:\\A", kGenericWrite, kCreateAlways), kInvalidFile);
  EXPECT_EQ(machine.ReadFile("C:\\A"), "");
}

TEST_F(SimulatedMachineTest, FileHeldByAnotherProgramCannotBeOpened) {
  machine.WriteFile("C:\\WINDOWS\\A.INI", "[s]\r\nk=1\r\n");
  machine.LockFile("C:\\windows\\a.ini");
  std::array<char, 8> value{};
  EXPECT_EQ(system.files.CreateFileA("C:\\WINDOWS\\A.INI", kGenericRead, kOpenExisting), kInvalidFile);
  EXPECT_EQ(system.profile_files.GetPrivateProfileStringA("s", "k", "", value.data(), value.size(), "a.ini"),
            0U);
  EXPECT_FALSE(system.profile_files.WritePrivateProfileStringA("s", "k", "2", "a.ini"));
  system.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, "a.ini");
  EXPECT_FALSE(system.files.CopyFileA("C:\\WINDOWS\\A.INI", "C:\\B"));
  EXPECT_FALSE(system.files.MoveFileA("C:\\WINDOWS\\A.INI", "C:\\WINDOWS\\B.INI"));
  EXPECT_FALSE(system.files.DeleteFileA("C:\\WINDOWS\\A.INI"));
  machine.UnlockFile("C:\\WINDOWS\\A.INI");
  EXPECT_TRUE(system.files.MoveFileA("C:\\WINDOWS\\A.INI", "C:\\WINDOWS\\B.INI"));
}

TEST_F(SimulatedMachineTest, WriteProtectionFollowsARenameAndACopy) {
  machine.WriteFile("C:\\A", "a");
  machine.ProtectFile("C:\\A");
  EXPECT_TRUE(system.files.CopyFileA("C:\\A", "C:\\B"));
  EXPECT_TRUE(system.files.MoveFileA("C:\\A", "C:\\C"));
  EXPECT_EQ(system.files.GetFileAttributesA("C:\\B"), kFileAttributeReadOnly);
  EXPECT_EQ(system.files.GetFileAttributesA("C:\\C"), kFileAttributeReadOnly);
}

TEST_F(SimulatedMachineTest, MovingACachedProfileFileIsMisuse) {
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", "1", "a.ini"));
  EXPECT_TRUE(system.files.MoveFileA("C:\\WINDOWS\\a.ini", "C:\\WINDOWS\\b.ini"));
  EXPECT_EQ(machine.Misuses().size(), 1U);
  machine.ClearMisuses();
}

// Long runs.

TEST_F(SimulatedMachineTest, ForgetsRecordedCallsButNothingThatIsHeld) {
  machine.CreateRegistryKey(kHkeyCurrentUser, "A");
  KeyHandle key = 0;
  ASSERT_EQ(system.registry.RegOpenKeyExA(kHkeyCurrentUser, "A", kKeyAllAccess, key), kErrorSuccess);
  ASSERT_EQ(system.registry.RegSetValueExA(key, "N", kRegSz, nullptr, 0), kErrorSuccess);
  ASSERT_NE(system.memory.VirtualAlloc(5000), nullptr);
  system.dialogs.MessageBoxA("text", "title", kMbOk);
  ASSERT_TRUE(system.shell.Shell_NotifyIconA(kNimAdd, {}));
  const int calls = machine.FaultableCallCount();
  machine.ClearRecords();
  EXPECT_THAT(machine.Calls(), IsEmpty());
  EXPECT_THAT(machine.WrittenValueNames(), IsEmpty());
  EXPECT_THAT(machine.AllAllocations(), IsEmpty());
  EXPECT_THAT(machine.Boxes(), IsEmpty());
  EXPECT_THAT(machine.TrayRequests(), IsEmpty());
  EXPECT_EQ(machine.FaultableCallCount(), calls);
  EXPECT_EQ(machine.OpenKeyCount(), 1);
  EXPECT_THAT(machine.OutstandingBlocks(), ElementsAre(5000U));
  EXPECT_EQ(machine.TrayIconCount(), 1);
}

TEST_F(SimulatedMachineTest, ClosesOnlyTheHandlesOfOneKey) {
  machine.CreateRegistryKey(kHkeyDynData, "A\\B");
  KeyHandle key = 0;
  for (const char* path : {"A", "A\\B", "a\\b"}) {
    ASSERT_EQ(system.registry.RegOpenKeyExA(kHkeyDynData, path, kKeyQueryValue, key), kErrorSuccess);
  }
  EXPECT_EQ(machine.CloseHandlesOf(kHkeyDynData, "A\\B"), 2);
  EXPECT_EQ(machine.OpenKeyCount(), 1);
  EXPECT_EQ(machine.CloseHandlesOf(kHkeyDynData, "A\\B"), 0);
}

}  // namespace
}  // namespace qdix::os
