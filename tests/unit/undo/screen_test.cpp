// The window as drawn: every control is in position and reachable by one key.
#include <gtest/gtest.h>

#include "tests/support/screen_rules.h"
#include "undo/entries.h"
#include "undo/undo_screen.h"

namespace qdix::tests {
namespace {

class UndoWindow : public testing::Test {
 protected:
  UndoWindow() { Collect(screen.Window, controls); }

  ui::EventDispatcher events;
  undo::UndoScreen screen{events};
  std::vector<ui::Control*> controls;
};

TEST_F(UndoWindow, EveryBoxAndButtonHasItsOwnKey) {
  ExpectDifferentAccessKeys(controls);
  for (const ui::Control* const control : controls) {
    const bool is_pressed =
        control->GetKind() == ui::Kind::kCheckBox || control->GetKind() == ui::Kind::kButton;
    EXPECT_EQ(control->AccessKey() != 0, is_pressed) << control->Name();
  }
}

TEST_F(UndoWindow, EverythingIsInPositionWithinTheMargins) {
  constexpr std::int16_t kMargin = 7;
  const ui::Place window = screen.Window.GetPlace();
  EXPECT_LE(window.width, 263);
  ExpectRoomForEach(controls, {.left = kMargin,
                               .top = kMargin,
                               .width = static_cast<std::int16_t>(window.width - 2 * kMargin),
                               .height = static_cast<std::int16_t>(window.height - 2 * kMargin)});
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
