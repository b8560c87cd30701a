#include "ui/access_key.h"

#include <gtest/gtest.h>

namespace qdix::ui {
namespace {

TEST(AccessKey, FirstOccurrenceInEitherCaseIsMarked) {
  EXPECT_EQ(MarkAccessKey("Free Up RAM Now", 'F'), "&Free Up RAM Now");
  EXPECT_EQ(MarkAccessKey("Free Up RAM Now", 'r'), "F&ree Up RAM Now");
  EXPECT_EQ(MarkAccessKey("Free Up RAM Now", 'N'), "Free Up RAM &Now");
}

TEST(AccessKey, AmpersandsOfTheCaptionShowAsThemselves) {
  EXPECT_EQ(MarkAccessKey("(Auto & Time Only)", 0), "(Auto && Time Only)");
  EXPECT_EQ(MarkAccessKey("R&D", 'd'), "R&&&D");
}

TEST(AccessKey, MissingLetterMarksNothing) {
  EXPECT_EQ(MarkAccessKey("Hide", 'x'), "Hide");
  EXPECT_EQ(MarkAccessKey("", 'x'), "");
}

}  // namespace
}  // namespace qdix::ui
