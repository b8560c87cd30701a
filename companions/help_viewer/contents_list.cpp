#include "help_viewer/contents_list.h"

namespace qdix::help_viewer {

namespace {

/// The item data of a heading's row. Other rows have the index of their topic.
constexpr std::int32_t kHeadingRow = -1;
constexpr const char* kIndent = "    ";

}  // namespace

ContentsList::ContentsList(const Book& book, HelpScreen& screen, Reader& reader)
    : screen_(screen), reader_(reader) {
  screen_.lstContents.OnClick = ui::Handler::To<&ContentsList::lstContents_Click>(*this);
  screen_.lstContents.OnDoubleClick = ui::Handler::To<&ContentsList::lstContents_DblClick>(*this);
  Fill(book);
}

void ContentsList::Fill(const Book& book) {
  int section = -1;
  for (int index = 0; index < book.Count(); ++index) {
    const Book::Entry& entry = book.Entries()[static_cast<std::size_t>(index)];
    if (entry.section != section) {
      section = entry.section;
      screen_.lstContents.AddItem(book.Sections()[static_cast<std::size_t>(section)], kHeadingRow);
    }
    screen_.lstContents.AddItem((section < 0 ? "" : kIndent) + entry.title, index);
  }
}

void ContentsList::Follow() {
  int row = ui::ListBox::kNoSelection;
  for (int candidate = 0; candidate < screen_.lstContents.Count(); ++candidate) {
    const bool is_topic = screen_.lstContents.ItemData(candidate) != kHeadingRow;
    if (is_topic && screen_.lstContents.ItemData(candidate) == reader_.Current()) row = candidate;
  }
  // The row exists, and the handler finds its topic already shown.
  base::Ignore(screen_.lstContents.SetSelectedIndex(row));
}

base::Status ContentsList::lstContents_Click() {
  const int row = screen_.lstContents.SelectedIndex();
  const std::int32_t topic = screen_.lstContents.ItemData(row);
  if (topic != kHeadingRow && topic != reader_.Current()) reader_.Open(topic);
  return base::kDone;
}

base::Status ContentsList::lstContents_DblClick() {
  if (screen_.lstContents.ItemData(screen_.lstContents.SelectedIndex()) != kHeadingRow) {
    screen_.paneTopic.SetFocus();
  }
  return base::kDone;
}

}  // namespace qdix::help_viewer
