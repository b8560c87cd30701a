// Random settings, then random hands on all controls: nothing crashes, nothing leaks, no value leaves its
// range, and the program ends when it is closed. A failing run prints its seed, which replays it.
#include <gtest/gtest.h>

#include <random>

#include "tests/support/program_rig.h"
#include "ui/control_numbers.h"

namespace qdix::tests {
namespace {

constexpr unsigned kRuns = 150;
constexpr int kActionsPerRun = 120;
/// A release of many passes is ended by closing the window, as a user would.
constexpr int kPatiencePumps = 30000;

class RandomHands {
 public:
  explicit RandomHands(unsigned seed) : random_(seed) {}

  void Run() {
    FillSettings();
    FillSystem();
    FillLauncher();
    rig_.machine.LimitAllocatableBytes(Chance(3) ? 0xFFFFFFFFU : random_() % (600 * kMegabyte));
    rig_.Create();
    ui::VisitControls(rig_.program->Window(), ui::ControlVisitor::To<&RandomHands::Note>(*this));
    rig_.machine.OnPump([this](int number) { InsidePump(number); });
    rig_.program->Start();
    if (!Chance(4)) rig_.TakeGraphAway();
    for (int i = 0; i < kActionsPerRun && !rig_.program->Window().Unloaded(); ++i) {
      Act();
      CheckInvariants();
    }
    rig_.program->Window().Unload();
    rig_.AdvanceMs(100000);
    EXPECT_TRUE(rig_.machine.OutstandingBlocks().empty());
    // Readings of the load between two updates of the graph leave their keys open.
    EXPECT_LE(rig_.machine.OpenKeyCount(), readings_);
    EXPECT_EQ(rig_.machine.TrayIconCount(), 0);
    EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
  }

  void Note(ui::Control& control, int /*number*/) { controls_.push_back(&control); }

 private:
  [[nodiscard]] bool Chance(unsigned one_in) { return random_() % one_in == 0; }

  std::string RandomText() {
    static constexpr std::string_view kLikely = "0123456789.-E MB";
    std::string text;
    for (auto left = random_() % 12; left > 0; --left) {
      text += Chance(4) ? static_cast<char>(1 + random_() % 255) : kLikely[random_() % kLikely.size()];
    }
    return text;
  }

  void FillSettings() {
    if (Chance(2)) rig_.SetHasRunBefore();
    for (const char* key :
         {"FreeUpRAM",     "TryTimes",    "MinRAM",        "AutoQuondix",  "TimeQuondix",
          "AutoActive",    "AutoSecs",    "Warnings",      "TimeActive",   "TimeUnit",
          "CPUAutoActive", "AutoCPU",     "CPUTimeActive", "TimeCPU",      "CPU",
          "LastTab",       "CounterDate", "CounterValue",  "Launcher RAM", "Launcher Retry"}) {
      if (Chance(2)) rig_.Store("Settings", key, RandomText());
    }
    for (const char* key : {"StartDisplay", "StartupRAM", "StartupTime", "TimeMinutes", "TimeHours"}) {
      if (Chance(2)) rig_.Store("Startup", key, RandomText());
    }
  }

  /// A text as an entry of system.ini may hold it: likely ones, any bytes, and lengths round the buffer's.
  std::string RandomEntry() {
    static constexpr std::string_view kTexts[] = {"",   "0",      "D",      "C:",     "D:\\swap", "on",
                                                  "On", "131072", "100000", "131072", "-5",       "1E300"};
    if (Chance(2)) return std::string(kTexts[random_() % std::size(kTexts)]);
    if (!Chance(8)) return RandomText();
    static constexpr std::size_t kLengths[] = {253, 254, 255, 256, 70000};
    return std::string(kLengths[random_() % std::size(kLengths)], static_cast<char>('0' + random_() % 10));
  }

  void FillSystem() {
    std::string ini = Chance(3) ? RandomText() + "\r\n" : "";
    ini += "[386Enh]\r\n";
    for (const char* key : {"PagingDrive", "MinPagingFileSize", "MaxPagingFileSize", "Paging"}) {
      if (Chance(2)) ini.append(key).append("=").append(RandomEntry()).append("\r\n");
    }
    ini += "[vcache]\r\n";
    for (const char* key : {"MinFileCache", "maxfilecache", "ChunkSize"}) {
      if (Chance(2)) ini.append(key).append("=").append(RandomEntry()).append(Chance(4) ? "\n" : "\r\n");
    }
    if (!Chance(8)) rig_.machine.WriteFile("C:\\WINDOWS\\system.ini", ini);
    if (Chance(8)) rig_.machine.ProtectFile("C:\\WINDOWS\\system.ini");
    for (const char* name : {"NameCache", "PathCache", ""}) {
      if (Chance(2)) {
        rig_.machine.SetRegistryBytes(os::kHkeyLocalMachine,
                                      "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates\\Quondix",
                                      name, Word() % 5, RandomText());
      }
    }
    for (char letter = 'C'; Chance(2) && letter < 'Z'; ++letter) {
      rig_.machine.AddDrive(letter, {.type = Chance(4) ? Word() % 8 : os::kDriveFixed,
                                     .total_bytes = std::uint64_t{Word()} << Word() % 20,
                                     .free_bytes = std::uint64_t{Word()} << Word() % 20,
                                     .flags = Chance(4) ? std::nullopt : std::optional(Word() % 0x10000)});
    }
    if (Chance(2)) rig_.machine.RemoveExtendedQuery();
    if (Chance(2)) rig_.machine.RemoveProgram("defrag");
    rig_.machine.WhileBoxIsOpen([this] { AnswerBox(); });
  }

  /// A list of any bytes and any length: often one that would be read, now and then too long a one.
  void FillLauncher() {
    constexpr unsigned kRecordBytes = 565;
    const unsigned records = Chance(20) ? 26 : Word() % 8;
    std::string content;
    while (content.size() < records * kRecordBytes + Word() % kRecordBytes) content += RandomText() + "   ";
    if (Chance(2)) rig_.machine.WriteFile("C:\\Program Files\\QDIX\\launcher.dat", content);
    if (Chance(4)) rig_.machine.ProtectDisk();
    if (Chance(2)) rig_.machine.AddProgram("C:\\Program Files\\QDIX\\configL.exe");
  }

  /// Any answer that the box has, so that it is not always the default one.
  void AnswerBox() {
    const std::uint32_t flags = rig_.machine.Boxes().back().flags;
    int answer = os::kIdOk;
    if ((flags & os::kMbYesNo) != 0) answer = Chance(3) ? os::kIdNo : os::kIdYes;
    if ((flags & os::kMbOkCancel) != 0) answer = Chance(2) ? os::kIdOk : os::kIdCancel;
    rig_.machine.AnswerNextBox(Chance(10) ? os::kIdNone : answer);
  }

  void InsidePump(int number) {
    if (number > kPatiencePumps || Chance(200000)) rig_.program->Window().Unload();
    if (Chance(2000)) Act();
  }

  void Act() {
    if (++depth_ < 4) {
      if (Chance(4)) {
        const auto ms = static_cast<std::int64_t>(random_() % 70000);
        readings_ += static_cast<int>(ms / kRefreshMs) + 1;
        rig_.AdvanceMs(ms);
      }
      if (Chance(10)) rig_.machine.SetMemory(Word(), Word(), Word(), Word());
      if (Chance(10)) rig_.SetAvailableMb(static_cast<double>(random_() % 64));
      if (Chance(10)) rig_.machine.SetCpuLoad(Chance(10) ? Word() : Word() % 101);
      if (Chance(50)) rig_.machine.OpenWindow("Shell_TrayWnd", "");
      if (Chance(10)) rig_.program->Window().PointerMoved(0, 0, static_cast<double>(random_() % 8000), 0);
      if (Chance(20)) rig_.program->Window().Show();
      if (Chance(20)) rig_.program->Window().SetState(ui::WindowState::kNormal);
      UseControl(*controls_[random_() % controls_.size()]);
    }
    --depth_;
  }

  std::uint32_t Word() { return static_cast<std::uint32_t>(random_()); }

  void UseControl(ui::Control& control) {
    const auto number = static_cast<std::int32_t>(random_() % 400) - 20;
    switch (control.GetKind()) {
      case ui::Kind::kTabStrip:
        return static_cast<ui::TabStrip&>(control).ChooseTab(number % 9);
      case ui::Kind::kButton:
        return static_cast<ui::Button&>(control).Press();
      case ui::Kind::kCheckBox:
        return static_cast<ui::CheckBox&>(control).Press();
      case ui::Kind::kOptionButton:
        return static_cast<ui::OptionButton&>(control).Press();
      case ui::Kind::kTextBox:
        control.SetFocus();
        return static_cast<ui::TextBox&>(control).TypeText(RandomText());
      case ui::Kind::kListBox:
        if (Chance(3)) return static_cast<ui::ListBox&>(control).DoubleClick(number % 32);
        return static_cast<ui::ListBox&>(control).ChooseIndex(number % 32);
      case ui::Kind::kDropDownList:
        return static_cast<ui::ListControl&>(control).ChooseIndex(number % 32);
      case ui::Kind::kVerticalScrollBar:
        return static_cast<ui::VerticalScrollBar&>(control).Drag(number);
      case ui::Kind::kSlider:
        return static_cast<ui::Slider&>(control).Drag(number);
      default:
        return control.SetFocus();
    }
  }

  void CheckInvariants() {
    const auto& screen = rig_.program->Quondix();
    EXPECT_GE(screen.Gauge1.Value(), 0);
    EXPECT_LE(screen.Gauge1.Value(), 50);
    EXPECT_GE(screen.VScroll1.Value(), 1);
    EXPECT_LE(screen.VScroll1.Value(), 20);
    const auto& cache = rig_.program->Cache();
    for (const ui::Slider* slider :
         {&cache.Slider1, &cache.Slider2, &cache.Slider3, &cache.Slider4, &cache.Slider5}) {
      EXPECT_GE(slider->Value(), slider->Minimum()) << slider->Name();
      EXPECT_LE(slider->Value(), std::max(slider->Minimum(), slider->Maximum())) << slider->Name();
    }
    const auto& swap = rig_.program->SwapFile();
    EXPECT_TRUE(swap.VScroll4.Value() >= 0 && swap.VScroll4.Value() <= 32750) << swap.VScroll4.Value();
    EXPECT_LE(swap.optSwap1.Selected() + swap.optSwap2.Selected() + swap.optSwap3.Selected(), 1);
    const int tab = rig_.program->MainWindow().SSTab1.Tab();
    EXPECT_TRUE(tab >= 0 && tab < 8) << tab;
    for (const ui::Timer* timer : rig_.program->Timers()) {
      EXPECT_TRUE(timer->Interval() >= 0 && timer->Interval() <= ui::Timer::kLongestIntervalMs)
          << timer->Name();
    }
  }

  std::mt19937 random_;
  ProgramRig rig_;
  std::vector<ui::Control*> controls_;
  int depth_ = 0;
  /// The most readings of the load that the time so far can have brought.
  int readings_ = 0;
};

TEST(RandomHandsOnAllControls, NeitherCrashNorLeakNorLeaveARange) {
  for (unsigned seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE(seed);
    RandomHands(seed).Run();
    if (testing::Test::HasFailure()) return;
  }
}

}  // namespace
}  // namespace qdix::tests
