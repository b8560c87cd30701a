#include "ui/win32/range_peers.h"

#include <commctrl.h>

#include <algorithm>
#include <limits>

namespace qdix::ui::win32 {

namespace {

/// Maximum number of tick marks on a slider without steps (roughly: the division rounds down).
constexpr std::int64_t kMarkIntervals = 10;

std::int64_t MarkDistance(const SliderRange& range) {
  if (range.step > 1) return range.step;
  const std::int64_t span = std::int64_t{range.maximum} - range.minimum;
  return std::max<std::int64_t>(1, span / kMarkIntervals);
}

/// Returns the distance between two values, clamped to an int.
int Distance(std::int64_t from, std::int64_t to) {
  const std::int64_t distance = from < to ? to - from : from - to;
  return static_cast<int>(std::min<std::int64_t>(distance, std::numeric_limits<int>::max()));
}

}  // namespace

ScrollBarPeer::ScrollBarPeer(const PeerContext& context, VerticalScrollBar& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = "SCROLLBAR",
                     .style = WS_TABSTOP | SBS_VERT,
                     .box = context.font.Pixels(model.GetPlace())}),
      bar_(model) {
  RangeChanged();
}

void ScrollBarPeer::OnScroll(UINT code) {
  switch (code) {
    case SB_LINEUP:
      bar_.Step(-1);
      break;
    case SB_LINEDOWN:
      bar_.Step(1);
      break;
    case SB_PAGEUP:
      bar_.Page(-1);
      break;
    case SB_PAGEDOWN:
      bar_.Page(1);
      break;
    case SB_TOP:
      bar_.Drag(bar_.Minimum());
      break;
    case SB_BOTTOM:
      bar_.Drag(bar_.Maximum());
      break;
    case SB_THUMBTRACK:
      DragToThumb();
      break;
    default:
      return;
  }
  ValueChanged();  // the model may have kept its value
}

/// The position in the message has only 16 bits, so asks the bar for it.
void ScrollBarPeer::DragToThumb() {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_TRACKPOS;
  if (GetScrollInfo(Window(), SB_CTL, &info) == 0) return;
  const std::int64_t toward_bottom =
      bar_.Minimum() <= bar_.Maximum() ? info.nTrackPos : -std::int64_t{info.nTrackPos};
  bar_.Drag(static_cast<std::int32_t>(bar_.Minimum() + toward_bottom));
}

void ScrollBarPeer::ValueChanged() {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_POS;
  info.nPos = Distance(bar_.Minimum(), bar_.Value());
  SetScrollInfo(Window(), SB_CTL, &info, TRUE);
}

void ScrollBarPeer::RangeChanged() {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE;
  info.nMax = Distance(bar_.Minimum(), bar_.Maximum());
  SetScrollInfo(Window(), SB_CTL, &info, TRUE);
  // Setting a range makes the arrows of a disabled bar look enabled.
  if (IsWindowEnabled(Window()) == 0) EnableScrollBar(Window(), SB_CTL, ESB_DISABLE_BOTH);
  ValueChanged();
}

SliderPeer::SliderPeer(const PeerContext& context, Slider& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = TRACKBAR_CLASSA,
                     .style = WS_TABSTOP | TBS_HORZ,
                     .box = context.font.Pixels(model.GetPlace())}),
      slider_(model) {
  RangeChanged();
}

void SliderPeer::OnScroll(UINT /*code*/) {
  slider_.Drag(static_cast<std::int32_t>(Send(TBM_GETPOS)));
  ValueChanged();  // the model may have kept its value
}

void SliderPeer::ValueChanged() {
  if (Send(TBM_GETPOS) != slider_.Value()) Send(TBM_SETPOS, TRUE, slider_.Value());
}

void SliderPeer::RangeChanged() {
  Send(TBM_SETRANGEMIN, FALSE, slider_.Minimum());
  Send(TBM_SETRANGEMAX, TRUE, slider_.Maximum());
  Send(TBM_SETLINESIZE, 0, slider_.Range().small_change);
  Send(TBM_SETPAGESIZE, 0, slider_.Range().large_change);
  SetMarks();
  ValueChanged();
}

/// Sets the marks one by one, because the control counts the distance of its automatic marks in 16 bits. The
/// control draws a mark at both ends itself.
void SliderPeer::SetMarks() {
  const std::int64_t distance = MarkDistance(slider_.Range());
  Send(TBM_CLEARTICS, TRUE);
  for (std::int64_t mark = slider_.Minimum() + distance; mark < slider_.Maximum(); mark += distance) {
    Send(TBM_SETTIC, 0, static_cast<LPARAM>(mark));
  }
}

}  // namespace qdix::ui::win32
