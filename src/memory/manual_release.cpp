#include "memory/manual_release.h"

#include "base/numbers.h"
#include "memory/amount_lists.h"

namespace qdix::memory {

ManualRelease::ManualRelease(MemoryRelease& release, registry::SettingsStore& settings,
                             screens::QuondixScreen& screen)
    : release_(release), settings_(settings), screen_(screen) {
  screen_.Command1.OnClick = ui::Handler::To<&ManualRelease::Command1_Click>(*this);
  screen_.List1.OnClick = ui::Handler::To<&ManualRelease::List1_Click>(*this);
  screen_.Text1.OnChange = ui::Handler::To<&ManualRelease::Text1_Change>(*this);
  screen_.VScroll1.OnChange = ui::Handler::To<&ManualRelease::VScroll1_Change>(*this);
}

void ManualRelease::FillList() { AddItems(screen_.List1, ManualAmounts()); }

void ManualRelease::LoadAmount(double total_ram_mb) {
  const double proposed = DefaultAmount(screen_.List1, total_ram_mb);
  SelectNumber(screen_.List1, settings_.NumberOr(setting::kFreeUpRam, proposed));
}

void ManualRelease::LoadTryTimes() {
  const std::string stored = settings_.Get(setting::kTryTimes);
  screen_.VScroll1.SetNearest(base::ParseLeadingNumber(stored));
  screen_.Text1.SetText(stored);
}

double ManualRelease::TryTimes() const { return base::ParseLeadingNumber(screen_.Text1.Text()); }

double ManualRelease::Amount() { return SelectedNumber(screen_.List1); }

base::Status ManualRelease::Command1_Click() {
  screen_.Command1.SetEnabled(false);
  const base::Status drawn = screen_.XGraphMeter1.Update(kReleaseBar);
  if (!drawn.Ok()) return drawn;
  const ReleaseRequest request{
      .amount_mb = base::Callback<double()>::To<&ManualRelease::Amount>(*this),
      .passes = TryTimes(),
  };
  if (release_.FreeUpMemory(request) != ReleaseOutcome::kUnloaded) screen_.Command1.SetEnabled(true);
  return base::kDone;
}

base::Status ManualRelease::List1_Click() {
  settings_.Save(setting::kFreeUpRam, SelectedNumber(screen_.List1));
  return base::kDone;
}

base::Status ManualRelease::Text1_Change() {
  settings_.Save(setting::kTryTimes, screen_.Text1.Text());
  return base::kDone;
}

base::Status ManualRelease::VScroll1_Change() {
  screen_.Text1.SetText(base::TextOf(screen_.VScroll1.Value()));
  return base::kDone;
}

}  // namespace qdix::memory
