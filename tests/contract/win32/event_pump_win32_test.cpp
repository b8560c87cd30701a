// The real message queue: limits, the end of the program, thread messages, keyboard navigation.
#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {
namespace {

class EventPumpWin32 : public testing::Test {
 protected:
  void PostActions(int count, const std::function<void()>& action) {
    for (int i = 0; i < count; ++i) machine.DoInNextPump(action);
  }

  Win32ContractMachine machine;
  os::win32::Win32EventPump& pump = machine.GetWin32System().event_pump;
};

TEST_F(EventPumpWin32, OnePumpHandlesALimitedNumberOfMessages) {
  int runs = 0;
  PostActions(100, [&] { ++runs; });
  pump.PumpEvents();
  EXPECT_EQ(runs, os::win32::Win32EventPump::kMessagesPerPump);
  pump.PumpEvents();
  EXPECT_EQ(runs, 100);
}

TEST_F(EventPumpWin32, FloodThatFeedsItselfDoesNotBlockThePump) {
  int runs = 0;
  std::function<void()> feed = [&] {
    if (++runs < 1000) machine.DoInNextPump(feed);
  };
  machine.DoInNextPump(feed);
  pump.PumpEvents();
  EXPECT_EQ(runs, os::win32::Win32EventPump::kMessagesPerPump);
  for (int pumps = 0; pumps < 1000 && runs < 1000; ++pumps) pump.PumpEvents();
  EXPECT_EQ(runs, 1000);
}

TEST_F(EventPumpWin32, StopEndsAPumpThatIsRunning) {
  int runs = 0;
  machine.DoInNextPump([&] { machine.GetWin32System().Stop(); });
  PostActions(3, [&] { ++runs; });
  pump.PumpEvents();
  pump.PumpEvents();
  EXPECT_EQ(runs, 0);
  EXPECT_FALSE(pump.WaitAndHandle());
  EXPECT_EQ(runs, 0);
  // The rest stays in the queue. Handling it here shows that nothing was lost.
  MSG message;
  while (PeekMessageA(&message, machine.HiddenWindow(), 0, 0, PM_REMOVE)) DispatchMessageA(&message);
  EXPECT_EQ(runs, 3);
}

TEST_F(EventPumpWin32, StopEndsAWait) {
  machine.DoInNextPump([&] { machine.GetWin32System().Stop(); });
  const DWORD before_ms = GetTickCount();
  pump.WaitMs(60000);
  EXPECT_LT(GetTickCount() - before_ms, 30000U);
}

TEST_F(EventPumpWin32, WaitContinuesAfterMoreMessagesThanOnePumpHandles) {
  int runs = 0;
  PostActions(200, [&] { ++runs; });
  pump.WaitMs(1);
  EXPECT_GT(runs, 0);
  pump.WaitMs(200);
  EXPECT_EQ(runs, 200);
}

TEST_F(EventPumpWin32, WaitLeavesTheQuitMessageToTheLoop) {
  PostQuitMessage(7);
  const DWORD before_ms = GetTickCount();
  pump.WaitMs(60000);
  EXPECT_LT(GetTickCount() - before_ms, 30000U);
  MSG message;
  ASSERT_NE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), 0);
  EXPECT_EQ(message.wParam, 7U);
}

int timer_calls = 0;

VOID CALLBACK CountTimerCall(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*ticks_ms*/) {
  ++timer_calls;
}

TEST_F(EventPumpWin32, ThreadMessagesAreDropped) {
  timer_calls = 0;
  const UINT_PTR timer = SetTimer(nullptr, 0, 1, &CountTimerCall);
  ASSERT_NE(timer, 0U);
  MSG message;
  const DWORD start_ms = GetTickCount();
  while (!PeekMessageA(&message, nullptr, WM_TIMER, WM_TIMER, PM_NOREMOVE)) {
    ASSERT_LT(GetTickCount() - start_ms, 5000U);
    Sleep(1);
  }
  ASSERT_TRUE(PostThreadMessageA(GetCurrentThreadId(), WM_USER + 1, 1, 2));
  int runs = 0;
  machine.DoInNextPump([&] { ++runs; });
  pump.PumpEvents();
  KillTimer(nullptr, timer);
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(timer_calls, 0);
  EXPECT_FALSE(PeekMessageA(&message, reinterpret_cast<HWND>(-1), WM_USER + 1, WM_USER + 1, PM_NOREMOVE));
}

TEST_F(EventPumpWin32, RequestToQuitWaitsForTheMainLoop) {
  PostQuitMessage(5);
  pump.PumpEvents();
  pump.PumpEvents();
  EXPECT_FALSE(pump.WaitAndHandle());
}

TEST_F(EventPumpWin32, MainLoopHandlesOneMessageAtATime) {
  int runs = 0;
  PostActions(2, [&] { ++runs; });
  EXPECT_TRUE(pump.WaitAndHandle());
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(pump.WaitAndHandle());
  EXPECT_EQ(runs, 2);
}

TEST_F(EventPumpWin32, MainLoopEndsWithTheMessageThatStopsIt) {
  machine.DoInNextPump([&] { machine.GetWin32System().Stop(); });
  EXPECT_FALSE(pump.WaitAndHandle());
}

TEST_F(EventPumpWin32, TabMovesThroughTheControlsOfTheDialogWindow) {
  HWND window = reinterpret_cast<HWND>(machine.OpenWindow("QdixContractForm", "Form"));
  HWND first = CreateWindowA("BUTTON", "First", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 50, 20, window,
                             nullptr, GetModuleHandleA(nullptr), nullptr);
  HWND second = CreateWindowA("BUTTON", "Second", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 30, 50, 20, window,
                              nullptr, GetModuleHandleA(nullptr), nullptr);
  SetFocus(first);
  ASSERT_EQ(GetFocus(), first);

  PostMessageA(first, WM_KEYDOWN, VK_TAB, 0);
  pump.PumpEvents();
  EXPECT_EQ(GetFocus(), first) << "without a dialog window Tab is an ordinary key";

  machine.GetWin32System().SetMainWindow(window);
  PostMessageA(first, WM_KEYDOWN, VK_TAB, 0);
  pump.PumpEvents();
  EXPECT_EQ(GetFocus(), second);
}

}  // namespace
}  // namespace qdix::contract
