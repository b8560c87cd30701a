// Forecasts when the program has to release memory and how much, independently of the program, from what the
// user and the machine show: the controls, the clock, the memory, the load. Each tick and each block is
// compared with the forecast.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "tests/soak/watched_timer.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {

/// The current state of the machine; constant while a release runs.
struct Conditions {
  int available_mb = 64;
  std::uint32_t load_percent = 10;
  /// No block of any size can be allocated.
  bool refuses_blocks = false;
  /// The companion asks not to be disturbed.
  bool companion_works = false;
};

class ReleaseForecast {
 public:
  /// `startup_delay_s` is the delay of the start-up release in seconds, at most a minute. The program must
  /// have just been started.
  ReleaseForecast(ProgramRig& rig, const Conditions& conditions, int startup_delay_s);

  /// Takes over the user's changes to the controls that start and stop timers.
  void FollowControls();
  /// The window comes to the front: from then on the display is refreshed, also during a pause.
  void WindowActivated();
  /// The user chose an interval for the timed release.
  void RestartCountdown() { minutes_ = 0; }
  void ResetCounter() { automatic_count_ = 0; }
  /// The user pressed "Free Up RAM Now".
  void ExpectManualRelease();

  /// Counts since the start: blocks that had to be allocated, warnings that had to be shown.
  [[nodiscard]] std::int64_t Blocks() const { return blocks_; }
  [[nodiscard]] std::int64_t Warnings() const { return warnings_; }
  [[nodiscard]] std::int64_t Ticks() const { return ticks_; }
  /// Returns the number of releases that had to take memory.
  [[nodiscard]] std::int64_t Releases() const { return releases_; }
  /// Returns how many handles of the load's key the readings since the last call have left open.
  [[nodiscard]] int TakeKeysLeftOpen();
  [[nodiscard]] std::string CounterText() const;
  [[nodiscard]] std::string NextReleaseText() const;
  /// True for a check interval that the minute count has not passed yet. One that it has passed is never met.
  [[nodiscard]] bool CanBeMet(double check_seconds) const { return check_seconds / 60 > minutes_unchecked_; }
  void ExpectNothingLate() const;

 private:
  enum class Amounts {
    kManual,
    kAutomatic,
    kTimed,
    kStartup
  };

  void Bind();
  static void Follow(WatchedTimer& timer, bool& runs, bool runs_now, std::int64_t interval_ms);
  /// True if the release runs to its end.
  bool ExpectRelease(Amounts kind);
  [[nodiscard]] bool IsHeldBack(const ui::CheckBox& gate) const;
  [[nodiscard]] double IntervalMinutes() const;
  [[nodiscard]] double CheckSeconds() const;
  void TakeReading();
  void BeforeCheck();
  void AfterCheck();
  void BeforeMinute();
  void AfterMinute();

  ProgramRig& rig_;
  app::Form1& program_;
  const Conditions& conditions_;
  WatchedTimer display_;
  WatchedTimer check_;
  WatchedTimer startup_;
  WatchedTimer minute_;
  WatchedTimer retry_;
  bool is_paused_ = false;
  bool display_runs_ = true;
  bool check_runs_ = true;
  bool minute_runs_ = true;
  std::int64_t check_interval_ms_;
  std::deque<std::uint32_t> readings_;
  int position_in_update_ = 0;
  int keys_left_open_ = 0;
  int automatic_count_ = 0;
  int minutes_unchecked_ = 0;
  int minutes_ = 0;
  bool checked_ = false;
  bool automatic_finishes_ = false;
  /// One for each minute or retry that is being handled: one may tick inside another.
  std::vector<bool> timed_finishes_;
  bool retry_pending_ = false;
  std::int64_t blocks_ = 0;
  std::int64_t warnings_ = 0;
  std::int64_t ticks_ = 0;
  std::int64_t releases_ = 0;
};

}  // namespace qdix::tests
