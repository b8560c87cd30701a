// The pane that shows a topic: which part is in view, which link has the focus, which place of a word is
// marked. Complete without a window, but lays nothing out until it has a surface for measuring.
#pragma once

#include <string>
#include <vector>

#include "help_viewer/layout.h"
#include "ui/control.h"

namespace qdix::help_viewer {

class TopicPane final : public ui::Control {
 public:
  enum class Scroll : std::uint8_t {
    kLineUp,
    kLineDown,
    kPageUp,
    kPageDown,
    kTop,
    kBottom
  };

  TopicPane(ui::Container& parent, const ui::Design& design);

  /// Shows another topic from its beginning, without a marked place.
  void Show(Topic topic);
  [[nodiscard]] const Topic& Shown() const { return topic_; }

  /// The surface was made or changed its size; null when it goes away. Keeps the block at the top in place.
  void SurfaceChanged(os::TextDevice* device, int width_px, int height_px);
  [[nodiscard]] const Layout& TheLayout() const { return layout_; }
  [[nodiscard]] int Height() const { return height_px_; }

  /// Number of pixels of the topic above the upper edge of the pane. The maximum still fills the pane.
  [[nodiscard]] int ScrollPosition() const { return scroll_px_; }
  /// Scrolls to the nearest possible position.
  void ScrollTo(int position_px);
  void ScrollBy(Scroll step);
  /// Scrolls by lines of body text; negative is up.
  void ScrollLines(int lines);

  /// Returns the index of the link with the focus, or -1.
  [[nodiscard]] int FocusedLink() const { return focused_link_; }
  /// True if the Tab key (with Shift: backward) finds another link in the topic instead of leaving it.
  [[nodiscard]] bool HasNextLink(bool backward) const { return NextLink(backward) >= 0; }
  void FocusNextLink(bool backward);
  /// Returns the link at a position in the pane, or -1.
  [[nodiscard]] int LinkAt(int left_px, int top_px) const;
  /// The user pressed the mouse button on a link: gives it the focus.
  void FocusLink(int link);
  /// Follows a link, as a click does.
  void Follow(int link);
  /// Follows the link with the focus, if there is one.
  void PressEnter() override;

  /// Marks the first occurrence of a word and scrolls to it. Marks nothing if the word is empty or not in the
  /// topic.
  void Mark(std::string_view word);
  /// Marks the next occurrence; after the last one, the first.
  void MarkNext();
  /// Returns the word with the marked place; empty if nothing is marked.
  [[nodiscard]] const std::string& MarkedWord() const { return word_; }
  /// Returns the marked place, or null.
  [[nodiscard]] const Passage* Marked() const;

  /// The user asks to copy the topic.
  void Copy();

  /// A link was followed. Receives the number of the topic.
  base::Callback<base::Status(std::int32_t)> OnFollow;
  ui::Handler OnCopy;

 private:
  [[nodiscard]] int NextLink(bool backward) const;
  [[nodiscard]] int BodyLine() const;
  void LayOutAgain();
  void BringIntoView(int top_px, int height_px);
  void ShowMarked();
  void Changed();

  Topic topic_;
  Layout layout_;
  os::TextDevice* device_ = nullptr;
  int width_px_ = 0;
  int height_px_ = 0;
  int scroll_px_ = 0;
  int focused_link_ = -1;
  std::string word_;
  std::vector<Passage> places_;
  std::size_t marked_ = 0;
};

}  // namespace qdix::help_viewer
