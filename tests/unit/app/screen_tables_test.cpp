// Every tab of the main window and the menu of the tray icon, complete: kinds, names, captions with their
// access keys, tool tips, frames, tab order. Each is compared on its own, so equal texts on other tabs cannot
// hide a difference.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"
#include "tests/support/screen_text.h"

namespace qdix::tests {
namespace {

constexpr const char* kQuondix =
    R"--(Frame FrameMemory 'Memory'
  Label lblTotalMem ''
  Drawing Gauge1 ''
  Label lblPercentFree ''
  Label lblSwapfile ''
  Drawing Gauge2 ''
  Label lblSwapfileUsed '%  Used'
Frame FrameCpu 'CPU Usage'
  Drawing XGraphMeter1 ''
  Label lblUSAGE '0 %'
  Label lblWindowsOnly '(For Win 95/98/ME)'
  Label lblCPU 'CPU Speed :'
Frame FrameRelease 'Release'
  Label lblAmount '&Amount of RAM:'
  ListBox List1 ''
  Label lblRetries 'Numbe&r of Retrys'
  TextBox Text1 '' (Number of times Q-DIX will attempt to free up RAM at one time)
  ScrollBar VScroll1 '' (Number of times Q-DIX will attempt to free up RAM at one time)
  Label lblTimes 'times'
  Button Command1 '&Free Up RAM Now' default
Button Command3 'Pau&se All Activity' (Pause Q-DIX operation)
Button Command4 '&Minimize To Taskbar' (Minimizes, but shows available RAM in Taskbar)
Button Command2 '&Hide' (Hide Q-DIX  while running in background)
Button Command21 'Help / &Tips' (Opens the help for this tab)
)--";

constexpr const char* kAutomatic =
    R"--(Frame FrameAuto 'Automatic Release'
  CheckBox Check1 '&Auto Detection Active' (Must be ticked for Automatic freeups to take place)
  Label lblMinRam 'Free up memory when RAM drops &below:'
  TextBox Text2 '' (Free up memory when RAM drops below this level)
  ScrollBar VScroll2 '' (Free up memory when RAM drops below this level)
  Label lblMinRamUnit 'MB'
  Label lblInterval 'Chec&k RAM every:'
  ListBox List2 '' (Intervals for monitoring RAM)
  Label lblSeconds 'seconds'
  Label lblAutoAmount 'A&mount of RAM to Release:'
  ListBox List4 '' (Half your physical RAM is a good amount to release)
Frame FrameAutoCpu 'CPU'
  CheckBox Check9 'Don't perform a&utomatic freeup unless CPU usage is below'
  TextBox Text9 ''
  Label lblAutoCpuUnit '%'
Frame FrameCounter 'Counter'
  Button Command7 '&Reset Counter ->'
  Label lblCounter 'The Auto Detection feature has detected and released RAM 0 times since Q-DIX was started at'
Button Command22 'Help / &Tips' (Opens the help for this tab)
)--";

constexpr const char* kTimeIntervals =
    R"--(Frame FrameTime 'Timed Release'
  CheckBox Check3 'Time Rele&ases Active' (Must be ticked for Timed freeups to take place)
  Label lblUnit '&Release RAM every:'
  ListBox lstTime '' (Time interval at which RAM is Released)
  Frame FrameUnit 'Unit'
    Option Option4 'Mi&nutes'
    Option Option5 'H&ours'
  Label lblTimeAmount 'A&mount of RAM to Release:'
  ListBox List3 '' (Half your physical RAM is a good amount to release)
  Label lblNextRelease '' hidden
Frame FrameTimeCpu 'CPU'
  CheckBox Check10 'Don't perform time free&up unless CPU usage is below'
  TextBox Text10 ''
  Label lblTimeCpuUnit '%'
Button Command23 'Help / &Tips' (Opens the help for this tab)
)--";

constexpr const char* kStartup =
    R"--(Frame FrameStartup 'When I startup my computer'
  CheckBox Check2 'Automatica&lly launch Q-DIX' (Allow Q-DIX to start when the computer is started)
  Button Command5 '&Create shortcut Icon on desktop' (Place a Q-DIX Shortcut Icon on your Desktop)
  Label lblStartupAmount '&Amount of RAM to Release:'
  DropDownList Combo1 ''
  Label lblStartupTime '&Wait before freeing up RAM:'
  TextBox Text3 '' (Time to wait after startup before freeing up RAM)
  ScrollBar VScroll3 '' (Time to wait after startup before freeing up RAM)
  Label lblStartupSeconds 'seconds'
Frame FrameDisplay 'Display at Startup'
  Option Option1 '&Fully Displayed'
  Option Option2 '&Minimized in Taskbar'
  Option Option3 '&Hidden'
Frame FrameGraph 'CPU Graph Update Interval'
  Slider Slider7 ''
  Label lblFaster 'Faster'
  Label lblSlower 'Slower'
Frame FrameOther 'Warnings'
  CheckBox Check4 '&Resources Warning' (This should normally be left un-checked)
  Label lblAutoAndTime '(Auto && Time Only)'
Frame FrameUpTime 'System'
  Label lblTimeRunning 'Your system has been running for 0  hours and 5 minutes'
Button Command24 'Help / &Tips' (Opens the help for this tab)
)--";

constexpr const char* kLauncher =
    R"--(Label lblPrograms '&Programs :'
ListBox List5 '' (Double click a program to launch)
Button Command15 'Con&figure Program List' (Opens the editor of this list)
Frame FrameLauncher 'Free Up Before A Program Is Launched'
  Option Option9 '33% of My Total RAM   (&Conservative)'
  Option Option8 '50%  of My Total RAM  (&Normal)'
  Option Option7 '66% of My Total RAM   (A&ggressive)'
  Option Option6 '&Don't Free Up Any RAM'
Frame FrameRetries 'Number of Retrys'
  Option Slider_6(0) '1'
  Option Slider_6(1) '2'
  Option Slider_6(2) '3'
  Option Slider_6(3) '4'
  Option Slider_6(4) '5'
Label txtFreeLabel 'Freeing Up Memory' hidden
Button Command16 'Help / &Tips' (Opens the help for this tab)
)--";

constexpr const char* kCache =
    R"--(Label lblPreset '&Preset :'
DropDownList Combo2 '' (Sizes that suit a use of the computer, worked out from its memory)
Frame FrameCache 'Disk Cache'
  CheckBox Check5 '&Enabled' (When not ticked, saving removes this setting and Windows chooses the size)
  Label lblMinCache '&Min Cache Size : ' disabled
  Slider Slider1 '' disabled
  CheckBox Check6 'Ena&bled' (When not ticked, saving removes this setting and Windows chooses the size)
  Label lblMaxCache 'Ma&x Cache Size : ' disabled
  Slider Slider2 '' disabled
  CheckBox Check7 'Enab&led' (When not ticked, saving removes this setting and Windows chooses the size)
  Label lblChunkSize '&Chunk Size : ' disabled
  Slider Slider3 '' disabled
Frame FrameFileCache 'File Cache'
  CheckBox Check8 '&File Cache Settings Enabled' (When not ticked, saving removes both settings)
  Label lblNameCache '&Name Cache : ' disabled
  Slider Slider4 '' disabled
  Label lblDirectoryCache '&Directory Cache : ' disabled
  Slider Slider5 '' disabled
Button Command11 '&Save Settings' (Writes these settings; they take effect when Windows restarts)
Button Command14 'S&ystem Defaults' (Clears all boxes; the next save gives the sizes back to Windows)
Button Command19 'Help / &Tips' (Opens the help for this tab)
)--";

constexpr const char* kSwapFile =
    R"--(Frame FrameSetup 'Virtual Memory'
  Option optSwap1 '&Windows Default - Let Windows manage the Swapfile (Not Optimized)'
  Option optSwap2 '&Optimize Windows Virtual Memory Swapfile'
  Option optSwap3 'O&ther setup currently configured (Not Optimized)'
Frame Frame11 'Optimize Swapfile'
  Label lblHardDisk '&Hard Disk :'
  DropDownList Combo3 '' (The disk that the swap file is kept on)
  Label lblSwapSize 'Swapfile Si&ze :'
  TextBox Text8 '' (Least and greatest size of the swap file in megabytes)
  ScrollBar VScroll4 '' (Least and greatest size of the swap file in megabytes)
  Label lblSwapUnit 'MB'
  Button cmdBeginnerSwapFile 'Su&ggested Configuration (Beginners)' (Proposes a disk and a size; nothing is written yet)
Frame FrameDefrag 'Before You Change It'
  Label Label35 'It is a good idea to run a disk defragmentation and reboot before configuring your Swapfile settings.'
  Label lblRunDefrag 'Run Defrag -->'
  Button Command26 '&Disk Defragmenter' (Closes Q-DIX and runs the Disk Defragmenter on the disk above)
Button Command18 '&Save Changes' (Writes this configuration; it takes effect when Windows restarts)
Button Command20 'Hel&p / Tips' (Opens the help for this tab) picture=2
)--";

constexpr const char* kAbout =
    R"--(Picture imgProgram '' picture=1
Label lblProduct 'Q-DIX'
Label lblVersion ''
Label lblFor 'Memory utility for Windows 95, 98 and ME'
Label lblPurpose 'Shows how much memory is available and makes Windows hand memory back: when you ask for it, when it runs short, at intervals, after startup and before a program is launched.'
Label lblRights 'Copyright (c) 2026 The Q-DIX authors. Free software; see LICENSE.TXT for its terms.'
Button Command6 '&Help' (Opens the manual in your browser)
Button Command17 'Help / &Tips' (Opens the help for this tab)
)--";

struct TabTable {
  int tab;
  const char* caption;
  const char* controls;
};

void PrintTo(const TabTable& table, std::ostream* out) { *out << table.caption; }

class TabTables : public testing::TestWithParam<TabTable> {
 protected:
  TabTables() { rig.Create(); }
  ProgramRig rig;
};

TEST_P(TabTables, HoldExactlyTheseControls) {
  const ui::TabPage& page = rig.program->MainWindow().SSTab1.Page(GetParam().tab);
  EXPECT_EQ(page.Caption(), GetParam().caption);
  EXPECT_EQ(ScreenText(page), GetParam().controls);
}

INSTANTIATE_TEST_SUITE_P(
    All, TabTables,
    testing::Values(TabTable{0, "Quondix", kQuondix}, TabTable{1, "Automatic", kAutomatic},
                    TabTable{2, "Time Intervals", kTimeIntervals}, TabTable{3, "Startup / Other", kStartup},
                    TabTable{4, "Launcher", kLauncher}, TabTable{5, "Cache Settings", kCache},
                    TabTable{6, "Optimize Swapfile", kSwapFile}, TabTable{7, "About", kAbout}));

TEST(TabTable, ThereAreEightTabsInAWindowOfTheProgramsName) {
  ProgramRig rig;
  screens::MainWindow& window = rig.Create().MainWindow();
  EXPECT_EQ(window.SSTab1.Count(), 8);
  EXPECT_EQ(window.Form.Caption(), "Q-DIX");
  EXPECT_EQ(rig.program->TheApplication().Title(), "Q-DIX");
}

std::string MenuText(const ui::MenuItem& menu, const std::string& indent = "") {
  std::string text = indent + std::string(menu.Name()) + " '" + menu.Caption() + "'";
  if (menu.IsDefault()) text += " default";
  if (!menu.Enabled()) text += " disabled";
  if (!menu.Visible()) text += " hidden";
  text += "\n";
  for (const ui::MenuItem* const entry : menu.Children()) text += MenuText(*entry, indent + "  ");
  return text;
}

/// The submenu of programs has 25 entries. The first of them cannot be hidden.
TEST(TrayMenuTable, HoldsExactlyTheseEntries) {
  std::string programs = "    mnuProgram ''\n";
  for (int entry = 1; entry < 25; ++entry) programs += "    mnuProgram '' hidden\n";
  ProgramRig rig;
  EXPECT_EQ(MenuText(rig.Create().TrayMenu().mnuTray),
            "mnuTray 'Tray Menu'\n"
            "  mnuTrayFreeup 'Free-up RAM'\n"
            "  mnuTrayBar '-'\n"
            "  mnuTrayDisplay 'Display Q-DIX' default\n"
            "  mnuTrayHide 'Hide'\n"
            "  mnuTrayBar2 '-'\n"
            "  mnuPrograms 'Programs' disabled\n" +
                programs +
                "  mnuTrayBar3 '-'\n"
                "  mnuTrayClose 'Close'\n");
}

}  // namespace
}  // namespace qdix::tests
