#include "ui/win32/drawing_peer.h"

#include "ui/win32/window_class.h"

namespace qdix::ui::win32 {

namespace {

DWORD StyleOf(const DrawingControl& model) {
  return model.Border() == BorderStyle::kFlatLine ? WS_BORDER : 0;
}

DWORD ExtendedStyleOf(const DrawingControl& model) {
  return model.Border() == BorderStyle::kThreeD ? WS_EX_CLIENTEDGE : 0;
}

/// Place and outer size. A control that requires an inner size gets its border around it.
PixelBox OuterBox(const PeerContext& context, const DrawingControl& model) {
  PixelBox box = context.font.Pixels(model.GetPlace());
  const DrawingControl::PixelSize inner = model.InnerSize();
  RECT outer{0, 0, inner.width, inner.height};
  AdjustWindowRectEx(&outer, StyleOf(model) | WS_CHILD, FALSE, ExtendedStyleOf(model));
  if (inner.width > 0) box.width = static_cast<int>(outer.right - outer.left);
  if (inner.height > 0) box.height = static_cast<int>(outer.bottom - outer.top);
  return box;
}

}  // namespace

DrawingPeer::DrawingPeer(const PeerContext& context, DrawingControl& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = kDrawingWindowClass,
                     .style = StyleOf(model),
                     .extended_style = ExtendedStyleOf(model),
                     .box = OuterBox(context, model)}),
      drawing_(model) {
  MakeCanvas();
}

DrawingPeer::~DrawingPeer() { drawing_.SurfaceChanged(nullptr); }

void DrawingPeer::MakeCanvas() {
  RECT inner{};
  GetClientRect(Window(), &inner);
  drawing_.SurfaceChanged(nullptr);
  canvas_.emplace(static_cast<int>(inner.right), static_cast<int>(inner.bottom));
  drawing_.SurfaceChanged(&*canvas_);
}

LRESULT DrawingPeer::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT:
      Show();
      return 0;
    case WM_ERASEBKGND:
      return 1;  // the canvas covers everything
    case WM_DISPLAYCHANGE:
      if (!canvas_.has_value() || !canvas_->FollowScreen()) MakeCanvas();
      PixelsChanged();
      return 0;
    case WM_SYSCOLORCHANGE:
      MakeCanvas();
      PixelsChanged();
      return 0;
    default:
      return NativeControl::HandleMessage(message, wparam, lparam);
  }
}

void DrawingPeer::Show() {
  PAINTSTRUCT paint{};
  HDC const device = BeginPaint(Window(), &paint);
  if (canvas_.has_value()) {
    BitBlt(device, 0, 0, canvas_->Width(), canvas_->Height(), canvas_->Device(), 0, 0, SRCCOPY);
  }
  EndPaint(Window(), &paint);
}

void DrawingPeer::PixelsChanged() { InvalidateRect(Window(), nullptr, FALSE); }

void DrawingPeer::BorderChanged() {
  constexpr LONG kBorder = WS_BORDER;
  constexpr LONG kEdge = WS_EX_CLIENTEDGE;
  SetWindowLongA(Window(), GWL_STYLE,
                 (GetWindowLongA(Window(), GWL_STYLE) & ~kBorder) | static_cast<LONG>(StyleOf(drawing_)));
  SetWindowLongA(
      Window(), GWL_EXSTYLE,
      (GetWindowLongA(Window(), GWL_EXSTYLE) & ~kEdge) | static_cast<LONG>(ExtendedStyleOf(drawing_)));
  const PixelBox box = OuterBox(Context(), drawing_);
  SetWindowPos(Window(), nullptr, 0, 0, box.width, box.height,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  MakeCanvas();
  PixelsChanged();
}

}  // namespace qdix::ui::win32
