// The two fields for the limit of the processor load: what they accept, and when they let the focus go.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

struct LimitField {
  const char* stored_key;
  int tab;
  ui::TextBox& (*box)(app::Form1&);
  ui::CheckBox& (*beside)(app::Form1&);
};

void PrintTo(const LimitField& field, std::ostream* out) { *out << field.stored_key; }

class CpuLimitField : public testing::TestWithParam<LimitField> {
 protected:
  CpuLimitField() {
    rig.SetHasRunBefore();
    rig.Start().MainWindow().SSTab1.ChooseTab(GetParam().tab);
    Box().SetFocus();
    Box().SelectAll();
  }
  ui::TextBox& Box() { return GetParam().box(*rig.program); }
  /// Moves the focus to another field of the tab.
  void Leave() { GetParam().beside(*rig.program).SetFocus(); }
  [[nodiscard]] std::optional<std::string> Stored() const {
    return rig.Stored("Settings", GetParam().stored_key);
  }

  ProgramRig rig;
};

TEST_P(CpuLimitField, AcceptsOnlyDigitsAndBackspace) {
  Box().TypeText("a6-.5x\b7");
  EXPECT_EQ(Box().Text(), "67");
}

TEST_P(CpuLimitField, IsStoredWhenTheFocusLeavesIt) {
  Box().TypeText("55");
  EXPECT_EQ(Stored(), std::nullopt);
  Leave();
  EXPECT_FALSE(Box().HasFocus());
  EXPECT_EQ(Stored(), "55");
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_P(CpuLimitField, KeepsTheFocusOnAnInvalidLimit) {
  Box().TypeText("100");
  Leave();
  EXPECT_TRUE(Box().HasFocus());
  EXPECT_EQ(Box().SelectionLength(), 3);
  EXPECT_EQ(Stored(), std::nullopt);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Please enter a number between 5 an 99");
}

TEST_P(CpuLimitField, IsCheckedAgainWhenItsTabIsLeftAfterARefusal) {
  ui::TabStrip& tabs = rig.program->MainWindow().SSTab1;
  Box().TypeText("4");
  Leave();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  Box().SetText("55");
  Leave();
  Box().SetText("4");  // the focus is elsewhere, so only leaving the tab checks it
  tabs.ChooseTab(screens::kAboutTab);
  EXPECT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(tabs.Tab(), GetParam().tab);
}

INSTANTIATE_TEST_SUITE_P(
    Both, CpuLimitField,
    testing::Values(
        LimitField{"AutoCPU", screens::kAutomaticTab,
                   [](app::Form1& program) -> ui::TextBox& { return program.AutomaticScreen().Text9; },
                   [](app::Form1& program) -> ui::CheckBox& { return program.AutomaticScreen().Check9; }},
        LimitField{
            "TimeCPU", screens::kTimeIntervalsTab,
            [](app::Form1& program) -> ui::TextBox& { return program.TimeIntervalsScreen().Text10; },
            [](app::Form1& program) -> ui::CheckBox& { return program.TimeIntervalsScreen().Check10; }}));

}  // namespace
}  // namespace qdix::tests
