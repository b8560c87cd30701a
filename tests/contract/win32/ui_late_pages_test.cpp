// Tab pages whose windows are created when the page is first shown: for each kind of control they show the
// earlier changes of their models.
#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"

namespace qdix::contract {
namespace {

/// The page with the drawings is open; the two others have no windows yet.
class UiLatePages : public testing::Test {
 protected:
  UiLatePages() {
    EXPECT_TRUE(demo.tabs.SetTab(2).Ok());
    demo.form.Show();
  }

  void OpenPage(int index) { ASSERT_TRUE(demo.tabs.SetTab(index).Ok()); }
  [[nodiscard]] bool HasStyle(const ui::Control& control, DWORD style) const {
    return (GetWindowLongA(demo.Native(control), GWL_STYLE) & static_cast<LONG>(style)) != 0;
  }
  /// Returns the controls of a page from front to back, which is the order of the Tab key.
  [[nodiscard]] std::vector<int> NumbersInOrder(int page) const {
    std::vector<int> numbers;
    HWND window = GetWindow(demo.Native(demo.tabs.Page(page)), GW_CHILD);
    for (; window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
      numbers.push_back(GetDlgCtrlID(window));
    }
    return numbers;
  }

  DemoWindow demo;
  EventCount events;
};

/// Returns the control numbers of a page, from the first to the last.
std::vector<int> Numbers(int first, int last) {
  std::vector<int> numbers;
  for (int number = first; number <= last; ++number) numbers.push_back(number);
  return numbers;
}

TEST_F(UiLatePages, WindowsAreCreatedWhenTheirPageIsOpenedAndStay) {
  EXPECT_NE(demo.Native(demo.tabs.Page(0)), nullptr) << "the pages themselves exist";
  EXPECT_EQ(demo.Native(demo.go), nullptr);
  EXPECT_EQ(demo.Native(demo.list), nullptr);
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.sunken)));
  OpenPage(0);
  HWND const go = demo.Native(demo.go);
  EXPECT_TRUE(IsWindowVisible(go));
  EXPECT_EQ(demo.Native(demo.list), nullptr);
  OpenPage(1);
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.list)));
  OpenPage(0);
  EXPECT_EQ(demo.Native(demo.go), go);
  EXPECT_EQ(NumbersInOrder(0),
            Numbers(ui::NumberOf(demo.form, demo.frame), ui::NumberOf(demo.form, demo.picture)));
  EXPECT_EQ(NumbersInOrder(1),
            Numbers(ui::NumberOf(demo.form, demo.list), ui::NumberOf(demo.form, demo.stepped)));
}

TEST_F(UiLatePages, PageOpenedWhileTheFormIsHiddenWaitsUntilItIsShown) {
  demo.form.Hide();
  OpenPage(1);
  EXPECT_EQ(demo.Native(demo.list), nullptr);
  demo.form.Show();
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.list)));
}

TEST(UiLatePagesOfAHiddenForm, DrawingsHaveTheirSurfaceAndPicture) {
  DemoWindow demo;
  EXPECT_EQ(demo.Native(demo.go), nullptr);
  ASSERT_NE(demo.sunken.Canvas(), nullptr);
  demo.sunken.PushBar();
  EXPECT_TRUE(demo.tabs.SetTab(2).Ok());
  demo.form.Show();
  demo.Handle();
  HDC const device = GetDC(demo.Native(demo.sunken));
  EXPECT_EQ(GetPixel(device, 99, 10), PaintedControl::kBar);
  EXPECT_EQ(GetPixel(device, 50, 10), PaintedControl::kFill);
  ReleaseDC(demo.Native(demo.sunken), device);
}

TEST(UiLatePagesOfAHiddenForm, WindowThatAnotherProgramShowsHasItsOpenPage) {
  DemoWindow demo;
  ShowWindow(demo.Main(), SW_SHOW);
  ASSERT_TRUE(IsWindowVisible(demo.Main()));
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.go)));
  EXPECT_EQ(demo.Native(demo.list), nullptr);
}

TEST_F(UiLatePages, LabelAndFrame) {
  demo.label.SetCaption("Other name & more");
  demo.label.SetPlace({20, 15, 70, 8});
  demo.frame.SetCaption("Another frame");
  OpenPage(0);
  EXPECT_EQ(WindowText(demo.Native(demo.label)), "Other &name && more");
  EXPECT_EQ(WindowText(demo.Native(demo.frame)), "Another frame");
  POINT corner{};
  MapWindowPoints(demo.Native(demo.label), demo.Native(demo.tabs.Page(0)), &corner, 1);
  EXPECT_EQ(corner.x, 30);
}

TEST_F(UiLatePages, HiddenFrameHidesItsContents) {
  demo.frame.SetVisible(false);
  OpenPage(0);
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.frame)));
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.text)));
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.go)));
  demo.frame.SetVisible(true);
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.text)));
}

TEST_F(UiLatePages, DisabledFrameAndHiddenControls) {
  demo.frame.SetEnabled(false);
  demo.stop.SetVisible(false);
  demo.drop.SetEnabled(false);
  demo.combo.SetEnabled(false);
  OpenPage(0);
  EXPECT_FALSE(IsWindowEnabled(demo.Native(demo.text)));
  EXPECT_FALSE(IsWindowEnabled(demo.Native(demo.option2)));
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.stop)));
  demo.frame.SetEnabled(true);
  demo.stop.SetVisible(true);
  EXPECT_TRUE(IsWindowEnabled(demo.Native(demo.text)));
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.stop)));
  OpenPage(1);
  EXPECT_FALSE(IsWindowEnabled(demo.Native(demo.drop)));
  HWND const edit = GetWindow(demo.Native(demo.combo), GW_CHILD);
  EXPECT_FALSE(IsWindowEnabled(edit)) << "the field inside";
  demo.combo.SetEnabled(true);
  EXPECT_TRUE(IsWindowEnabled(edit));
}

TEST_F(UiLatePages, Buttons) {
  demo.go.SetCaption("Resume");
  demo.go.OnClick = events.AsHandler();
  demo.other.SetEnabled(false);
  demo.pictured.SetCaption("Other picture");
  OpenPage(0);
  EXPECT_EQ(WindowText(demo.Native(demo.go)), "Resume");
  EXPECT_EQ(WindowText(demo.Native(demo.pictured)), "Other picture");
  EXPECT_TRUE(HasStyle(demo.go, BS_DEFPUSHBUTTON));
  EXPECT_FALSE(HasStyle(demo.stop, BS_DEFPUSHBUTTON));
  EXPECT_FALSE(IsWindowEnabled(demo.Native(demo.other)));
  demo.text.SetFocus();
  demo.Press(VK_RETURN);
  EXPECT_EQ(events.Count(), 1) << "Enter presses the default button";
  demo.Send(demo.go, BM_CLICK);
  EXPECT_EQ(events.Count(), 2);
}

TEST_F(UiLatePages, CheckBoxAndOptions) {
  ASSERT_TRUE(demo.check.SetValue(2).Ok());
  demo.option3.SetSelected(true);
  OpenPage(0);
  EXPECT_EQ(demo.Send(demo.check, BM_GETCHECK), BST_INDETERMINATE);
  EXPECT_EQ(demo.Send(demo.option1, BM_GETCHECK), BST_UNCHECKED);
  EXPECT_EQ(demo.Send(demo.option3, BM_GETCHECK), BST_CHECKED);
  EXPECT_FALSE(HasStyle(demo.option1, WS_TABSTOP));
  EXPECT_FALSE(HasStyle(demo.option2, WS_TABSTOP));
  EXPECT_TRUE(HasStyle(demo.option3, WS_TABSTOP));
}

TEST_F(UiLatePages, TextBoxWithItsSelectionColourLengthAndTip) {
  demo.text.SetText("abcd");
  demo.text.SelectAll();
  demo.text.SetBackColour(0x00C0FFC0U);
  demo.text.OnChange = events.AsHandler();
  OpenPage(0);
  HWND const native = demo.Native(demo.text);
  EXPECT_EQ(WindowText(native), "abcd");
  EXPECT_EQ(demo.Send(demo.text, EM_GETSEL), MAKELONG(0, 4));
  EXPECT_EQ(demo.Send(demo.text, EM_GETLIMITTEXT), 8);
  EXPECT_EQ(events.Count(), 0) << "taking over the model is no change";
  HDC const device = GetDC(native);
  SendMessageA(GetParent(native), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(device),
               reinterpret_cast<LPARAM>(native));
  EXPECT_EQ(GetBkColor(device), 0x00C0FFC0U);
  ReleaseDC(native, device);
  std::array<char, 80> tip{};
  TOOLINFOA tool{};
  tool.cbSize = 40;
  tool.hwnd = GetParent(native);
  tool.uId = reinterpret_cast<UINT_PTR>(native);
  tool.lpszText = tip.data();
  HWND const tips = FindWindowA(TOOLTIPS_CLASSA, nullptr);
  SendMessageA(tips, TTM_GETTEXTA, 0, reinterpret_cast<LPARAM>(&tool));
  EXPECT_STREQ(tip.data(), "Type here");
}

TEST_F(UiLatePages, Lists) {
  for (const char* row : {"a", "b", "c"}) {
    demo.list.AddItem(row);
    demo.drop.AddItem(row);
    demo.combo.AddItem(row);
  }
  ASSERT_TRUE(demo.list.SetSelectedIndex(1).Ok());
  demo.drop.SetText("c");
  demo.combo.SetText("free text");
  demo.list.OnClick = events.AsHandler();
  demo.drop.OnClick = events.AsHandler();
  demo.combo.OnChange = events.AsHandler();
  OpenPage(1);
  EXPECT_EQ(demo.Send(demo.list, LB_GETCOUNT), 3);
  EXPECT_EQ(demo.Send(demo.list, LB_GETCURSEL), 1);
  EXPECT_EQ(demo.Send(demo.drop, CB_GETCOUNT), 3);
  EXPECT_EQ(demo.Send(demo.drop, CB_GETCURSEL), 2);
  EXPECT_EQ(demo.Send(demo.combo, CB_GETCOUNT), 3);
  EXPECT_EQ(WindowText(demo.Native(demo.combo)), "free text");
  EXPECT_EQ(events.Count(), 0);
}

TEST_F(UiLatePages, ListsWithoutASelection) {
  demo.list.AddItem("a");
  demo.combo.AddItem("a");
  demo.combo.SetText("a");
  OpenPage(1);
  EXPECT_EQ(demo.Send(demo.list, LB_GETCURSEL), LB_ERR);
  EXPECT_EQ(demo.Send(demo.combo, CB_GETCURSEL), 0);
  EXPECT_EQ(WindowText(demo.Native(demo.combo)), "a");
  EXPECT_EQ(demo.Send(demo.drop, CB_GETCOUNT), 0);
}

TEST_F(UiLatePages, ScrollBarsAndSliders) {
  ASSERT_TRUE(demo.scroll.SetValue(90010).Ok());
  demo.inverted.SetRange(8, 1);
  ASSERT_TRUE(demo.inverted.SetValue(6).Ok());
  demo.inverted.SetEnabled(false);
  demo.slider.SetMaximum(151000);
  demo.slider.SetValue(120000);
  demo.scroll.OnChange = events.AsHandler();
  OpenPage(1);
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_POS;
  GetScrollInfo(demo.Native(demo.scroll), SB_CTL, &info);
  EXPECT_EQ(info.nMax, 100000);
  EXPECT_EQ(info.nPos, 90000);
  GetScrollInfo(demo.Native(demo.inverted), SB_CTL, &info);
  EXPECT_EQ(info.nMax, 7);
  EXPECT_EQ(info.nPos, 2);
  SCROLLBARINFO look{};
  look.cbSize = sizeof look;
  GetScrollBarInfo(demo.Native(demo.inverted), OBJID_CLIENT, &look);
  EXPECT_NE(look.rgstate[0] & STATE_SYSTEM_UNAVAILABLE, 0U) << "its arrows look disabled";
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETRANGEMAX), 151000);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETPOS), 120000);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETNUMTICS), 11);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETPAGESIZE), 1000);
  EXPECT_EQ(demo.Send(demo.stepped, TBM_GETPOS), 700);
  EXPECT_EQ(events.Count(), 0);
}

struct FocusGiver {
  ui::Control& control;
  base::Status Give(int /*left*/) {
    control.SetFocus();
    return base::kDone;
  }
};

TEST_F(UiLatePages, TabHandlerCanPutTheKeyboardOnTheNewPage) {
  FocusGiver giver{demo.drop};
  demo.tabs.OnClick = base::Callback<base::Status(int)>::To<&FocusGiver::Give>(giver);
  demo.tabs.ChooseTab(1);
  EXPECT_TRUE(demo.drop.HasFocus());
  EXPECT_EQ(GetFocus(), demo.Native(demo.drop));
}

TEST_F(UiLatePages, KeyboardMovesThroughTheNewPage) {
  demo.tabs.SetFocus();
  demo.tabs.ChooseTab(0);
  demo.Press(VK_TAB);
  EXPECT_TRUE(demo.text.HasFocus()) << "the first control of the page follows the strip";
  demo.Press(VK_TAB);
  EXPECT_TRUE(demo.check.HasFocus());
  demo.go.OnClick = events.AsHandler();
  demo.PressAlt('g');
  EXPECT_EQ(events.Count(), 1);
}

TEST_F(UiLatePages, ModelCannotTakeTheKeyboardToAPageThatIsNotOpen) {
  demo.text.SetFocus();
  EXPECT_FALSE(demo.text.HasFocus());
  OpenPage(0);
  demo.text.SetFocus();
  EXPECT_EQ(GetFocus(), demo.Native(demo.text));
}

/// Refuses windows to controls with this caption, as a system does when it runs out of room for them.
constexpr const char* kRefused = "no room";
std::unique_ptr<ui::win32::NativeControl> MakeUnlessRefused(const ui::win32::PeerContext& context,
                                                            ui::Control& model, HWND parent, int number) {
  if (model.Caption() != kRefused) return ui::win32::MakePeer(context, model, parent, number);
  // A window cannot have a parent that does not exist.
  return ui::win32::MakePeer(context, model, reinterpret_cast<HWND>(INT_PTR{-77}), number);
}

class UiLateWindowsRefused : public testing::Test, protected DemoModels {
 protected:
  [[nodiscard]] HWND OnFirstPage(const ui::Control& control) const {
    HWND const page = GetDlgItem(window.MainWindow(), ui::NumberOf(form, tabs.Page(0)));
    return GetDlgItem(page, ui::NumberOf(form, control));
  }

  ui::win32::FormWindow window{GetModuleHandleA(nullptr), 1, application, form, timers, MakeUnlessRefused};
};

TEST_F(UiLateWindowsRefused, TheRestWorksAndTheNextOpeningTriesAgainInTabOrder) {
  EXPECT_TRUE(window.Complete());
  check.SetCaption(kRefused);
  go.SetCaption(kRefused);
  form.Show();
  EXPECT_FALSE(window.Complete());
  EXPECT_EQ(OnFirstPage(check), nullptr);
  ASSERT_NE(OnFirstPage(stop), nullptr);
  check.SetTicked(true);
  check.SetFocus();
  go.SetEnabled(false);
  go.SetEnabled(true);
  go.Press();
  frame.SetVisible(false);
  frame.SetVisible(true);
  SendMessageA(window.MainWindow(), WM_SYSCOLORCHANGE, 0, 0);
  SendMessageA(window.MainWindow(), DM_GETDEFID, 0, 0);
  stop.SetFocus();
  EXPECT_TRUE(stop.HasFocus());

  check.SetCaption("There is room");
  go.SetCaption("Here as well");
  ASSERT_TRUE(tabs.SetTab(1).Ok());
  ASSERT_TRUE(tabs.SetTab(0).Ok());
  EXPECT_TRUE(window.Complete());
  EXPECT_EQ(SendMessageA(OnFirstPage(check), BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_EQ(GetWindow(OnFirstPage(text), GW_HWNDNEXT), OnFirstPage(check));
  EXPECT_EQ(GetWindow(OnFirstPage(check), GW_HWNDNEXT), OnFirstPage(option1));
  EXPECT_EQ(GetWindow(OnFirstPage(option3), GW_HWNDNEXT), OnFirstPage(go));
  EXPECT_EQ(GetWindow(OnFirstPage(go), GW_HWNDNEXT), OnFirstPage(stop));
}

TEST(UiWindowsRefused, FormWithoutAnEssentialWindowIsIncomplete) {
  DemoModels models;
  models.sunken.SetCaption(kRefused);
  const ui::win32::FormWindow window(GetModuleHandleA(nullptr), 1, models.application, models.form,
                                     models.timers, MakeUnlessRefused);
  EXPECT_FALSE(window.Complete());
}

}  // namespace
}  // namespace qdix::contract
