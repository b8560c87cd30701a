#include "help_viewer/find_page.h"

#include "base/numbers.h"
#include "base/text.h"
#include "help_viewer/search.h"

namespace qdix::help_viewer {

namespace {

constexpr const char* kNothingFound = "Topics found: none";

}  // namespace

FindPage::FindPage(const Book& book, HelpScreen& screen, Reader& reader)
    : book_(book), screen_(screen), reader_(reader) {
  screen_.txtWord.OnChange = ui::Handler::To<&FindPage::txtWord_Change>(*this);
  screen_.txtWord.OnEnter = ui::Handler::To<&FindPage::txtWord_Enter>(*this);
  screen_.lstFound.OnDoubleClick = ui::Handler::To<&FindPage::lstFound_DblClick>(*this);
}

base::Status FindPage::txtWord_Change() {
  const std::string_view word = base::Trim(screen_.txtWord.Text());
  const std::vector<int> found = FindInBook(book_, word);
  screen_.lstFound.Clear();
  for (const int index : found) {
    screen_.lstFound.AddItem(book_.Entries()[static_cast<std::size_t>(index)].title, index);
  }
  const std::string count = base::TextOf(static_cast<std::int32_t>(found.size()));
  screen_.lblFound.SetCaption(found.empty() ? std::string(word.empty() ? "Topics found:" : kNothingFound)
                                            : "Topics found: " + count);
  return base::kDone;
}

base::Status FindPage::txtWord_Enter() {
  if (screen_.lstFound.Count() == 0) return base::kDone;
  screen_.lstFound.SetFocus();
  base::Ignore(screen_.lstFound.SetSelectedIndex(0));  // there is a row
  OpenSelected();
  return base::kDone;
}

base::Status FindPage::lstFound_DblClick() {
  if (screen_.lstFound.SelectedIndex() != ui::ListBox::kNoSelection) OpenSelected();
  return base::kDone;
}

void FindPage::OpenSelected() {
  const std::int32_t topic = screen_.lstFound.ItemData(screen_.lstFound.SelectedIndex());
  const std::string word(base::Trim(screen_.txtWord.Text()));
  if (topic == reader_.Current() && screen_.paneTopic.MarkedWord() == word) {
    screen_.paneTopic.MarkNext();
    return;
  }
  reader_.Open(topic);
  screen_.paneTopic.Mark(word);
}

}  // namespace qdix::help_viewer
