// The keyboard: focus on both sides, refusals, Tab and arrow keys, access keys, Enter and Esc, switching
// tabs.
#include <gtest/gtest.h>

#include "tests/contract/win32/demo_window.h"

namespace qdix::contract {
namespace {

class UiFocus : public testing::Test {
 protected:
  UiFocus() {
    demo.form.Show();
    SetForegroundWindow(demo.Main());
    demo.Handle();
  }

  [[nodiscard]] bool NativeFocusOn(const ui::Control& control) const {
    return GetFocus() == demo.Native(control);
  }

  DemoWindow demo;
  EventCount events;
};

struct Gate {
  bool lets_go = false;
  int asked = 0;
  base::Result<bool> Validate() {
    ++asked;
    return lets_go;
  }
};

TEST_F(UiFocus, FirstControlOfTheOpenPageHasTheKeyboardAtFirst) {
  EXPECT_TRUE(NativeFocusOn(demo.text));
  EXPECT_TRUE(demo.text.HasFocus());
}

TEST_F(UiFocus, NativeFocusReachesTheModelAndTheModelsFocusTheWindow) {
  SetFocus(demo.Native(demo.check));
  EXPECT_TRUE(demo.check.HasFocus());
  demo.go.SetFocus();
  EXPECT_TRUE(NativeFocusOn(demo.go));
}

TEST_F(UiFocus, FieldThatGetsTheFocusIsSelectedCompletely) {
  demo.text.SetText("abc");
  SetFocus(demo.Native(demo.check));
  SendMessageA(demo.Native(demo.text), EM_SETSEL, 1, 1);
  SendMessageA(demo.Main(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(demo.Native(demo.text)), TRUE);
  EXPECT_TRUE(NativeFocusOn(demo.text));
  EXPECT_EQ(SendMessageA(demo.Native(demo.text), EM_GETSEL, 0, 0), MAKELRESULT(0, 3));
}

TEST_F(UiFocus, ControlThatRefusesKeepsTheKeyboard) {
  Gate gate;
  demo.text.SetFocus();
  demo.text.OnValidate = base::Callback<base::Result<bool>()>::To<&Gate::Validate>(gate);
  SetFocus(demo.Native(demo.check));
  EXPECT_EQ(gate.asked, 1);
  EXPECT_TRUE(demo.text.HasFocus());
  EXPECT_TRUE(NativeFocusOn(demo.text));
  gate.lets_go = true;
  SetFocus(demo.Native(demo.check));
  EXPECT_TRUE(NativeFocusOn(demo.check));
  EXPECT_EQ(gate.asked, 2);
}

TEST_F(UiFocus, ClickOnAButtonIsIgnoredWhenTheFocusIsRefused) {
  Gate gate;
  demo.text.SetFocus();
  demo.text.OnValidate = base::Callback<base::Result<bool>()>::To<&Gate::Validate>(gate);
  demo.other.OnClick = events.AsHandler();
  demo.Send(demo.other, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_EQ(GetCapture(), nullptr) << "releasing the button elsewhere must not click";
  demo.Handle();
  EXPECT_EQ(demo.Send(demo.other, BM_GETSTATE) & BST_PUSHED, 0);
  demo.Send(demo.other, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(events.Count(), 0);
  EXPECT_TRUE(NativeFocusOn(demo.text));
  gate.lets_go = true;
  demo.Send(demo.other, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  demo.Send(demo.other, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(events.Count(), 1);
}

/// Counts the message that raises a button; the same number means something else to other window classes.
class RaiseCount {
 public:
  explicit RaiseCount(HWND window) : window_(window) {
    SetPropA(window, "RaiseCount", this);
    before_ = reinterpret_cast<WNDPROC>(
        SetWindowLongA(window, GWL_WNDPROC, reinterpret_cast<LONG>(&RaiseCount::Procedure)));
  }
  RaiseCount(const RaiseCount&) = delete;
  RaiseCount& operator=(const RaiseCount&) = delete;
  ~RaiseCount() {
    SetWindowLongA(window_, GWL_WNDPROC, reinterpret_cast<LONG>(before_));
    RemovePropA(window_, "RaiseCount");
  }
  [[nodiscard]] int Count() const { return count_; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    auto& self = *static_cast<RaiseCount*>(GetPropA(window, "RaiseCount"));
    if (message == BM_SETSTATE) ++self.count_;
    return CallWindowProcA(self.before_, window, message, wparam, lparam);
  }

  HWND window_;
  WNDPROC before_ = nullptr;
  int count_ = 0;
};

TEST_F(UiFocus, OnlyAButtonIsRaisedAfterTheFocusWasRefused) {
  Gate gate;
  ASSERT_TRUE(demo.tabs.SetTab(1).Ok());
  demo.combo.SetFocus();
  demo.combo.OnValidate = base::Callback<base::Result<bool>()>::To<&Gate::Validate>(gate);
  const RaiseCount list(demo.Native(demo.list));
  SetFocus(demo.Native(demo.list));
  demo.Handle();
  EXPECT_EQ(gate.asked, 1);
  EXPECT_EQ(list.Count(), 0);
  demo.combo.OnValidate = {};
  ASSERT_TRUE(demo.tabs.SetTab(0).Ok());
  demo.text.SetFocus();
  demo.text.OnValidate = base::Callback<base::Result<bool>()>::To<&Gate::Validate>(gate);
  for (const ui::Control* button :
       std::initializer_list<const ui::Control*>{&demo.go, &demo.check, &demo.option1}) {
    const RaiseCount raised(demo.Native(*button));
    SetFocus(demo.Native(*button));
    demo.Handle();
    EXPECT_GE(raised.Count(), 1) << button->Name();
  }
}

TEST_F(UiFocus, AccessKeyOfAButtonIsIgnoredWhenTheFocusIsRefused) {
  Gate gate;
  demo.text.SetFocus();
  demo.text.OnValidate = base::Callback<base::Result<bool>()>::To<&Gate::Validate>(gate);
  demo.go.OnClick = events.AsHandler();
  demo.PressAlt('g');
  EXPECT_EQ(events.Count(), 0);
  EXPECT_TRUE(NativeFocusOn(demo.text));
  gate.lets_go = true;
  demo.PressAlt('g');
  EXPECT_EQ(events.Count(), 1);
}

TEST_F(UiFocus, TabThatIsRefusedStaysClosed) {
  Gate gate;
  demo.text.SetFocus();
  demo.text.OnValidate = base::Callback<base::Result<bool>()>::To<&Gate::Validate>(gate);
  const HeldKey control(VK_CONTROL);
  demo.Press(VK_TAB);
  EXPECT_EQ(demo.tabs.Tab(), 0);
  EXPECT_TRUE(NativeFocusOn(demo.text));
  gate.lets_go = true;
  demo.Press(VK_TAB);
  EXPECT_EQ(demo.tabs.Tab(), 1);
}

TEST_F(UiFocus, TabKeyCyclesThroughThePageAndTheStrip) {
  demo.text.SetFocus();
  for (const ui::Control* next :
       std::initializer_list<const ui::Control*>{&demo.check, &demo.option1, &demo.go, &demo.stop,
                                                 &demo.other, &demo.pictured, &demo.tabs, &demo.text}) {
    demo.Press(VK_TAB);
    EXPECT_TRUE(NativeFocusOn(*next)) << next->Name();
    EXPECT_TRUE(next->HasFocus()) << next->Name();
  }
}

TEST_F(UiFocus, MovingTheFocusToAnOptionChoosesNothing) {
  demo.option1.OnClick = events.AsHandler();
  SetFocus(demo.Native(demo.option1));
  EXPECT_TRUE(demo.option1.HasFocus());
  EXPECT_FALSE(demo.option1.Selected());
  EXPECT_EQ(events.Count(), 0);
}

/// Reports a click of an option when the focus arrives there, as some systems do.
struct ClickOnArrival {
  const DemoWindow& demo;
  const ui::Control& option;
  base::Status Arrived() {
    demo.Report(option, BN_CLICKED);
    return base::kDone;
  }
};

TEST_F(UiFocus, ClickReportedWhenTheFocusArrivesChoosesNothing) {
  ClickOnArrival arrival{demo, demo.option1};
  demo.option1.OnGotFocus = ui::Handler::To<&ClickOnArrival::Arrived>(arrival);
  SetFocus(demo.Native(demo.option1));
  EXPECT_TRUE(demo.option1.HasFocus());
  EXPECT_FALSE(demo.option1.Selected());
}

TEST_F(UiFocus, ArrowKeysChooseAmongOptionsAndSkipDisabledOnes) {
  demo.option1.SetSelected(true);
  demo.option1.SetFocus();
  demo.option2.SetEnabled(false);
  demo.Press(VK_DOWN);
  EXPECT_TRUE(demo.option3.Selected());
  EXPECT_TRUE(NativeFocusOn(demo.option3));
  demo.Press(VK_RIGHT);
  EXPECT_TRUE(demo.option1.Selected());
  demo.Press(VK_UP);
  EXPECT_TRUE(demo.option3.Selected());
}

TEST_F(UiFocus, AccessKeysPressButtonsAndGoFromALabelToItsNeighbour) {
  demo.check.OnClick = events.AsHandler();
  demo.PressAlt('w');
  EXPECT_TRUE(demo.check.Ticked());
  EXPECT_TRUE(NativeFocusOn(demo.check));
  EXPECT_EQ(events.Count(), 1);
  demo.label.OnGotFocus = events.AsHandler();
  demo.PressAlt('n');
  EXPECT_EQ(events.Count(), 1) << "only the check box has it: the keyboard skips the label";
  EXPECT_TRUE(NativeFocusOn(demo.text));
  EXPECT_TRUE(demo.text.HasFocus());
  demo.PressAlt('t');
  EXPECT_TRUE(demo.option3.Selected());
}

TEST_F(UiFocus, EnterPressesTheDefaultButtonWithoutMovingTheFocus) {
  Gate gate;
  demo.text.SetFocus();
  demo.text.OnValidate = base::Callback<base::Result<bool>()>::To<&Gate::Validate>(gate);
  demo.go.OnClick = events.AsHandler();
  demo.Press(VK_RETURN);
  EXPECT_EQ(events.Count(), 1);
  EXPECT_EQ(gate.asked, 0);
  EXPECT_TRUE(NativeFocusOn(demo.text));
}

TEST_F(UiFocus, EnterPressesTheButtonThatHasTheKeyboard) {
  EventCount of_default;
  demo.go.OnClick = of_default.AsHandler();
  demo.other.OnClick = events.AsHandler();
  demo.other.SetFocus();
  EXPECT_NE(demo.Send(demo.other, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON, 0)
      << "the focused button is shown as the default";
  EXPECT_EQ(demo.Send(demo.go, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON, 0);
  demo.Press(VK_RETURN);
  EXPECT_EQ(events.Count(), 1);
  EXPECT_EQ(of_default.Count(), 0);
  demo.text.SetFocus();
  EXPECT_NE(demo.Send(demo.go, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON, 0) << "this button is the default again";
}

TEST_F(UiFocus, EnterOpensTheSelectedRowIfNoDefaultButtonIsReachable) {
  ASSERT_TRUE(demo.tabs.SetTab(1).Ok());
  demo.list.AddItem("one");
  demo.list.OnDoubleClick = events.AsHandler();
  demo.list.SetFocus();
  demo.Press(VK_RETURN);
  EXPECT_EQ(events.Count(), 0) << "no row is selected";
  ASSERT_TRUE(demo.list.SetSelectedIndex(0).Ok());
  demo.Press(VK_RETURN);
  EXPECT_EQ(events.Count(), 1);
  demo.slider.SetFocus();
  demo.Press(VK_RETURN);
  EXPECT_EQ(events.Count(), 1);
}

TEST_F(UiFocus, EnterDoesNothingIfNoDefaultButtonIsReachable) {
  demo.go.OnClick = events.AsHandler();
  ASSERT_TRUE(demo.tabs.SetTab(1).Ok());
  demo.list.SetFocus();
  demo.Press(VK_RETURN);
  EXPECT_EQ(events.Count(), 0);
}

TEST_F(UiFocus, EscPressesTheCancelButtonIfThereIsOne) {
  demo.stop.OnClick = events.AsHandler();
  demo.Press(VK_ESCAPE);
  EXPECT_EQ(events.Count(), 1);
  demo.stop.SetEnabled(false);
  demo.Press(VK_ESCAPE);
  EXPECT_EQ(events.Count(), 1);
  EXPECT_FALSE(demo.form.Unloaded());
}

TEST_F(UiFocus, ControlWithTabOrPageKeysSwitchesTabs) {
  const HeldKey control(VK_CONTROL);
  demo.Press(VK_TAB);
  EXPECT_EQ(demo.tabs.Tab(), 1);
  EXPECT_TRUE(NativeFocusOn(demo.tabs))
      << "the previous page is hidden, so its control cannot keep the keyboard";
  demo.Press(VK_NEXT);
  EXPECT_EQ(demo.tabs.Tab(), 2);
  demo.Press(VK_TAB);
  EXPECT_EQ(demo.tabs.Tab(), 0);
  demo.Press(VK_PRIOR);
  EXPECT_EQ(demo.tabs.Tab(), 2);
  const HeldKey shift(VK_SHIFT);
  demo.Press(VK_TAB);
  EXPECT_EQ(demo.tabs.Tab(), 1);
}

TEST_F(UiFocus, TabOpenedByCodeTakesTheKeyboardFromTheHiddenPage) {
  demo.go.SetFocus();
  ASSERT_TRUE(demo.tabs.SetTab(1).Ok());
  EXPECT_TRUE(NativeFocusOn(demo.tabs));
  EXPECT_FALSE(demo.go.HasFocus());
}

TEST_F(UiFocus, DisabledControlGetsTheKeyboardBackWhenItIsEnabledAgain) {
  demo.go.SetFocus();
  demo.go.SetEnabled(false);
  EXPECT_EQ(GetFocus(), demo.Main());
  demo.go.SetEnabled(true);
  EXPECT_TRUE(NativeFocusOn(demo.go));
  demo.go.SetEnabled(false);
  demo.Press(VK_TAB);
  EXPECT_TRUE(IsChild(demo.Main(), GetFocus())) << "the user has moved on";
  HWND const went_to = GetFocus();
  demo.go.SetEnabled(true);
  EXPECT_EQ(GetFocus(), went_to);
}

TEST_F(UiFocus, ReturningToTheWindowReturnsToTheControl) {
  demo.check.SetFocus();
  HWND const front = CreateWindowExA(0, "STATIC", "front", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                     nullptr, nullptr, nullptr);
  SetForegroundWindow(front);
  SetFocus(front);
  demo.Handle();
  EXPECT_NE(GetActiveWindow(), demo.Main());
  SetForegroundWindow(demo.Main());
  demo.Handle();
  EXPECT_TRUE(NativeFocusOn(demo.check));
  DestroyWindow(front);
}

TEST_F(UiFocus, FocusSetByCodeInABackgroundWindowWaitsForItsActivation) {
  HWND const front = CreateWindowExA(0, "STATIC", "front", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                     nullptr, nullptr, nullptr);
  SetForegroundWindow(front);
  demo.Handle();
  demo.check.SetFocus();
  EXPECT_EQ(GetActiveWindow(), front);
  SetForegroundWindow(demo.Main());
  demo.Handle();
  EXPECT_TRUE(NativeFocusOn(demo.check));
  DestroyWindow(front);
}

}  // namespace
}  // namespace qdix::contract
