// Message boxes: their texts and their answers.
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

class DialogsContract : public ContractTest {
 protected:
  int Ask(std::uint32_t flags) { return system.dialogs.MessageBoxA("Do it now?", "Q-DIX", flags); }
};

TEST_F(DialogsContract, ShowsItsTextUnderItsTitle) {
  machine->AnswerNextBox(os::kIdOk);
  EXPECT_EQ(system.dialogs.MessageBoxA("First line\r\n\r\nThird line", "Quondix Tip", os::kMbIconInformation),
            os::kIdOk);
  const auto boxes = machine->Boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "First line\r\n\r\nThird line");
  EXPECT_EQ(boxes[0].title, "Quondix Tip");
}

TEST_F(DialogsContract, AnswersAreTheButtonsPressed) {
  machine->AnswerNextBox(os::kIdYes);
  EXPECT_EQ(Ask(os::kMbYesNo), os::kIdYes);
  machine->AnswerNextBox(os::kIdNo);
  EXPECT_EQ(Ask(os::kMbYesNo), os::kIdNo);
  machine->AnswerNextBox(os::kIdYes);
  EXPECT_EQ(Ask(os::kMbYesNo | os::kMbDefaultButton2 | os::kMbIconStop), os::kIdYes);
  machine->AnswerNextBox(os::kIdOk);
  EXPECT_EQ(Ask(os::kMbOk), os::kIdOk);
  for (const int answer : {os::kIdYes, os::kIdNo, os::kIdCancel}) {
    machine->AnswerNextBox(answer);
    EXPECT_EQ(Ask(os::kMbYesNoCancel | os::kMbIconQuestion), answer);
  }
}

TEST_F(DialogsContract, BoxOpenWhenTheProgramEndsIsUnanswered) {
  machine->StopInNextBox();
  EXPECT_EQ(Ask(os::kMbYesNo), os::kIdNone);
  EXPECT_EQ(machine->Boxes().size(), 1U);
}

TEST_F(DialogsContract, NoBoxOpensAfterTheEnd) {
  machine->StopInNextBox();
  EXPECT_EQ(Ask(os::kMbOk), os::kIdNone);
  EXPECT_EQ(Ask(os::kMbOk), os::kIdNone);
  EXPECT_EQ(machine->Boxes().size(), 1U);
}

}  // namespace
}  // namespace qdix::contract
