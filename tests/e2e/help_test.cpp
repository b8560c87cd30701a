// The help that the shipped exe opens: the viewer at the topic of each tab, never two viewers, and the
// manual.
#include <algorithm>
#include <array>
#include <string_view>

#include "screens/main_window.h"
#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/help_windows.h"
#include "tests/e2e/driver/process_parameters.h"
#include "tests/e2e/driver/registry_tree.h"
#include "tests/e2e/session.h"
#include "tests/e2e/supervisor/processes.h"

namespace qdix::e2e {
namespace {

/// Long enough for a second viewer to appear if one were started.
constexpr int kSecondViewerMs = 1500;

struct TopicOfTab {
  int tab;
  const char* button;
  const char* topic;
};
constexpr std::array<TopicOfTab, 8> kTopics{{{screens::kQuondixTab, "Command21", "4"},
                                             {screens::kAutomaticTab, "Command22", "5"},
                                             {screens::kTimeIntervalsTab, "Command23", "6"},
                                             {screens::kStartupTab, "Command24", "7"},
                                             {screens::kLauncherTab, "Command16", "8"},
                                             {screens::kCacheTab, "Command19", "9"},
                                             {screens::kSwapFileTab, "Command20", "10"},
                                             {screens::kAboutTab, "Command17", "11"}}};

/// True if this part of the screen has a yellow pixel.
bool HasYellow(const RECT& part) {
  constexpr std::string_view kYellow("\xFF\xFF\x00", 3);
  const std::string pixels = ScreenPixels(part);
  for (std::size_t pixel = 0; pixel < pixels.size(); pixel += kYellow.size()) {
    if (pixels.compare(pixel, kYellow.size(), kYellow) == 0) return true;
  }
  return false;
}

std::ptrdiff_t ViewerProcesses() {
  const std::vector<RunningProcess> processes = RunningProcesses();
  return std::count_if(processes.begin(), processes.end(),
                       [](const RunningProcess& process) { return process.file_name == "help.exe"; });
}

class HelpOfTheProgram : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }
  /// Expects one viewer with this topic, and no second one soon after.
  void ExpectOneViewer(const std::string& topic) const {
    const std::string expected = ProgramPath("help.exe") + " " + topic;
    EXPECT_TRUE(program.Await([&] {
      const std::vector<HWND> viewers = HelpWindows();
      return viewers.size() == 1 && CommandLineOf(viewers.front()) == expected;
    })) << topic
        << ", viewers: " << HelpWindows().size();
  }
};

TEST_F(HelpOfTheProgram, EachTabLeavesExactlyOneViewerAtItsTopic) {
  StartProgram();
  for (const TopicOfTab& tab : kTopics) {
    program.OpenTab(tab.tab);
    EXPECT_EQ(program.Text(tab.button), tab.tab == screens::kSwapFileTab ? "Hel&p / Tips" : "Help / &Tips");
    program.Press(tab.button);
    ExpectOneViewer(tab.topic);
  }
  EXPECT_FALSE(Eventually([] { return HelpWindows().size() != 1; }, kSecondViewerMs));
  CloseProgram();
  EXPECT_EQ(HelpWindows().size(), 1U) << "the viewer stays after the program";
}

TEST_F(HelpOfTheProgram, DoubleClickLeavesOneViewer) {
  StartProgram();
  const HWND button = program.Control("Command21");
  ASSERT_TRUE(BringForward(program.MainWindow()));
  ASSERT_TRUE(PressAt(button, {10, 10}, Press::kLeftTwice));
  // The second viewer closes the first, whichever of them shows its window first.
  DWORD since_ms = GetTickCount();
  EXPECT_TRUE(program.Await([&] {
    if (ViewerProcesses() != 1 || HelpWindows().size() != 1) since_ms = GetTickCount();
    return GetTickCount() - since_ms > static_cast<DWORD>(kSecondViewerMs);
  })) << ViewerProcesses()
      << " processes, windows: " << HelpWindows().size();
  ExpectOneViewer("4");
  CloseProgram();
}

TEST_F(HelpOfTheProgram, KeyboardOpensTheTopicOfTheTab) {
  StartProgram();
  program.OpenTab(screens::kAboutTab);
  ASSERT_TRUE(BringForward(program.MainWindow()));
  PressKeyWith(VK_MENU, 'T');
  ExpectOneViewer("11");
  EXPECT_TRUE(program.Await([] { return GetForegroundWindow() == HelpWindows().front(); }));
  CloseProgram();
}

TEST_F(HelpOfTheProgram, LightBulbIsOnTheSwapFileButton) {
  StartProgram();
  program.OpenTab(screens::kSwapFileTab);
  ASSERT_TRUE(BringForward(program.MainWindow()));
  // The glass of the bulb: in the left half of the button and nowhere in the right half.
  RECT left = program.ScreenRect("Command20");
  RECT right = left;
  left.right = right.left = (left.left + left.right) / 2;
  EXPECT_TRUE(program.Await([&] { return HasYellow(left); }));
  EXPECT_FALSE(HasYellow(right));
  PressKeyWith(VK_MENU, 'P');
  ExpectOneViewer("10");
  CloseProgram();
}

TEST_F(HelpOfTheProgram, ShellOpensTheManualMaximised) {
  const KeyPath kHtmFiles{HKEY_LOCAL_MACHINE, "Software\\Classes\\.htm"};
  const KeyPath kWitnessFiles{HKEY_LOCAL_MACHINE, "Software\\Classes\\QdixWitness"};
  const KeyPath kWitnessOpens{HKEY_LOCAL_MACHINE, "Software\\Classes\\QdixWitness\\shell\\open\\command"};
  const RegistryTree before(kHtmFiles);
  SetRegistryText(kHtmFiles, "", "QdixWitness");
  SetRegistryText(kWitnessOpens, "", '"' + WitnessPath() + "\" \"%1\"");
  const FileKeeper report{WitnessReportPath()};
  const FileKeeper manual{ProgramPath("help.htm")};
  EXPECT_TRUE(manual.SetBytes("<html></html>"));
  StartProgram();
  program.OpenTab(screens::kAboutTab);
  EXPECT_EQ(program.Text("Command6"), "&Help");
  program.Press("Command6");
  EXPECT_TRUE(program.Await([&] { return report.Bytes().has_value(); }));
  const std::string said = report.Bytes().value_or("");
  EXPECT_TRUE(said.starts_with('"' + WitnessPath() + "\" \"" + ProgramPath("help.htm") + "\"\r\n")) << said;
  EXPECT_TRUE(said.ends_with("\r\nshow 3\r\n")) << said;
  EXPECT_TRUE(HelpWindows().empty());
  CloseProgram();
  DeleteTree(kWitnessFiles);
  before.PutBack();
}

class FirstHelpOfTheProgram : public Session {};

TEST_F(FirstHelpOfTheProgram, FirstStartWithoutTheViewerShowsTheWindowAndNoBox) {
  const FileKeeper viewer{ProgramPath("help.exe")};
  StartProgram();
  EXPECT_FALSE(program.Await([this] { return !program.MessageBoxes().empty(); }, kSecondViewerMs));
  EXPECT_TRUE(IsWindowVisible(program.MainWindow()));
  EXPECT_TRUE(program.IsRunning());
  program.Press("Command21");
  ASSERT_TRUE(program.Await([this] { return !program.MessageBoxes().empty(); }));
  EXPECT_EQ(program.AnswerBoxes(), std::vector<std::string>{"Run-time error '53':\r\n\r\nFile not found"});
  ExpectCleanEnd(program);
}

TEST_F(FirstHelpOfTheProgram, FirstStartOpensTheFirstStepsAndTheNextOneDoesNot) {
  StartProgram();
  ASSERT_TRUE(program.Await([] { return HelpWindows().size() == 1; }));
  EXPECT_EQ(CommandLineOf(HelpWindows().front()), ProgramPath("help.exe") + " 0");
  EXPECT_TRUE(Photograph("first_start"));
  CloseProgram();
  ASSERT_TRUE(CloseHelpWindows());
  StartProgram();
  EXPECT_FALSE(Eventually([] { return !HelpWindows().empty(); }, kSecondViewerMs));
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
