// A surface of pixels with the few operations that the drawing controls need. Keeps its picture while it is
// covered.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

class Canvas {
 public:
  /// Inner size in pixels.
  [[nodiscard]] virtual int Width() const = 0;
  [[nodiscard]] virtual int Height() const = 0;

  /// Copies a rectangle of the surface to another place on it. Neither reads nor writes outside the surface.
  virtual void CopyOntoSelf(int to_x, int to_y, int width, int height, int from_x, int from_y) = 0;

  /// Fills the box, both corners included. The corners may come in either order; clips at the surface.
  virtual void FillBox(int x1, int y1, int x2, int y2, Colour colour) = 0;

  /// Like FillBox, with a border one pixel wide inside the box.
  virtual void FillBorderedBox(int x1, int y1, int x2, int y2, Colour fill, Colour border) = 0;

 protected:
  ~Canvas() = default;
};

/// Border styles of a drawing control's window. The border takes up its width on each side of the control.
inline constexpr int kThreeDBorderPixels = 2;
enum class BorderStyle : std::uint8_t {
  kNone = 0,
  kFlatLine = 1,
  kThreeD = 2
};

/// Base of a drawing control. Owns no pixels: a peer or a test gives it a canvas.
class DrawingControl : public Control {
 public:
  /// Inner size that the control requires, in pixels. 0 takes that dimension from the control's place.
  struct PixelSize {
    int width = 0;
    int height = 0;
  };

  [[nodiscard]] virtual PixelSize InnerSize() const { return {}; }
  [[nodiscard]] BorderStyle Border() const { return border_; }

  /// Called when the surface was made or replaced by one of another size; null when the surface goes away.
  /// Draws the whole picture.
  void SurfaceChanged(Canvas* canvas);

 protected:
  DrawingControl(Container& parent, const Design& design, BorderStyle border);

  void SetBorderStyle(BorderStyle border);
  [[nodiscard]] Canvas* Surface() const { return canvas_; }
  /// Draws the whole picture on a new surface. Surface() is not null.
  virtual void DrawAll() = 0;
  void PixelsChanged() { Notify(Change::kRepaint); }

 private:
  Canvas* canvas_ = nullptr;
  BorderStyle border_;
};

}  // namespace qdix::ui
