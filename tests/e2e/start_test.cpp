// Starts of the shipped exe: the first one, a second copy, later ones with stored settings.
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

using Texts = std::map<std::string, std::string>;

class StartSession : public Session {};

/// What rule the program follows for amounts and thresholds, worked out here once more from the machine that
/// the test runs on.
struct Machine {
  Machine() {
    MEMORYSTATUS status = {};
    status.dwLength = sizeof status;
    GlobalMemoryStatus(&status);
    total_mb = static_cast<int>(static_cast<double>(static_cast<LONG>(status.dwTotalPhys)) / 1.024 / 1000000);
  }
  [[nodiscard]] std::string Amount(std::initializer_list<int> largest_first) const {
    for (const int amount : largest_first) {
      if (amount <= total_mb / 2) return std::to_string(amount);
    }
    return {};
  }
  [[nodiscard]] std::string Threshold() const {
    if (total_mb < 33) return "1";
    if (total_mb < 66) return "2";
    if (total_mb < 98) return "4";
    return total_mb < 132 ? "6" : "8";
  }
  int total_mb = 0;
};

TEST_F(StartSession, FirstStartStoresItsDefaults) {
  StartProgram();
  const Machine machine;
  const std::string amount =
      machine.Amount({512, 480, 424, 360, 328, 296, 264, 232, 200, 168, 136, 120, 104});
  ASSERT_FALSE(amount.empty()) << "this test wants a machine of 208 MB or more";
  Texts settings = RegistryTexts(HKEY_CURRENT_USER, kSettings);
  EXPECT_GT(std::stod(settings["CounterDate"]), 46000) << "a day after 2025";
  settings.erase("CounterDate");
  EXPECT_EQ(settings, (Texts{{"CounterValue", "0"},
                             {"CPUAutoActive", "1"},
                             {"CPUTimeActive", "1"},
                             {"FreeUpRAM", amount},
                             {"TryTimes", "1"},
                             {"MinRAM", machine.Threshold()},
                             {"AutoQuondix", amount},
                             {"TimeQuondix", amount},
                             {"TimeUnit", "1"},
                             {"AutoSecs", "20"}}));
  EXPECT_EQ(RegistryTexts(HKEY_CURRENT_USER, kStartup),
            (Texts{{"TimeMinutes", "30"}, {"StartDisplay", "1"}, {"StartupTime", "60"}}));
  EXPECT_EQ(RegistryText(HKEY_LOCAL_MACHINE, kMachineKey, "HasRun"), "1");
  const std::string run = RegistryText(HKEY_LOCAL_MACHINE, kRunKey, "Quondix").value_or("");
  EXPECT_TRUE(run.ends_with("\\QDIX.exe")) << run;
  CloseProgram();
}

TEST_F(StartSession, WindowsStandAsTheLookupOfASecondCopyExpects) {
  StartProgram();
  const HWND hidden = program.ApplicationWindow();
  ASSERT_NE(hidden, nullptr);
  EXPECT_EQ(TextOf(hidden), "Q-DIX");
  EXPECT_FALSE(IsWindowVisible(hidden));
  EXPECT_EQ(GetWindow(hidden, GW_HWNDPREV), program.MainWindow());
  EXPECT_EQ(GetWindow(program.MainWindow(), GW_OWNER), hidden);
  CloseProgram();
}

TEST_F(StartSession, CaptionShowsTheAvailableMemory) {
  StartProgram();
  EXPECT_TRUE(Eventually([&] { return program.Caption().ends_with(" MB   Q-DIX"); })) << program.Caption();
  EXPECT_TRUE(program.Text("lblPercentFree").ends_with("%  Available RAM")) << program.Text("lblPercentFree");
  EXPECT_TRUE(program.Text("lblTotalMem").starts_with("Total Physical Memory:  "));
  EXPECT_TRUE(program.Text("lblSwapfile").starts_with("Virtual Memory (Swapfile) :  "));
  CloseProgram();
}

TEST_F(StartSession, SecondCopyBringsTheFirstForwardAndChangesNoSetting) {
  StartProgram();
  program.Press("Command4");
  ASSERT_TRUE(Eventually([&] { return IsIconic(program.MainWindow()) != 0; }));
  const Texts settings = RegistryTexts(HKEY_CURRENT_USER, kSettings);
  const Texts startup = RegistryTexts(HKEY_CURRENT_USER, kStartup);
  {
    ShippedProgram second;
    ASSERT_TRUE(second.Start());
    EXPECT_EQ(second.WaitForExit(), 0);
  }
  EXPECT_TRUE(Eventually([&] { return IsIconic(program.MainWindow()) == 0; }));
  EXPECT_TRUE(Eventually([&] { return GetForegroundWindow() == program.MainWindow(); }));
  EXPECT_EQ(RegistryTexts(HKEY_CURRENT_USER, kSettings), settings);
  EXPECT_EQ(RegistryTexts(HKEY_CURRENT_USER, kStartup), startup);
  CloseProgram();
}

TEST_F(StartSession, SettingsSurviveARestart) {
  StartProgram();
  EXPECT_TRUE(program.Choose("List1", "24 MB"));
  program.OpenTab(3);
  program.Press("Option2");
  ASSERT_TRUE(Eventually([] { return RegistryText(HKEY_CURRENT_USER, kStartup, "StartDisplay") == "2"; }));
  program.Press("Option1");
  ASSERT_TRUE(Eventually([] { return RegistryText(HKEY_CURRENT_USER, kStartup, "StartDisplay") == "1"; }));
  CloseProgram();
  EXPECT_EQ(RegistryText(HKEY_CURRENT_USER, kSettings, "LastTab"), "3");

  ShippedProgram again;
  ASSERT_TRUE(again.Start());
  ASSERT_TRUE(again.WaitForWindow());
  EXPECT_TRUE(again.HasSelected("List1", "24 MB"));
  EXPECT_TRUE(IsWindowVisible(again.Control("Option1"))) << "the tab of the last run is open";
  EXPECT_EQ(SendMessageA(again.Control("Option1"), BM_GETCHECK, 0, 0), BST_CHECKED);
  again.Close();
  EXPECT_EQ(again.WaitForExit(), 0);
}

TEST_F(StartSession, HiddenStartShowsNoWindowAndRefreshesItsCaption) {
  MarkMachineAsKnown();
  SetRegistryText(HKEY_CURRENT_USER, kStartup, "StartDisplay", "3");
  ASSERT_TRUE(program.Start());
  ASSERT_TRUE(Eventually([&] {
    program.AnswerBoxes();
    return program.MainWindow() != nullptr && program.Caption().ends_with(" MB   Q-DIX");
  }));
  EXPECT_FALSE(IsWindowVisible(program.MainWindow()));
  CloseProgram();
}

TEST_F(StartSession, MinimisedStart) {
  MarkMachineAsKnown();
  SetRegistryText(HKEY_CURRENT_USER, kStartup, "StartDisplay", "2");
  ASSERT_TRUE(program.Start());
  EXPECT_TRUE(Eventually([&] {
    program.AnswerBoxes();
    return program.MainWindow() != nullptr && IsIconic(program.MainWindow()) != 0;
  }));
  CloseProgram();
}

TEST_F(StartSession, EndOfTheWindowsSessionEndsTheProgramWithoutABox) {
  StartProgram();
  EXPECT_NE(SendMessageA(program.MainWindow(), WM_QUERYENDSESSION, 0, 0), 0);
  SendMessageA(program.MainWindow(), WM_ENDSESSION, TRUE, 0);
  EXPECT_TRUE(Eventually([&] { return !program.IsRunning() || !program.MessageBoxes().empty(); }));
  EXPECT_TRUE(program.MessageBoxes().empty());
  EXPECT_EQ(RegistryText(HKEY_CURRENT_USER, kSettings, "LastTab"), "0");
}

}  // namespace
}  // namespace qdix::e2e
