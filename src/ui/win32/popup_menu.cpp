#include "ui/win32/popup_menu.h"

#include "ui/access_key.h"

namespace qdix::ui::win32 {

PopUpMenu::PopUpMenu(const MenuItem& root) : menu_(MakeLevel(root)) {}

OwnedMenu PopUpMenu::MakeLevel(const MenuItem& parent) {
  OwnedMenu menu(CreatePopupMenu());
  for (MenuItem* entry : parent.Children()) {
    if (entry->Visible()) Append(menu.get(), *entry);
  }
  return menu;
}

void PopUpMenu::Append(HMENU menu, MenuItem& entry) {
  if (entry.IsSeparator()) {
    AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
    return;
  }
  const UINT state = entry.Enabled() ? MF_ENABLED : MF_GRAYED;
  const std::string caption = MarkAccessKey(entry.Caption(), 0);
  if (!entry.Children().empty()) {
    OwnedMenu submenu = MakeLevel(entry);
    if (GetMenuItemCount(submenu.get()) <= 0) return;
    // The menu owns a submenu that was appended to it.
    if (AppendMenuA(menu, MF_POPUP | state, reinterpret_cast<UINT_PTR>(submenu.get()), caption.c_str()) !=
        0) {
      static_cast<void>(submenu.release());
    }
    return;
  }
  commands_.push_back(&entry);
  AppendMenuA(menu, MF_STRING | state, commands_.size(), caption.c_str());
  if (entry.IsDefault()) SetMenuDefaultItem(menu, static_cast<UINT>(commands_.size()), FALSE);
}

MenuItem* PopUpMenu::Track(HWND main) const {
  POINT pointer{};
  GetCursorPos(&pointer);
  // If its window were in the background, the menu would not close when the user clicks elsewhere. The
  // message posted afterwards lets the next menu open.
  SetForegroundWindow(main);
  const auto command = static_cast<std::size_t>(
      TrackPopupMenu(menu_.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, pointer.x, pointer.y, 0, main, nullptr));
  PostMessageA(main, WM_NULL, 0, 0);
  return command >= 1 && command <= commands_.size() ? commands_[command - 1] : nullptr;
}

}  // namespace qdix::ui::win32
