// The pane that shows a topic: which part of it is in view, which link has the keyboard, which place of a
// word is marked. Complete without a window, but lays nothing out before it has a surface to measure for.
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

  /// Another topic, from its beginning, without a marked place.
  void Show(Topic topic);
  [[nodiscard]] const Topic& Shown() const { return topic_; }

  /// The surface was made or has another size; null when it goes. The block at the top stays there.
  void SurfaceChanged(os::TextDevice* device, int width_px, int height_px);
  [[nodiscard]] const Layout& TheLayout() const { return layout_; }
  [[nodiscard]] int Height() const { return height_px_; }

  /// Pixels of the topic above the upper edge of the pane: 0 to what keeps the pane filled.
  [[nodiscard]] int ScrollPosition() const { return scroll_px_; }
  /// The nearest possible one.
  void ScrollTo(int position_px);
  void ScrollBy(Scroll step);
  /// Lines of body text, upwards where negative.
  void ScrollLines(int lines);

  /// Index of the link with the keyboard, or -1.
  [[nodiscard]] int FocusedLink() const { return focused_link_; }
  /// True where the Tab key (with Shift: backward) finds one more link in the topic, and does not leave it.
  [[nodiscard]] bool HasNextLink(bool backward) const { return NextLink(backward) >= 0; }
  void FocusNextLink(bool backward);
  /// The link at a place of the pane, or -1.
  [[nodiscard]] int LinkAt(int left_px, int top_px) const;
  /// The user's pointer went down on a link: it gets the keyboard.
  void FocusLink(int link);
  /// Follows a link, as a click on it does.
  void Follow(int link);
  /// Follows the link with the keyboard, if there is one.
  void PressEnter() override;

  /// Marks the first place of a word, and scrolls to it. A word that the topic does not have, and an empty
  /// one, marks nothing.
  void Mark(std::string_view word);
  /// Marks the next place; after the last one the first.
  void MarkNext();
  /// The word that a place is marked of; empty without one.
  [[nodiscard]] const std::string& MarkedWord() const { return word_; }
  /// The marked place, or null.
  [[nodiscard]] const Passage* Marked() const;

  /// The user asks for a copy of the topic.
  void Copy();

  /// A link was followed; gets the number of the topic.
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
