#include "launcher/launch_release.h"

#include <algorithm>

#include "base/numbers.h"

namespace qdix::launcher {

namespace {

/// Maximum amount of one pass, in megabytes of 1,040,000 bytes.
constexpr double kMaxMb = 250;

}  // namespace

LaunchRelease::LaunchRelease(memory::MemoryRelease& release, const memory::MemoryMonitor& monitor,
                             registry::SettingsStore& settings, screens::LauncherScreen& screen,
                             const ui::CheckBox& warning_silencer)
    : release_(release),
      monitor_(monitor),
      settings_(settings),
      screen_(screen),
      warning_silencer_(warning_silencer),
      passes_handlers_(base::Callback<base::Status(int)>::To<&LaunchRelease::Slider_6_Click>(*this)) {
  using ui::Handler;
  screen_.Option6.OnClick = Handler::To<&LaunchRelease::Option6_Click>(*this);
  screen_.Option7.OnClick = Handler::To<&LaunchRelease::Option7_Click>(*this);
  screen_.Option8.OnClick = Handler::To<&LaunchRelease::Option8_Click>(*this);
  screen_.Option9.OnClick = Handler::To<&LaunchRelease::Option9_Click>(*this);
  int index = 0;
  for (ui::OptionButton& element : screen_.Slider_6) element.OnClick = passes_handlers_.Of(index++);
}

void LaunchRelease::LoadSettings() {
  const std::string share = settings_.Get(setting::kLauncherRam);
  ui::OptionButton* option = &screen_.Option6;
  if (share == "1") option = &screen_.Option9;
  if (share == "2") option = &screen_.Option8;
  if (share == "3") option = &screen_.Option7;
  option->SetSelected(true);
  const std::string passes = settings_.Get(setting::kLauncherRetry);
  for (ui::OptionButton& element : screen_.Slider_6) {
    element.SetSelected(element.Caption() == passes);
  }
}

/// If no share is selected, the amount stays as it was, 0 at first.
memory::ReleaseOutcome LaunchRelease::FreeMemoryBeforeLaunch() {
  double amount_mb = 0;
  auto next_amount_mb = [this, &amount_mb] {
    const double total_mb = monitor_.TotalRAM();
    const double share = Share();
    if (share != 0) amount_mb = std::min(base::WholePart(total_mb * share), kMaxMb);
    return amount_mb;
  };
  const memory::ReleaseRequest request{
      .amount_mb = base::Callback<double()>::Of(next_amount_mb),
      .passes = static_cast<double>(Passes()),
      .warning_is_silenced = base::Callback<bool()>::To<&LaunchRelease::WarningIsSilenced>(*this),
  };
  return release_.FreeUpMemory(request);
}

double LaunchRelease::Share() const {
  if (screen_.Option9.Selected()) return 0.33;
  if (screen_.Option8.Selected()) return 0.5;
  return screen_.Option7.Selected() ? 0.66 : 0;
}

int LaunchRelease::Passes() const {
  for (int index = 0; index < kMaxPasses; ++index) {
    if (screen_.Slider_6[static_cast<std::size_t>(index)].Selected()) return index + 1;
  }
  return 0;
}

bool LaunchRelease::WarningIsSilenced() { return warning_silencer_.Ticked(); }

base::Status LaunchRelease::Option9_Click() {
  settings_.Save(setting::kLauncherRam, "1");
  return base::kDone;
}

base::Status LaunchRelease::Option8_Click() {
  settings_.Save(setting::kLauncherRam, "2");
  return base::kDone;
}

base::Status LaunchRelease::Option7_Click() {
  settings_.Save(setting::kLauncherRam, "3");
  return base::kDone;
}

base::Status LaunchRelease::Option6_Click() {
  settings_.Save(setting::kLauncherRam, "4");
  return base::kDone;
}

base::Status LaunchRelease::Slider_6_Click(int index) {
  settings_.Save(setting::kLauncherRetry, index + 1);
  return base::kDone;
}

}  // namespace qdix::launcher
