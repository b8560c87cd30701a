// Help: which topic each button opens, the single viewer, the manual, the first steps.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TopicButton {
  int tab;
  const char* name;
  const char* command;
};

void PrintTo(const TopicButton& button, std::ostream* out) { *out << button.name; }

class HelpTest : public testing::Test {
 protected:
  HelpTest() { rig.SetHasRunBefore(); }
  void PressOnTab(int tab, const char* name) {
    rig.program->MainWindow().SSTab1.ChooseTab(tab);
    auto* const button = static_cast<ui::Button*>(rig.program->Form().Find(name));
    ASSERT_NE(button, nullptr) << name;
    button->Press();
  }
  ProgramRig rig;
};

class HelpButtons : public HelpTest, public testing::WithParamInterface<TopicButton> {};

TEST_P(HelpButtons, OpensTheTopicOfItsTab) {
  rig.Start();
  PressOnTab(GetParam().tab, GetParam().name);
  EXPECT_THAT(rig.machine.StartedPrograms(),
              ElementsAre(std::string("C:\\Program Files\\QDIX\\") + GetParam().command));
  EXPECT_EQ(rig.program->Form().Find(GetParam().name)->Caption(), "Help / Tips");
}

INSTANTIATE_TEST_SUITE_P(Tabs, HelpButtons,
                         testing::Values(TopicButton{screens::kQuondixTab, "Command21", "help.exe 4"},
                                         TopicButton{screens::kAutomaticTab, "Command22", "help.exe 5"},
                                         TopicButton{screens::kTimeIntervalsTab, "Command23", "help.exe 6"},
                                         TopicButton{screens::kStartupTab, "Command24", "help.exe 7"},
                                         TopicButton{screens::kLauncherTab, "Command16", "help.exe 8"},
                                         TopicButton{screens::kCacheTab, "Command19", "help.exe 9"},
                                         TopicButton{screens::kSwapFileTab, "Command20", "help.exe 10"},
                                         TopicButton{screens::kAboutTab, "Command17", "help.exe 11"}));

TEST_F(HelpTest, ButtonOfTheSwapFileTabHasTheLightBulb) {
  rig.Start();
  EXPECT_EQ(rig.program->SwapFileScreen().Command20.PictureId(), screens::kLightBulbPicture);
}

TEST_F(HelpTest, ProgramInARootFolderUsesASingleSeparator) {
  rig.machine.SetModuleFileName("A:\\QDIX.exe");
  rig.machine.AddProgram("A:\\help.exe");
  rig.machine.WriteFile("A:\\help.htm", "manual");
  rig.Start();
  PressOnTab(screens::kAboutTab, "Command17");
  PressOnTab(screens::kAboutTab, "Command6");
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("A:\\help.exe 11"));
  EXPECT_THAT(rig.machine.OpenedFiles(), ElementsAre("Open A:\\help.htm 3"));
}

TEST_F(HelpTest, OpenViewerIsClosedBeforeTheNextOneOpens) {
  rig.Start();
  PressOnTab(screens::kQuondixTab, "Command21");
  rig.machine.OpenWindow("Viewer", "Quondix Help");
  const std::size_t before = rig.machine.Calls().size();
  PressOnTab(screens::kAutomaticTab, "Command22");
  EXPECT_EQ(rig.machine.GetSystem().windows.FindWindowA(nullptr, "Quondix Help"), 0U);
  const std::vector<std::string> calls(rig.machine.Calls().begin() + static_cast<std::ptrdiff_t>(before),
                                       rig.machine.Calls().end());
  const auto closed = std::find(calls.begin(), calls.end(), "PostMessageA(16)");
  ASSERT_NE(closed, calls.end());
  EXPECT_NE(std::find(closed, calls.end(), "CreateProcessA(C:\\Program Files\\QDIX\\help.exe 5)"),
            calls.end());
}

TEST_F(HelpTest, OnlyTheExactTitleIsTheViewer) {
  rig.Start();
  const os::WindowHandle other = rig.machine.OpenWindow("Editor", "Quondix Help - Notes");
  PressOnTab(screens::kQuondixTab, "Command21");
  EXPECT_EQ(rig.machine.GetSystem().windows.FindWindowA(nullptr, "Quondix Help - Notes"), other);
}

TEST_F(HelpTest, ViewerNotFoundIsTriedAgainInQuotationMarks) {
  rig.Start();
  rig.machine.FailNextCall("CreateProcessA");
  PressOnTab(screens::kQuondixTab, "Command21");
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("\"C:\\Program Files\\QDIX\\help.exe\" 4"));
  EXPECT_THAT(rig.machine.Boxes(), IsEmpty());
}

TEST_F(HelpTest, MissingViewerIsAnUntrappedErrorAndTypedTextIsKept) {
  rig.Start();
  rig.machine.RemoveProgram("C:\\Program Files\\QDIX\\help.exe");
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  rig.program->AutomaticScreen().Text9.SetFocus();
  rig.program->AutomaticScreen().Text9.SelectAll();
  rig.program->AutomaticScreen().Text9.TypeText("55");
  rig.program->AutomaticScreen().Command22.Press();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '53':\r\n\r\nFile not found");
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU"), "55");
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "1");
}

TEST_F(HelpTest, ShellGetsTheFullPathOfTheManual) {
  rig.machine.WriteFile("C:\\Program Files\\QDIX\\help.htm", "manual");
  rig.Start();
  PressOnTab(screens::kAboutTab, "Command6");
  EXPECT_THAT(rig.machine.OpenedFiles(), ElementsAre("Open C:\\Program Files\\QDIX\\help.htm 3"));
  EXPECT_THAT(rig.machine.StartedPrograms(), IsEmpty());
}

TEST_F(HelpTest, MissingManualIsReportedByTheShell) {
  rig.Start();
  PressOnTab(screens::kAboutTab, "Command6");
  EXPECT_THAT(rig.machine.Boxes(), IsEmpty());
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

TEST(FirstHelp, OpensWithTheWindowOfAFirstStartAndNeverAgain) {
  ProgramRig rig;
  rig.Start();
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("C:\\Program Files\\QDIX\\help.exe 0"));
  rig.program->Form().Hide();
  rig.program->Form().Show();
  EXPECT_EQ(rig.machine.StartedPrograms().size(), 1U);
}

TEST(FirstHelp, WaitsForAWindowThatStartsHidden) {
  ProgramRig rig;
  rig.Store("Startup", "StartDisplay", "3");
  rig.Start();
  EXPECT_THAT(rig.machine.StartedPrograms(), IsEmpty());
  rig.program->Form().Show();
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("C:\\Program Files\\QDIX\\help.exe 0"));
}

TEST(FirstHelp, DoesNotOpenOnAMachineThatHasRunTheProgram) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  rig.Start();
  EXPECT_THAT(rig.machine.StartedPrograms(), IsEmpty());
}

TEST(FirstHelp, WithoutAViewerTheFirstStartShowsOnlyTheWindow) {
  ProgramRig rig;
  rig.machine.RemoveProgram("C:\\Program Files\\QDIX\\help.exe");
  rig.Start();
  EXPECT_THAT(rig.machine.Boxes(), IsEmpty());
  EXPECT_FALSE(rig.program->Form().Unloaded());
  EXPECT_TRUE(rig.program->Form().Shown());
  rig.machine.AddProgram("C:\\Program Files\\QDIX\\help.exe");
  rig.program->Form().Hide();
  rig.program->Form().Show();
  EXPECT_THAT(rig.machine.StartedPrograms(), IsEmpty()) << "the first steps open only at the first start";
}

TEST(FirstHelp, AlsoOpensInAWindowThatAnotherProgramShows) {
  ProgramRig rig;
  rig.Store("Startup", "StartDisplay", "3");
  rig.Start();
  rig.program->Form().UserChangedVisible(true);
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("C:\\Program Files\\QDIX\\help.exe 0"));
}

}  // namespace
}  // namespace qdix::tests
