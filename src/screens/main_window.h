// The main window itself: its tabs and timers. The contents of each tab have their own file.
#pragma once

#include <array>

#include "ui/form.h"
#include "ui/tab_strip.h"
#include "ui/timer.h"

namespace qdix::screens {

/// Indices of the tabs, as stored under "LastTab".
enum Tab : int {
  kQuondixTab = 0,
  kAutomaticTab = 1,
  kTimeIntervalsTab = 2,
  kStartupTab = 3,
  kLauncherTab = 4,
  kCacheTab = 5,
  kSwapFileTab = 6,
  kAboutTab = 7,
};

/// Distance in dialog units that the controls on a page keep from its edges.
inline constexpr int kPageMargin = 4;
inline constexpr ui::Place kPagePlace{.left = 7, .top = 33, .width = 266, .height = 202};

inline constexpr std::array<ui::Design, 8> kTabPages{{
    {.name = "QuondixPage", .caption = "Quondix", .place = kPagePlace},
    {.name = "AutomaticPage", .caption = "Automatic", .place = kPagePlace},
    {.name = "TimeIntervalsPage", .caption = "Time Intervals", .place = kPagePlace},
    {.name = "StartupPage", .caption = "Startup / Other", .place = kPagePlace},
    {.name = "LauncherPage", .caption = "Launcher", .place = kPagePlace},
    {.name = "CachePage", .caption = "Cache Settings", .place = kPagePlace},
    {.name = "SwapFilePage", .caption = "Optimize Swapfile", .place = kPagePlace},
    {.name = "AboutPage", .caption = "About", .place = kPagePlace},
}};

struct MainWindow {
  explicit MainWindow(ui::EventDispatcher& dispatcher) : events(dispatcher) {}

  ui::EventDispatcher& events;
  ui::Form Form{events, {.name = "Form1", .caption = "Q-DIX", .place = {0, 0, 280, 238}}};
  /// The tabs. Each page is a screen of its own.
  ui::TabStrip SSTab1{Form, {.name = "SSTab1", .place = {3, 3, 274, 232}}, kTabPages};

  /// Refreshes the display.
  ui::Timer Timer1{events, "Timer1", 750, false};
  /// Checks whether to release automatically. Its interval is the check interval.
  ui::Timer Timer2{events, "Timer2", 0, false};
  /// Start-up delay.
  ui::Timer Timer3{events, "Timer3", 0, false};
  /// Counts the minutes of the timed release.
  ui::Timer Timer4{events, "Timer4", 60000, false};

  /// Retries a timed release that was postponed because the processor was busy.
  ui::Timer Timer5{events, "Timer5", 10000, false};
  /// Updates how long Windows has been running.
  ui::Timer Timer6{events, "Timer6", 65000, true};

  /// Watches the editor of the program list while it is open.
  ui::Timer Timer7{events, "Timer7", 3000, false};

  using AllTimers = std::array<ui::Timer*, 7>;
  [[nodiscard]] AllTimers Timers() { return {&Timer1, &Timer2, &Timer3, &Timer4, &Timer5, &Timer6, &Timer7}; }
};

}  // namespace qdix::screens
