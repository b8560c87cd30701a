// Sequences that a user or another program can observe: load, tick, release, restart, close.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

/// Returns the recorded calls with these names from call `first_call` on, in order. Consecutive equal calls
/// count once.
Texts CallsOf(const os::SimulatedMachine& machine, const Texts& names, std::size_t first_call = 0) {
  Texts calls;
  for (std::size_t i = first_call; i < machine.Calls().size(); ++i) {
    const std::string& call = machine.Calls()[i];
    const std::string name = call.substr(0, call.find('('));
    const bool is_wanted = std::find(names.begin(), names.end(), name) != names.end();
    if (is_wanted && (calls.empty() || calls.back() != call)) calls.push_back(call);
  }
  return calls;
}

/// Joins the calls with one per line, which makes differences of long lists easy to find.
std::string Lines(const Texts& calls) {
  std::string lines;
  for (const std::string& call : calls) lines += call + "\n";
  return lines;
}

std::string Setting(const std::string& section, const std::string& name) {
  return "RegSetValueExA(HKCU\\" + ProgramRig::SectionPath(section.c_str()) + ": " + name + ")";
}
std::string Query(const std::string& name) { return "RegQueryValueExA(" + name + ")"; }
std::string Entry(const std::string& entry) { return "GetPrivateProfileStringA(system.ini " + entry + ")"; }

/// The calls of the load: settings, system.ini, memory, drives, clock, icon and list of programs.
Texts StepsOfTheLoad() {
  return {"MutexExistedBefore(QDIX.SingleInstance)",
          Query("KERNEL\\CPUUsage"),
          Query("HasRun"),
          "GetTickCount()",
          Query("CPUAutoActive"),
          Setting("Settings", "CPUAutoActive"),
          Query("AutoCPU"),
          Query("CPU"),
          Query("CPUTimeActive"),
          Setting("Settings", "CPUTimeActive"),
          Query("TimeCPU"),
          Query("LastTab"),
          "GlobalMemoryStatus()",
          Entry("[vcache] MinFileCache"),
          Entry("[vcache] MaxFileCache"),
          Entry("[vcache] chunksize"),
          Query("NameCache"),
          Query("PathCache"),
          Query("Quondix"),
          "RegSetValueExA(HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run: Quondix)",
          Query("CounterDate"),
          Setting("Settings", "CounterDate"),
          Query("CounterValue"),
          "GlobalMemoryStatus()",
          "GetLogicalDriveStringsA(78)",
          Entry("[386Enh] PagingDrive"),
          Entry("[386Enh] Paging"),
          "GlobalMemoryStatus()",
          Query("FreeUpRAM"),
          Setting("Settings", "FreeUpRAM"),
          Query("TryTimes"),
          Setting("Settings", "TryTimes"),
          Query("MinRAM"),
          Setting("Settings", "MinRAM"),
          Query("AutoQuondix"),
          Setting("Settings", "AutoQuondix"),
          Query("TimeQuondix"),
          Setting("Settings", "TimeQuondix"),
          Query("AutoActive"),
          Query("Warnings"),
          Query("TimeUnit"),
          Setting("Settings", "TimeUnit"),
          Query("TimeMinutes"),
          Setting("Startup", "TimeMinutes"),
          Query("AutoSecs"),
          Setting("Settings", "AutoSecs"),
          Query("TimeActive"),
          "Shell_NotifyIconA(0, Q-DIX)",
          Query("StartDisplay"),
          Setting("Startup", "StartDisplay"),
          Query("StartupRAM"),
          "GlobalMemoryStatus()",
          Query("StartupTime"),
          Setting("Startup", "StartupTime"),
          "CreateFileA(C:\\Program Files\\QDIX\\launcher.dat, 3)",
          Query("Launcher RAM"),
          Setting("Settings", "Launcher RAM"),
          Query("Launcher Retry"),
          Setting("Settings", "Launcher Retry"),
          "GlobalMemoryStatus()"};
}

TEST(LoadOrder, EveryStepComesInOrder) {
  TuningRig rig;
  rig.machine.SetCpuLoad(10);
  rig.machine.CreateRegistryKey(os::kHkeyCurrentUser, ProgramRig::SectionPath("Settings"));
  rig.machine.CreateRegistryKey(os::kHkeyCurrentUser, ProgramRig::SectionPath("Startup"));
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, kOwnTemplatePath);
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                               "Quondix", "C:\\Program Files\\QDIX\\QDIX.exe");
  rig.machine.WriteFile("C:\\Program Files\\QDIX\\launcher.dat", "");
  rig.Start();
  const Texts calls = CallsOf(rig.machine, {"MutexExistedBefore", "RegQueryValueExA", "RegSetValueExA",
                                            "GetTickCount", "GlobalMemoryStatus", "GetPrivateProfileStringA",
                                            "GetLogicalDriveStringsA", "Shell_NotifyIconA", "CreateFileA"});
  EXPECT_EQ(Lines(calls), Lines(StepsOfTheLoad()));
}

/// The taskbar has the icon before a window that starts minimised or hidden leaves the screen.
TEST(LoadOrder, IconIsThereBeforeTheStartUpModeIsRead) {
  for (const char* const mode : {"1", "2", "3"}) {
    TuningRig rig;
    rig.Store("Startup", "StartDisplay", mode);
    rig.Start();
    const Texts calls = CallsOf(rig.machine, {"Shell_NotifyIconA", "RegQueryValueExA"});
    const auto icon = std::find(calls.begin(), calls.end(), "Shell_NotifyIconA(0, Q-DIX)");
    ASSERT_NE(icon, calls.end());
    EXPECT_EQ(std::find(calls.begin(), icon, Query("StartDisplay")), icon) << mode;
    EXPECT_NE(std::find(icon, calls.end(), Query("StartDisplay")), calls.end()) << mode;
  }
}

/// The whole tick: the memory, then one reading of the processor load.
TEST(TickOrder, MemoryIsReadBeforeTheProcessorLoad) {
  TuningRig rig;
  rig.machine.SetCpuLoad(10);
  rig.Start();
  const std::size_t before = rig.machine.Calls().size();
  rig.AdvanceMs(kRefreshMs);
  EXPECT_EQ(
      Texts(rig.machine.Calls().begin() + static_cast<std::ptrdiff_t>(before), rig.machine.Calls().end()),
      (Texts{"GlobalMemoryStatus()", "RegOpenKeyExA(HKDD\\PerfStats\\StatData, 1)",
             "RegQueryValueExA(KERNEL\\CPUUsage)", "RegCloseKey()"}));
}

/// Without this query the system keeps no statistic, and every later reading is 0.
TEST(StatisticOrder, IsStartedByAQueryBeforeTheFirstReading) {
  TuningRig rig;
  rig.machine.SetCpuLoad(10);
  rig.Start();
  const Texts calls = rig.machine.Calls();
  const auto start = std::find(calls.begin(), calls.end(), "RegOpenKeyExA(HKDD\\PerfStats\\StartStat, 1)");
  ASSERT_GE(calls.end() - start, 6);
  EXPECT_EQ(Texts(start, start + 6),
            (Texts{"RegOpenKeyExA(HKDD\\PerfStats\\StartStat, 1)", "RegQueryValueExA(KERNEL\\CPUUsage)",
                   "RegCloseKey()", "RegOpenKeyExA(HKDD\\PerfStats\\StatData, 1)",
                   "RegQueryValueExA(KERNEL\\CPUUsage)", "RegCloseKey()"}));
}

TEST(CloseOrder, SettingsAreStoredBeforeTheIconGoes) {
  TuningRig rig;
  rig.StartAt(screens::kAboutTab);
  const std::size_t before = rig.machine.Calls().size();
  rig.program->Form().Unload();
  EXPECT_THAT(CallsOf(rig.machine, {"RegSetValueExA", "Shell_NotifyIconA"}, before),
              ElementsAre(Setting("Startup", "StartupRAM"), Setting("Settings", "AutoCPU"),
                          Setting("Settings", "TimeCPU"), Setting("Settings", "LastTab"),
                          "Shell_NotifyIconA(2, Q-DIX)"));
}

TEST(SecondCopyOrder, FirstIsRestoredBeforeItIsBroughtToTheFront) {
  ProgramRig rig;
  rig.machine.SetOtherCopyRunning(true);
  const os::WindowHandle window = rig.machine.OpenWindow("QDIXMain", "23.45 MB   Q-DIX");
  rig.machine.PlaceDirectlyBehind(rig.machine.OpenWindow("ThunderRT6Main", "Q-DIX"), window);
  rig.Start();
  EXPECT_THAT(CallsOf(rig.machine, {"FindWindowA", "GetWindow", "OpenIcon", "SetForegroundWindow"}),
              ElementsAre("FindWindowA(ThunderRTMain, Q-DIX)", "FindWindowA(ThunderRT5Main, Q-DIX)",
                          "FindWindowA(ThunderRT6Main, Q-DIX)", "GetWindow(3)", "OpenIcon()",
                          "SetForegroundWindow()"));
}

/// The tab can be opened again behind the box, but the tip appears only once.
TEST(TipOrder, IsNoLongerDueWhileItsBoxIsOpen) {
  ProgramRig rig;
  rig.machine.WhileBoxIsOpen([&rig] {
    if (rig.machine.Boxes().size() > 1) return;
    rig.program->MainWindow().SSTab1.ChooseTab(screens::kQuondixTab);
    rig.program->MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  });
  rig.Start().MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Quondix Tip");
}

TEST(ReleaseOrder, FirstBlockIsAllocatedAndFreedBeforeTheSecond) {
  TuningRig rig;
  rig.StartAt(screens::kQuondixTab);
  rig.RemoveGraph();
  ASSERT_TRUE(rig.program->QuondixScreen().List1.Choose("512 MB"));
  rig.program->QuondixScreen().Command1.Press();
  EXPECT_THAT(CallsOf(rig.machine, {"VirtualAlloc", "VirtualFree"}),
              ElementsAre("VirtualAlloc(260000001)", "VirtualAlloc(272480001)", "VirtualFree(260000001)",
                          "VirtualFree(272480001)"));
}

struct Saving {
  const char* name;
  screens::Tab tab;
  void (*save)(app::Form1&);
};

void PrintTo(const Saving& saving, std::ostream* out) { *out << saving.name; }

class RestartOrder : public testing::TestWithParam<Saving> {};

TEST_P(RestartOrder, MachineIsRestartedBeforeTheWindowUnloads) {
  TuningRig rig;
  rig.StartAt(GetParam().tab);
  rig.Answer({os::kIdYes, os::kIdYes});
  const std::size_t before = rig.machine.Calls().size();
  GetParam().save(*rig.program);
  Texts calls = CallsOf(rig.machine, {"ExitWindowsEx", "RegSetValueExA", "Shell_NotifyIconA"}, before);
  calls.erase(calls.begin(), std::find(calls.begin(), calls.end(), "ExitWindowsEx(2, 0)"));
  EXPECT_THAT(calls, ElementsAre("ExitWindowsEx(2, 0)", Setting("Startup", "StartupRAM"),
                                 Setting("Settings", "AutoCPU"), Setting("Settings", "TimeCPU"),
                                 Setting("Settings", "LastTab"), "Shell_NotifyIconA(2, Q-DIX)"));
}

INSTANTIATE_TEST_SUITE_P(
    OfEachSaving, RestartOrder,
    testing::Values(Saving{"cache", screens::kCacheTab,
                           [](app::Form1& program) { program.CacheScreen().Command11.Press(); }},
                    Saving{"swap file left to Windows", screens::kSwapFileTab,
                           [](app::Form1& program) { program.SwapFileScreen().Command18.Press(); }},
                    Saving{"swap file of one size", screens::kSwapFileTab, [](app::Form1& program) {
                             program.SwapFileScreen().optSwap2.Press();
                             program.SwapFileScreen().Command18.Press();
                           }}));

/// The current entry, then the entry of older versions, then both shortcuts.
TEST(RegistrationOrder, ClearingTheBoxTakesItsStepsInOrder) {
  TuningRig rig;
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                               "Quondix", "C:\\Program Files\\QDIX\\QDIX.exe");
  rig.StartAt(screens::kStartupTab);
  const std::size_t before = rig.machine.Calls().size();
  rig.program->StartupScreen().Check2.Press();
  EXPECT_THAT(CallsOf(rig.machine, {"RegDeleteValueA", "RegSetValueExA", "DeleteFileA"}, before),
              ElementsAre("RegDeleteValueA(HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run: Quondix)",
                          "RegDeleteValueA(HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run: Quondix)",
                          "DeleteFileA(C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\QDIX.exe.lnk)",
                          "DeleteFileA(C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\Quondix.lnk)"));
}

}  // namespace
}  // namespace qdix::tests
