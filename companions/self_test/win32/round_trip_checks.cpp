#include "self_test/win32/round_trip_checks.h"

#include <commctrl.h>

#include "config_launcher/config_form.h"
#include "launcher/launcher_file.h"
#include "registry/settings_store.h"

namespace qdix::self_test::win32 {

namespace {

using MainProgram = OpenProgram<app::Form1>;

constexpr const char* kDelayText = "30";
constexpr int kSliderPosition = 3;
constexpr const char* kProgramName = "Self-test";
constexpr int kTextRoom = 256;

std::string TextOf(HWND window) {
  std::array<char, kTextRoom> text{};
  GetWindowTextA(window, text.data(), kTextRoom);
  return text.data();
}

std::string RowOf(HWND list, int row) {
  if (SendMessageA(list, LB_GETTEXTLEN, static_cast<WPARAM>(row), 0) >= kTextRoom) return {};
  std::array<char, kTextRoom> text{};
  SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  return text.data();
}

Outcome Stored(const Bench& bench, const registry::Setting& setting, const char* expected) {
  const registry::SettingsStore settings(bench.system.GetSystem().registry);
  const std::string stored = settings.Stored(setting).value_or("nothing");
  if (stored == expected) return Outcome::Ok();
  return Outcome::Failed(std::string(setting.key) + " holds " + stored + ", not " + expected);
}

/// Adds a program to the launcher's list and saves it.
Outcome SaveProgramList(const Bench& bench) {
  QuietFileDialogs dialogs;
  const auto open = std::make_unique<OpenProgram<config_launcher::ConfigForm>>(bench, dialogs);
  Outcome started = open->Start();
  if (!started.is_ok) return started;
  config_launcher::ConfigScreen& screen = open->TheProgram().Screen();
  SetWindowTextA(open->WindowOf(screen.txtName), kProgramName);
  SetWindowTextA(open->WindowOf(screen.txtPath), "C:\\NOTHING.EXE");
  open->Notify(screen.cmdAdd, BN_CLICKED);
  open->Notify(screen.cmdOK, BN_CLICKED);
  const bool is_saved = open->TheProgram().Form().Unloaded();
  return is_saved ? Outcome::Ok()
                  : Outcome::Failed("the list was not saved; message: " + bench.system.Dialogs().TakeTexts());
}

Outcome TickBox(const Bench& bench, MainProgram& open) {
  const ui::CheckBox& box = open.TheProgram().StartupScreen().Check4;
  open.Notify(box, BN_CLICKED);
  if (SendMessageA(open.WindowOf(box), BM_GETCHECK, 0, 0) != BST_CHECKED) {
    return Outcome::Failed("the box is not ticked");
  }
  return Stored(bench, setting::kWarnings, "1");
}

Outcome TypeText(const Bench& bench, MainProgram& open) {
  SetWindowTextA(open.WindowOf(open.TheProgram().StartupScreen().Text3), kDelayText);
  return Stored(bench, setting::kStartupTime, kDelayText);
}

Outcome DragSlider(const Bench& bench, MainProgram& open) {
  HWND const slider = open.WindowOf(open.TheProgram().StartupScreen().Slider7);
  SendMessageA(slider, TBM_SETPOS, TRUE, kSliderPosition);
  SendMessageA(GetParent(slider), WM_HSCROLL, TB_ENDTRACK, reinterpret_cast<LPARAM>(slider));
  return Stored(bench, setting::kCpu, "3");
}

Outcome FindAgain(MainProgram& open) {
  Outcome started = open.Start();
  if (!started.is_ok) return started;
  app::Form1& form1 = open.TheProgram();
  if (form1.MainWindow().SSTab1.Tab() != screens::kStartupTab)
    return Outcome::Failed("the wrong tab is open");
  const screens::StartupScreen& startup = form1.StartupScreen();
  if (SendMessageA(open.WindowOf(startup.Check4), BM_GETCHECK, 0, 0) != BST_CHECKED) {
    return Outcome::Failed("the tick was not restored");
  }
  if (TextOf(open.WindowOf(startup.Text3)) != kDelayText) return Outcome::Failed("the text was not restored");
  if (SendMessageA(open.WindowOf(startup.Slider7), TBM_GETPOS, 0, 0) != kSliderPosition) {
    return Outcome::Failed("the slider position was not restored");
  }
  form1.MainWindow().SSTab1.ChooseTab(screens::kLauncherTab);
  return Outcome::Expect(RowOf(open.WindowOf(form1.LauncherScreen().List5), 0) == kProgramName,
                         "the program list was not restored");
}

struct OneMegabyte {
  [[nodiscard]] double Amount() const { return amount_mb; }
  double amount_mb = 1;
};

Outcome ReleaseOneMegabyte(const Bench& bench, MainProgram& open) {
  constexpr std::uint32_t kMinBytes = 1000000;
  const LimitedMemory& memory = bench.system.Memory();
  const int taken_before = memory.Taken();
  const std::uint32_t touched_before = memory.TouchedBytes();
  OneMegabyte one;
  const memory::ReleaseOutcome outcome = open.TheProgram().MemoryRelease().FreeUpMemory(
      {.amount_mb = base::Callback<double()>::To<&OneMegabyte::Amount>(one), .passes = 1});
  if (outcome != memory::ReleaseOutcome::kFinished) {
    return Outcome::Failed("the release did not finish: " + bench.system.Dialogs().TakeTexts());
  }
  if (memory.Taken() != taken_before + 1) return Outcome::Failed("no block was allocated");
  if (memory.TouchedBytes() - touched_before < kMinBytes) return Outcome::Failed("the block is too small");
  return Outcome::Expect(memory.GivenBack() == memory.Taken(), "the block was not freed");
}

}  // namespace

void RunRoundTripChecks(const Bench& bench) {
  Report& report = bench.report;
  report.Run("Saving a program list", [&bench] { return SaveProgramList(bench); });
  auto open = std::make_unique<MainProgram>(bench);
  report.Run("QDIX: start with this list", [&open] { return open->Start(); });
  report.Run("Releasing 1 MB", [&bench, &open] { return ReleaseOneMegabyte(bench, *open); });
  base::Ignore(open->TheProgram().MainWindow().SSTab1.SetTab(screens::kStartupTab));
  report.Run("Ticking a box", [&bench, &open] { return TickBox(bench, *open); });
  report.Run("Typing a text", [&bench, &open] { return TypeText(bench, *open); });
  report.Run("Dragging a slider", [&bench, &open] { return DragSlider(bench, *open); });
  open.reset();
  open = std::make_unique<MainProgram>(bench);
  report.Run("Reading everything back", [&open] { return FindAgain(*open); });
}

}  // namespace qdix::self_test::win32
