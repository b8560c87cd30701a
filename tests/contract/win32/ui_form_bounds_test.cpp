// A resizable window: frame, minimum size, place on the screen, and the keys that no button takes.
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"

namespace qdix::contract {
namespace {

constexpr ui::FormSize kSmallest{.width = 100, .height = 60};

class ResizableForm : public testing::Test {
 protected:
  ResizableForm() {
    events.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&ResizableForm::Report>(*this));
    pump.SetDialogWindow(Main());
  }
  void Report(const base::RuntimeError& error) { ADD_FAILURE() << error.number; }

  [[nodiscard]] HWND Main() const { return window.MainWindow(); }
  [[nodiscard]] RECT Outer() const {
    RECT outer{};
    GetWindowRect(Main(), &outer);
    return outer;
  }
  [[nodiscard]] RECT Inner() const {
    RECT inner{};
    GetClientRect(Main(), &inner);
    return inner;
  }
  /// Queues a key press for the focused window, as the keyboard does, and handles it.
  void Press(WPARAM key) {
    PostMessageA(GetFocus(), WM_KEYDOWN, key, 1);
    PostMessageA(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    pump.PumpEvents();
  }

  ui::EventDispatcher events;
  ui::Application application{"Bounds"};
  ui::Form form{events, {.name = "Form", .caption = "Resizable", .place = {0, 0, 160, 80}}, kSmallest};
  ui::TextBox text{form, {.name = "Text", .place = {7, 7, 60, 14}}};
  ui::Label label{form, {.name = "Label", .caption = "Label", .place = {7, 30, 60, 8}}};
  os::win32::Win32EventPump pump;
  ui::win32::FormWindow window{GetModuleHandleA(nullptr), 1, application, form, {}, ui::win32::MakePeer};
};

TEST_F(ResizableForm, HasASizingFrameAndCanBeMaximised) {
  constexpr LONG kSizing = WS_THICKFRAME | WS_MAXIMIZEBOX;
  EXPECT_EQ(GetWindowLongA(Main(), GWL_STYLE) & kSizing, kSizing);
  EXPECT_EQ(Inner().right, 160 * 6 / 4);
  EXPECT_EQ(Inner().bottom, 80 * 13 / 8);
}

TEST_F(ResizableForm, FirstShowIsMaximisedIfTheCallerAsksForIt) {
  window.SetStartCommand(SW_SHOWMAXIMIZED);
  form.Show();
  EXPECT_TRUE(IsZoomed(Main()));
  EXPECT_EQ(form.State(), ui::WindowState::kMaximised);
}

TEST_F(ResizableForm, MaximisedWindowThatStartsMinimisedIsMaximisedAgainWhenItIsRestored) {
  form.SetState(ui::WindowState::kMaximised);
  window.SetStartCommand(SW_SHOWMINNOACTIVE);
  form.Show();
  EXPECT_TRUE(IsIconic(Main()));
  EXPECT_EQ(form.State(), ui::WindowState::kMinimised);
  ShowWindow(Main(), SW_RESTORE);
  EXPECT_TRUE(IsZoomed(Main()));
  EXPECT_EQ(form.State(), ui::WindowState::kMaximised);
}

TEST_F(ResizableForm, SizeSetByTheUserArrivesInDialogUnits) {
  EventCount resized;
  form.OnResize = resized.AsHandler();
  form.Show();
  SetWindowPos(Main(), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(form.GetPlace().width, Inner().right * 4 / 6);
  EXPECT_EQ(form.GetPlace().height, Inner().bottom * 8 / 13);
  EXPECT_GE(resized.Count(), 1);
}

TEST_F(ResizableForm, WindowKeepsItsMinimumSize) {
  form.Show();
  SetWindowPos(Main(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(Inner().right, kSmallest.width * 6 / 4);
  EXPECT_EQ(Inner().bottom, (kSmallest.height * 13 + 4) / 8);
}

TEST_F(ResizableForm, BoundsFromCodePlaceTheHiddenWindowAndLeaveItHidden) {
  form.SetBounds({.left = 30, .top = 40, .width = 420, .height = 310});
  EXPECT_FALSE(IsWindowVisible(Main()));
  form.Show();
  const RECT outer = Outer();
  EXPECT_EQ(outer.left, 30);
  EXPECT_EQ(outer.top, 40);
  EXPECT_EQ(outer.right, 30 + 420);
  EXPECT_EQ(outer.bottom, 40 + 310);
  EXPECT_EQ(form.GetPlace().width, Inner().right * 4 / 6);
}

TEST_F(ResizableForm, BoundsSetByTheUserSurviveMaximisingAndMinimising) {
  form.Show();
  SetWindowPos(Main(), nullptr, 50, 60, 450, 350, SWP_NOZORDER);
  const ui::WindowBounds bounds{.left = 50, .top = 60, .width = 450, .height = 350};
  EXPECT_EQ(form.Bounds(), bounds);
  ShowWindow(Main(), SW_MAXIMIZE);
  EXPECT_EQ(form.State(), ui::WindowState::kMaximised);
  EXPECT_EQ(form.Bounds(), bounds);
  const std::int16_t maximised_width = form.GetPlace().width;
  EXPECT_GT(maximised_width, 450 * 4 / 6);
  ShowWindow(Main(), SW_MINIMIZE);
  EXPECT_EQ(form.State(), ui::WindowState::kMinimised);
  EXPECT_EQ(form.GetPlace().width, maximised_width) << "a minimised window has no inner size";
  EXPECT_EQ(form.Bounds(), bounds);
  ShowWindow(Main(), SW_RESTORE);
  EXPECT_EQ(form.State(), ui::WindowState::kMaximised);
  ShowWindow(Main(), SW_RESTORE);
  EXPECT_EQ(form.State(), ui::WindowState::kNormal);
  EXPECT_EQ(form.Bounds(), bounds);
}

TEST_F(ResizableForm, StartsMaximisedIfTheStateWasSetBefore) {
  form.SetBounds({.left = 30, .top = 40, .width = 420, .height = 310});
  form.SetState(ui::WindowState::kMaximised);
  form.Show();
  EXPECT_TRUE(IsZoomed(Main()));
  form.SetState(ui::WindowState::kNormal);
  EXPECT_FALSE(IsZoomed(Main()));
  EXPECT_EQ(Outer().left, 30);
  form.SetState(ui::WindowState::kMaximised);
  EXPECT_TRUE(IsZoomed(Main()));
}

TEST_F(ResizableForm, ControlFollowsItsPlace) {
  HWND const native = GetDlgItem(Main(), ui::NumberOf(form, text));
  text.SetPlace({20, 40, 80, 16});
  RECT place{};
  GetWindowRect(native, &place);
  MapWindowPoints(nullptr, Main(), reinterpret_cast<POINT*>(&place), 2);
  EXPECT_EQ(place.left, 30);
  EXPECT_EQ(place.top, 65);
  EXPECT_EQ(place.right, 150);
  EXPECT_EQ(place.bottom, 65 + 26);
}

TEST_F(ResizableForm, EnterGoesToTheControlAndEscToTheFormWithoutButtons) {
  EventCount entered;
  EventCount escaped;
  text.OnEnter = entered.AsHandler();
  form.OnEscape = escaped.AsHandler();
  form.Show();
  text.SetFocus();
  pump.PumpEvents();
  Press(VK_RETURN);
  EXPECT_EQ(entered.Count(), 1);
  EXPECT_EQ(escaped.Count(), 0);
  Press(VK_ESCAPE);
  EXPECT_EQ(escaped.Count(), 1);
  EXPECT_EQ(entered.Count(), 1);
}

/// The fixed window that most programs here have.
TEST(FixedForm, IgnoresBounds) {
  DemoWindow demo;
  demo.form.Show();
  RECT before{};
  GetWindowRect(demo.Main(), &before);
  demo.form.SetBounds({.left = 1, .top = 2, .width = 300, .height = 200});
  RECT after{};
  GetWindowRect(demo.Main(), &after);
  EXPECT_TRUE(EqualRect(&before, &after));
  EXPECT_EQ(demo.form.GetPlace().width, 240);
}

}  // namespace
}  // namespace qdix::contract
