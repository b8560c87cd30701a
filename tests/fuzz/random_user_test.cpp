// Starts with random settings and uses all controls at random: nothing crashes, nothing leaks, no value
// leaves its range, and the program ends when it is closed. A failing run prints its seed, which replays it.
#include "tests/fuzz/random_user.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "registry/settings.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr unsigned long kEvents = 18000;
/// A release of many passes is ended by closing the window, as a user would do.
constexpr int kPatiencePumps = 30000;

class RandomUser : private RandomSource {
 public:
  using RandomSource::RandomSource;

  unsigned long Run() {
    FillSettings();
    FillSystem();
    FillLauncher();
    rig_.machine.LimitAllocatableBytes(Chance(3) ? 0xFFFFFFFFU : Random() % (600 * kMegabyte));
    rig_.Create();
    actions_.Collect(rig_.program->Form());
    rig_.machine.OnPump([this](int number) { InsidePump(number); });
    rig_.program->Start();
    if (!Chance(4)) rig_.RemoveGraph();
    unsigned long events = 0;
    for (; events < kEventsPerRun && !rig_.program->Form().Unloaded(); ++events) {
      Act();
      CheckInvariants();
      CheckHoldings();
    }
    rig_.program->Form().Unload();
    rig_.AdvanceMs(100000);
    CheckHoldings();
    CheckStoredNames();
    EXPECT_EQ(rig_.machine.TrayIconCount(), 0);
    return events;
  }

 private:
  void FillSettings() {
    if (Chance(2)) rig_.SetHasRunBefore();
    for (const registry::Setting* setting : registry::kAllSettings) {
      if (Chance(2)) rig_.Store(setting->section, setting->key, actions_.SomeText());
    }
  }

  /// Returns a text that an entry of system.ini may hold: a likely one, arbitrary bytes, or one about as long
  /// as the buffer.
  std::string RandomEntry() {
    static constexpr std::string_view kTexts[] = {"",   "0",      "D",      "C:",     "D:\\swap", "on",
                                                  "On", "131072", "100000", "131072", "-5",       "1E300"};
    if (Chance(2)) return std::string(kTexts[Random() % std::size(kTexts)]);
    if (!Chance(8)) return actions_.SomeText();
    static constexpr std::size_t kLengths[] = {253, 254, 255, 256, 70000};
    return std::string(kLengths[Random() % std::size(kLengths)], static_cast<char>('0' + Random() % 10));
  }

  void FillSystem() {
    std::string ini = Chance(3) ? actions_.SomeText() + "\r\n" : "";
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
                                      name, Word() % 5, actions_.SomeText());
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
    rig_.machine.WhileBoxIsOpen([this] { actions_.Answer(rig_.machine); });
  }

  /// Writes a list of arbitrary bytes and length: often a readable one, sometimes one that is too long.
  void FillLauncher() {
    constexpr unsigned kRecordBytes = 565;
    const unsigned records = Chance(20) ? 26 : Word() % 8;
    std::string content;
    while (content.size() < records * kRecordBytes + Word() % kRecordBytes)
      content += actions_.SomeText() + "   ";
    if (Chance(2)) rig_.machine.WriteFile("C:\\Program Files\\QDIX\\launcher.dat", content);
    if (Chance(4)) rig_.machine.ProtectDisk();
    if (Chance(2)) rig_.machine.AddProgram("C:\\Program Files\\QDIX\\configL.exe");
  }

  void InsidePump(int number) {
    if (number > kPatiencePumps || Chance(200000)) rig_.program->Form().Unload();
    if (Chance(2000)) Act();
  }

  void Act() {
    if (++depth_ < 4) {
      if (Chance(4)) {
        const auto ms = static_cast<std::int64_t>(Random() % 70000);
        readings_ += static_cast<int>(ms / kRefreshMs) + 1;
        rig_.AdvanceMs(ms);
      }
      if (Chance(10)) rig_.machine.SetMemory(Word(), Word(), Word(), Word());
      if (Chance(10)) rig_.SetAvailableMb(static_cast<double>(Random() % 64));
      if (Chance(10)) rig_.machine.SetCpuLoad(Chance(10) ? Word() : Word() % 101);
      if (Chance(50)) rig_.machine.OpenWindow("Shell_TrayWnd", "");
      if (Chance(10)) rig_.program->Form().PointerMoved(0, 0, static_cast<double>(Random() % 8000), 0);
      if (Chance(20)) rig_.program->Form().Show();
      if (Chance(20)) rig_.program->Form().SetState(ui::WindowState::kNormal);
      actions_.UseAny();
    }
    --depth_;
  }

  /// Nothing is held between two events.
  void CheckHoldings() {
    EXPECT_TRUE(rig_.machine.OutstandingBlocks().empty());
    // Load readings between two updates of the graph leave their keys open.
    EXPECT_LE(rig_.machine.OpenKeyCount(), readings_);
    EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
    EXPECT_LE(rig_.machine.TrayIconCount(), 1);
  }

  /// The program stores nothing but its listed settings.
  void CheckStoredNames() {
    for (const char* section : {registry::kSettingsSection, registry::kStartupSection}) {
      for (const auto& [key, text] :
           rig_.machine.RegistryTexts(os::kHkeyCurrentUser, ProgramRig::SectionPath(section))) {
        EXPECT_TRUE(std::any_of(registry::kAllSettings.begin(), registry::kAllSettings.end(),
                                [&](const registry::Setting* setting) {
                                  return setting->section == std::string_view(section) && setting->key == key;
                                }))
            << section << ", " << key;
      }
    }
  }

  void CheckInvariants() {
    const auto& screen = rig_.program->QuondixScreen();
    EXPECT_GE(screen.Gauge1.Value(), 0);
    EXPECT_LE(screen.Gauge1.Value(), 50);
    EXPECT_GE(screen.VScroll1.Value(), 1);
    EXPECT_LE(screen.VScroll1.Value(), 20);
    const auto& cache = rig_.program->CacheScreen();
    for (const ui::Slider* slider :
         {&cache.Slider1, &cache.Slider2, &cache.Slider3, &cache.Slider4, &cache.Slider5}) {
      EXPECT_GE(slider->Value(), slider->Minimum()) << slider->Name();
      EXPECT_LE(slider->Value(), std::max(slider->Minimum(), slider->Maximum())) << slider->Name();
    }
    const auto& swap = rig_.program->SwapFileScreen();
    EXPECT_TRUE(swap.VScroll4.Value() >= 0 && swap.VScroll4.Value() <= 32750) << swap.VScroll4.Value();
    EXPECT_LE(swap.optSwap1.Selected() + swap.optSwap2.Selected() + swap.optSwap3.Selected(), 1);
    const int tab = rig_.program->MainWindow().SSTab1.Tab();
    EXPECT_TRUE(tab >= 0 && tab < 8) << tab;
    for (const ui::Timer* timer : rig_.program->Timers()) {
      EXPECT_TRUE(timer->Interval() >= 0 && timer->Interval() <= ui::Timer::kMaxIntervalMs) << timer->Name();
    }
  }

  RandomActions actions_{*this};
  ProgramRig rig_;
  int depth_ = 0;
  /// Upper limit of the load readings that the time so far can have caused.
  int readings_ = 0;
};

TEST(RandomUserOnAllControls, NeitherCrashesNorLeaksNorLeavesARange) { RunRandomUser<RandomUser>(kEvents); }

}  // namespace
}  // namespace qdix::tests
