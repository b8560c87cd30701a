// A timer of the form. The system (or a test) lets it elapse; the model decides whether that is a tick.
#pragma once

#include <cstdint>
#include <string_view>

#include "ui/event.h"

namespace qdix::ui {

class Timer;

/// Counts the time of the timers. Told when a count has to start anew or to stop.
class TimerPeer {
 public:
  virtual ~TimerPeer() = default;
  /// Running() and Interval() tell whether and how long to count from now on.
  virtual void TimerRestarted(Timer& timer) = 0;
};

class Timer {
 public:
  static constexpr std::int32_t kLongestIntervalMs = 65535;

  /// Without a peer nothing ever elapses.
  Timer(EventDispatcher& events, std::string_view name, std::int32_t interval_ms, bool enabled);
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer() = default;

  [[nodiscard]] std::string_view Name() const { return name_; }
  /// Milliseconds, 0 to 65535; 0 never ticks.
  [[nodiscard]] std::int32_t Interval() const { return interval_ms_; }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  [[nodiscard]] bool Running() const { return enabled_ && interval_ms_ != 0; }

  /// A new interval restarts the count; the same one does not. Outside 0 to 65535 is error 380.
  base::Status SetInterval(std::int32_t interval_ms);
  /// The nearest allowed interval to any double.
  void SetNearestInterval(double interval_ms);
  /// False to True restarts the count; True onto True does nothing.
  void SetEnabled(bool enabled);

  void AttachPeer(TimerPeer* peer);

  /// One interval has passed: ticks if running and not inside its own handler (such a tick is lost).
  void Elapse();

  Handler OnTimer;

 private:
  void Restart();

  EventDispatcher& events_;
  TimerPeer* peer_ = nullptr;
  std::string_view name_;
  std::int32_t interval_ms_;
  bool enabled_;
  bool ticking_ = false;
};

}  // namespace qdix::ui
