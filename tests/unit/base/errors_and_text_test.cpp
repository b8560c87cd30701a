// Run-time errors, and the small text operations.
#include <gtest/gtest.h>

#include "base/result.h"
#include "base/text.h"

namespace qdix::tests {
namespace {

struct Described {
  int number;
  const char* description;
};
class ErrorDescription : public testing::TestWithParam<Described> {};
TEST_P(ErrorDescription, IsTheFamiliarText) {
  EXPECT_EQ(base::RuntimeError{GetParam().number}.Description(), GetParam().description);
}
INSTANTIATE_TEST_SUITE_P(
    Numbers, ErrorDescription,
    testing::Values(Described{5, "Invalid procedure call or argument"}, Described{6, "Overflow"},
                    Described{7, "Out of memory"}, Described{9, "Subscript out of range"},
                    Described{11, "Division by zero"}, Described{53, "File not found"},
                    Described{68, "Device unavailable"}, Described{70, "Permission denied"},
                    Described{76, "Path not found"}, Described{380, "Invalid property value"},
                    Described{387, "Set not permitted"}, Described{9999, "Application-defined error"}));

TEST(RuntimeErrors, ControlArrayErrorNamesItsElement) {
  EXPECT_EQ((base::RuntimeError{340, 25}.Description()), "Control array element '25' doesn't exist");
}

TEST(RuntimeErrors, UntrappedTextHasNumberEmptyLineAndDescription) {
  EXPECT_EQ(base::UntrappedErrorText(base::kOverflow), "Run-time error '6':\r\n\r\nOverflow");
}

TEST(Results, HoldAValueOrAnError) {
  const base::Result<int> value = 3;
  const base::Result<int> error = base::kFileNotFound;
  EXPECT_TRUE(value.Ok());
  EXPECT_EQ(value.Value(), 3);
  EXPECT_FALSE(error.Ok());
  EXPECT_EQ(error.Error().number, 53);
  EXPECT_EQ(error.ValueOr(7), 7);
  EXPECT_TRUE(base::kDone.Ok());
  EXPECT_FALSE(base::Status(base::kOverflow).Ok());
}

TEST(Texts, AreTrimmedOfBlanksOnly) {
  EXPECT_EQ(base::Trim("  a b  "), "a b");
  EXPECT_EQ(base::Trim("    "), "");
  EXPECT_EQ(base::Trim("\ta\t"), "\ta\t");
}

TEST(Texts, AreCutAtTheFirstNul) {
  EXPECT_EQ(base::CutAtNul(std::string_view("ab\0cd\0", 6)), "ab");
  EXPECT_EQ(base::CutAtNul("abc"), "abc");
  EXPECT_EQ(base::CutAtNul(std::string_view("\0abc", 4)), "");
}

TEST(Texts, OnlyAsciiLettersChangeCase) {
  EXPECT_EQ(base::UpperAscii("hKey_\xE4z09"), "HKEY_\xE4Z09");
  EXPECT_EQ(base::UpperAscii("`a{z"), "`A{Z");
  EXPECT_TRUE(base::EqualsIgnoringCase("ThunderRT6Main", "THUNDERRT6MAIN"));
  EXPECT_FALSE(base::EqualsIgnoringCase("\xE4", "\xC4"));
  EXPECT_FALSE(base::EqualsIgnoringCase("a", "ab"));
}

}  // namespace
}  // namespace qdix::tests
