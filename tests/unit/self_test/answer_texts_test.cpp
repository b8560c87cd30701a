// The words in which the self-test logs the system's answers.
#include "self_test/answer_texts.h"

#include <gtest/gtest.h>

namespace qdix::tests {
namespace {

using self_test::AnswerList;
using self_test::Hex;
using self_test::KeptOrCut;
using self_test::Quoted;

TEST(AnswerTexts, HexadecimalIsFilledWithZerosAndNeverCut) {
  EXPECT_EQ(Hex(0x27F, 4), "027F");
  EXPECT_EQ(Hex(0, 2), "00");
  EXPECT_EQ(Hex(0xBFF77716U, 2), "BFF77716");
}

TEST(AnswerTexts, ControlCharactersAreWrittenByTheirNumber) {
  EXPECT_EQ(Quoted("a \xE4\x01\t"), "\"a \xE4\\x01\\x09\"");
  EXPECT_EQ(Quoted(""), "\"\"");
}

TEST(AnswerTexts, NumberIsKeptOrCutOrChangedOtherwise) {
  EXPECT_EQ(KeptOrCut(70000, 70000), "70000 kept");
  EXPECT_EQ(KeptOrCut(70000, 4464), "70000 cut to 16 bits: 4464");
  EXPECT_EQ(KeptOrCut(40000, -25536), "40000 cut to 16 bits: -25536");
  EXPECT_EQ(KeptOrCut(105536, 40000), "105536 cut to 16 bits: 40000");
  EXPECT_EQ(KeptOrCut(70000, 32767), "70000 became 32767");
}

TEST(AnswerTexts, EmptyListIsNone) { EXPECT_EQ(AnswerList().Text(), "none"); }

TEST(AnswerTexts, PartsAreJoinedAndItemsSeparated) {
  AnswerList list;
  list.Add({"one"});
  list.Add({"tw", "o"});
  EXPECT_EQ(list.Text(), "one, two");
}

}  // namespace
}  // namespace qdix::tests
