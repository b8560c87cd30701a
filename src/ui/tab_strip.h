// A strip of tabs with one page each; one page is open.
#pragma once

#include <memory>
#include <span>

#include "ui/control.h"

namespace qdix::ui {

class TabStrip;

class TabPage final : public Container {
 public:
  TabPage(TabStrip& strip, const Design& design);
  [[nodiscard]] int Index() const { return index_; }
  [[nodiscard]] bool Open() const;

 private:
  TabStrip& strip_;
  int index_;
};

class TabStrip final : public Container {
 public:
  /// Makes one page per design, in this order.
  TabStrip(Container& parent, const Design& design, std::span<const Design> pages);

  [[nodiscard]] int Count() const { return static_cast<int>(pages_.size()); }
  [[nodiscard]] TabPage& Page(int index) const { return *pages_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] int Tab() const { return tab_; }

  /// Opens a page. If another was open, fires OnClick with the index of that page. A page that does not exist
  /// returns error 380.
  base::Status SetTab(int index);

  /// The user opens a page. The control with the focus loses it first; its validation may refuse, and then
  /// the page stays. Does nothing if the strip is unreachable or there is no such page.
  void ChooseTab(int index);

  base::Callback<base::Status(int)> OnClick;

 private:
  std::vector<std::unique_ptr<TabPage>> pages_;
  int tab_ = 0;
};

}  // namespace qdix::ui
