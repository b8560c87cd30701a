// Knows the current topic and the way back to the previous ones.
#pragma once

#include <vector>

#include "help_viewer/book.h"
#include "help_viewer/help_screen.h"

namespace qdix::help_viewer {

class Reader {
 public:
  /// Both must outlive this object.
  Reader(const Book& book, HelpScreen& screen);

  /// Returns the index of the current topic, or kContentsPage.
  [[nodiscard]] int Current() const { return current_; }
  /// Shows the first topic. There is no way back from it.
  void Begin(int index) { Show(index); }
  /// Shows a topic, or the page that lists all topics. Scrolls to the top if it is already shown.
  void Open(int index);

  /// "Back". Moves the focus to the topic, so the keys scroll it.
  base::Status cmdBack_Click();

  /// A different topic is shown.
  base::Callback<void()> OnOpened;

 private:
  struct Visit {
    int index;
    int scroll_px;
  };

  base::Status Follow(std::int32_t number);
  void Show(int index);

  const Book& book_;
  HelpScreen& screen_;
  std::vector<Visit> visits_;
  int current_ = kContentsPage;
};

}  // namespace qdix::help_viewer
