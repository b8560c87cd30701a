// A surface of pixels with the few operations that the drawing controls need. Keeps what was drawn, also
// while it is covered.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

class Canvas {
 public:
  virtual ~Canvas() = default;

  /// Inner size in pixels.
  [[nodiscard]] virtual int Width() const = 0;
  [[nodiscard]] virtual int Height() const = 0;

  /// Copies a rectangle of the surface onto itself; what lies outside the surface is neither read nor
  /// written.
  virtual void CopyOntoSelf(int to_x, int to_y, int width, int height, int from_x, int from_y) = 0;

  /// Fills both corners inclusive, in either order; cut at the surface.
  virtual void FillBox(int x1, int y1, int x2, int y2, Colour colour) = 0;

  /// FillBox with a border of one pixel inside the box.
  virtual void FillBorderedBox(int x1, int y1, int x2, int y2, Colour fill, Colour border) = 0;
};

/// Border styles of a drawing control's window: each takes its width from every side of the control.
inline constexpr int kThreeDBorderPixels = 2;
enum class BorderStyle : std::uint8_t {
  kNone = 0,
  kFlatLine = 1,
  kThreeD = 2
};

/// Host of a drawing control: owns no pixels; a peer or a test gives it a canvas.
class DrawingControl : public Control {
 public:
  /// Inner size that the control insists on, in pixels; 0 leaves that side to the place.
  struct PixelSize {
    int width = 0;
    int height = 0;
  };

  [[nodiscard]] virtual PixelSize InnerSize() const { return {}; }
  [[nodiscard]] BorderStyle Border() const { return border_; }

  /// The surface was made, or made anew in another size; null when it goes. Draws the whole picture.
  void SurfaceChanged(Canvas* canvas);

 protected:
  DrawingControl(Container& parent, const Design& design, BorderStyle border);

  void SetBorderStyle(BorderStyle border);
  [[nodiscard]] Canvas* Surface() const { return canvas_; }
  /// Draws everything on a new surface; Surface() is not null.
  virtual void DrawAll() = 0;
  /// Tells the peer that pixels changed.
  void PixelsChanged() { Notify(Change::kRepaint); }

 private:
  Canvas* canvas_ = nullptr;
  BorderStyle border_;
};

}  // namespace qdix::ui
