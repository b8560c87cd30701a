// Time for timers, stepped in milliseconds by the test. A tick may step it further, as an event pump does.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "ui/timer.h"

namespace qdix::tests {

class SteppedTimers final : public ui::TimerPeer {
 public:
  void Add(ui::Timer& timer) {
    counts_.push_back({&timer, 0});
    timer.AttachPeer(this);
  }

  void TimerRestarted(ui::Timer& timer) override {
    for (Count& count : counts_) {
      if (count.timer == &timer) count.due_ms = now_ms_ + timer.Interval();
    }
  }

  /// Runs every tick that falls due, in order of time; ticks of the same moment run in the order in which
  /// their timers were added.
  void AdvanceMs(std::int64_t ms) {
    const std::int64_t end_ms = now_ms_ + ms;
    while (Count* next = NextDue(end_ms)) {
      now_ms_ = std::max(now_ms_, next->due_ms);
      next->due_ms = now_ms_ + next->timer->Interval();
      next->timer->Elapse();
    }
    now_ms_ = std::max(now_ms_, end_ms);
  }

  [[nodiscard]] std::int64_t NowMs() const { return now_ms_; }

  /// Returns the time until the next tick falls due: 0 if one is late, nothing if no timer runs.
  [[nodiscard]] std::optional<std::int64_t> MsToNextTick() {
    const Count* const next = NextDue(std::numeric_limits<std::int64_t>::max());
    if (next == nullptr) return std::nullopt;
    return std::max<std::int64_t>(next->due_ms - now_ms_, 0);
  }

 private:
  struct Count {
    ui::Timer* timer;
    std::int64_t due_ms;
  };

  [[nodiscard]] Count* NextDue(std::int64_t end_ms) {
    Count* next = nullptr;
    for (Count& count : counts_) {
      if (!count.timer->Running() || count.due_ms > end_ms) continue;
      if (next == nullptr || count.due_ms < next->due_ms) next = &count;
    }
    return next;
  }

  std::vector<Count> counts_;
  std::int64_t now_ms_ = 0;
};

}  // namespace qdix::tests
