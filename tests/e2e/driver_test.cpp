// The driver itself, where it watches over the machine that the tests run on. The one program it needs is
// this one.
#include <gtest/gtest.h>

#include "tests/e2e/driver/restart_watch.h"

namespace qdix::e2e {
namespace {

TEST(Driver, RestartIsSeenAndNotLetThrough) {
  RestartWatch watch(GetCurrentProcess());
  ASSERT_TRUE(watch.Begin());
  EXPECT_EQ(watch.Count(), 0U);
  EXPECT_TRUE(ExitWindowsEx(EWX_REBOOT, 7));
  EXPECT_EQ(watch.Count(), 1U);
  EXPECT_EQ(watch.Flags(), EWX_REBOOT);
  EXPECT_EQ(watch.Reserved(), 7U);
  EXPECT_TRUE(ExitWindowsEx(EWX_LOGOFF, 0));
  EXPECT_EQ(watch.Count(), 2U);
  EXPECT_EQ(watch.Flags(), EWX_LOGOFF);
}

}  // namespace
}  // namespace qdix::e2e
