// Text box, list box, drop-down list, drop-down combo.
#include <gtest/gtest.h>

#include "tests/support/form_fixture.h"

namespace qdix::tests {
namespace {

class TextBoxRules : public testing::Test {
 protected:
  TextBoxRules() { box.OnChange = changed.Handler(); }
  FormFixture fixture;
  Handled changed;
  ui::TextBox box{fixture.form, {.name = "Text"}, 5};
};

TEST_F(TextBoxRules, AssignmentFiresWhenTheTextDiffers) {
  box.SetText("ab");
  box.SetText("ab");
  EXPECT_EQ(changed.count, 1);
  EXPECT_EQ(box.Text(), "ab");
}

TEST_F(TextBoxRules, AssignmentIsCutToTheMaximumLength) {
  box.SetText("abcdefgh");
  EXPECT_EQ(box.Text(), "abcde");
}

TEST_F(TextBoxRules, AssignmentPutsTheInsertionPointAtTheStart) {
  box.TypeText("ab");
  box.SetText("abc");
  EXPECT_EQ(box.SelectionStart(), 0);
  EXPECT_EQ(box.SelectionLength(), 0);
}

TEST_F(TextBoxRules, EachTypedCharacterReplacesTheSelectionAndFires) {
  box.SetText("80");
  box.SelectAll();
  box.TypeText("55");
  EXPECT_EQ(box.Text(), "55");
  EXPECT_EQ(changed.count, 3);
  EXPECT_EQ(box.SelectionStart(), 2);
}

TEST_F(TextBoxRules, BackspaceDeletesTheSelectionOrThePreviousCharacter) {
  box.TypeText("abc\b");
  EXPECT_EQ(box.Text(), "ab");
  box.SelectAll();
  EXPECT_TRUE(box.Type('\b'));
  EXPECT_EQ(box.Text(), "");
  EXPECT_FALSE(box.Type('\b')) << "there is no character before the caret";
}

TEST_F(TextBoxRules, BackspaceDeletesOneCharacterAndKeepsTheRest) {
  box.UserEdited("abcd", 2, 0);
  EXPECT_TRUE(box.Type('\b'));
  EXPECT_EQ(box.Text(), "acd");
  EXPECT_EQ(box.SelectionStart(), 1);
}

TEST_F(TextBoxRules, FullBoxAcceptsNoMoreCharacters) {
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

TEST_F(TextBoxRules, IgnoredKeysTypeNothingAndFireNothing) {
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
  RecordingPeer peer;
  box.AttachPeer(&peer);
  box.UserEdited("ab", 1, 0);
  box.UserEdited("ab", 2, 0);
  EXPECT_EQ(changed.count, 1);
  EXPECT_EQ(box.SelectionStart(), 2);
  EXPECT_TRUE(peer.changes.empty());
}

TEST_F(TextBoxRules, AssignmentPutsTheCaretBeforeTheText) {
  box.SetText("80");
  box.SelectAll();
  EXPECT_EQ(box.SelectionLength(), 2);
  box.SetText("90");
  EXPECT_EQ(box.SelectionStart(), 0);
  EXPECT_EQ(box.SelectionLength(), 0);
  EXPECT_TRUE(box.Type('1'));
  EXPECT_EQ(box.Text(), "190");
}

TEST_F(TextBoxRules, SameTextKeepsTheSelection) {
  box.SetText("80");
  box.SelectAll();
  box.SetText("80");
  EXPECT_EQ(box.SelectionLength(), 2);
  box.UserEdited("80", 1, 1);
  box.SetText("80");
  EXPECT_EQ(box.SelectionStart(), 1);
  EXPECT_EQ(box.SelectionLength(), 1);
}

TEST_F(TextBoxRules, PeerIsNotifiedOfSelectionAndText) {
  RecordingPeer peer;
  box.AttachPeer(&peer);
  box.SetText("80");
  box.SelectAll();
  EXPECT_TRUE(box.Type('5'));
  EXPECT_EQ(peer.changes,
            (std::vector<ui::Change>{ui::Change::kValue, ui::Change::kTextSelection, ui::Change::kValue}));
}

TEST_F(TextBoxRules, SelectionCanBeReplacedInAFullBox) {
  box.SetText("abcde");
  box.SelectAll();
  EXPECT_TRUE(box.Type('x'));
  EXPECT_EQ(box.Text(), "x");
}

TEST_F(TextBoxRules, TypingTheSelectedCharacterMovesTheCaretAndFiresNothing) {
  RecordingPeer peer;
  box.SetText("7");
  box.SelectAll();
  box.AttachPeer(&peer);
  EXPECT_TRUE(box.Type('7'));
  EXPECT_EQ(box.SelectionStart(), 1);
  EXPECT_EQ(changed.count, 1);
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kTextSelection}));
}

TEST_F(TextBoxRules, TypingReadsTheTextThatTheKeyHandlerLeft) {
  struct Replacer {
    ui::TextBox& box;
    base::Status Replace(char& /*character*/) {
      box.SetText("");
      return base::kDone;
    }
  } replacer{box};
  box.SetText("abcd");
  box.SelectAll();
  box.OnKeyPress = base::Callback<base::Status(char&)>::To<&Replacer::Replace>(replacer);
  EXPECT_TRUE(box.Type('x'));
  EXPECT_EQ(box.Text(), "x");
}

TEST_F(TextBoxRules, ChangeHandlerMayAssignAgain) {
  changed.action = [&] { box.SetText("99"); };
  box.TypeText("1");
  EXPECT_EQ(box.Text(), "99");
  EXPECT_EQ(changed.count, 2);
}

TEST_F(TextBoxRules, UnreachableBoxIgnoresTyping) {
  box.SetEnabled(false);
  EXPECT_FALSE(box.Type('1'));
  EXPECT_EQ(box.Text(), "");
}

TEST_F(TextBoxRules, KeyHandlerThatUnloadsTheFormPreventsTyping) {
  struct Unloader {
    ui::Form& form;
    base::Status Unload(char& /*character*/) {
      form.Unload();
      return base::kDone;
    }
  } unloader{fixture.form};
  box.OnKeyPress = base::Callback<base::Status(char&)>::To<&Unloader::Unload>(unloader);
  box.TypeText("12");
  EXPECT_EQ(box.Text(), "");
}

TEST_F(TextBoxRules, SelectionOfAnEditInTheWindowIsKeptInsideTheText) {
  box.UserEdited("abc", 2, 7);
  EXPECT_EQ(box.SelectionStart(), 2);
  EXPECT_EQ(box.SelectionLength(), 1);
  box.UserEdited("abc", 9, -1);
  EXPECT_EQ(box.SelectionStart(), 3);
  EXPECT_EQ(box.SelectionLength(), 0);
}

TEST(DigitKeys, AreTheTenDigitsAndBackspace) {
  std::string taken;
  for (int code = 1; code < 256; ++code) {
    auto character = static_cast<char>(code);
    ui::KeepDigits(character);
    if (character != 0) taken += character;
  }
  EXPECT_EQ(taken, "\b0123456789");
}

class ListRules : public testing::Test {
 protected:
  void Fill(ui::ListControl& list) {
    for (const char* text : {"5", "10", "20"}) list.AddItem(text, text[0]);
    list.OnClick = clicked.Handler();
  }
  FormFixture fixture;
  Handled clicked;
};

TEST_F(ListRules, FillingAndClearingFireNothing) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  EXPECT_TRUE(list.SetSelectedIndex(1).Ok());
  clicked.count = 0;
  list.Clear();
  EXPECT_EQ(clicked.count, 0);
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(list.SelectedIndex(), ui::ListControl::kNoSelection);
}

TEST_F(ListRules, SelectingFiresWhenTheIndexChangesAndClearingItDoesNot) {
  ui::ListBox list(fixture.form, {.name = "List"});
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

TEST_F(ListRules, RowKeyArrivesIfTheUserCanReachTheList) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  struct Keys {
    std::vector<ui::RowKey> seen;
    base::Status Note(ui::RowKey key) {
      seen.push_back(key);
      return base::kDone;
    }
  } keys;
  list.PressRowKey(ui::RowKey::kRemove);
  list.OnRowKey = base::Callback<base::Status(ui::RowKey)>::To<&Keys::Note>(keys);
  list.PressRowKey(ui::RowKey::kMoveDown);
  list.SetEnabled(false);
  list.PressRowKey(ui::RowKey::kMoveUp);
  EXPECT_EQ(keys.seen, std::vector{ui::RowKey::kMoveDown});
}

TEST_F(ListRules, IndexOutsideTheListIsRefused) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  EXPECT_EQ(list.SetSelectedIndex(3).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(list.SetSelectedIndex(-2).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(list.SelectedIndex(), ui::ListControl::kNoSelection);
  for (const int outside : {-1, 3, 7}) {
    EXPECT_EQ(list.Item(outside), "") << outside;
    EXPECT_EQ(list.ItemData(outside), 0) << outside;
  }
}

TEST_F(ListRules, ClickOnTheSelectedRowOfAListFiresAgain) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  EXPECT_TRUE(list.Choose("10"));
  EXPECT_TRUE(list.Choose("10"));
  EXPECT_EQ(clicked.count, 2);
  EXPECT_FALSE(list.Choose("11"));
}

TEST_F(ListRules, DoubleClickSelectsItsRowFirst) {
  ui::ListBox list(fixture.form, {.name = "List"});
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

TEST_F(ListRules, DoubleClickOnTheSelectedRowIsNoFurtherClick) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  EXPECT_TRUE(list.Choose("10"));
  list.DoubleClick(1);
  EXPECT_EQ(clicked.count, 1);
}

TEST_F(ListRules, DoubleClickOutsideTheRowsOrOutOfReachDoesNothing) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  Handled opened;
  list.OnDoubleClick = opened.Handler();
  list.DoubleClick(3);
  list.DoubleClick(-2);
  list.SetEnabled(false);
  list.DoubleClick(1);
  EXPECT_EQ(opened.count, 0);
  EXPECT_EQ(clicked.count, 0);
}

TEST_F(ListRules, EnterOpensTheSelectedRow) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  Handled opened;
  list.OnDoubleClick = opened.Handler();
  list.PressEnter();
  EXPECT_EQ(opened.count, 0);
  EXPECT_TRUE(list.Choose("10"));
  list.PressEnter();
  EXPECT_EQ(opened.count, 1);
  list.SetEnabled(false);
  list.PressEnter();
  EXPECT_EQ(opened.count, 1);
}

TEST_F(ListRules, UnreachableListAcceptsNoChoice) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  list.SetVisible(false);
  EXPECT_FALSE(list.Choose("10"));
  list.ChooseIndex(2);
  EXPECT_EQ(list.SelectedIndex(), ui::ListControl::kNoSelection);
  EXPECT_EQ(clicked.count, 0);
}

TEST_F(ListRules, ChoiceOutsideTheListSelectsNothing) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  list.ChooseIndex(3);
  list.ChooseIndex(-1);
  EXPECT_EQ(list.SelectedIndex(), ui::ListControl::kNoSelection);
  EXPECT_EQ(clicked.count, 0);
}

TEST_F(ListRules, PeerIsNotifiedOfRowsAndSelection) {
  ui::ListBox list(fixture.form, {.name = "List"});
  RecordingPeer peer;
  list.AttachPeer(&peer);
  list.AddItem("5");
  EXPECT_TRUE(list.SetSelectedIndex(0).Ok());
  list.Clear();
  EXPECT_EQ(peer.changes,
            (std::vector<ui::Change>{ui::Change::kItems, ui::Change::kValue, ui::Change::kItems}));
}

TEST_F(ListRules, ClickHandlerMayClearTheList) {
  ui::ListBox list(fixture.form, {.name = "List"});
  Fill(list);
  clicked.action = [&] { list.Clear(); };
  EXPECT_TRUE(list.Choose("10"));
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(clicked.count, 1);
}

TEST_F(ListRules, FirstOfEqualRowsIsFound) {
  ui::DropDownList list(fixture.form, {.name = "Drop"});
  Fill(list);
  list.AddItem("10");
  list.SetText("10");
  EXPECT_EQ(list.SelectedIndex(), 1);
}

TEST_F(ListRules, DropDownKeepsItsSelectionForATextThatIsNoRow) {
  ui::DropDownList list(fixture.form, {.name = "Drop"});
  Fill(list);
  list.SetText("20");
  list.SetText("20");
  list.SetText("21");
  EXPECT_EQ(list.Text(), "20");
  EXPECT_EQ(clicked.count, 1);
  EXPECT_TRUE(list.Choose("20"));
  EXPECT_EQ(clicked.count, 1) << "the row was already selected";
}

TEST_F(ListRules, DropDownListFiresNothingFromCode) {
  ui::DropDownList list(fixture.form, {.name = "Drop"}, ui::CodeFiresClick::kNo);
  Fill(list);
  list.SetText("5");
  EXPECT_EQ(clicked.count, 0);
  EXPECT_TRUE(list.Choose("10"));
  EXPECT_EQ(clicked.count, 1);
}

TEST_F(ListRules, ComboAcceptsAnyTextAndSelectsTheEqualRow) {
  ui::DropDownCombo combo(fixture.form, {.name = "Combo"});
  Fill(combo);
  Handled changed;
  combo.OnChange = changed.Handler();
  combo.UserEdited("2");
  EXPECT_EQ(combo.SelectedIndex(), ui::ListControl::kNoSelection);
  combo.UserEdited("20");
  EXPECT_EQ(combo.SelectedIndex(), 2);
  EXPECT_EQ(changed.count, 2);
  EXPECT_EQ(clicked.count, 0) << "typing is not a choice";
  EXPECT_TRUE(combo.Choose("5"));
  EXPECT_EQ(combo.Text(), "5");
  EXPECT_EQ(clicked.count, 1);
  EXPECT_EQ(changed.count, 3);
}

TEST_F(ListRules, ComboChangeHandlerSeesTheSelectionOfTheNewText) {
  ui::DropDownCombo combo(fixture.form, {.name = "Combo"});
  Fill(combo);
  Handled changed;
  std::vector<int> seen;
  changed.action = [&] { seen.push_back(combo.SelectedIndex()); };
  combo.OnChange = changed.Handler();
  combo.SetText("20");
  combo.SetText("2");
  combo.SetText("2");
  EXPECT_TRUE(combo.SetSelectedIndex(1).Ok());
  EXPECT_EQ(seen, (std::vector<int>{2, ui::ListControl::kNoSelection, 1}));
}

/// Records the text and selection that a peer would find at each change.
class ComboReader final : public ui::ControlPeer {
 public:
  void ControlChanged(ui::Control& control, ui::Change /*change*/) override {
    const auto& combo = static_cast<ui::DropDownCombo&>(control);
    read.push_back(combo.Text() + "/" + combo.SelectedText());
  }
  std::vector<std::string> read;
};

TEST_F(ListRules, ComboPeerNeverFindsTheOldTextAfterAnEdit) {
  ui::DropDownCombo combo(fixture.form, {.name = "Combo"});
  Fill(combo);
  combo.SetText("20");
  ComboReader reader;
  combo.AttachPeer(&reader);
  combo.UserEdited("2");
  ASSERT_FALSE(reader.read.empty());
  for (const std::string& read : reader.read) EXPECT_EQ(read, "2/");
}

TEST_F(ListRules, ComboShowsItsNewTextBeforeItsHandlerRuns) {
  ui::DropDownCombo combo(fixture.form, {.name = "Combo"});
  ComboReader reader;
  combo.AttachPeer(&reader);
  Handled changed;
  changed.action = [&reader] { EXPECT_EQ(reader.read, std::vector<std::string>{"7/"}); };
  combo.OnChange = changed.Handler();
  combo.SetText("7");
  EXPECT_EQ(changed.count, 1);
}

TEST_F(ListRules, ClearingTheSelectionOfAComboKeepsItsText) {
  ui::DropDownCombo combo(fixture.form, {.name = "Combo"});
  Fill(combo);
  combo.SetText("20");
  EXPECT_TRUE(combo.SetSelectedIndex(ui::ListControl::kNoSelection).Ok());
  EXPECT_EQ(combo.Text(), "20");
}

TEST_F(ListRules, ListHoldsNoMoreThanTheSystemsLists) {
  ui::ListBox list(fixture.form, {.name = "List"});
  for (int i = 0; i < 32770; ++i) list.AddItem("x");
  EXPECT_EQ(list.Count(), 32767);
}

}  // namespace
}  // namespace qdix::tests
