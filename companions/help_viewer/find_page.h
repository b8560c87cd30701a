// The field for a search word and the list of the topics that contain it.
#pragma once

#include "help_viewer/book.h"
#include "help_viewer/reader.h"

namespace qdix::help_viewer {

class FindPage {
 public:
  /// All must outlive this object.
  FindPage(const Book& book, HelpScreen& screen, Reader& reader);

  /// The word changed: lists the topics that contain it.
  base::Status txtWord_Change();
  /// Enter in the field: opens the first topic found.
  base::Status txtWord_Enter();
  /// Opens the selected topic at the first occurrence of the word. If it is already open, goes to the next
  /// occurrence.
  base::Status lstFound_DblClick();

 private:
  void OpenSelected();

  const Book& book_;
  HelpScreen& screen_;
  Reader& reader_;
};

}  // namespace qdix::help_viewer
