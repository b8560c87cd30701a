// The drawing controls: the canvas in its border, and what happens to the picture when the screen changes.
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"
#include "ui/win32/bitmap_canvas.h"

namespace qdix::contract {
namespace {

class UiDrawing : public testing::Test {
 protected:
  UiDrawing() { demo.form.Show(); }

  /// Opens the page with the drawing controls.
  void OpenPage() { ASSERT_TRUE(demo.tabs.SetTab(2).Ok()); }

  DemoWindow demo;
};

TEST_F(UiDrawing, DrawingControlShowsItsCanvasInsideItsBorder) {
  OpenPage();
  demo.Handle();
  ASSERT_NE(demo.sunken.Canvas(), nullptr);
  EXPECT_EQ(demo.sunken.Canvas()->Width(), 100);
  EXPECT_EQ(demo.sunken.Canvas()->Height(), 20);
  RECT outer{};
  GetWindowRect(demo.Native(demo.sunken), &outer);
  EXPECT_EQ(outer.right - outer.left, 104);
  EXPECT_EQ(outer.bottom - outer.top, 24);
  EXPECT_EQ(demo.flat.Canvas()->Width(), 60 * 6 / 4 - 2);
  const auto pixel = [&](int x, int y) {
    HDC const device = GetDC(demo.Native(demo.sunken));
    const COLORREF colour = GetPixel(device, x, y);
    ReleaseDC(demo.Native(demo.sunken), device);
    return colour;
  };
  EXPECT_EQ(pixel(50, 10), PaintedControl::kFill);
  demo.sunken.PushBar();
  demo.sunken.PushBar();
  demo.Handle();
  EXPECT_EQ(pixel(99, 0), PaintedControl::kBar);
  EXPECT_EQ(pixel(96, 19), PaintedControl::kBar);
  EXPECT_EQ(pixel(95, 19), PaintedControl::kFill);
}

TEST_F(UiDrawing, CanvasIsClippedAtItsEdgesAndTakesAnyCoordinates) {
  ui::Canvas& canvas = *demo.flat.Canvas();
  constexpr int kFar = 2000000000;
  canvas.FillBox(-kFar, -kFar, kFar, kFar, 0x00112233U);
  canvas.FillBorderedBox(5, 5, 2, 2, 0x00FFFFFFU, 0);
  canvas.CopyOntoSelf(-kFar, 0, kFar, kFar, kFar, 0);
  canvas.CopyOntoSelf(-1, 0, canvas.Width(), canvas.Height(), 0, 0);
  OpenPage();
  demo.Handle();
  HDC const device = GetDC(demo.Native(demo.flat));
  EXPECT_EQ(GetPixel(device, 0, 0), 0x00112233U);
  EXPECT_EQ(GetPixel(device, 1, 2), 0U) << "moved one to the left";
  EXPECT_EQ(GetPixel(device, 2, 3), 0x00FFFFFFU);
  EXPECT_EQ(GetPixel(device, 4, 5), 0U);
  EXPECT_EQ(GetPixel(device, 5, 5), 0x00112233U);
  ReleaseDC(demo.Native(demo.flat), device);
}

TEST_F(UiDrawing, DrawingControlKeepsItsPictureOnANewBitmapWhenTheScreenChanges) {
  OpenPage();
  demo.flat.PushBar();
  ui::Canvas* const canvas = demo.flat.Canvas();
  HDC const former = static_cast<ui::win32::BitmapCanvas*>(canvas)->Device();
  SendMessageA(demo.Main(), WM_DISPLAYCHANGE, 16, MAKELPARAM(640, 480));
  ASSERT_EQ(demo.flat.Canvas(), canvas);
  EXPECT_NE(static_cast<ui::win32::BitmapCanvas*>(canvas)->Device(), former);
  demo.Handle();
  const int right = canvas->Width() - 1;
  HDC const device = GetDC(demo.Native(demo.flat));
  EXPECT_EQ(GetPixel(device, right, 0), PaintedControl::kBar);
  EXPECT_EQ(GetPixel(device, right - 2, 0), PaintedControl::kFill);
  demo.flat.PushBar();
  demo.Handle();
  EXPECT_EQ(GetPixel(device, right - 2, 0), PaintedControl::kBar) << "later bars go onto the new bitmap";
  ReleaseDC(demo.Native(demo.flat), device);
}

TEST_F(UiDrawing, DrawingControlRedrawsWhenSystemColoursOrItsBorderChange) {
  demo.flat.PushBar();
  SendMessageA(demo.Main(), WM_SYSCOLORCHANGE, 0, 0);
  OpenPage();
  demo.Handle();
  HDC const device = GetDC(demo.Native(demo.flat));
  EXPECT_EQ(GetPixel(device, demo.flat.Canvas()->Width() - 1, 0), PaintedControl::kFill);
  ReleaseDC(demo.Native(demo.flat), device);
  const int width = demo.flat.Canvas()->Width();
  demo.flat.SetBorder(ui::BorderStyle::kThreeD);
  EXPECT_EQ(demo.flat.Canvas()->Width(), width - 2);
}

}  // namespace
}  // namespace qdix::contract
