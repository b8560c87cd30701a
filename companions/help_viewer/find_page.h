// The field for a word and the list of the topics that have it.
#pragma once

#include "help_viewer/book.h"
#include "help_viewer/reader.h"

namespace qdix::help_viewer {

class FindPage {
 public:
  /// All must outlive this object.
  FindPage(const Book& book, HelpScreen& screen, Reader& reader);

  /// The word was changed: lists the topics that have it.
  base::Status txtWord_Change();
  /// Enter in the field: opens the first of them.
  base::Status txtWord_Enter();
  /// Opens the selected topic at the first place of the word; the one that is open goes to the next place.
  base::Status lstFound_DblClick();

 private:
  void OpenSelected();

  const Book& book_;
  HelpScreen& screen_;
  Reader& reader_;
};

}  // namespace qdix::help_viewer
