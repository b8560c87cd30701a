#include "ui/canvas.h"

namespace qdix::ui {

DrawingControl::DrawingControl(Container& parent, const Design& design, BorderStyle border)
    : Control(&parent, Kind::kDrawing, design), border_(border) {}

void DrawingControl::SurfaceChanged(Canvas* canvas) {
  canvas_ = canvas;
  if (canvas_ != nullptr) DrawAll();
}

void DrawingControl::SetBorderStyle(BorderStyle border) {
  if (border_ == border) return;
  border_ = border;
  Notify(Change::kBorder);
}

}  // namespace qdix::ui
