#include "self_test/win32/window_walk.h"

#include "base/numbers.h"
#include "ui/control_numbers.h"
#include "ui/tab_strip.h"

namespace qdix::self_test::win32 {

namespace {

const ui::Control* PageOf(const ui::Control& control) {
  const ui::Control* above = control.Parent();
  while (above != nullptr && above->GetKind() != ui::Kind::kTabPage) above = above->Parent();
  return above;
}

/// Returns the window that directly contains the control's window.
HWND ParentWindowOf(HWND main, const ui::Form& form, const ui::Control& control) {
  const ui::Control* const page = PageOf(control);
  return page == nullptr ? main : GetDlgItem(main, ui::NumberOf(form, *page));
}

bool IsOnOpenPage(const ui::Control& control) {
  const ui::Control* const page = PageOf(control);
  return page == nullptr || static_cast<const ui::TabPage*>(page)->Open();
}

bool ShouldBeSeen(const ui::Control& control) {
  for (const ui::Control* level = &control; level != nullptr; level = level->Parent()) {
    if (!level->Visible()) return false;
  }
  const bool is_page = control.GetKind() == ui::Kind::kTabPage;
  return is_page ? static_cast<const ui::TabPage&>(control).Open() : IsOnOpenPage(control);
}

bool CarriesCaption(ui::Kind kind) {
  switch (kind) {
    case ui::Kind::kFrame:
    case ui::Kind::kLabel:
    case ui::Kind::kButton:
    case ui::Kind::kCheckBox:
    case ui::Kind::kOptionButton:
      return true;
    default:
      return false;
  }
}

bool IsInside(HWND window, HWND on) {
  RECT box{};
  RECT inner{};
  GetWindowRect(window, &box);
  GetClientRect(on, &inner);
  MapWindowPoints(nullptr, on, reinterpret_cast<POINT*>(&box), 2);
  return box.left >= 0 && box.top >= 0 && box.right <= inner.right && box.bottom <= inner.bottom;
}

class WindowWalk {
 public:
  WindowWalk(HWND main, const ui::Form& form) : main_(main), form_(form) {}

  void Visit(ui::Control& control, int number) {
    if (WindowOf(main_, form_, control) != nullptr) ++count_;
    const char* const fault = FaultOf(control);
    if (fault == nullptr) return;
    if (!faults_.empty()) faults_ += "; ";
    faults_ += "control " + base::TextOf(number) + " " + fault;
  }

  [[nodiscard]] Outcome Result() const {
    if (count_ == 0) return Outcome::Failed("there are no controls");
    return faults_.empty() ? Outcome::Ok(base::TextOf(count_) + " controls") : Outcome::Failed(faults_);
  }

 private:
  [[nodiscard]] const char* FaultOf(const ui::Control& control) const {
    HWND const window = WindowOf(main_, form_, control);
    if (window == nullptr) return IsOnOpenPage(control) ? "has no window" : nullptr;
    if ((IsWindowVisible(window) != FALSE) != ShouldBeSeen(control)) return "is wrongly shown or hidden";
    const auto caption_length = static_cast<int>(control.Caption().size());
    if (CarriesCaption(control.GetKind()) && GetWindowTextLengthA(window) < caption_length) {
      return "has an incomplete caption";
    }
    return IsInside(window, ParentWindowOf(main_, form_, control)) ? nullptr : "extends beyond its window";
  }

  HWND main_;
  const ui::Form& form_;
  int count_ = 0;
  std::string faults_;
};

}  // namespace

HWND WindowOf(HWND main, const ui::Form& form, const ui::Control& control) {
  HWND const on = ParentWindowOf(main, form, control);
  return on == nullptr ? nullptr : GetDlgItem(on, ui::NumberOf(form, control));
}

Outcome WalkWindows(HWND main, ui::Form& form) {
  WindowWalk walk(main, form);
  ui::VisitControls(form, ui::ControlVisitor::To<&WindowWalk::Visit>(walk));
  return walk.Result();
}

}  // namespace qdix::self_test::win32
