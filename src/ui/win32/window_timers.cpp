#include "ui/win32/window_timers.h"

namespace qdix::ui::win32 {

WindowTimers::WindowTimers(HWND main, std::span<Timer* const> timers) : main_(main), timers_(timers) {
  for (Timer* timer : timers_) timer->AttachPeer(this);
}

WindowTimers::~WindowTimers() {
  for (std::size_t index = 0; index < timers_.size(); ++index) {
    timers_[index]->AttachPeer(nullptr);
    KillTimer(main_, index + 1);
  }
}

void WindowTimers::Elapsed(UINT_PTR number) const {
  if (number >= 1 && number <= timers_.size()) timers_[number - 1]->Elapse();
}

void WindowTimers::TimerRestarted(Timer& timer) {
  std::size_t index = 0;
  while (timers_[index] != &timer) ++index;
  // Stopped first even if it keeps running: this also removes a tick of the old count from the queue.
  KillTimer(main_, index + 1);
  if (timer.Running()) SetTimer(main_, index + 1, static_cast<UINT>(timer.Interval()), nullptr);
}

}  // namespace qdix::ui::win32
