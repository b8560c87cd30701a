// The window as it is drawn: everything in its place and reachable by one key.
#include <gtest/gtest.h>

#include <set>

#include "tests/unit/undo/undo_rig.h"
#include "ui/control_numbers.h"
#include "undo/undo_screen.h"

namespace qdix::tests {
namespace {

struct AllControls {
  std::vector<ui::Control*> controls;
  void Visit(ui::Control& control, int /*number*/) { controls.push_back(&control); }
};

class UndoWindow : public testing::Test {
 protected:
  UndoWindow() { ui::VisitControls(screen.Window, ui::ControlVisitor::To<&AllControls::Visit>(all)); }

  ui::EventDispatcher events;
  undo::UndoScreen screen{events};
  AllControls all;
};

int Right(const ui::Control& control) { return control.GetPlace().left + control.GetPlace().width; }
int Bottom(const ui::Control& control) { return control.GetPlace().top + control.GetPlace().height; }

bool Overlap(const ui::Control& a, const ui::Control& b) {
  return a.GetPlace().left < Right(b) && b.GetPlace().left < Right(a) && a.GetPlace().top < Bottom(b) &&
         b.GetPlace().top < Bottom(a);
}

TEST_F(UndoWindow, NamesAndAccessKeysAreUnique) {
  std::set<std::string> names;
  std::set<char> keys;
  for (const ui::Control* const control : all.controls) {
    EXPECT_TRUE(names.insert(std::string(control->Name())).second) << control->Name();
    if (control->AccessKey() == 0) continue;
    const char key = base::UpperAscii(std::string(1, control->AccessKey()))[0];
    EXPECT_TRUE(keys.insert(key).second) << control->Name();
    EXPECT_NE(base::UpperAscii(control->Caption()).find(key), std::string::npos) << control->Name();
  }
  EXPECT_EQ(keys.size(), 11U) << "eight boxes and three buttons";
}

TEST_F(UndoWindow, EverythingStandsInItsContainerAndNothingOnAnother) {
  EXPECT_LE(screen.Window.GetPlace().width, 263);
  for (const ui::Control* const control : all.controls) {
    const ui::Control& parent = *control->Parent();
    const bool is_in_window = parent.GetKind() == ui::Kind::kForm;
    EXPECT_GE(control->GetPlace().left, is_in_window ? 7 : parent.GetPlace().left) << control->Name();
    EXPECT_LE(Right(*control), is_in_window ? parent.GetPlace().width - 7 : Right(parent)) << control->Name();
    EXPECT_LE(Bottom(*control), is_in_window ? parent.GetPlace().height - 7 : Bottom(parent))
        << control->Name();
    for (const ui::Control* const other : parent.GetForm().Children()) {
      const bool is_beside = control != other && is_in_window;
      EXPECT_FALSE(is_beside && Overlap(*control, *other)) << control->Name() << " " << other->Name();
    }
  }
}

TEST_F(UndoWindow, RowsAreInTheOrderOfTheEntries) {
  const auto rows = screen.Rows();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const undo::Entry& entry = undo::kEntries[row];
    if (entry.IsInSystemIni()) {
      EXPECT_EQ(rows[row]->box.Caption(), entry.key);
    }
    if (row > 0) {
      EXPECT_GT(rows[row]->box.GetPlace().top, rows[row - 1]->box.GetPlace().top);
    }
    EXPECT_FALSE(rows[row]->box.ToolTip().empty());
  }
  EXPECT_EQ(screen.cmdPutBack.Role(), ui::ButtonRole::kDefault);
  EXPECT_EQ(screen.cmdClose.Role(), ui::ButtonRole::kCancel);
}

}  // namespace
}  // namespace qdix::tests
