// Clock, processes and windows of the real system, checked by other means than the layer itself uses.
#include <windows.h>

#include <cmath>
#include <ctime>

#include "base/date.h"
#include "os/win32/win32_processes.h"
#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {
namespace {

using ClockWin32 = ContractTest;
using WindowsWin32 = ContractTest;

TEST_F(ClockWin32, NowIsTheLocalTimeInWholeSeconds) {
  const double now = system.clock.Now();
  const std::time_t unix_now = std::time(nullptr);
  const std::tm local = *std::localtime(&unix_now);
  const int days = base::DateToDays(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  const double seconds = (local.tm_hour * 60.0 + local.tm_min) * 60.0 + local.tm_sec;
  EXPECT_NEAR(now, days + seconds / 86400.0, 2.0 / 86400.0);
  const double now_seconds = now * 86400.0;
  EXPECT_NEAR(now_seconds, std::round(now_seconds), 0.001);
}

TEST_F(ClockWin32, LongDateCoversTheYearsFrom1601) {
  EXPECT_NE(system.clock.LongDate(base::DateToDays(1601, 1, 1)), "");
  EXPECT_EQ(system.clock.LongDate(base::DateToDays(1600, 12, 31)), "");
}

TEST(ProcessesWin32, MutexDisappearsWithItsOwner) {
  constexpr const char* kName = "QDIX.ContractTests.Owned";
  {
    os::win32::Win32Processes first;
    EXPECT_FALSE(first.MutexExistedBefore(kName));
    os::win32::Win32Processes second;
    EXPECT_TRUE(second.MutexExistedBefore(kName));
  }
  os::win32::Win32Processes third;
  EXPECT_FALSE(third.MutexExistedBefore(kName));
}

TEST(ProcessesWin32, NameOfAnotherObjectMeansNoOtherCopy) {
  HANDLE event = CreateEventA(nullptr, FALSE, FALSE, "QDIX.ContractTests.Event");
  ASSERT_NE(event, nullptr);
  os::win32::Win32Processes processes;
  EXPECT_FALSE(processes.MutexExistedBefore("QDIX.ContractTests.Event"));
  CloseHandle(event);
}

TEST_F(WindowsWin32, RestoredWindowHasItsFormerPlace) {
  const os::WindowHandle window = machine->OpenWindow("QdixContractWindow", "Placed");
  HWND native = reinterpret_cast<HWND>(window);
  RECT before{};
  ASSERT_TRUE(GetWindowRect(native, &before));
  machine->Minimise(window);
  EXPECT_TRUE(system.windows.OpenIcon(window));
  RECT after{};
  ASSERT_TRUE(GetWindowRect(native, &after));
  EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(WindowsWin32, OpenIconLeavesAnOrdinaryWindowAlone) {
  const os::WindowHandle window = machine->OpenWindow("QdixContractWindow", "Ordinary");
  HWND native = reinterpret_cast<HWND>(window);
  system.windows.OpenIcon(window);
  EXPECT_FALSE(IsIconic(native));
  EXPECT_TRUE(IsWindowVisible(native));
}

TEST_F(WindowsWin32, RaisedWindowIsTheForegroundWindow) {
  const os::WindowHandle window = machine->OpenWindow("QdixContractWindow", "Raised");
  machine->OpenWindow("QdixContractOther", "In front");
  ASSERT_TRUE(system.windows.SetForegroundWindow(window));
  EXPECT_EQ(GetForegroundWindow(), reinterpret_cast<HWND>(window));
}

}  // namespace
}  // namespace qdix::contract
