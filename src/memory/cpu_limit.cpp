#include "memory/cpu_limit.h"

#include "base/numbers.h"

namespace qdix::memory {

void CpuLimit::Load() {
  controls_.active.SetTicked(settings_.Get(stored_.active));
  RefreshActive();
  controls_.percent.SetText(settings_.Get(stored_.percent));
}

base::Status CpuLimit::ActiveClicked() {
  settings_.Save(stored_.active, controls_.active.Value());
  RefreshActive();
  return base::kDone;
}

/// Uses the stored percentage, not the one the user is typing.
bool CpuLimit::HoldsBack(std::int32_t load_percent) const {
  if (!controls_.active.Ticked()) return false;
  return base::ParseLeadingNumber(settings_.Get(stored_.percent)) <= load_percent;
}

void CpuLimit::RefreshActive() {
  const bool active = controls_.active.Ticked();
  controls_.percent.SetEnabled(active);
  controls_.percent.SetBackColour(active ? ui::kWindowBackground : ui::kMenuBackground);
}

base::Status CpuLimit::PercentKeyPressed(char& character) {
  ui::KeepDigits(character);
  return base::kDone;
}

base::Result<bool> CpuLimit::ValidatePercent() {
  const double percent = base::ParseLeadingNumber(controls_.percent.Text());
  if (percent >= kLowestPercent && percent <= kHighestPercent) {
    settings_.Save(stored_.percent, controls_.percent.Text());
    return true;
  }
  if (boxes_.SessionIsEnding()) return false;
  opening_tab_ = true;
  const base::Status opened = controls_.tabs.SetTab(controls_.tab);
  opening_tab_ = false;
  if (!opened.Ok()) return opened.Error();
  boxes_.Show("Please enter a number between 5 an 99");
  controls_.percent.SetFocus();
  controls_.percent.SelectAll();
  return false;
}

}  // namespace qdix::memory
