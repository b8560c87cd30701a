// Wine keeps menus in the process that created them and tells another process nothing about them. So the
// process itself is made to read them.
#include "tests/e2e/driver/popup_menu.h"

#include "tests/e2e/driver/inside_process.h"
#include "tests/e2e/driver/native_windows.h"

namespace qdix::e2e {

namespace {

constexpr UINT kAskForMenu = 0x01E1;
constexpr std::uint32_t kLongestEntry = 128;

class ForeignMenu {
 public:
  ForeignMenu(HANDLE process, std::uint32_t menu) : process_(process), menu_(menu), text_(process) {}
  ForeignMenu(const ForeignMenu&) = delete;
  ForeignMenu& operator=(const ForeignMenu&) = delete;
  ~ForeignMenu() { text_.Free(); }

  [[nodiscard]] int Count() const { return AskFor("GetMenuItemCount", {menu_}); }
  [[nodiscard]] int DefaultIndex() const { return AskFor("GetMenuDefaultItem", {menu_, TRUE, 0}); }
  [[nodiscard]] bool IsDisabled(int index) const { return (State(index) & (MF_GRAYED | MF_DISABLED)) != 0; }
  [[nodiscard]] std::string Entry(int index) const {
    const auto place = static_cast<std::uint32_t>(index);
    // For an entry with a submenu, the upper byte is the number of the submenu's entries.
    if ((State(index) & (MF_SEPARATOR | MF_POPUP)) == MF_SEPARATOR) return kSeparator;
    const int length = AskFor("GetMenuStringA", {menu_, place, text_.At(0), kLongestEntry, MF_BYPOSITION});
    return length > 0 ? text_.ReadText(0) : std::string();
  }

 private:
  [[nodiscard]] int State(int index) const {
    return AskFor("GetMenuState", {menu_, static_cast<std::uint32_t>(index), MF_BYPOSITION});
  }
  [[nodiscard]] int AskFor(const char* function, const std::vector<std::uint32_t>& arguments) const {
    const auto answer = CallInside(process_, SystemFunction("user32.dll", function), arguments);
    return static_cast<int>(answer.value_or(0));
  }

  HANDLE process_;
  std::uint32_t menu_;
  ForeignPage text_;
};

}  // namespace

MenuText ReadMenu(HANDLE process, HWND menu_window) {
  const ForeignMenu menu(process, static_cast<std::uint32_t>(Ask(menu_window, kAskForMenu)));
  MenuText text;
  for (int index = 0; index < menu.Count(); ++index) {
    text.entries.push_back(menu.Entry(index));
    if (menu.IsDisabled(index) && text.entries.back() != kSeparator)
      text.disabled_entries.push_back(text.entries.back());
  }
  const int default_index = menu.DefaultIndex();
  if (default_index >= 0 && default_index < menu.Count()) {
    text.default_entry = text.entries[static_cast<std::size_t>(default_index)];
  }
  return text;
}

}  // namespace qdix::e2e
