// Uses the whole program at random for days: releases happen exactly when they must, figures are right,
// nothing is held longer than needed. A failing run prints its seed and the simulated time.
#include "tests/soak/days.h"

#include <gtest/gtest.h>

#include <iostream>
#include <memory>

#include "tests/soak/live_allocations.h"
#include "tests/support/run_length.h"

namespace qdix::tests {
namespace {

TEST(Soak, RandomDaysLeaveEveryFigureRightAndNothingHeld) {
  const unsigned long days = NumberFromEnvironment("QDIX_SOAK_DAYS", 2);
  const unsigned seed = FirstSeed();
  SCOPED_TRACE("QDIX_SEED=" + std::to_string(seed));
  Days run(seed);
  run.Run(days);
  const DaysReport report = run.Report();
  std::cout << days << " days: " << report.ticks << " ticks, " << report.releases << " releases of "
            << report.blocks << " blocks, " << report.warnings << " warnings, " << report.keys_left_open
            << " keys of readings left open, " << report.taskbar_restarts << " new taskbars, "
            << report.clock_changes << " changes of the clock, " << report.user_visits
            << " visits of the user\n";
  // A run in which nothing happens would also pass.
  EXPECT_GT(report.ticks, static_cast<std::int64_t>(days) * 50000);
  EXPECT_GT(report.releases, 0);
  EXPECT_GT(report.warnings, 0);
  EXPECT_GT(report.taskbar_restarts, 0);
}

TEST(Soak, AllocationCounterCounts) {
  const std::int64_t before = LiveAllocations();
  auto one = std::make_unique<Days>(FirstSeed());
  EXPECT_GT(LiveAllocations(), before + 100);
  one.reset();
  EXPECT_EQ(LiveAllocations(), before);
}

}  // namespace
}  // namespace qdix::tests
