// Watches a timer of the program from outside. Each tick must come at the forecast millisecond; its effects
// are forecast before its handler runs and compared afterwards.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

#include "tests/support/stepped_timers.h"

namespace qdix::tests {

class WatchedTimer {
 public:
  WatchedTimer(ui::Timer& timer, const SteppedTimers& time)
      : timer_(timer), time_(time), inside_(timer.OnTimer) {
    timer_.OnTimer = ui::Handler::To<&WatchedTimer::Run>(*this);
  }
  WatchedTimer(const WatchedTimer&) = delete;
  WatchedTimer& operator=(const WatchedTimer&) = delete;

  /// Restarts the count now; the first tick comes after one interval.
  void ExpectTickAfter(std::int64_t interval_ms) {
    interval_ms_ = interval_ms;
    due_ms_ = time_.NowMs() + interval_ms;
  }
  /// No more ticks come.
  void ExpectNoTick() { due_ms_.reset(); }

  void ExpectNotLate() const {
    if (due_ms_) {
      EXPECT_GE(*due_ms_, time_.NowMs()) << timer_.Name() << " did not tick";
    }
  }

  std::function<void()> Before = [] {};
  std::function<void()> After = [] {};

 private:
  base::Status Run() {
    EXPECT_EQ(due_ms_.value_or(-1), time_.NowMs()) << timer_.Name() << " ticked";
    if (due_ms_) due_ms_ = time_.NowMs() + interval_ms_;
    Before();
    const base::Status status = inside_();
    After();
    return status;
  }

  ui::Timer& timer_;
  const SteppedTimers& time_;
  ui::Handler inside_;
  std::int64_t interval_ms_ = 0;
  std::optional<std::int64_t> due_ms_;
};

}  // namespace qdix::tests
