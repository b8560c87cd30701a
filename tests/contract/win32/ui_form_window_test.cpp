// The main window, the application window behind it, timers and the end of the program.
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"

namespace qdix::contract {
namespace {

TEST(FormWindow, IsCompleteAndHiddenBeforeTheFormIsShown) {
  const DemoWindow demo;
  EXPECT_TRUE(demo.window.Complete());
  EXPECT_FALSE(IsWindowVisible(demo.Main()));
  EXPECT_NE(demo.Native(demo.tabs), nullptr);
  EXPECT_NE(demo.Native(demo.sunken), nullptr);
}

TEST(FormWindow, ApplicationWindowIsHiddenOwnsTheMainWindowAndCarriesTheTitle) {
  DemoWindow demo;
  HWND const application = FindWindowA("ThunderRT6Main", "Demo title");
  EXPECT_EQ(application, demo.window.ApplicationWindow());
  EXPECT_EQ(GetWindow(demo.Main(), GW_OWNER), application);
  EXPECT_FALSE(IsWindowVisible(application));
  demo.application.SetTitle("Renamed");
  EXPECT_EQ(WindowText(application), "Renamed");
}

TEST(FormWindow, MainWindowIsDirectlyInFrontOfTheApplicationWindowAlsoAfterAnotherWindowWasInFront) {
  DemoWindow demo;
  demo.form.Show();
  EXPECT_EQ(GetWindow(demo.window.ApplicationWindow(), GW_HWNDPREV), demo.Main());
  HWND const front = CreateWindowExA(0, "STATIC", "front", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                     nullptr, nullptr, nullptr);
  SetForegroundWindow(front);
  demo.Handle();
  EXPECT_EQ(GetWindow(demo.window.ApplicationWindow(), GW_HWNDPREV), demo.Main());
  SetForegroundWindow(demo.Main());
  demo.Handle();
  EXPECT_EQ(GetWindow(demo.window.ApplicationWindow(), GW_HWNDPREV), demo.Main());
  DestroyWindow(front);
}

TEST(FormWindow, HasItsOwnTaskbarButtonAndAFixedSize) {
  const DemoWindow demo;
  EXPECT_NE(GetWindowLongA(demo.Main(), GWL_EXSTYLE) & WS_EX_APPWINDOW, 0);
  EXPECT_EQ(GetWindowLongA(demo.Main(), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
  EXPECT_NE(GetWindowLongA(demo.Main(), GWL_STYLE) & WS_MINIMIZEBOX, 0);
}

TEST(FormWindow, InnerSizeIsThePlaceInDialogUnitsOfTheDialogFont) {
  const DemoWindow demo;
  RECT inner{};
  GetClientRect(demo.Main(), &inner);
  EXPECT_EQ(inner.right, 240 * 6 / 4);
  EXPECT_EQ(inner.bottom, (180 * 13 + 4) / 8);
}

TEST(FormWindow, CaptionVisibilityAndStateFollowTheModel) {
  DemoWindow demo;
  EXPECT_EQ(WindowText(demo.Main()), "Demo & more");
  demo.form.SetCaption("55.24 MB   Demo");
  EXPECT_EQ(WindowText(demo.Main()), "55.24 MB   Demo");
  demo.form.Show();
  EXPECT_TRUE(IsWindowVisible(demo.Main()));
  demo.form.SetState(ui::WindowState::kMinimised);
  EXPECT_TRUE(IsIconic(demo.Main()));
  demo.form.SetState(ui::WindowState::kNormal);
  EXPECT_FALSE(IsIconic(demo.Main()));
  demo.form.Hide();
  EXPECT_FALSE(IsWindowVisible(demo.Main()));
}

TEST(FormWindow, StartsMinimisedIfTheStateWasSetBeforeTheFirstShow) {
  DemoWindow demo;
  demo.form.SetState(ui::WindowState::kMinimised);
  EXPECT_FALSE(IsWindowVisible(demo.Main()));
  demo.form.Show();
  EXPECT_TRUE(IsWindowVisible(demo.Main()));
  EXPECT_TRUE(IsIconic(demo.Main()));
}

TEST(FormWindow, FirstShowIsMinimisedIfTheCallerAsksForIt) {
  for (const int command : {SW_SHOWMINIMIZED, SW_MINIMIZE, SW_SHOWMINNOACTIVE}) {
    DemoWindow demo;
    demo.window.SetStartCommand(command);
    demo.form.Show();
    EXPECT_TRUE(IsWindowVisible(demo.Main())) << command;
    EXPECT_TRUE(IsIconic(demo.Main())) << command;
    EXPECT_EQ(demo.form.State(), ui::WindowState::kMinimised) << command;
    ShowWindow(demo.Main(), SW_RESTORE);
    EXPECT_EQ(demo.form.State(), ui::WindowState::kNormal) << command;
    demo.form.Hide();
    demo.form.Show();
    EXPECT_FALSE(IsIconic(demo.Main())) << "the request applies to the first show only, command " << command;
  }
}

TEST(FormWindow, OtherShowCommandsShowAFixedSizeWindowAsItIs) {
  for (const int command : {SW_SHOWDEFAULT, SW_SHOWNORMAL, SW_SHOWMAXIMIZED, SW_HIDE}) {
    DemoWindow demo;
    demo.window.SetStartCommand(command);
    demo.form.Show();
    EXPECT_TRUE(IsWindowVisible(demo.Main())) << command;
    EXPECT_FALSE(IsIconic(demo.Main())) << command;
    EXPECT_FALSE(IsZoomed(demo.Main())) << command;
  }
}

TEST(FormWindow, MinimisedFormIgnoresTheShowCommand) {
  DemoWindow demo;
  demo.window.SetStartCommand(SW_SHOWMAXIMIZED);
  demo.form.SetState(ui::WindowState::kMinimised);
  demo.form.Show();
  EXPECT_TRUE(IsIconic(demo.Main()));
  demo.form.SetState(ui::WindowState::kNormal);
  EXPECT_FALSE(IsIconic(demo.Main()));
}

TEST(FormWindow, StateChangedByTheUserReachesTheModel) {
  DemoWindow demo;
  demo.form.Show();
  ShowWindow(demo.Main(), SW_MINIMIZE);
  demo.Handle();
  EXPECT_EQ(demo.form.State(), ui::WindowState::kMinimised);
  ShowWindow(demo.Main(), SW_RESTORE);
  demo.Handle();
  EXPECT_EQ(demo.form.State(), ui::WindowState::kNormal);
}

/// Acts as another program does, without the form's own calls.
TEST(FormWindow, FormFollowsAWindowThatOthersShowHideAndMinimise) {
  DemoWindow demo;
  EventCount activated;
  demo.form.OnActivate = activated.AsHandler();
  ShowWindow(demo.Main(), SW_SHOWNA);
  EXPECT_TRUE(demo.form.Shown());
  EXPECT_EQ(activated.Count(), 1);
  EXPECT_TRUE(demo.go.Reachable());
  EXPECT_NE(demo.Native(demo.go), nullptr);
  ShowWindow(demo.Main(), SW_MINIMIZE);
  EXPECT_EQ(demo.form.State(), ui::WindowState::kMinimised);
  ShowWindow(demo.Main(), SW_HIDE);
  EXPECT_FALSE(demo.form.Shown());
  OpenIcon(demo.Main());
  EXPECT_TRUE(demo.form.Shown());
  EXPECT_EQ(demo.form.State(), ui::WindowState::kNormal);
  EXPECT_EQ(activated.Count(), 2);
  SetWindowPos(demo.Main(), nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_HIDEWINDOW);
  EXPECT_FALSE(demo.form.Shown());
  ShowWindow(demo.Main(), SW_SHOW);
  EXPECT_TRUE(demo.form.Shown());
  EXPECT_EQ(activated.Count(), 3);
}

TEST(FormWindow, MinimisedAndHiddenWindowWorksWhenAnotherProgramRestoresIt) {
  DemoWindow demo;
  demo.form.Show();
  demo.form.SetState(ui::WindowState::kMinimised);
  demo.form.Hide();
  OpenIcon(demo.Main());
  EXPECT_TRUE(IsWindowVisible(demo.Main()));
  EXPECT_TRUE(demo.go.Reachable());
  demo.form.Hide();
  EXPECT_FALSE(IsWindowVisible(demo.Main())) << "the form's own calls still work";
  demo.form.Show();
  EXPECT_TRUE(IsWindowVisible(demo.Main()));
  EXPECT_FALSE(IsIconic(demo.Main()));
}

TEST(FormWindow, OwnCallsActivateOnce) {
  DemoWindow demo;
  EventCount activated;
  demo.form.OnActivate = activated.AsHandler();
  demo.form.SetState(ui::WindowState::kMinimised);
  demo.form.Show();
  EXPECT_EQ(activated.Count(), 1);
  EXPECT_EQ(demo.form.State(), ui::WindowState::kMinimised);
  demo.form.SetState(ui::WindowState::kNormal);
  demo.form.Show();
  EXPECT_EQ(activated.Count(), 1);
  demo.form.Hide();
  demo.form.Show();
  EXPECT_EQ(activated.Count(), 2);
}

struct Pointer {
  int button = -1;
  int shift = -1;
  double x_twips = 0;
  double y_twips = 0;
  base::Status Moved(int a_button, int a_shift, double x, double y) {
    button = a_button;
    shift = a_shift;
    x_twips = x;
    y_twips = y;
    return base::kDone;
  }
};

TEST(FormWindow, PointerIsReportedInTwipsWithButtonsAndShift) {
  DemoWindow demo;
  Pointer pointer;
  demo.form.OnMouseMove =
      base::Callback<base::Status(int, int, double, double)>::To<&Pointer::Moved>(pointer);
  SendMessageA(demo.Main(), WM_MOUSEMOVE, MK_RBUTTON | MK_CONTROL, MAKELPARAM(20, 0xFFFD));
  EXPECT_EQ(pointer.button, 2);
  EXPECT_EQ(pointer.shift, 2);
  EXPECT_EQ(pointer.x_twips, 300);
  EXPECT_EQ(pointer.y_twips, -45);
}

struct DropCount {
  WPARAM drop = 0;
  void Dropped(WPARAM word) { drop = word; }
};

struct ClosingGate {
  bool is_open = false;
  bool MayClose() { return is_open; }
};

TEST(FormWindow, DroppedFilesReachTheHandler) {
  DemoWindow demo;
  SendMessageA(demo.Main(), WM_DROPFILES, 0, 0);  // no handler takes them
  DropCount drops;
  demo.window.OnFilesDropped = base::Callback<void(WPARAM)>::To<&DropCount::Dropped>(drops);
  SendMessageA(demo.Main(), WM_DROPFILES, 1234, 0);
  EXPECT_EQ(drops.drop, 1234U);
}

TEST(FormWindow, FormThatRefusesToCloseStays) {
  DemoWindow demo;
  ClosingGate gate;
  demo.form.Show();
  demo.form.OnQueryClose = base::Callback<bool()>::To<&ClosingGate::MayClose>(gate);
  SendMessageA(demo.Main(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(demo.form.Unloaded());
  EXPECT_TRUE(IsWindowVisible(demo.Main()));
  gate.is_open = true;
  SendMessageA(demo.Main(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(demo.form.Unloaded());
}

TEST(FormWindow, MessageOfATrayIconArrivesAsTheXOfAMouseMove) {
  DemoWindow demo;
  Pointer pointer;
  demo.form.OnMouseMove =
      base::Callback<base::Status(int, int, double, double)>::To<&Pointer::Moved>(pointer);
  SendMessageA(demo.Main(), 512, 1, WM_RBUTTONDOWN);
  EXPECT_EQ(pointer.x_twips / ui::kTwipsPerPixel, WM_RBUTTONDOWN);
}

/// Runs the message loop until the condition holds; returns false after five seconds.
template <class Condition>
bool Eventually(DemoWindow& demo, Condition condition) {
  const DWORD start = GetTickCount();
  while (!condition()) {
    if (GetTickCount() - start > 5000) return false;
    demo.pump.PumpEvents();
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  return true;
}

TEST(FormWindow, TimersTickWhileTheyRunAndStopWhenDisabled) {
  DemoWindow demo;
  EventCount first;
  EventCount second;
  demo.timer.OnTimer = first.AsHandler();
  demo.second_timer.OnTimer = second.AsHandler();
  ASSERT_TRUE(demo.timer.SetInterval(20).Ok());
  ASSERT_TRUE(demo.second_timer.SetInterval(30).Ok());
  demo.timer.SetEnabled(true);
  EXPECT_TRUE(Eventually(demo, [&] { return first.Count() >= 3; }));
  EXPECT_EQ(second.Count(), 0);
  demo.timer.SetEnabled(false);
  const int at_stop = first.Count();
  demo.second_timer.SetEnabled(true);
  EXPECT_TRUE(Eventually(demo, [&] { return second.Count() >= 3; }));
  EXPECT_EQ(first.Count(), at_stop);
}

struct Ending {
  int unloaded = 0;
  int session_ended = 0;
  DemoWindow* demo = nullptr;
  void Unloaded() {
    ++unloaded;
    demo->pump.Stop();
  }
  void SessionEnding() {
    ++session_ended;
    demo->form.Unload();
  }
};

TEST(FormWindow, ClosingUnloadsHidesAndEndsTheLoop) {
  DemoWindow demo;
  Ending ending{.demo = &demo};
  demo.window.OnUnloaded = base::Callback<void()>::To<&Ending::Unloaded>(ending);
  demo.form.Show();
  PostMessageA(demo.Main(), WM_CLOSE, 0, 0);
  while (demo.pump.WaitAndHandle()) {
  }
  EXPECT_TRUE(demo.form.Unloaded());
  EXPECT_EQ(ending.unloaded, 1);
  EXPECT_FALSE(IsWindowVisible(demo.Main()));
  EXPECT_TRUE(IsWindow(demo.Main())) << "the owner destroys the windows, not a handler that still runs";
}

DWORD WINAPI EndSessionFromOutside(void* window) {
  SendMessageA(static_cast<HWND>(window), WM_ENDSESSION, TRUE, 0);
  return 0;
}

TEST(FormWindow, WaitingLoopWakesWhenASentMessageUnloadsTheForm) {
  DemoWindow demo;
  Ending ending{.demo = &demo};
  demo.window.OnUnloaded = base::Callback<void()>::To<&Ending::Unloaded>(ending);
  demo.Handle();
  HANDLE const sender = CreateThread(nullptr, 0, &EndSessionFromOutside, demo.Main(), 0, nullptr);
  while (demo.pump.WaitAndHandle()) {
  }
  EXPECT_TRUE(demo.form.Unloaded());
  MSG rest{};
  while (WaitForSingleObject(sender, 0) != WAIT_OBJECT_0) PeekMessageA(&rest, nullptr, 0, 0, PM_NOREMOVE);
  CloseHandle(sender);
}

TEST(FormWindow, EndOfTheSessionIsAllowedAndReported) {
  DemoWindow demo;
  Ending ending{.demo = &demo};
  demo.window.OnSessionEnding = base::Callback<void()>::To<&Ending::SessionEnding>(ending);
  EXPECT_EQ(SendMessageA(demo.Main(), WM_QUERYENDSESSION, 0, 0), TRUE);
  SendMessageA(demo.Main(), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(ending.session_ended, 0) << "another program refused to end the session";
  SendMessageA(demo.Main(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(ending.session_ended, 1);
  EXPECT_TRUE(demo.form.Unloaded());
}

TEST(FormWindow, RestartOfTheTaskbarIsReported) {
  DemoWindow demo;
  Ending ending{.demo = &demo};
  demo.window.OnTaskbarCreated = base::Callback<void()>::To<&Ending::Unloaded>(ending);
  SendMessageA(demo.Main(), RegisterWindowMessageA("TaskbarCreated"), 0, 0);
  EXPECT_EQ(ending.unloaded, 1);
}

/// Returns the number of GDI objects of this process. Under Wine the table of objects has 16-bit indexes, so
/// it can be walked.
int GraphicsObjects() {
  int count = 0;
  for (UINT_PTR number = 1; number < 0x10000; ++number) {
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(number)) != 0) ++count;
  }
  return count;
}

BOOL CALLBACK CountWindow(HWND /*window*/, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

BOOL CALLBACK CountWindowAndChildren(HWND window, LPARAM count) {
  EnumChildWindows(window, &CountWindow, count);
  return CountWindow(window, count);
}

int WindowsOfThisThread() {
  int count = 0;
  EnumThreadWindows(GetCurrentThreadId(), &CountWindowAndChildren, reinterpret_cast<LPARAM>(&count));
  return count;
}

TEST(FormWindow, EverythingCreatedIsDestroyed) {
  {
    DemoWindow first;  // fills the system's own caches
    first.form.Show();
    first.Handle();
  }
  const int graphics_before = GraphicsObjects();
  const int windows_before = WindowsOfThisThread();
  for (int round = 0; round < 3; ++round) {
    DemoWindow demo;
    demo.form.Show();
    demo.text.SetBackColour(0x00C0FFC0U);
    demo.Handle();
    EXPECT_GT(GraphicsObjects(), graphics_before);
    EXPECT_GT(WindowsOfThisThread(), windows_before + 20);
  }
  EXPECT_EQ(GraphicsObjects(), graphics_before);
  EXPECT_EQ(WindowsOfThisThread(), windows_before);
}

/// Reuses and fills the memory of destroyed objects, so that a call of one of them fails at once.
std::vector<std::string> OverwriteFreedMemory() {
  std::vector<std::string> filled;
  for (std::size_t size = 32; size < 2048; size += 8) {
    for (int count = 0; count < 40; ++count) filled.emplace_back(size, '\xCC');
  }
  return filled;
}

TEST(FormWindow, ModelsThatOutliveTheWindowHaveNoPeer) {
  DemoModels models;
  {
    const ui::win32::FormWindow window(GetModuleHandleA(nullptr), 1, models.application, models.form,
                                       models.timers, ui::win32::MakePeer);
    models.form.Show();
  }
  const std::vector<std::string> filled = OverwriteFreedMemory();
  models.form.SetCaption("later");
  models.text.SetText("later");
  models.flat.SurfaceChanged(nullptr);
  models.timer.SetEnabled(true);
  models.application.SetTitle("later");
  models.form.Unload();
  EXPECT_TRUE(models.form.Unloaded());
}

}  // namespace
}  // namespace qdix::contract
