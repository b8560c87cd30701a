// Each kind of control in both directions: act on the window and check the model, change the model and check
// the window.
#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"

namespace qdix::contract {
namespace {

class UiControls : public testing::Test {
 protected:
  UiControls() { demo.form.Show(); }

  void OpenPage(int index) { ASSERT_TRUE(demo.tabs.SetTab(index).Ok()); }

  DemoWindow demo;
  EventCount events;
};

TEST_F(UiControls, NumbersFollowTheOrderOfTheControls) {
  EXPECT_EQ(GetDlgCtrlID(demo.Native(demo.tabs)), ui::kFirstControlNumber);
  EXPECT_EQ(GetDlgCtrlID(demo.Native(demo.text)), ui::NumberOf(demo.form, demo.text));
  EXPECT_EQ(ui::NumberOf(demo.form, demo.text), ui::kFirstControlNumber + 4);
}

TEST_F(UiControls, CaptionsCarryTheAccessKeyAndShowTheirOwnAmpersands) {
  EXPECT_EQ(WindowText(demo.Native(demo.go)), "&Go on");
  EXPECT_EQ(WindowText(demo.Native(demo.stop)), "Sto&p");
  EXPECT_EQ(WindowText(demo.Native(demo.check)), "R&&D &wanted");
  EXPECT_EQ(WindowText(demo.Native(demo.label)), "&Name of it:");
  EXPECT_EQ(WindowText(demo.Native(demo.frame)), "A frame");
  demo.go.SetCaption("Resume & Go");
  EXPECT_EQ(WindowText(demo.Native(demo.go)), "Resume && &Go");
}

TEST_F(UiControls, AllControlsUseTheDialogFont) {
  const auto font = reinterpret_cast<HFONT>(demo.Send(demo.go, WM_GETFONT));
  LOGFONTA description{};
  ASSERT_NE(GetObjectA(font, sizeof(description), &description), 0);
  EXPECT_STREQ(description.lfFaceName, "MS Sans Serif");
  EXPECT_EQ(description.lfHeight, -11);
  OpenPage(1);
  EXPECT_EQ(demo.Send(demo.list, WM_GETFONT), reinterpret_cast<LRESULT>(font));
}

TEST_F(UiControls, ButtonPressRunsTheHandlerAndADisabledButtonDoesNot) {
  demo.go.OnClick = events.AsHandler();
  demo.Send(demo.go, BM_CLICK);
  EXPECT_EQ(events.Count(), 1);
  demo.go.SetEnabled(false);
  EXPECT_FALSE(IsWindowEnabled(demo.Native(demo.go)));
  demo.Report(demo.go, BN_CLICKED);
  EXPECT_EQ(events.Count(), 1);
}

TEST_F(UiControls, CheckBoxFollowsBothWays) {
  demo.check.OnClick = events.AsHandler();
  demo.Send(demo.check, BM_CLICK);
  EXPECT_TRUE(demo.check.Ticked());
  EXPECT_EQ(demo.Send(demo.check, BM_GETCHECK), BST_CHECKED);
  EXPECT_EQ(events.Count(), 1);
  ASSERT_TRUE(demo.check.SetValue(2).Ok());
  EXPECT_EQ(demo.Send(demo.check, BM_GETCHECK), BST_INDETERMINATE);
  demo.Send(demo.check, BM_CLICK);
  EXPECT_EQ(demo.check.Value(), 0);
  EXPECT_EQ(demo.Send(demo.check, BM_GETCHECK), BST_UNCHECKED);
}

TEST_F(UiControls, OptionsFollowBothWaysAndAreExclusive) {
  demo.Send(demo.option2, BM_CLICK);
  EXPECT_TRUE(demo.option2.Selected());
  EXPECT_EQ(demo.Send(demo.option2, BM_GETCHECK), BST_CHECKED);
  demo.option3.SetSelected(true);
  EXPECT_EQ(demo.Send(demo.option2, BM_GETCHECK), BST_UNCHECKED);
  EXPECT_EQ(demo.Send(demo.option3, BM_GETCHECK), BST_CHECKED);
}

TEST_F(UiControls, TabKeyStopsAtTheSelectedOptionOrTheFirst) {
  const auto is_stop = [&](const ui::Control& control) {
    return (GetWindowLongA(demo.Native(control), GWL_STYLE) & static_cast<LONG>(WS_TABSTOP)) != 0;
  };
  EXPECT_TRUE(is_stop(demo.option1));
  EXPECT_FALSE(is_stop(demo.option2));
  demo.option3.SetSelected(true);
  EXPECT_FALSE(is_stop(demo.option1));
  EXPECT_TRUE(is_stop(demo.option3));
}

TEST_F(UiControls, LabelAndItsVisibilityFollowTheModel) {
  demo.label.SetCaption("Other name");
  EXPECT_EQ(WindowText(demo.Native(demo.label)), "Other &name");
  demo.label.SetVisible(false);
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.label)));
  demo.label.SetVisible(true);
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.label)));
}

TEST_F(UiControls, HiddenOrDisabledFrameHidesOrDisablesItsContents) {
  demo.frame.SetVisible(false);
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.frame)));
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.text)));
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.go)));
  demo.frame.SetVisible(true);
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.text)));
  demo.frame.SetEnabled(false);
  EXPECT_FALSE(IsWindowEnabled(demo.Native(demo.text)));
  demo.frame.SetEnabled(true);
  EXPECT_TRUE(IsWindowEnabled(demo.Native(demo.text)));
}

struct DigitsOnly {
  base::Status KeyPressed(char& character) {
    if (character != 8 && (character < '0' || character > '9')) character = 0;
    return base::kDone;
  }
};

TEST_F(UiControls, TextBoxAsksAboutEachCharacterAndReportsTheText) {
  DigitsOnly digits;
  demo.text.OnKeyPress = base::Callback<base::Status(char&)>::To<&DigitsOnly::KeyPressed>(digits);
  demo.text.OnChange = events.AsHandler();
  demo.text.SetFocus();
  for (const char character : {'4', 'x', '2', '\b', '7'})
    demo.Send(demo.text, WM_CHAR, static_cast<WPARAM>(character), 1);
  EXPECT_EQ(demo.text.Text(), "47");
  EXPECT_EQ(WindowText(demo.Native(demo.text)), "47");
  EXPECT_EQ(demo.text.SelectionStart(), 2);
  EXPECT_EQ(events.Count(), 4);
}

TEST_F(UiControls, TextBoxAssignmentChangesTheWindowOnceAndIsNoUserEdit) {
  demo.text.OnChange = events.AsHandler();
  demo.text.SetText("abc");
  EXPECT_EQ(WindowText(demo.Native(demo.text)), "abc");
  EXPECT_EQ(events.Count(), 1);
  EXPECT_EQ(demo.Send(demo.text, EM_GETSEL), 0) << "the caret is before the text";
  demo.text.SelectAll();
  EXPECT_EQ(demo.Send(demo.text, EM_GETSEL), MAKELONG(0, 3));
}

TEST_F(UiControls, TextBoxTypedThroughTheModelKeepsTheModelsCaret) {
  demo.text.TypeText("ab");
  EXPECT_EQ(demo.text.Text(), "ab");
  EXPECT_EQ(WindowText(demo.Native(demo.text)), "ab");
  EXPECT_EQ(demo.Send(demo.text, EM_GETSEL), MAKELONG(2, 2));
}

TEST_F(UiControls, TextBoxAcceptsNoMoreThanItsMaximumLength) {
  demo.text.SetFocus();
  for (int count = 0; count < 12; ++count) demo.Send(demo.text, WM_CHAR, 'a', 1);
  EXPECT_EQ(demo.text.Text(), "aaaaaaaa");
}

struct Corrector {
  ui::TextBox& box;
  base::Status Changed() {
    box.SetText("fixed");
    return base::kDone;
  }
};

TEST_F(UiControls, TextBoxHandlerMayReplaceTheNewText) {
  Corrector corrector{demo.text};
  demo.text.OnChange = ui::Handler::To<&Corrector::Changed>(corrector);
  demo.text.SetFocus();
  demo.Send(demo.text, WM_CHAR, 'q', 1);
  EXPECT_EQ(demo.text.Text(), "fixed");
  EXPECT_EQ(WindowText(demo.Native(demo.text)), "fixed");
}

COLORREF BackgroundOf(const DemoWindow& demo, const ui::Control& control, UINT message) {
  HWND const native = demo.Native(control);
  HDC const device = GetDC(native);
  SendMessageA(GetParent(native), message, reinterpret_cast<WPARAM>(device),
               reinterpret_cast<LPARAM>(native));
  const COLORREF colour = GetBkColor(device);
  ReleaseDC(native, device);
  return colour;
}

TEST_F(UiControls, BackColoursAreThoseOfTheModel) {
  EXPECT_EQ(BackgroundOf(demo, demo.text, WM_CTLCOLOREDIT), GetSysColor(COLOR_WINDOW));
  demo.text.SetBackColour(0x00C0FFC0U);
  EXPECT_EQ(BackgroundOf(demo, demo.text, WM_CTLCOLOREDIT), 0x00C0FFC0U);
  demo.text.SetBackColour(ui::kMenuBackground);
  EXPECT_EQ(BackgroundOf(demo, demo.text, WM_CTLCOLOREDIT), GetSysColor(COLOR_MENU));
  EXPECT_EQ(BackgroundOf(demo, demo.label, WM_CTLCOLORSTATIC), GetSysColor(COLOR_BTNFACE));
}

TEST_F(UiControls, DisabledTextBoxHasItsAssignedColourAndGreyText) {
  demo.text.SetBackColour(ui::kMenuBackground);
  demo.text.SetEnabled(false);
  HWND const native = demo.Native(demo.text);
  HDC const device = GetDC(native);
  const LRESULT brush = SendMessageA(GetParent(native), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(device),
                                     reinterpret_cast<LPARAM>(native));
  EXPECT_EQ(reinterpret_cast<HBRUSH>(brush), GetSysColorBrush(COLOR_MENU));
  EXPECT_EQ(GetBkColor(device), GetSysColor(COLOR_MENU));
  EXPECT_EQ(GetTextColor(device), GetSysColor(COLOR_GRAYTEXT));
  ReleaseDC(native, device);
}

TEST_F(UiControls, DisabledTextBoxWithoutAColourOfItsOwnKeepsTheSystemsLook) {
  demo.text.SetEnabled(false);
  EXPECT_NE(BackgroundOf(demo, demo.text, WM_CTLCOLORSTATIC), GetSysColor(COLOR_WINDOW));
}

TEST_F(UiControls, ListBoxFollowsBothWays) {
  OpenPage(1);
  demo.list.OnClick = events.AsHandler();
  for (const char* row : {"16 MB", "32 MB", "64 MB"}) demo.list.AddItem(row);
  EXPECT_EQ(demo.Send(demo.list, LB_GETCOUNT), 3);
  ASSERT_TRUE(demo.list.SetSelectedIndex(2).Ok());
  EXPECT_EQ(demo.Send(demo.list, LB_GETCURSEL), 2);
  EXPECT_EQ(events.Count(), 1);
  const LRESULT row_height = demo.Send(demo.list, LB_GETITEMHEIGHT);
  const LPARAM on_second_row = MAKELPARAM(5, row_height + row_height / 2);
  demo.Send(demo.list, WM_LBUTTONDOWN, MK_LBUTTON, on_second_row);
  demo.Send(demo.list, WM_LBUTTONUP, 0, on_second_row);
  EXPECT_EQ(demo.list.SelectedText(), "32 MB");
  EXPECT_EQ(events.Count(), 2);
  demo.list.Clear();
  EXPECT_EQ(demo.Send(demo.list, LB_GETCOUNT), 0);
  demo.list.AddItem("8 MB");
  EXPECT_EQ(demo.Send(demo.list, LB_GETCOUNT), 1);
}

TEST_F(UiControls, ListBoxClickOnTheSelectedRowIsAnotherClick) {
  OpenPage(1);
  demo.list.AddItem("one");
  demo.list.OnClick = events.AsHandler();
  for (int click = 0; click < 2; ++click) {
    demo.Send(demo.list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    demo.Send(demo.list, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  }
  EXPECT_EQ(events.Count(), 2);
}

TEST_F(UiControls, ListBoxDoubleClickDistinguishesRowFromEmptyPart) {
  OpenPage(1);
  demo.list.AddItem("one");
  demo.list.OnDoubleClick = events.AsHandler();
  RECT inner{};
  GetClientRect(demo.Native(demo.list), &inner);
  demo.Send(demo.list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, inner.bottom - 2));
  demo.Send(demo.list, WM_LBUTTONUP, 0, MAKELPARAM(5, inner.bottom - 2));
  EXPECT_EQ(events.Count(), 1);
  demo.Send(demo.list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
  demo.Send(demo.list, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(events.Count(), 2);
  EXPECT_EQ(demo.list.SelectedText(), "one");
}

TEST_F(UiControls, ListBoxArrowKeyChooses) {
  OpenPage(1);
  demo.list.AddItem("one");
  demo.list.AddItem("two");
  ASSERT_TRUE(demo.list.SetSelectedIndex(0).Ok());
  demo.list.SetFocus();
  demo.Press(VK_DOWN);
  EXPECT_EQ(demo.list.SelectedText(), "two");
}

TEST_F(UiControls, DropDownListFollowsBothWays) {
  OpenPage(1);
  demo.drop.OnClick = events.AsHandler();
  for (const char* row : {"a", "b", "c"}) demo.drop.AddItem(row);
  demo.drop.SetText("b");
  EXPECT_EQ(demo.Send(demo.drop, CB_GETCURSEL), 1);
  EXPECT_EQ(events.Count(), 1);
  demo.drop.SetFocus();
  demo.Press(VK_DOWN);
  EXPECT_EQ(demo.drop.Text(), "c");
  EXPECT_EQ(events.Count(), 2);
}

TEST_F(UiControls, DropDownListDecidesWhenItCloses) {
  OpenPage(1);
  for (const char* row : {"a", "b", "c"}) demo.drop.AddItem(row);
  demo.drop.SetText("a");
  demo.drop.OnClick = events.AsHandler();
  demo.drop.SetFocus();
  demo.Send(demo.drop, CB_SHOWDROPDOWN, TRUE);
  demo.Press(VK_DOWN);
  EXPECT_EQ(demo.drop.Text(), "a") << "the user is still looking";
  demo.Press(VK_RETURN);
  EXPECT_EQ(demo.drop.Text(), "b");
  EXPECT_EQ(events.Count(), 1);
}

TEST_F(UiControls, DropDownComboFollowsBothWays) {
  OpenPage(1);
  demo.combo.AddItem("one");
  demo.combo.AddItem("two");
  demo.combo.SetText("free text");
  EXPECT_EQ(WindowText(demo.Native(demo.combo)), "free text");
  demo.combo.SetText("two");
  EXPECT_EQ(demo.Send(demo.combo, CB_GETCURSEL), 1);
  EXPECT_EQ(WindowText(demo.Native(demo.combo)), "two");
  HWND const edit = GetWindow(demo.Native(demo.combo), GW_CHILD);
  SetFocus(edit);
  EXPECT_TRUE(demo.combo.HasFocus());
  SendMessageA(edit, EM_SETSEL, 0, -1);
  SendMessageA(edit, WM_CHAR, 'z', 1);
  EXPECT_EQ(demo.combo.Text(), "z");
  EXPECT_EQ(demo.combo.SelectedIndex(), ui::ListControl::kNoSelection);
}

SCROLLINFO ScrollState(const DemoWindow& demo, const ui::Control& bar) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_POS;
  GetScrollInfo(demo.Native(bar), SB_CTL, &info);
  return info;
}

void Scroll(const DemoWindow& demo, const ui::Control& bar, UINT code) {
  HWND const native = demo.Native(bar);
  SendMessageA(GetParent(native), WM_VSCROLL, code, reinterpret_cast<LPARAM>(native));
}

TEST_F(UiControls, ScrollBarFollowsBothWaysBeyond16Bits) {
  OpenPage(1);
  demo.scroll.OnChange = events.AsHandler();
  EXPECT_EQ(ScrollState(demo, demo.scroll).nMax, 100000);
  ASSERT_TRUE(demo.scroll.SetValue(90010).Ok());
  EXPECT_EQ(ScrollState(demo, demo.scroll).nPos, 90000);
  Scroll(demo, demo.scroll, SB_LINEDOWN);
  EXPECT_EQ(demo.scroll.Value(), 90011);
  Scroll(demo, demo.scroll, SB_PAGEUP);
  EXPECT_EQ(demo.scroll.Value(), 89911);
  Scroll(demo, demo.scroll, SB_BOTTOM);
  EXPECT_EQ(demo.scroll.Value(), 100010);
  EXPECT_EQ(ScrollState(demo, demo.scroll).nPos, 100000);
  EXPECT_EQ(events.Count(), 4);
}

TEST_F(UiControls, InvertedScrollBarHasItsLargestValueAtTheTop) {
  OpenPage(1);
  ASSERT_TRUE(demo.inverted.SetValue(20).Ok());
  EXPECT_EQ(ScrollState(demo, demo.inverted).nPos, 0);
  Scroll(demo, demo.inverted, SB_LINEDOWN);
  EXPECT_EQ(demo.inverted.Value(), 19);
  EXPECT_EQ(ScrollState(demo, demo.inverted).nPos, 1);
  Scroll(demo, demo.inverted, SB_LINEUP);
  EXPECT_EQ(demo.inverted.Value(), 20);
  demo.inverted.SetRange(8, 1);
  EXPECT_EQ(ScrollState(demo, demo.inverted).nMax, 7);
}

TEST_F(UiControls, SliderFollowsBothWaysBeyond16Bits) {
  OpenPage(1);
  demo.slider.SetValue(200000);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETPOS), 200000);
  demo.slider.SetFocus();
  demo.Press(VK_RIGHT);
  EXPECT_EQ(demo.slider.Value(), 200001);
  demo.Press(VK_NEXT);
  EXPECT_EQ(demo.slider.Value(), 201001);
  demo.slider.SetMaximum(150000);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETRANGEMAX), 150000);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETPOS), 150000);
}

// Marks at both ends and at nine places between them, also if the range exceeds 16 bits.
TEST_F(UiControls, SliderOfALongRangeHasElevenMarks) {
  OpenPage(1);
  demo.slider.SetMaximum(1001000);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETNUMTICS), 11);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETTIC), 101000);
  demo.slider.SetMaximum(1003);
  EXPECT_EQ(demo.Send(demo.slider, TBM_GETNUMTICS), 4);
}

TEST_F(UiControls, SliderOfStepsHasAMarkAtEachStepAndEndsOnOne) {
  OpenPage(1);
  EXPECT_EQ(demo.Send(demo.stepped, TBM_GETNUMTICS), 8);
  EXPECT_EQ(demo.Send(demo.stepped, TBM_GETPOS), 700);
  demo.stepped.SetFocus();
  demo.Press(VK_RIGHT);
  EXPECT_EQ(demo.stepped.Value(), 1024);
  EXPECT_EQ(demo.Send(demo.stepped, TBM_GETPOS), 1024);
  demo.Send(demo.stepped, TBM_SETPOS, TRUE, 3000);
  demo.Send(demo.tabs.Page(1), WM_HSCROLL, TB_THUMBTRACK,
            reinterpret_cast<LPARAM>(demo.Native(demo.stepped)));
  EXPECT_EQ(demo.stepped.Value(), 3072);
  EXPECT_EQ(demo.Send(demo.stepped, TBM_GETPOS), 3072);
}

struct TabWatcher {
  int left = -1;
  base::Status Clicked(int a_left) {
    left = a_left;
    return base::kDone;
  }
};

TEST_F(UiControls, TabStripFollowsBothWaysAndShowsOnlyTheOpenPage) {
  TabWatcher watcher;
  demo.tabs.OnClick = base::Callback<base::Status(int)>::To<&TabWatcher::Clicked>(watcher);
  RECT tab{};
  demo.Send(demo.tabs, TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&tab));
  const LPARAM on_tab = MAKELPARAM((tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2);
  demo.Send(demo.tabs, WM_LBUTTONDOWN, MK_LBUTTON, on_tab);
  demo.Send(demo.tabs, WM_LBUTTONUP, 0, on_tab);
  EXPECT_EQ(demo.tabs.Tab(), 1);
  EXPECT_EQ(watcher.left, 0);
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.list)));
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.go)));
  OpenPage(0);
  EXPECT_EQ(demo.Send(demo.tabs, TCM_GETCURSEL), 0);
  EXPECT_TRUE(IsWindowVisible(demo.Native(demo.go)));
  EXPECT_FALSE(IsWindowVisible(demo.Native(demo.list)));
}

TEST_F(UiControls, PagesAreInTheDisplayAreaAboveTheStrip) {
  HWND const page = GetParent(demo.Native(demo.go));
  HWND const strip = demo.Native(demo.tabs);
  RECT area{};
  GetClientRect(strip, &area);
  demo.Send(demo.tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
  MapWindowPoints(strip, nullptr, reinterpret_cast<POINT*>(&area), 2);
  RECT place{};
  GetWindowRect(page, &place);
  EXPECT_TRUE(EqualRect(&area, &place));
  for (HWND above = GetWindow(strip, GW_HWNDPREV); above != page; above = GetWindow(above, GW_HWNDPREV)) {
    ASSERT_NE(above, nullptr) << "the page is below the strip";
  }
}

BOOL CALLBACK FindToolTips(HWND window, LPARAM found) {
  char name[32] = {};
  GetClassNameA(window, name, sizeof(name));
  if (lstrcmpA(name, TOOLTIPS_CLASSA) == 0) *reinterpret_cast<HWND*>(found) = window;
  return TRUE;
}

TEST_F(UiControls, ToolTipIsRegisteredForTheControlThatHasOne) {
  HWND tips = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), &FindToolTips, reinterpret_cast<LPARAM>(&tips));
  ASSERT_NE(tips, nullptr);
  EXPECT_EQ(SendMessageA(tips, TTM_GETTOOLCOUNT, 0, 0), 1);
  char text[80] = {};
  TOOLINFOA tool{};
  tool.cbSize = 40;
  tool.hwnd = GetParent(demo.Native(demo.text));
  tool.uId = reinterpret_cast<UINT_PTR>(demo.Native(demo.text));
  tool.lpszText = text;
  SendMessageA(tips, TTM_GETTEXTA, 0, reinterpret_cast<LPARAM>(&tool));
  EXPECT_STREQ(text, "Type here");
}

}  // namespace
}  // namespace qdix::contract
