// Menus and their entries. A menu is a tree; a pop-up menu is shown by the form.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control_name.h"
#include "ui/event.h"

namespace qdix::ui {

/// An entry, a separator or a submenu. An "&" in a caption is displayed as it is.
class MenuItem {
 public:
  /// Makes a root menu. Its entries are made in order with it as their parent.
  MenuItem(EventDispatcher& events, ControlName name, std::string_view caption);
  MenuItem(MenuItem& parent, ControlName name, std::string_view caption);
  static constexpr std::string_view kSeparatorCaption = "-";

  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;
  ~MenuItem() = default;

  [[nodiscard]] std::string_view Name() const { return name_.Text(); }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  [[nodiscard]] bool IsSeparator() const { return caption_ == kSeparatorCaption; }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  [[nodiscard]] bool Visible() const { return visible_; }
  [[nodiscard]] bool IsDefault() const { return is_default_; }
  [[nodiscard]] const std::vector<MenuItem*>& Children() const { return children_; }

  void SetCaption(std::string_view caption) { caption_ = caption; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }
  /// The last visible entry of a submenu cannot be hidden: returns error 387 and changes nothing.
  base::Status SetVisible(bool visible);
  /// Marks the entry that a double click on the tray icon chooses. Windows shows it in bold.
  void SetDefault(bool is_default) { is_default_ = is_default; }

  /// The user chooses the entry. Does nothing for a separator or a submenu, or if the entry or a menu above
  /// it is disabled or hidden.
  void Choose();

  Handler OnClick;

 private:
  [[nodiscard]] bool Reachable() const;

  [[no_unique_address]] ControlName name_;
  EventDispatcher& events_;
  MenuItem* parent_;
  std::string caption_;
  std::vector<MenuItem*> children_;
  bool enabled_ = true;
  bool visible_ = true;
  bool is_default_ = false;
};

/// Consecutive entries of a menu that share a name and differ in their number.
class MenuItemArray {
 public:
  MenuItemArray(MenuItem& parent, ControlName name, int count);

  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  /// Entries count from 0.
  [[nodiscard]] MenuItem& operator[](int index) const { return *items_[static_cast<std::size_t>(index)]; }

 private:
  std::vector<std::unique_ptr<MenuItem>> items_;
};

}  // namespace qdix::ui
