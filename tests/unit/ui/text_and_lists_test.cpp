// Text box, list box, drop-down list, drop-down combo.
#include <gtest/gtest.h>

#include "tests/support/control_bench.h"

namespace qdix::tests {
namespace {

class TextBoxRules : public testing::Test {
 protected:
  TextBoxRules() { box.OnChange = changed.Handler(); }
  ControlBench bench;
  Handled changed;
  ui::TextBox box{bench.form, {.name = "Text"}, 5};
};

TEST_F(TextBoxRules, AssignmentFiresWhenTheTextDiffers) {
  box.SetText("ab");
  box.SetText("ab");
  EXPECT_EQ(changed.count, 1);
  EXPECT_EQ(box.Text(), "ab");
}

TEST_F(TextBoxRules, AssignmentIsCutToTheMostCharacters) {
  box.SetText("abcdefgh");
  EXPECT_EQ(box.Text(), "abcde");
}

TEST_F(TextBoxRules, EachTypedCharacterReplacesTheSelectionAndFires) {
  box.SetText("80");
  box.SelectAll();
  box.TypeText("55");
  EXPECT_EQ(box.Text(), "55");
  EXPECT_EQ(changed.count, 3);
  EXPECT_EQ(box.SelectionStart(), 2);
}

TEST_F(TextBoxRules, BackspaceTakesTheSelectionOrTheCharacterBefore) {
  box.TypeText("abc\b");
  EXPECT_EQ(box.Text(), "ab");
  box.SelectAll();
  EXPECT_TRUE(box.Type('\b'));
  EXPECT_EQ(box.Text(), "");
  EXPECT_FALSE(box.Type('\b')) << "nothing before it";
}

TEST_F(TextBoxRules, FullBoxTakesNoMore) {
  box.TypeText("abcdefg");
  EXPECT_EQ(box.Text(), "abcde");
  EXPECT_FALSE(box.Type('x'));
}

struct DigitFilter {
  base::Status Filter(char& character) {
    if (character < '0' || character > '9') character = 0;
    return base::kDone;
  }
};

TEST_F(TextBoxRules, SwallowedKeysTypeNothingAndFireNothing) {
  DigitFilter filter;
  box.OnKeyPress = base::Callback<base::Status(char&)>::To<&DigitFilter::Filter>(filter);
  box.TypeText("1a2b");
  EXPECT_EQ(box.Text(), "12");
  EXPECT_EQ(changed.count, 2);
  EXPECT_FALSE(box.AcceptsKey('x'));
  EXPECT_TRUE(box.AcceptsKey('7'));
}

TEST_F(TextBoxRules, AssignmentIsNotFiltered) {
  DigitFilter filter;
  box.OnKeyPress = base::Callback<base::Status(char&)>::To<&DigitFilter::Filter>(filter);
  box.SetText("abc");
  EXPECT_EQ(box.Text(), "abc");
}

TEST_F(TextBoxRules, EditInTheWindowFiresOnceAndIsNotSentBackToIt) {
  NotingPeer peer;
  box.AttachPeer(&peer);
  box.UserEdited("ab", 1, 0);
  box.UserEdited("ab", 2, 0);
  EXPECT_EQ(changed.count, 1);
  EXPECT_EQ(box.SelectionStart(), 2);
  EXPECT_TRUE(peer.changes.empty());
}

class ListRules : public testing::Test {
 protected:
  void Fill(ui::ListControl& list) {
    for (const char* text : {"5", "10", "20"}) list.AddItem(text, text[0]);
    list.OnClick = clicked.Handler();
  }
  ControlBench bench;
  Handled clicked;
};

TEST_F(ListRules, FillingAndClearingFireNothing) {
  ui::ListBox list(bench.form, {.name = "List"});
  Fill(list);
  EXPECT_TRUE(list.SetSelectedIndex(1).Ok());
  clicked.count = 0;
  list.Clear();
  EXPECT_EQ(clicked.count, 0);
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(list.SelectedIndex(), ui::ListControl::kNoSelection);
}

TEST_F(ListRules, SelectingFiresWhenTheIndexChangesAndClearingItDoesNot) {
  ui::ListBox list(bench.form, {.name = "List"});
  Fill(list);
  EXPECT_TRUE(list.SetSelectedIndex(2).Ok());
  EXPECT_TRUE(list.SetSelectedIndex(2).Ok());
  EXPECT_EQ(clicked.count, 1);
  EXPECT_EQ(list.SelectedText(), "20");
  EXPECT_EQ(list.ItemData(2), '2');
  EXPECT_TRUE(list.SetSelectedIndex(ui::ListControl::kNoSelection).Ok());
  EXPECT_EQ(clicked.count, 1);
  EXPECT_EQ(list.SelectedText(), "");
}

TEST_F(ListRules, IndexOutsideTheListIsRefused) {
  ui::ListBox list(bench.form, {.name = "List"});
  Fill(list);
  EXPECT_EQ(list.SetSelectedIndex(3).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(list.SetSelectedIndex(-2).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(list.SelectedIndex(), ui::ListControl::kNoSelection);
  EXPECT_EQ(list.Item(7), "");
  EXPECT_EQ(list.ItemData(-1), 0);
}

TEST_F(ListRules, UsersClickOnTheSelectedRowOfAListFiresAgain) {
  ui::ListBox list(bench.form, {.name = "List"});
  Fill(list);
  EXPECT_TRUE(list.Choose("10"));
  EXPECT_TRUE(list.Choose("10"));
  EXPECT_EQ(clicked.count, 2);
  EXPECT_FALSE(list.Choose("11"));
}

TEST_F(ListRules, DoubleClickSelectsItsRowFirst) {
  ui::ListBox list(bench.form, {.name = "List"});
  Fill(list);
  Handled opened;
  list.OnDoubleClick = opened.Handler();
  list.DoubleClick(1);
  EXPECT_EQ(list.SelectedText(), "10");
  list.DoubleClick(ui::ListControl::kNoSelection);
  EXPECT_EQ(list.SelectedText(), "10");
  EXPECT_EQ(opened.count, 2);
  EXPECT_EQ(clicked.count, 1);
}

TEST_F(ListRules, DropDownKeepsItsSelectionForATextThatIsNoRow) {
  ui::DropDownList list(bench.form, {.name = "Drop"});
  Fill(list);
  list.SetText("20");
  list.SetText("20");
  list.SetText("21");
  EXPECT_EQ(list.Text(), "20");
  EXPECT_EQ(clicked.count, 1);
  EXPECT_TRUE(list.Choose("20"));
  EXPECT_EQ(clicked.count, 1) << "the row was selected already";
}

TEST_F(ListRules, DropDownForTheUsersChoiceOnlyFiresNothingFromCode) {
  ui::DropDownList list(bench.form, {.name = "Drop"}, ui::CodeFiresClick::kNo);
  Fill(list);
  list.SetText("5");
  EXPECT_EQ(clicked.count, 0);
  EXPECT_TRUE(list.Choose("10"));
  EXPECT_EQ(clicked.count, 1);
}

TEST_F(ListRules, ComboTakesAnyTextAndSelectsTheRowThatEqualsIt) {
  ui::DropDownCombo combo(bench.form, {.name = "Combo"});
  Fill(combo);
  Handled changed;
  combo.OnChange = changed.Handler();
  combo.UserEdited("2");
  EXPECT_EQ(combo.SelectedIndex(), ui::ListControl::kNoSelection);
  combo.UserEdited("20");
  EXPECT_EQ(combo.SelectedIndex(), 2);
  EXPECT_EQ(changed.count, 2);
  EXPECT_EQ(clicked.count, 0) << "typing is no choice";
  EXPECT_TRUE(combo.Choose("5"));
  EXPECT_EQ(combo.Text(), "5");
  EXPECT_EQ(clicked.count, 1);
  EXPECT_EQ(changed.count, 3);
}

TEST_F(ListRules, ListHoldsNoMoreThanTheSystemsLists) {
  ui::ListBox list(bench.form, {.name = "List"});
  for (int i = 0; i < 32770; ++i) list.AddItem("x");
  EXPECT_EQ(list.Count(), 32767);
}

}  // namespace
}  // namespace qdix::tests
