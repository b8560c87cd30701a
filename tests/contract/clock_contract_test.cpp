// Clock: date, ticks, the long date picture.
#include <limits>

#include "base/date.h"
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using ClockContract = ContractTest;

constexpr double k21November2026 = 46347;

TEST_F(ClockContract, NowIsADayOfThisCentury) {
  const double now = system.clock.Now();
  EXPECT_GT(now, base::DateToDays(2024, 1, 1));
  EXPECT_LT(now, base::DateToDays(2100, 1, 1));
}

TEST_F(ClockContract, TimePassesOnBothClocks) {
  const double now = system.clock.Now();
  const std::uint32_t ticks_ms = system.clock.GetTickCount();
  machine->LetTimePass(1100);
  const std::uint32_t passed_ms = system.clock.GetTickCount() - ticks_ms;
  EXPECT_GE(passed_ms, 1080U);
  EXPECT_LT(passed_ms, 60000U);
  EXPECT_GT(system.clock.Now(), now);
}

TEST_F(ClockContract, LongDateNamesTheYearAndTheDay) {
  const std::string text = system.clock.LongDate(k21November2026);
  EXPECT_NE(text.find("2026"), std::string::npos) << text;
  EXPECT_NE(text.find("21"), std::string::npos) << text;
}

TEST_F(ClockContract, LongDateIgnoresTheTimeOfDay) {
  EXPECT_EQ(system.clock.LongDate(k21November2026 + 0.9999), system.clock.LongDate(k21November2026));
  EXPECT_NE(system.clock.LongDate(k21November2026 + 1), system.clock.LongDate(k21November2026));
}

TEST_F(ClockContract, DaysBefore1900CountBackwards) {
  EXPECT_NE(system.clock.LongDate(-1).find("29"), std::string::npos);
  EXPECT_EQ(system.clock.LongDate(-1.5), system.clock.LongDate(-1));
}

TEST_F(ClockContract, DayOutsideTheCalendarHasNoPicture) {
  EXPECT_EQ(system.clock.LongDate(1e9), "");
  EXPECT_EQ(system.clock.LongDate(-1e9), "");
  EXPECT_EQ(system.clock.LongDate(2958466), "");
  EXPECT_EQ(system.clock.LongDate(std::numeric_limits<double>::quiet_NaN()), "");
}

}  // namespace
}  // namespace qdix::contract
