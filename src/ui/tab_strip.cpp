#include "ui/tab_strip.h"

#include "ui/form.h"

namespace qdix::ui {

TabPage::TabPage(TabStrip& strip, const Design& design)
    : Container(&strip, Kind::kTabPage, design), strip_(strip), index_(strip.Count()) {}

bool TabPage::Open() const { return strip_.Tab() == index_; }

TabStrip::TabStrip(Container& parent, const Design& design, std::span<const Design> pages)
    : Container(&parent, Kind::kTabStrip, design) {
  for (const Design& page : pages) pages_.push_back(std::make_unique<TabPage>(*this, page));
}

base::Status TabStrip::SetTab(int index) {
  if (index < 0 || index >= Count()) return base::kInvalidPropertyValue;
  if (tab_ == index) return base::kDone;
  const int left = tab_;
  tab_ = index;
  Notify(Change::kValue);
  GetForm().DropUnreachableFocus();
  Events().Run(OnClick, left);
  return base::kDone;
}

void TabStrip::ChooseTab(int index) {
  if (!Reachable() || index == tab_ || index < 0 || index >= Count()) return;
  if (!GetForm().MoveFocus(this)) {
    Notify(Change::kValue);  // the window may have switched already; switch it back
    return;
  }
  base::Ignore(SetTab(index));  // the page exists
}

}  // namespace qdix::ui
