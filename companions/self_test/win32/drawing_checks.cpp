#include "self_test/win32/drawing_checks.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <span>

#include "base/numbers.h"
#include "controls/meter3.h"
#include "controls/x_graph_meter.h"
#include "ui/form.h"
#include "ui/win32/bitmap_canvas.h"

namespace qdix::self_test::win32 {

namespace {

constexpr ui::Colour kPaper = 0x00FFFFFFU;
constexpr ui::Colour kInk = 0x000000FFU;

struct Pixel {
  int x;
  int y;
  ui::Colour colour;
};

/// Allows a difference: 16-bit screens keep only five or six of the eight bits of each colour component.
bool LooksLike(COLORREF seen, COLORREF wanted) {
  constexpr int kRounding = 8;
  const auto is_near = [](int one, int other) {
    return std::max(one, other) - std::min(one, other) <= kRounding;
  };
  return seen != CLR_INVALID && is_near(GetRValue(seen), GetRValue(wanted)) &&
         is_near(GetGValue(seen), GetGValue(wanted)) && is_near(GetBValue(seen), GetBValue(wanted));
}

/// Compares with the nearest colour that the screen has.
Outcome Shows(const ui::win32::BitmapCanvas& canvas, std::span<const Pixel> pixels) {
  for (const Pixel& pixel : pixels) {
    const COLORREF wanted = GetNearestColor(canvas.Device(), pixel.colour);
    if (LooksLike(GetPixel(canvas.Device(), pixel.x, pixel.y), wanted)) continue;
    return Outcome::Failed("pixel " + base::TextOf(pixel.x) + "," + base::TextOf(pixel.y) +
                           " has the wrong colour");
  }
  return Outcome::Ok();
}

Outcome ColoursDiffer() {
  const ui::win32::BitmapCanvas canvas(1, 1);
  const auto nearest = [&canvas](ui::Colour colour) { return GetNearestColor(canvas.Device(), colour); };
  if (nearest(kPaper) == nearest(kInk)) return Outcome::Failed("ink and paper look the same");
  return Outcome::Expect(nearest(controls::Meter3::kLit) != nearest(controls::Meter3::kUnlit),
                         "lit and unlit look the same");
}

/// Draws a bar of full height, then one of half height. The first must have moved by the width of a bar, 2
/// pixels.
Outcome GraphDraws() {
  constexpr int kWidth = 100;
  constexpr int kHeight = 65;
  constexpr std::array<Pixel, 9> kPixels{{{99, 64, kInk},
                                          {98, 33, kInk},
                                          {99, 32, kPaper},
                                          {98, 0, kPaper},
                                          {97, 64, kInk},
                                          {96, 1, kInk},
                                          {97, 0, kPaper},
                                          {95, 64, kPaper},
                                          {0, 0, kPaper}}};
  ui::EventDispatcher events;
  ui::Form form(events, {.name = "Form"});
  controls::XGraphMeter graph(form, {.name = "Graph"}, {.back_colour = kPaper, .fore_colour = kInk});
  ui::win32::BitmapCanvas canvas(kWidth, kHeight);
  graph.SurfaceChanged(&canvas);
  const base::Status full = graph.Update(100);
  const base::Status half = graph.Update(50);
  Outcome outcome = full.Ok() && half.Ok() ? Shows(canvas, kPixels) : Outcome::Failed("a value was rejected");
  graph.SurfaceChanged(nullptr);
  return outcome;
}

/// Half of the segments must be lit: the first and the 25th, but not the 26th and the last.
Outcome GaugeDraws() {
  constexpr std::array<Pixel, 4> kPixels{{{3, 7, controls::Meter3::kLit},
                                          {75, 7, controls::Meter3::kLit},
                                          {78, 7, controls::Meter3::kUnlit},
                                          {150, 7, controls::Meter3::kUnlit}}};
  ui::EventDispatcher events;
  ui::Form form(events, {.name = "Form"});
  controls::Meter3 gauge(form, {.name = "Gauge"});
  ui::win32::BitmapCanvas canvas(gauge.InnerSize().width, gauge.InnerSize().height);
  gauge.SurfaceChanged(&canvas);
  const base::Status set = gauge.SetValue(controls::Meter3::kSegments / 2);
  Outcome outcome = set.Ok() ? Shows(canvas, kPixels) : Outcome::Failed("a value was rejected");
  gauge.SurfaceChanged(nullptr);
  return outcome;
}

}  // namespace

void RunDrawingChecks(Report& report) {
  report.Run("Drawing colours", &ColoursDiffer);
  report.Run("Drawing the graph", &GraphDraws);
  report.Run("Drawing a gauge", &GaugeDraws);
}

}  // namespace qdix::self_test::win32
