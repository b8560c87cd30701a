// The shipped exe holds no more after long use than before, and the counters that show this really count.
#include <array>

#include "tests/e2e/held_resources.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

class SteadySession : public Session {};

TEST_F(SteadySession, CountersSeeWhatAProcessTakes) {
  const auto count = [] { return CountResources(GetCurrentProcess(), GetCurrentProcessId()); };
  const ProcessResources before = count();
  std::array<HPEN, 20> pens{};
  std::array<HANDLE, 30> events{};
  std::array<HWND, 5> windows{};
  for (HPEN& pen : pens) pen = CreatePen(PS_SOLID, 1, 0);
  for (HANDLE& event : events) event = CreateEventA(nullptr, FALSE, FALSE, nullptr);
  for (HWND& window : windows) {
    window = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  }
  const ProcessResources after = count();
  for (const HPEN pen : pens) DeleteObject(pen);
  for (const HANDLE event : events) CloseHandle(event);
  for (const HWND window : windows) DestroyWindow(window);
  EXPECT_GE(after.drawing_objects - before.drawing_objects, 20);
  EXPECT_GE(after.handles - before.handles, 30);
  EXPECT_GE(after.windows - before.windows, 5);
  EXPECT_LT(count().drawing_objects, after.drawing_objects);
  EXPECT_LT(count().handles, after.handles);
  EXPECT_LT(count().windows, after.windows);
}

TEST_F(SteadySession, AHundredTabSwitchesAndFiveReleasesLeaveNothingBehind) {
  MarkMachineAsKnown();
  StartProgram();
  ASSERT_TRUE(program.Choose("List1", "24 MB"));
  const auto use = [this](int switches, int releases) {
    for (int i = 0; i < switches; ++i) program.OpenTab(i % 8);
    program.OpenTab(0);
    for (int i = 0; i < releases; ++i) {
      // A click by message returns when the release is over, unless that takes longer than the limit for
      // answers.
      Ask(program.Control("Command1"), BM_CLICK);
      ASSERT_TRUE(program.Await([&] { return program.IsEnabled("Command1"); }));
    }
  };
  use(16, 1);
  const HeldResources held(program);
  ASSERT_GT(program.Resources().windows, 60);
  use(100, 5);
  held.ExpectNoMoreNow();
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
