// Which topic is shown, and the way back to those before it.
#pragma once

#include <vector>

#include "help_viewer/book.h"
#include "help_viewer/help_screen.h"

namespace qdix::help_viewer {

class Reader {
 public:
  /// Both must outlive this object.
  Reader(const Book& book, HelpScreen& screen);

  /// Index of the topic that is shown, or kContentsPage.
  [[nodiscard]] int Current() const { return current_; }
  /// The first topic: there is no way back from it.
  void Begin(int index) { Show(index); }
  /// Shows a topic, or the page of all of them. The one that is shown already is shown from its beginning.
  void Open(int index);

  /// "Back". The keyboard goes to the topic, to scroll it.
  base::Status cmdBack_Click();

  /// Another topic is shown.
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
