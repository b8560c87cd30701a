// The random events of the days that the program lives through.
#include <algorithm>
#include <array>

#include "tests/soak/days.h"

namespace qdix::tests {

namespace {

/// Megabytes free: from almost nothing to more than any threshold, which is then never met.
constexpr std::array<int, 6> kAvailableMb{2, 11, 29, 64, 90, 120};
constexpr std::array<std::uint32_t, 5> kLoadPercent{0, 15, 79, 80, 100};

constexpr std::string_view kWarning = "Warning - System Resources may be low.";
/// How the texts of all other boxes begin that the user's actions can bring up.
constexpr std::array<std::string_view, 7> kKnownBoxes{
    "Are you sure you want to save these new cache settings?",
    "You must restart your computer",
    "Are you sure you want to set the virtual memory",
    "Quondix has reset your virtual memory",
    "Quondix suggests",
    "Are you sure you want to configure your Virtual Memory",
    "The Automatic free up function"};

}  // namespace

void Days::ChangeConditions() {
  if (Chance(3)) {
    conditions_.available_mb = kAvailableMb[Random(kAvailableMb.size())];
    rig_.machine.SetMemory(MemoryBytes(128), MemoryBytes(conditions_.available_mb), MemoryBytes(128),
                           MemoryBytes(Random(128)));
  }
  if (Chance(3)) {
    conditions_.load_percent = kLoadPercent[Random(kLoadPercent.size())];
    rig_.machine.SetCpuLoad(conditions_.load_percent);
  }
  if (Chance(10)) {
    conditions_.refuses_blocks = Chance(3);
    rig_.machine.LimitAllocatableBytes(conditions_.refuses_blocks ? 1000 : 0xFFFFFFFFU);
  }
  if (Chance(60)) {
    ++report_.clock_changes;
    rig_.machine.SetNow(kNoon21November2026 - Random(5000));
  }
  if (Chance(30)) RestartTaskbar();
  if (Chance(30)) ChangeDisk();
  if (!Chance(20)) return;
  conditions_.companion_works = companion_ == 0;
  if (companion_ == 0) {
    companion_ = rig_.machine.OpenWindow("ThunderRT6Main", "Kestrin Launcher (Working)");
  } else {
    rig_.machine.CloseWindow(companion_);
    companion_ = 0;
  }
}

/// With the shell's broadcast message or, as on the first Windows 95, without it.
void Days::RestartTaskbar() {
  ++report_.taskbar_restarts;
  rig_.machine.CloseWindow(taskbar_);
  rig_.machine.ClearTrayIcons();
  Pass(1 + Random(70000));
  taskbar_ = rig_.machine.OpenWindow("Shell_TrayWnd", "");
  if (Chance(3)) rig_.machine.FailNextCall("Shell_NotifyIconA");
  if (Chance(2)) rig_.program->TrayIcon().AddToTray();
}

void Days::ChangeDisk() {
  rig_.machine.LimitFreeBytes(Chance(2) ? 0 : ~std::uint64_t{0});
  if (ini_is_protected_ || !Chance(3)) return;
  ini_is_protected_ = true;
  rig_.machine.ProtectFile(kSystemIniPath);
}

void Days::AnswerBox() {
  const os::simulated::Box& box = rig_.machine.Boxes().back();
  const bool asks = (box.flags & os::kMbYesNo) != 0;
  const bool restarts = box.text.find("Do you want to restart") != std::string::npos;
  const bool says_yes = asks && !restarts;
  rig_.machine.AnswerNextBox(!asks ? os::kIdOk : says_yes ? os::kIdYes : os::kIdNo);
  if (box.text.starts_with(kWarning)) {
    ++warned_;
    return;
  }
  EXPECT_TRUE(std::any_of(kKnownBoxes.begin(), kKnownBoxes.end(), [&box](std::string_view known) {
    return box.text.starts_with(known);
  })) << box.text;
}

void Days::Open(screens::Tab tab) {
  rig_.program->Form().Show();
  rig_.program->Form().SetState(ui::WindowState::kNormal);
  rig_.program->MainWindow().SSTab1.ChooseTab(tab);
}

void Days::Hand() {
  ++report_.user_visits;
  switch (Random(6)) {
    case 0:
      UseAutomaticTab();
      break;
    case 1:
      UseTimeIntervalsTab();
      break;
    case 2:
      UseReleases();
      break;
    case 3:
      UseSystem();
      break;
    case 4:
      SaveTuning();
      break;
    default:
      UseTray();
  }
  forecast_->FollowControls();
}

void Days::UseAutomaticTab() {
  Open(screens::kAutomaticTab);
  screens::AutomaticScreen& tab = rig_.program->AutomaticScreen();
  const int row = static_cast<int>(Random(static_cast<unsigned>(tab.List2.Count())));
  if (forecast_->CanBeMet(std::stod(tab.List2.Item(row)))) tab.List2.ChooseIndex(row);
  tab.List4.ChooseIndex(static_cast<int>(Random(static_cast<unsigned>(tab.List4.Count()))));
  // Often exactly the amount that is free now.
  const int threshold_mb = Chance(2) ? static_cast<int>(Random(131)) : conditions_.available_mb - 1;
  tab.VScroll2.Drag(threshold_mb + static_cast<int>(Random(3)));
  if (Chance(3)) tab.Check9.Press();
  // Mostly on.
  if (!tab.Check1.Ticked() || Chance(6)) tab.Check1.Press();
  if (!Chance(4)) return;
  tab.Command7.Press();
  forecast_->ResetCounter();
  counter_date_ = rig_.machine.GetSystem().clock.LongDate(rig_.machine.GetSystem().clock.Now());
}

void Days::UseTimeIntervalsTab() {
  Open(screens::kTimeIntervalsTab);
  screens::TimeIntervalsScreen& tab = rig_.program->TimeIntervalsScreen();
  (Chance(4) ? tab.Option5 : tab.Option4).Press();
  if (tab.Check3.Enabled()) {
    tab.lstTime.ChooseIndex(static_cast<int>(Random(static_cast<unsigned>(tab.lstTime.Count()))));
    forecast_->RestartCountdown();
  }
  tab.List3.ChooseIndex(static_cast<int>(Random(static_cast<unsigned>(tab.List3.Count()))));
  if (Chance(3)) tab.Check10.Press();
  if (tab.Check3.Enabled() && (!tab.Check3.Ticked() || Chance(6))) {
    tab.Check3.Press();
    forecast_->RestartCountdown();
  }
}

void Days::UseReleases() {
  Open(screens::kQuondixTab);
  screens::QuondixScreen& tab = rig_.program->QuondixScreen();
  tab.VScroll1.Drag(static_cast<int>(1 + Random(4)));
  tab.List1.ChooseIndex(static_cast<int>(Random(static_cast<unsigned>(tab.List1.Count()))));
  if (tab.Command1.Enabled()) {
    forecast_->ExpectManualRelease();
    tab.Command1.Press();
  }
  // The next visit ends a pause.
  const bool is_paused = tab.Command3.Caption() == "Resume Activity";
  if (is_paused || Chance(3)) tab.Command3.Press();
}

void Days::UseSystem() {
  Open(screens::kStartupTab);
  screens::StartupScreen& tab = rig_.program->StartupScreen();
  tab.Slider7.Drag(static_cast<int>(1 + Random(5)));
  tab.Check2.Press();
  if (Chance(3)) tab.Check4.Press();
  if (Chance(4)) {
    tab.Command5.Press();
    waited_ms_ += 2000;
  }
  if (Chance(2))
    (Chance(2) ? rig_.program->QuondixScreen().Command2 : rig_.program->QuondixScreen().Command4).Press();
}

void Days::UseTray() {
  constexpr double kMouseMoved = 512 * ui::kTwipsPerPixel;
  constexpr double kDoubleClick = 515 * ui::kTwipsPerPixel;
  rig_.program->Form().PointerMoved(0, 0, Chance(3) ? kDoubleClick : kMouseMoved, 0);
  // There is none if the shell refuses the change.
  if (!rig_.machine.TrayRequests().empty()) {
    EXPECT_EQ(rig_.machine.TrayRequests().back().tip, std::to_string(conditions_.available_mb) + " MB");
  }
  Open(screens::kQuondixTab);
  if (Chance(2)) rig_.program->TrayMenu().mnuTrayHide.Choose();
}

void Days::SaveTuning() {
  const std::string before = rig_.SystemIni();
  Open(screens::kCacheTab);
  screens::CacheScreen& cache = rig_.program->CacheScreen();
  cache.Combo2.ChooseIndex(static_cast<int>(Random(static_cast<unsigned>(cache.Combo2.Count()))));
  cache.Command11.Press();
  Open(screens::kSwapFileTab);
  rig_.program->SwapFileScreen().optSwap2.Press();
  rig_.program->SwapFileScreen().cmdBeginnerSwapFile.Press();
  if (ini_is_protected_) {
    EXPECT_EQ(rig_.SystemIni(), before);
  }
  EXPECT_NE(rig_.SystemIni().find("EMMExclude=A000\r\n"), std::string::npos);
}

}  // namespace qdix::tests
