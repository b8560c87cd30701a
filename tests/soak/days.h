// Days of the whole program in simulated time, with a machine and a user that act at random. Every ten
// minutes, every hour and every day the whole program is checked.
#pragma once

#include <optional>
#include <random>
#include <string>

#include "tests/soak/release_forecast.h"
#include "tests/support/tuning_rig.h"

namespace qdix::tests {

/// Counts what happened in a run, as evidence that something did.
struct DaysReport {
  std::int64_t ticks = 0;
  std::int64_t blocks = 0;
  std::int64_t releases = 0;
  std::int64_t warnings = 0;
  std::int64_t keys_left_open = 0;
  int taskbar_restarts = 0;
  int clock_changes = 0;
  int user_visits = 0;
};

class Days {
 public:
  explicit Days(unsigned seed);

  /// Stops at the first failed check and prints the simulated time.
  void Run(unsigned long days);
  [[nodiscard]] DaysReport Report() const;

 private:
  void Start();
  // Time.
  void Pass(std::int64_t ms);
  void Step(std::int64_t ms);
  void InsidePump(int number);
  base::Status Activated();
  // Random changes of the machine.
  void ChangeConditions();
  void RestartTaskbar();
  void ChangeDisk();
  // Random actions of the user.
  void Hand();
  void UseAutomaticTab();
  void UseTimeIntervalsTab();
  void UseReleases();
  void UseSystem();
  void UseTray();
  void SaveTuning();
  void AnswerBox();
  // Checks.
  void CheckSlot();
  void CheckHour();
  void CheckDay();
  void CheckUpTime();
  [[nodiscard]] std::string Moment() const;

  [[nodiscard]] unsigned Random(unsigned below) { return static_cast<unsigned>(random_() % below); }
  [[nodiscard]] bool Chance(unsigned one_in) { return Random(one_in) == 0; }
  /// Brings the window up and opens a tab.
  void Open(screens::Tab tab);

  std::mt19937 random_;
  TuningRig rig_{128};
  Conditions conditions_;
  std::optional<ReleaseForecast> forecast_;
  std::optional<WatchedTimer> up_time_;
  ui::Handler activate_;
  os::WindowHandle taskbar_ = 0;
  os::WindowHandle companion_ = 0;
  bool ini_is_protected_ = false;
  /// Time that the program spent waiting while its timers stood still.
  std::int64_t waited_ms_ = 0;
  std::int64_t allocated_ = 0;
  std::int64_t warned_ = 0;
  std::int64_t live_allocations_ = 0;
  std::string counter_date_;
  DaysReport report_;
};

}  // namespace qdix::tests
