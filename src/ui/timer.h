// A timer of the form. Windows or a test reports that an interval has elapsed; the model decides whether to
// tick.
#pragma once

#include <cstdint>
#include <string_view>

#include "ui/control_name.h"
#include "ui/event.h"

namespace qdix::ui {

class Timer;

/// Measures the intervals of timers. Each timer notifies it when it restarts or stops.
class TimerPeer {
 public:
  /// The timer's Running() and Interval() say whether and how long to count from now on.
  virtual void TimerRestarted(Timer& timer) = 0;

 protected:
  ~TimerPeer() = default;
};

class Timer {
 public:
  static constexpr std::int32_t kMaxIntervalMs = 65535;

  /// A timer without a peer never elapses.
  Timer(EventDispatcher& events, ControlName name, std::int32_t interval_ms, bool enabled);
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer() = default;

  [[nodiscard]] std::string_view Name() const { return name_.Text(); }
  /// In milliseconds, 0 to 65535. With 0 the timer never ticks.
  [[nodiscard]] std::int32_t Interval() const { return interval_ms_; }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  [[nodiscard]] bool Running() const { return enabled_ && interval_ms_ != 0; }

  /// A different interval restarts the count; the same one does not. A value outside 0 to 65535 returns error
  /// 380.
  base::Status SetInterval(std::int32_t interval_ms);
  /// Sets the allowed interval nearest to `interval_ms`.
  void SetNearestInterval(double interval_ms);
  /// Enabling a disabled timer restarts the count. Enabling an enabled one does nothing.
  void SetEnabled(bool enabled);

  void AttachPeer(TimerPeer* peer);

  /// One interval has passed. Ticks if the timer is running and its handler is not; otherwise the tick is
  /// lost.
  void Elapse();

  Handler OnTimer;

 private:
  void Restart();

  [[no_unique_address]] ControlName name_;
  EventDispatcher& events_;
  TimerPeer* peer_ = nullptr;
  std::int32_t interval_ms_;
  bool enabled_;
  bool ticking_ = false;
};

}  // namespace qdix::ui
