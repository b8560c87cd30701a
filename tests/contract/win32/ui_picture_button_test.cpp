// The owner-drawn button: it must look and act like the system's own.
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"

namespace qdix::contract {
namespace {

/// The resources of the tests have no icon with this number.
constexpr int kMissingPicture = 99;

COLORREF PixelOf(HWND window, LONG x, LONG y) {
  HDC const device = GetDC(window);
  const COLORREF colour = GetPixel(device, static_cast<int>(x), static_cast<int>(y));
  ReleaseDC(window, device);
  return colour;
}

class UiPictureButton : public testing::Test {
 protected:
  UiPictureButton() { demo.form.Show(); }

  DemoWindow demo;
  EventCount events;
};

TEST_F(UiPictureButton, IsPressedAndLooksLikeAButton) {
  EXPECT_EQ(WindowText(demo.Native(demo.pictured)), "With picture");
  HWND const window = demo.Native(demo.pictured);
  RECT inside{};
  GetClientRect(window, &inside);
  const auto pixel = [&](LONG x, LONG y) { return PixelOf(window, x, y); };
  UpdateWindow(window);
  EXPECT_EQ(pixel(0, 0), GetSysColor(COLOR_3DHILIGHT));
  EXPECT_EQ(pixel(inside.right - 1, inside.bottom - 1), GetSysColor(COLOR_3DDKSHADOW));
  // The heavy border of the default button comes and goes with the focus.
  demo.pictured.SetFocus();
  UpdateWindow(window);
  EXPECT_EQ(pixel(0, 0), GetSysColor(COLOR_WINDOWFRAME));
  demo.other.SetFocus();
  UpdateWindow(window);
  EXPECT_EQ(pixel(0, 0), GetSysColor(COLOR_3DHILIGHT));
  demo.pictured.OnClick = events.AsHandler();
  demo.Send(demo.pictured, BM_CLICK);
  EXPECT_EQ(events.Count(), 1);
  demo.pictured.SetEnabled(false);
  demo.Report(demo.pictured, BN_CLICKED);
  EXPECT_EQ(events.Count(), 1);
}

TEST(UiDefaultPictureButton, HasTheHeavyBorderFromTheStart) {
  ui::EventDispatcher events;
  ui::Application application{"Title"};
  ui::Form form{events, {.name = "Form", .place = {0, 0, 100, 50}}};
  ui::TextBox text{form, {.name = "Text", .place = {4, 4, 60, 13}}};
  ui::Button button{
      form, {.name = "Button", .place = {4, 24, 60, 14}}, ui::ButtonRole::kDefault, kMissingPicture};
  const ui::win32::FormWindow window(GetModuleHandleA(nullptr), 1, application, form, {},
                                     ui::win32::MakePeer);
  form.Show();
  text.SetFocus();
  HWND const native = GetDlgItem(window.MainWindow(), ui::NumberOf(form, button));
  UpdateWindow(native);
  EXPECT_EQ(PixelOf(native, 0, 0), GetSysColor(COLOR_WINDOWFRAME));
}

}  // namespace
}  // namespace qdix::contract
