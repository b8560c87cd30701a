#include "memory/scheduled_release.h"

#include "memory/amount_lists.h"

namespace qdix::memory {

ReleaseOutcome ScheduledRelease::Run(const ui::ListControl& amounts, WhenFree when_free) {
  auto chosen_mb = [&amounts] { return SelectedNumber(amounts); };
  ReleaseRequest request{
      .amount_mb = base::Callback<double()>::Of(chosen_mb),
      .passes = manual_.TryTimes(),
      .warning_is_silenced = base::Callback<bool()>::To<&ScheduledRelease::WarningIsSilenced>(*this),
  };
  if (when_free == WhenFree::kStop) {
    request.enough_is_free = base::Callback<bool(double)>::To<&ScheduledRelease::EnoughIsFree>(*this);
  }
  return release_.FreeUpMemory(request);
}

bool ScheduledRelease::EnoughIsFree(double amount_mb) { return amount_mb < AvailableMb(); }

bool ScheduledRelease::WarningIsSilenced() { return screens_.startup.Check4.Ticked(); }

}  // namespace qdix::memory
