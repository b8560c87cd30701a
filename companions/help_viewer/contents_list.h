// The list of all topics below the headings of their sections.
#pragma once

#include "help_viewer/book.h"
#include "help_viewer/reader.h"

namespace qdix::help_viewer {

class ContentsList {
 public:
  /// All must outlive this object.
  ContentsList(const Book& book, HelpScreen& screen, Reader& reader);

  /// Selects the row of the current topic; none for the page that lists all topics.
  void Follow();

  /// A row was selected: shows its topic. A heading changes nothing.
  base::Status lstContents_Click();
  /// Enter or a double click on a row: moves the focus to the topic, so the keys scroll it.
  base::Status lstContents_DblClick();

 private:
  void Fill(const Book& book);

  HelpScreen& screen_;
  Reader& reader_;
};

}  // namespace qdix::help_viewer
