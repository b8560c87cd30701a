#include "help_viewer/topic_pane.h"

#include <algorithm>

#include "help_viewer/search.h"

namespace qdix::help_viewer {

TopicPane::TopicPane(ui::Container& parent, const ui::Design& design)
    : Control(&parent, ui::Kind::kOwn, design) {
  SetBackColour(ui::kWindowBackground);
}

void TopicPane::Show(Topic topic) {
  // The pieces point into the topic, so delete them first.
  layout_ = {};
  topic_ = std::move(topic);
  places_.clear();
  word_.clear();
  marked_ = 0;
  focused_link_ = -1;
  scroll_px_ = 0;
  LayOutAgain();
}

void TopicPane::SurfaceChanged(os::TextDevice* device, int width_px, int height_px) {
  if (device == device_ && width_px == width_px_) {
    height_px_ = height_px;
    ScrollTo(scroll_px_);
    Changed();
    return;
  }
  // Remember the first line that is completely in view, to scroll back to its block.
  const auto top = std::find_if(layout_.lines.begin(), layout_.lines.end(),
                                [this](const Line& line) { return line.top >= scroll_px_; });
  const bool was_at_top = scroll_px_ == 0 || top == layout_.lines.end();
  const std::size_t block = was_at_top ? 0 : top->block;
  device_ = device;
  width_px_ = width_px;
  height_px_ = height_px;
  LayOutAgain();
  if (was_at_top) return;
  const auto same = std::find_if(layout_.lines.begin(), layout_.lines.end(),
                                 [block](const Line& line) { return line.block == block; });
  if (same != layout_.lines.end()) ScrollTo(same->top);
}

void TopicPane::LayOutAgain() {
  layout_ = device_ == nullptr ? Layout{} : LayOut(topic_, *device_, width_px_, BodyLine() / 2);
  scroll_px_ = std::clamp(scroll_px_, 0, std::max(layout_.height - height_px_, 0));
  Changed();
}

int TopicPane::BodyLine() const {
  return device_ == nullptr ? 1 : std::max(device_->GetTextMetricsA(kBodyLook).line_px, 1);
}

void TopicPane::Changed() { Notify(ui::Change::kValue); }

void TopicPane::ScrollTo(int position_px) {
  const int nearest = std::clamp(position_px, 0, std::max(layout_.height - height_px_, 0));
  if (nearest == scroll_px_) return;
  scroll_px_ = nearest;
  Changed();
}

void TopicPane::ScrollBy(Scroll step) {
  // Keep one line of the previous page in view.
  const int page_px = std::max(height_px_ - BodyLine(), BodyLine());
  switch (step) {
    case Scroll::kLineUp:
      return ScrollLines(-1);
    case Scroll::kLineDown:
      return ScrollLines(1);
    case Scroll::kPageUp:
      return ScrollTo(scroll_px_ - page_px);
    case Scroll::kPageDown:
      return ScrollTo(scroll_px_ + page_px);
    case Scroll::kTop:
      return ScrollTo(0);
    case Scroll::kBottom:
      return ScrollTo(layout_.height);
  }
}

void TopicPane::ScrollLines(int lines) { ScrollTo(scroll_px_ + lines * BodyLine()); }

/// If no link has the focus, returns the first (or last) link in view; if none is in view, the nearest one in
/// that direction.
int TopicPane::NextLink(bool backward) const {
  const int count = static_cast<int>(layout_.links.size());
  if (focused_link_ >= 0) {
    const int next = focused_link_ + (backward ? -1 : 1);
    return next < count ? next : -1;
  }
  int next = backward ? count - 1 : 0;
  while (next >= 0 && next < count) {
    const LinkTarget& link = layout_.links[static_cast<std::size_t>(next)];
    const bool is_before_edge =
        backward ? link.top >= scroll_px_ + height_px_ : link.top + link.height <= scroll_px_;
    if (!is_before_edge) return next;
    next += backward ? -1 : 1;
  }
  return -1;
}

void TopicPane::FocusNextLink(bool backward) {
  const int next = NextLink(backward);
  if (next < 0) return;
  FocusLink(next);
  const LinkTarget& link = layout_.links[static_cast<std::size_t>(next)];
  BringIntoView(link.top, link.height);
}

void TopicPane::FocusLink(int link) {
  if (link == focused_link_) return;
  focused_link_ = link;
  Changed();
}

int TopicPane::LinkAt(int left_px, int top_px) const {
  const int top = top_px + scroll_px_;
  for (const Piece& piece : layout_.pieces) {
    if (piece.link >= 0 && left_px >= piece.left && left_px < piece.left + piece.width && top >= piece.top &&
        top < piece.top + piece.height) {
      return piece.link;
    }
  }
  return -1;
}

void TopicPane::Follow(int link) {
  if (!Reachable() || link < 0 || link >= static_cast<int>(layout_.links.size())) return;
  // The handler shows another topic, which changes the links.
  const std::int32_t number = layout_.links[static_cast<std::size_t>(link)].number;
  Events().Run(OnFollow, number);
}

void TopicPane::PressEnter() { Follow(focused_link_); }

void TopicPane::Mark(std::string_view word) {
  places_ = FindInTopic(topic_, word);
  word_ = places_.empty() ? std::string_view() : word;
  marked_ = 0;
  ShowMarked();
}

void TopicPane::MarkNext() {
  if (places_.empty()) return;
  marked_ = (marked_ + 1) % places_.size();
  ShowMarked();
}

const Passage* TopicPane::Marked() const { return places_.empty() ? nullptr : &places_[marked_]; }

void TopicPane::ShowMarked() {
  Changed();
  const Passage* const place = Marked();
  if (place == nullptr) return;
  const auto piece = std::find_if(layout_.pieces.begin(), layout_.pieces.end(), [place](const Piece& one) {
    return one.source.block == place->block && one.source.cell == place->cell &&
           one.source.begin + one.source.length > place->begin;
  });
  if (piece != layout_.pieces.end()) BringIntoView(piece->top, piece->height);
}

void TopicPane::BringIntoView(int top_px, int height_px) {
  if (top_px + height_px > scroll_px_ + height_px_) ScrollTo(top_px + height_px - height_px_ + BodyLine());
  if (top_px < scroll_px_) ScrollTo(top_px - BodyLine());
}

void TopicPane::Copy() {
  if (Reachable()) Events().Run(OnCopy);
}

}  // namespace qdix::help_viewer
