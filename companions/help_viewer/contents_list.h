// The list of all topics under the headings of their sections.
#pragma once

#include "help_viewer/book.h"
#include "help_viewer/reader.h"

namespace qdix::help_viewer {

class ContentsList {
 public:
  /// All must outlive this object.
  ContentsList(const Book& book, HelpScreen& screen, Reader& reader);

  /// Selects the row of the topic that is shown; none for the page of all of them.
  void Follow();

  /// A row was selected: its topic is shown. A heading shows nothing new.
  base::Status lstContents_Click();
  /// Enter or a double click on a row: the keyboard goes to the topic, to scroll it.
  base::Status lstContents_DblClick();

 private:
  void Fill(const Book& book);

  HelpScreen& screen_;
  Reader& reader_;
};

}  // namespace qdix::help_viewer
