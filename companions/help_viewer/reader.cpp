#include "help_viewer/reader.h"

namespace qdix::help_viewer {

namespace {

/// Maximum number of steps that "Back" remembers.
constexpr std::size_t kMaxVisits = 50;

}  // namespace

Reader::Reader(const Book& book, HelpScreen& screen) : book_(book), screen_(screen) {
  screen_.cmdBack.OnClick = ui::Handler::To<&Reader::cmdBack_Click>(*this);
  screen_.paneTopic.OnFollow = base::Callback<base::Status(std::int32_t)>::To<&Reader::Follow>(*this);
}

void Reader::Open(int index) {
  if (index == current_) {
    screen_.paneTopic.ScrollTo(0);
    return;
  }
  if (visits_.size() == kMaxVisits) visits_.erase(visits_.begin());
  visits_.push_back({current_, screen_.paneTopic.ScrollPosition()});
  Show(index);
}

base::Status Reader::Follow(std::int32_t number) {
  Open(book_.IndexOf(number));
  return base::kDone;
}

base::Status Reader::cmdBack_Click() {
  if (visits_.empty()) return base::kDone;
  const Visit visit = visits_.back();
  visits_.pop_back();
  // Before the button can be disabled, which would leave nothing with the focus.
  screen_.paneTopic.SetFocus();
  Show(visit.index);
  screen_.paneTopic.ScrollTo(visit.scroll_px);
  return base::kDone;
}

void Reader::Show(int index) {
  current_ = index;
  screen_.paneTopic.Show(book_.Read(index));
  screen_.cmdBack.SetEnabled(!visits_.empty());
  if (OnOpened) OnOpened();
}

}  // namespace qdix::help_viewer
