// Shows a menu of the model as a native pop-up menu. Each object shows its menu once.
#pragma once

#include <vector>

#include "ui/menu.h"
#include "ui/win32/owned.h"

namespace qdix::ui::win32 {

class PopUpMenu {
 public:
  /// Leaves out hidden entries and empty submenus.
  explicit PopUpMenu(const MenuItem& root);

  /// Shows the menu at the pointer and returns the entry that the user chose, or null. `main` has the
  /// keyboard while the menu is open.
  [[nodiscard]] MenuItem* Track(HWND main) const;

  [[nodiscard]] HMENU Handle() const { return menu_.get(); }

 private:
  OwnedMenu MakeLevel(const MenuItem& parent);
  void Append(HMENU menu, MenuItem& entry);

  /// The entries by command number, from 1.
  std::vector<MenuItem*> commands_;
  OwnedMenu menu_;
};

}  // namespace qdix::ui::win32
