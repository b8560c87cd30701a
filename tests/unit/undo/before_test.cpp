// What record and backup say of one entry, and how it is shown.
#include "undo/before.h"

#include <gtest/gtest.h>

namespace qdix::undo {
namespace {

constexpr const Entry& kSize = kEntries[0];
constexpr const Entry& kTemplate = kEntries[3];
constexpr const Entry& kDrive = kEntries[4];
constexpr std::size_t kRoom = 20;

void ExpectUnusable(const Before& before, const std::string& text) {
  EXPECT_FALSE(before.IsKnown()) << text;
  EXPECT_EQ(before.unusable, text);
}

TEST(BeforeFromRecord, SizeIsItsNumber) {
  for (const char* const text : {"2048", "-5", "2048.5", "1E+15"}) {
    const Before before = FromRecord(kSize, text);
    EXPECT_EQ(before.known, Before::Known::kFromRecord);
    EXPECT_EQ(before.text, text);
  }
  EXPECT_EQ(FromRecord(kSize, " 512 ").text, "512");
}

TEST(BeforeFromRecord, SizeOfZeroWasNone) {
  for (const char* const text : {"0", "0.0", "-0", " 0 "}) {
    EXPECT_TRUE(FromRecord(kSize, text).IsKnown()) << text;
    EXPECT_EQ(FromRecord(kSize, text).text, std::nullopt) << text;
  }
}

TEST(BeforeFromRecord, SizeThatIsNoNumberIsShownAndNotUsed) {
  for (const char* const text : {"many", "2048 KB", "", "12\r\nshell=x"}) {
    ExpectUnusable(FromRecord(kSize, text), text);
  }
}

TEST(BeforeFromRecord, EmptyTemplateWasNoneAndEmptyDriveWasEmpty) {
  EXPECT_TRUE(FromRecord(kTemplate, "").IsKnown());
  EXPECT_EQ(FromRecord(kTemplate, "").text, std::nullopt);
  EXPECT_EQ(FromRecord(kTemplate, "Server").text, "Server");
  EXPECT_EQ(FromRecord(kDrive, "").text, "");
  EXPECT_EQ(FromRecord(kDrive, "C:").text, "C:");
}

TEST(BeforeFromRecord, MissingValueSaysNothing) {
  for (const Entry& entry : kEntries) {
    EXPECT_FALSE(FromRecord(entry, std::nullopt).IsKnown());
    EXPECT_EQ(ShownBefore(FromRecord(entry, std::nullopt), kRoom), "not recorded");
  }
}

TEST(BeforeFromRecord, TextThatCannotStandInOneLineIsNotUsed) {
  for (const std::string& text : {std::string("C:\r\nshell=x"), std::string("a\tb"), std::string(255, '1')}) {
    for (const Entry& entry : {kSize, kTemplate, kDrive}) ExpectUnusable(FromRecord(entry, text), text);
  }
  EXPECT_TRUE(FromRecord(kDrive, std::string(254, 'x')).IsKnown());
}

TEST(BeforeFromBackup, TellsTextAndLackOfIt) {
  EXPECT_EQ(FromBackup("on").known, Before::Known::kFromBackup);
  EXPECT_EQ(FromBackup("on").text, "on");
  EXPECT_EQ(FromBackup(std::nullopt).known, Before::Known::kFromBackup);
  EXPECT_EQ(FromBackup(std::nullopt).text, std::nullopt);
  ExpectUnusable(FromBackup(std::string(255, 'x')), std::string(255, 'x'));
}

TEST(StandsAsBefore, SizesFromTheRecordCompareAsTheNumbersTheyBeginWith) {
  const Before recorded = FromRecord(kSize, "8192");
  EXPECT_TRUE(StandsAsBefore(kSize, recorded, "8192 KB"));
  EXPECT_FALSE(StandsAsBefore(kSize, recorded, "4096"));
  EXPECT_FALSE(StandsAsBefore(kSize, recorded, std::nullopt));
  EXPECT_TRUE(StandsAsBefore(kSize, FromRecord(kSize, "0"), std::nullopt));
  EXPECT_TRUE(StandsAsBefore(kSize, FromRecord(kSize, "0"), "0"));
  EXPECT_FALSE(StandsAsBefore(kSize, FromRecord(kSize, "0"), "512"));
}

TEST(StandsAsBefore, EverythingElseComparesAsText) {
  EXPECT_FALSE(StandsAsBefore(kSize, FromBackup("8192 KB"), "8192"));
  EXPECT_TRUE(StandsAsBefore(kDrive, FromRecord(kDrive, "C:"), "C:"));
  EXPECT_FALSE(StandsAsBefore(kDrive, FromRecord(kDrive, ""), std::nullopt));
  EXPECT_FALSE(StandsAsBefore(kTemplate, FromRecord(kTemplate, ""), "Quondix"));
  EXPECT_TRUE(StandsAsBefore(kTemplate, FromRecord(kTemplate, ""), std::nullopt));
}

TEST(Shown, TextsFitTheirRoomAndHoldNoControlCharacters) {
  EXPECT_EQ(Shown(std::nullopt, kRoom), "(none)");
  EXPECT_EQ(Shown("", kRoom), "(empty)");
  EXPECT_EQ(Shown(std::string(20, 'x'), kRoom), std::string(20, 'x'));
  EXPECT_EQ(Shown(std::string(21, 'x'), kRoom), std::string(17, 'x') + "...");
  EXPECT_EQ(Shown("a\r\nb\x01", kRoom), "a  b ");
  EXPECT_EQ(Shown("M\xFCnchen", kRoom), "M\xFCnchen");
}

TEST(Shown, ColumnTellsWhereTheTextComesFrom) {
  EXPECT_EQ(ShownBefore(FromRecord(kDrive, "C:"), kRoom), "C:");
  EXPECT_EQ(ShownBefore(FromRecord(kSize, "0"), kRoom), "(none)");
  EXPECT_EQ(ShownBefore(FromRecord(kSize, "many"), kRoom), "many");
  EXPECT_EQ(ShownBefore(FromBackup("65536"), kRoom), "not recorded; backup: 65536");
  EXPECT_EQ(ShownBefore(FromBackup(std::nullopt), kRoom), "not recorded; backup: (none)");
}

}  // namespace
}  // namespace qdix::undo
