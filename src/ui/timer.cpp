#include "ui/timer.h"

#include "base/numbers.h"

namespace qdix::ui {

Timer::Timer(EventDispatcher& events, ControlName name, std::int32_t interval_ms, bool enabled)
    : name_(name), events_(events), interval_ms_(interval_ms), enabled_(enabled) {}

void Timer::AttachPeer(TimerPeer* peer) {
  peer_ = peer;
  Restart();
}

void Timer::Restart() {
  if (peer_ != nullptr) peer_->TimerRestarted(*this);
}

base::Status Timer::SetInterval(std::int32_t interval_ms) {
  if (interval_ms < 0 || interval_ms > kMaxIntervalMs) return base::kInvalidPropertyValue;
  if (interval_ms_ == interval_ms) return base::kDone;
  interval_ms_ = interval_ms;
  Restart();
  return base::kDone;
}

void Timer::SetNearestInterval(double interval_ms) {
  base::Ignore(
      SetInterval(base::ClampToInt32(interval_ms, 0, kMaxIntervalMs)));  // inside the range by construction
}

void Timer::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Restart();
}

void Timer::Elapse() {
  if (!Running() || ticking_) return;
  ticking_ = true;
  events_.Run(OnTimer);
  ticking_ = false;
}

}  // namespace qdix::ui
