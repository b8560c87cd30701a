// Every message box of the program: text, title, buttons, icon and default button.
#include <gtest/gtest.h>

#include <tuple>

#include "launcher/launcher_file.h"
#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

/// Flags with the values of the system.
constexpr std::uint32_t kOk = 0;
constexpr std::uint32_t kOkCancel = 1;
constexpr std::uint32_t kYesNo = 4;
constexpr std::uint32_t kStopIcon = 0x10;
constexpr std::uint32_t kInformationIcon = 0x40;
constexpr std::uint32_t kNoIsDefault = 0x100;

/// Text, title, flags.
using Shown = std::tuple<std::string, std::string, std::uint32_t>;

Shown Box(const std::string& text, std::uint32_t flags = kOk) { return {text, "Q-DIX", flags}; }

constexpr const char* kLowResources =
    "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.";
constexpr const char* kRestartOffer =
    "You must restart your computer before the new settings take effect.\r\n\r\n"
    "Do you want to restart your computer now?";

/// A way to make the program show boxes, and the boxes expected.
struct Occasion {
  const char* name;
  void (*act)(TuningRig&);
  std::vector<Shown> boxes;
};

void PrintTo(const Occasion& occasion, std::ostream* out) { *out << occasion.name; }

class Boxes : public testing::TestWithParam<Occasion> {};

TEST_P(Boxes, HaveTheirTextTitleAndButtons) {
  TuningRig rig;
  GetParam().act(rig);
  std::vector<Shown> shown;
  for (const auto& box : rig.machine.Boxes()) shown.emplace_back(box.text, box.title, box.flags);
  EXPECT_EQ(shown, GetParam().boxes);
}

app::Form1& StartWithProgram(TuningRig& rig, const char* path) {
  rig.machine.AddProgram("calc");
  rig.machine.WriteFile("C:\\Program Files\\QDIX\\launcher.dat",
                        launcher::RecordBytes({"Program", path, ""}));
  app::Form1& program = rig.StartAt(screens::kLauncherTab);
  rig.RemoveGraph();
  return program;
}

void StartSwapTab(TuningRig& rig, const char* ini, double free_mb = 2000) {
  rig.machine.AddDrive('C', {.total_bytes = FreeBytes(4000), .free_bytes = FreeBytes(free_mb)});
  rig.WriteSystemIni(ini);
  rig.StartAt(screens::kSwapFileTab);
}

void SaveSwapSize(TuningRig& rig, const char* size_mb) {
  StartSwapTab(rig, "");
  rig.program->SwapFileScreen().optSwap2.Press();
  rig.program->SwapFileScreen().Text8.SetText(size_mb);
  rig.Answer({os::kIdYes, os::kIdNo});
  rig.program->SwapFileScreen().Command18.Press();
}

void AskForASuggestion(TuningRig& rig) {
  rig.StartAt(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap2.Press();
  rig.program->SwapFileScreen().cmdBeginnerSwapFile.Press();
}

// With -14,000,000 bytes available, the difference exceeds 32 bits. The used share is 100.65 percent, and its
// whole part is shown.
INSTANTIATE_TEST_SUITE_P(
    OfMemory, Boxes,
    testing::Values(Occasion{"page file misread",
                             [](TuningRig& rig) {
                               rig.Start();
                               rig.machine.SetMemory(MemoryBytes(64), MemoryBytes(32), 0x7FFFFFFFU,
                                                     0U - 14000000U);
                               rig.AdvanceMs(kRefreshMs);
                             },
                             {Box("An error has occurred. The following info may help debug.\r\n"
                                  "Available RAM : 32.00\r\nVM : 100\r\nTotal Ram : 64")}},
                    Occasion{"button without memory",
                             [](TuningRig& rig) {
                               rig.machine.LimitAllocatableBytes(0);
                               rig.Start().QuondixScreen().Command1.Press();
                             },
                             {Box(kLowResources)}},
                    Occasion{"automatic release without memory",
                             [](TuningRig& rig) {
                               rig.Store("Settings", "AutoActive", "1");
                               rig.machine.LimitAllocatableBytes(0);
                               rig.Start();
                               rig.SetAvailableMb(1);
                               rig.AdvanceMs(20000);
                             },
                             {Box(kLowResources)}},
                    Occasion{"timed release without memory",
                             [](TuningRig& rig) {
                               rig.Store("Settings", "TimeActive", "1");
                               rig.Store("Startup", "TimeMinutes", "5");
                               rig.Start();
                               rig.SetAvailableMb(1);
                               rig.AdvanceMs(5 * kMinuteMs - 1);
                               rig.machine.LimitAllocatableBytes(0);
                               rig.AdvanceMs(1);
                             },
                             {Box(kLowResources)}},
                    Occasion{"start-up release without memory",
                             [](TuningRig& rig) {
                               rig.machine.LimitAllocatableBytes(0);
                               rig.Start();
                               rig.AdvanceMs(kMinuteMs);
                             },
                             {Box(kLowResources)}},
                    Occasion{"launch without memory",
                             [](TuningRig& rig) {
                               rig.machine.LimitAllocatableBytes(0);
                               StartWithProgram(rig, "calc").LauncherScreen().List5.DoubleClick(0);
                             },
                             {Box(kLowResources)}}));

// 3 GB of memory reads as a negative number, which has no share. That is not a lack of memory, so the check
// box that silences the warning changes nothing.
INSTANTIATE_TEST_SUITE_P(
    OfErrors, Boxes,
    testing::Values(Occasion{"release of a negative amount, warnings silenced",
                             [](TuningRig& rig) {
                               rig.Store("Settings", "Warnings", "1");
                               rig.machine.SetMemory(0xC0000000U, MemoryBytes(32), MemoryBytes(64),
                                                     MemoryBytes(32));
                               app::Form1& program = StartWithProgram(rig, "calc");
                               ASSERT_TRUE(program.StartupScreen().Check4.Ticked());
                               program.LauncherScreen().List5.DoubleClick(0);
                             },
                             {Box("Subscript out of range")}},
                    Occasion{"launch of a missing program",
                             [](TuningRig& rig) {
                               StartWithProgram(rig, "missing").LauncherScreen().List5.DoubleClick(0);
                             },
                             {Box("File not found")}},
                    Occasion{"load that no byte holds",
                             [](TuningRig& rig) {
                               rig.machine.SetCpuLoad(300);
                               rig.Start();
                             },
                             {Box("error in CPU Usage Code\r\nOverflow - err number 6")}},
                    Occasion{"error that nothing traps",
                             [](TuningRig& rig) {
                               rig.Start().QuondixScreen().XGraphMeter1.SetMax(0);
                               rig.program->QuondixScreen().Command1.Press();
                             },
                             {Box("Run-time error '11':\r\n\r\nDivision by zero", kStopIcon)}},
                    Occasion{"second copy without a first window",
                             [](TuningRig& rig) {
                               rig.machine.SetOtherCopyRunning(true);
                               rig.machine.OpenWindow("ThunderRT6Main", "Q-DIX");
                               rig.Start();
                             },
                             {Box("error in ActivatePrecInstance")}},
                    Occasion{"limits that are no limits",
                             [](TuningRig& rig) {
                               screens::MainWindow& window = rig.StartAt(screens::kAutomaticTab).MainWindow();
                               rig.program->AutomaticScreen().Text9.SetText("4");
                               window.SSTab1.ChooseTab(screens::kAboutTab);
                               rig.program->AutomaticScreen().Text9.SetText("5");
                               window.SSTab1.ChooseTab(screens::kTimeIntervalsTab);
                               rig.program->TimeIntervalsScreen().Text10.SetText("100");
                               window.SSTab1.ChooseTab(screens::kAboutTab);
                             },
                             {Box("Please enter a number between 5 an 99"),
                              Box("Please enter a number between 5 an 99")}}));

INSTANTIATE_TEST_SUITE_P(
    OfTuning, Boxes,
    testing::Values(
        Occasion{"cache saved",
                 [](TuningRig& rig) {
                   rig.Answer({os::kIdYes, os::kIdNo});
                   rig.StartAt(screens::kCacheTab).CacheScreen().Command11.Press();
                 },
                 {Box("Are you sure you want to save these new cache settings?", kYesNo | kNoIsDefault),
                  Box(kRestartOffer, kYesNo | kInformationIcon)}},
        Occasion{"swap file left to Windows",
                 [](TuningRig& rig) {
                   rig.Answer({os::kIdYes, os::kIdNo});
                   rig.StartAt(screens::kSwapFileTab).SwapFileScreen().Command18.Press();
                 },
                 {Box("Are you sure you want to set the virtual memory (swapfile) settings to Window's "
                      "default settings?",
                      kYesNo),
                  Box("Quondix has reset your virtual memory settings to the system's defaults.\r\n"
                      "These settings will not take place until you reboot your system. You should save "
                      "any work before re-starting Windows.  Do you want to restart Windows now?",
                      kYesNo)}},
        Occasion{"swap file of another's setup",
                 [](TuningRig& rig) {
                   StartSwapTab(rig, "[386Enh]\r\nPagingDrive=C:\r\n");
                   rig.program->SwapFileScreen().Command18.Press();
                 },
                 {Box("No changes have been made to your virtual memory settings.")}},
        Occasion{
            "swap file of one size",
            [](TuningRig& rig) { SaveSwapSize(rig, "200"); },
            {Box("Are you sure you want to configure your Virtual Memory Settings?", kYesNo | kNoIsDefault),
             Box(kRestartOffer, kYesNo | kInformationIcon)}},
        Occasion{"swap file too small",
                 [](TuningRig& rig) { SaveSwapSize(rig, "63"); },
                 {Box("It is not very safe to set the swapfile size this low. The lowest Quondix will "
                      "allow you to set on this system is 64 MB.")}},
        Occasion{"swap file too large",
                 [](TuningRig& rig) { SaveSwapSize(rig, "1981"); },
                 {Box("The size you have selected is too large.  You should decrease the Swapfile size, "
                      "make some more space available on C: disk, or consider using a different fixed hard "
                      "disk.\r\nThe maximum size you may allocate to the C: is 1980 MB.")}},
        Occasion{"defragmenter",
                 [](TuningRig& rig) {
                   rig.Answer({os::kIdCancel});
                   rig.StartAt(screens::kSwapFileTab).SwapFileScreen().Command26.Press();
                 },
                 {Box("Ok to run the Disk Defragmenter now?  Quondix will close down for this process.",
                      kOkCancel)}}));

INSTANTIATE_TEST_SUITE_P(
    OfTheSuggestion, Boxes,
    testing::Values(
        Occasion{"disk with room",
                 [](TuningRig& rig) { AskForASuggestion(rig); },
                 {Box("Quondix suggests configuring your swapfile on your C: at a size of 192 MB.\r\n\r\n"
                      "If you are an advanced Windows user and you have more than one physical hard disk "
                      "then you may want to view the tips help screen for information on how to further "
                      "configure your virtual memory settings. This is located by pressing the button with "
                      "the lightbulb on this screen.\r\n\r\n"
                      "It is recomended that you run the Disk Defragmenter on this drive first.\r\n\r\n"
                      "For changes to be made you must press the Save button.")}},
        Occasion{"no disk",
                 [](TuningRig& rig) {
                   rig.machine.AddDrive('C', {.type = 5});
                   AskForASuggestion(rig);
                 },
                 {Box("Quondix suggests you leave your virtual memory settings configured to Window's "
                      "default settings for now.\r\n\r\n"
                      "Your Hard Disk does not have enough free disk space available as you should have at "
                      "least 292 MB free.\r\n\r\n"
                      "You should consider doing one of the following, and then try again.\r\n"
                      "(1) Increase the amount of free disk space on your computer by deleting some "
                      "unwanted files or uninstall any unwanted program.\r\n"
                      "(2) Install a second Hard Disk onto your computer.")}},
        Occasion{"disk without room",
                 [](TuningRig& rig) {
                   rig.machine.AddDrive('C', {.total_bytes = FreeBytes(4000), .free_bytes = FreeBytes(100)});
                   AskForASuggestion(rig);
                 },
                 {Box("Quondix suggests you leave your virtual memory settings configured to Window's "
                      "default settings.\r\n\r\n"
                      "Your Hard Disks do not have enough free disk space available as you should have at "
                      "least 292 MB free.\r\n\r\n"
                      "You should consider doing one of the following, and then try again.\r\n"
                      "(1) Increase the amount of free disk space on your computer by deleting some "
                      "unwanted file or uninstall any unwanted program.\r\n"
                      "(2) Move some files from one drive to another to fit."
                      "(3) Install another (or larger) Hard Disk onto your computer.")}}));

TEST(TipBox, HasItsOwnTitleAndTheInformationIcon) {
  ProgramRig rig;
  rig.Start().MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Quondix Tip");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, kInformationIcon);
  EXPECT_EQ(rig.machine.Boxes()[0].text,
            "The Automatic free up function has been disabled on purpose to show you how inefficient Windows "
            "really is.\r\n"
            "You can see how much RAM is available in realtime in the title bar as it is constantly updated. "
            " On machines running 64 MB or less it is very common to almost run out of RAM after just "
            "starting Windows.\r\n\r\n"
            "To activate the automatic feature simply ensure the 'Auto Detection Active' checkbox is "
            "checked.");
}

}  // namespace
}  // namespace qdix::tests
