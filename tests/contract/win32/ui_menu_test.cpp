// Menus of the model as native pop-up menus.
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"
#include "ui/menu.h"
#include "ui/win32/popup_menu.h"

namespace qdix::contract {
namespace {

struct DemoMenu {
  explicit DemoMenu(ui::EventDispatcher& events) : root(events, "root", "Root") {}
  ui::MenuItem root;
  ui::MenuItem first{root, "first", "Save & go"};
  ui::MenuItem bar{root, "bar", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem second{root, "second", "Second"};
  ui::MenuItem more{root, "more", "More"};
  ui::MenuItem inner{more, "inner", "Inner"};
};

std::string ItemText(HMENU menu, int position) {
  std::array<char, 64> text{};
  GetMenuStringA(menu, static_cast<UINT>(position), text.data(), static_cast<int>(text.size()),
                 MF_BYPOSITION);
  return text.data();
}

TEST(PopUpMenu, ShowsEntriesInOrderWithStateDefaultAndSubmenu) {
  ui::EventDispatcher events;
  DemoMenu menu(events);
  menu.second.SetEnabled(false);
  menu.first.SetDefault(true);
  const ui::win32::PopUpMenu native(menu.root);
  ASSERT_EQ(GetMenuItemCount(native.Handle()), 4);
  EXPECT_EQ(ItemText(native.Handle(), 0), "Save && go");
  EXPECT_NE(GetMenuState(native.Handle(), 1, MF_BYPOSITION) & MF_SEPARATOR, 0U);
  EXPECT_NE(GetMenuState(native.Handle(), 2, MF_BYPOSITION) & MF_GRAYED, 0U);
  EXPECT_EQ(GetMenuDefaultItem(native.Handle(), TRUE, 0), 0U);
  EXPECT_EQ(ItemText(GetSubMenu(native.Handle(), 3), 0), "Inner");
}

TEST(PopUpMenu, LeavesHiddenEntriesOut) {
  ui::EventDispatcher events;
  DemoMenu menu(events);
  ASSERT_TRUE(menu.second.SetVisible(false).Ok());
  ASSERT_TRUE(menu.bar.SetVisible(false).Ok());
  const ui::win32::PopUpMenu native(menu.root);
  EXPECT_EQ(GetMenuItemCount(native.Handle()), 2);
  EXPECT_EQ(ItemText(native.Handle(), 1), "More");
}

TEST(PopUpMenu, DisappearsWithItsObject) {
  ui::EventDispatcher events;
  const DemoMenu menu(events);
  HMENU handle = nullptr;
  HMENU submenu = nullptr;
  {
    const ui::win32::PopUpMenu native(menu.root);
    handle = native.Handle();
    submenu = GetSubMenu(handle, 3);
    EXPECT_TRUE(IsMenu(submenu));
  }
  EXPECT_FALSE(IsMenu(handle));
  EXPECT_FALSE(IsMenu(submenu));
}

/// Acts on the open menu as a user does, from a timer of the form.
struct Hand {
  DemoWindow& demo;
  std::vector<WPARAM> keys;
  bool unload = false;

  base::Status Act() {
    demo.timer.SetEnabled(false);
    if (unload) {
      demo.form.Unload();
      return base::kDone;
    }
    for (const WPARAM key : keys) PostMessageA(demo.Main(), WM_KEYDOWN, key, 1);
    return base::kDone;
  }

  void ActSoon() {
    demo.timer.OnTimer = ui::Handler::To<&Hand::Act>(*this);
    base::Ignore(demo.timer.SetInterval(50));
    demo.timer.SetEnabled(true);
  }
};

TEST(PopUpMenu, ChosenEntryRunsAfterTheMenuHasClosed) {
  DemoWindow demo;
  demo.form.Show();
  DemoMenu menu(demo.events);
  EventCount first;
  EventCount second;
  menu.first.OnClick = first.AsHandler();
  menu.second.OnClick = second.AsHandler();
  Hand hand{demo, {VK_DOWN, VK_DOWN, VK_RETURN}};
  hand.ActSoon();
  demo.form.PopUpMenu(menu.root);
  EXPECT_EQ(first.Count(), 0);
  EXPECT_EQ(second.Count(), 1);
}

TEST(PopUpMenu, EscapeChoosesNothingAndTheMenuOpensAgain) {
  DemoWindow demo;
  demo.form.Show();
  DemoMenu menu(demo.events);
  EventCount first;
  menu.first.OnClick = first.AsHandler();
  Hand hand{demo, {VK_ESCAPE}};
  hand.ActSoon();
  demo.form.PopUpMenu(menu.root);
  EXPECT_EQ(first.Count(), 0);
  hand.keys = {VK_DOWN, VK_RETURN};
  hand.ActSoon();
  demo.form.PopUpMenu(menu.root);
  EXPECT_EQ(first.Count(), 1);
}

/// Asks for a menu while one is open, then closes the open one.
struct SecondAsker {
  DemoWindow& demo;
  ui::MenuItem& menu;

  base::Status Act() {
    demo.timer.SetEnabled(false);
    demo.form.PopUpMenu(menu);  // would never return if it opened
    PostMessageA(demo.Main(), WM_KEYDOWN, VK_ESCAPE, 1);
    return base::kDone;
  }
};

TEST(PopUpMenu, SecondMenuDoesNotOpenOverTheFirst) {
  DemoWindow demo;
  demo.form.Show();
  DemoMenu menu(demo.events);
  SecondAsker asker{demo, menu.root};
  demo.timer.OnTimer = ui::Handler::To<&SecondAsker::Act>(asker);
  ASSERT_TRUE(demo.timer.SetInterval(50).Ok());
  demo.timer.SetEnabled(true);
  demo.form.PopUpMenu(menu.root);
  EXPECT_FALSE(demo.timer.Enabled()) << "the user acted while the menu was open";
}

TEST(PopUpMenu, ClosesWhenTheFormUnloads) {
  DemoWindow demo;
  demo.form.Show();
  DemoMenu menu(demo.events);
  Hand hand{demo, {}, true};
  hand.ActSoon();
  demo.form.PopUpMenu(menu.root);  // would never return
  EXPECT_TRUE(demo.form.Unloaded());
}

}  // namespace
}  // namespace qdix::contract
