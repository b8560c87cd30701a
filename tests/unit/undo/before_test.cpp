// What record and backup contain about one entry, and how it is shown.
#include "undo/before.h"

#include <gtest/gtest.h>

namespace qdix::undo {
namespace {

constexpr const Entry& kSize = kEntries[0];
constexpr const Entry& kTemplate = kEntries[3];
constexpr const Entry& kDrive = kEntries[4];
constexpr const Entry& kPaging = kEntries[7];
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

TEST(BeforeFromRecord, SizeOfZeroMeansNoEntry) {
  for (const char* const text : {"0", "0.0", "-0", " 0 "}) {
    EXPECT_TRUE(FromRecord(kSize, text).IsKnown()) << text;
    EXPECT_EQ(FromRecord(kSize, text).text, std::nullopt) << text;
  }
}

TEST(BeforeFromRecord, SizeThatIsNoNumberIsShownButNotUsed) {
  for (const char* const text : {"many", "2048 KB", "", "12\r\nshell=x"}) {
    ExpectUnusable(FromRecord(kSize, text), text);
  }
}

TEST(BeforeFromRecord, EmptyTemplateMeansNoneAndEmptyDriveMeansEmpty) {
  EXPECT_TRUE(FromRecord(kTemplate, "").IsKnown());
  EXPECT_EQ(FromRecord(kTemplate, "").text, std::nullopt);
  EXPECT_EQ(FromRecord(kTemplate, "Server").text, "Server");
  EXPECT_EQ(FromRecord(kDrive, "").text, "");
  EXPECT_EQ(FromRecord(kDrive, "C:").text, "C:");
}

TEST(BeforeFromRecord, MissingValueMeansNothing) {
  for (const Entry& entry : kEntries) {
    EXPECT_FALSE(FromRecord(entry, std::nullopt).IsKnown());
    EXPECT_EQ(ShownBefore(FromRecord(entry, std::nullopt), kRoom), "not recorded");
  }
}

TEST(BeforeFromRecord, TextThatDoesNotFitIntoOneLineIsNotUsed) {
  for (const std::string& text : {std::string("C:\r\nshell=x"), std::string("a\tb"), std::string(255, '1')}) {
    for (const Entry& entry : {kSize, kTemplate, kDrive}) ExpectUnusable(FromRecord(entry, text), text);
  }
  EXPECT_TRUE(FromRecord(kDrive, std::string(254, 'x')).IsKnown());
}

TEST(BeforeFromBackup, ReportsTextOrItsAbsence) {
  EXPECT_EQ(FromBackup("on").known, Before::Known::kFromBackup);
  EXPECT_EQ(FromBackup("on").text, "on");
  EXPECT_EQ(FromBackup(std::nullopt).known, Before::Known::kFromBackup);
  EXPECT_EQ(FromBackup(std::nullopt).text, std::nullopt);
  ExpectUnusable(FromBackup(std::string(255, 'x')), std::string(255, 'x'));
}

TEST(IsAsBefore, SizesKnownOnlyAsNumbersCompareAsNumbers) {
  const Before recorded = FromRecord(kSize, "8192");
  EXPECT_TRUE(IsAsBefore(recorded, "8192 KB"));
  EXPECT_FALSE(IsAsBefore(recorded, "4096"));
  EXPECT_FALSE(IsAsBefore(recorded, std::nullopt));
  EXPECT_TRUE(IsAsBefore(FromRecord(kSize, "0"), std::nullopt));
  EXPECT_TRUE(IsAsBefore(FromRecord(kSize, "0"), "0"));
  EXPECT_FALSE(IsAsBefore(FromRecord(kSize, "0"), "512"));
  EXPECT_TRUE(IsAsBefore(FromRecord(kSize, "1.23456789012346E+16"), "12345678901234567"));
}

TEST(IsAsBefore, EverythingElseComparesAsText) {
  EXPECT_FALSE(IsAsBefore(FromBackup("8192 KB"), "8192"));
  EXPECT_TRUE(IsAsBefore(FromRecord(kDrive, "C:"), "C:"));
  EXPECT_FALSE(IsAsBefore(FromRecord(kDrive, ""), std::nullopt));
  EXPECT_FALSE(IsAsBefore(FromRecord(kTemplate, ""), "Quondix"));
  EXPECT_TRUE(IsAsBefore(FromRecord(kTemplate, ""), std::nullopt));
}

TEST(BeforeFromBoth, BackupGivesTheExactTextOfARecordedNumber) {
  for (const char* const text : {"2048 KB", "2048", " 2048,5"}) {
    const Before before = FromBoth(kSize, "2048", true, text);
    EXPECT_EQ(before.known, Before::Known::kFromRecord) << text;
    EXPECT_EQ(before.text, text);
    EXPECT_FALSE(before.IsUncertain());
    EXPECT_FALSE(IsAsBefore(before, "2048.0")) << "only the exact text is as before";
  }
  EXPECT_EQ(FromBoth(kSize, "1", true, "1,024").text, "1,024");
  EXPECT_EQ(FromBoth(kSize, "0", true, "none").text, "none") << "there was an entry without a number";
  EXPECT_EQ(FromBoth(kSize, "0", true, std::nullopt).text, std::nullopt);
  ExpectUnusable(FromBoth(kSize, "7", true, std::string(255, '7')), std::string(255, '7'));
}

TEST(BeforeFromBoth, MissingInACompleteRecordAndInTheBackupIsCertain) {
  EXPECT_EQ(FromBoth(kDrive, std::nullopt, true, std::nullopt).known, Before::Known::kFromRecord);
  EXPECT_FALSE(FromBoth(kDrive, std::nullopt, true, std::nullopt).IsUncertain());
  EXPECT_EQ(FromBoth(kDrive, std::nullopt, true, "D").known, Before::Known::kFromBackup);
  EXPECT_FALSE(FromBoth(kDrive, std::nullopt, true, "D").IsUncertain());
}

TEST(BeforeFromBoth, EntryMissingOnlyInTheBackupIsUncertain) {
  EXPECT_TRUE(FromBoth(kDrive, std::nullopt, false, std::nullopt).IsUncertain());
  EXPECT_TRUE(FromBoth(kSize, std::nullopt, false, std::nullopt).IsUncertain());
  EXPECT_TRUE(FromBoth(kPaging, std::nullopt, true, std::nullopt).IsUncertain()) << "it is never recorded";
  EXPECT_FALSE(FromBoth(kPaging, std::nullopt, true, "off").IsUncertain());
}

TEST(RecordAndBackup, AgreeIfTheEntriesAreTheSame) {
  EXPECT_TRUE(Agree(kSize, "2048", true, "2048 KB"));
  EXPECT_TRUE(Agree(kSize, "0", true, std::nullopt));
  EXPECT_TRUE(Agree(kSize, "0", true, "none"));
  EXPECT_TRUE(Agree(kSize, "1.23456789012346E+16", true, "12345678901234567"));
  const std::string long_number(300, '1');
  EXPECT_TRUE(Agree(kSize, "1.11111111111111E+253", true, long_number)) << "the record keeps only 254 digits";
  EXPECT_TRUE(Agree(kDrive, "D:", true, "D:"));
  EXPECT_TRUE(Agree(kDrive, "", true, ""));
  EXPECT_TRUE(Agree(kDrive, std::nullopt, true, std::nullopt));
  EXPECT_TRUE(Agree(kDrive, std::nullopt, true, "D")) << "a single character is not recorded";
  EXPECT_TRUE(Agree(kDrive, std::string(254, 'x'), true, std::string(255, 'x'))) << "the record is cut";
}

TEST(RecordAndBackup, DifferIfTheBackupIsFromAnotherTime) {
  EXPECT_FALSE(Agree(kSize, "2048", true, "4096"));
  EXPECT_FALSE(Agree(kSize, "2048", true, std::nullopt));
  EXPECT_FALSE(Agree(kSize, "0", true, "512"));
  EXPECT_FALSE(Agree(kDrive, "D:", true, "C:"));
  EXPECT_FALSE(Agree(kDrive, "D:", true, std::nullopt));
  EXPECT_FALSE(Agree(kDrive, std::nullopt, true, "D:"));
}

TEST(RecordAndBackup, ValuesMissingInTheRecordCannotDiffer) {
  EXPECT_TRUE(Agree(kDrive, std::nullopt, false, "D:")) << "writing it may have failed";
  EXPECT_TRUE(Agree(kSize, std::nullopt, false, "512"));
  EXPECT_TRUE(Agree(kSize, "many", true, "512"));
  EXPECT_TRUE(Agree(kTemplate, "Desktop", true, std::nullopt)) << "the template is not in system.ini";
  EXPECT_TRUE(Agree(kPaging, std::nullopt, true, "on"));
}

TEST(Shown, TextsFitTheirColumnAndContainNoControlCharacters) {
  EXPECT_EQ(Shown(std::nullopt, kRoom), "(none)");
  EXPECT_EQ(Shown("", kRoom), "(empty)");
  EXPECT_EQ(Shown(std::string(20, 'x'), kRoom), std::string(20, 'x'));
  EXPECT_EQ(Shown(std::string(21, 'x'), kRoom), std::string(17, 'x') + "...");
  EXPECT_EQ(Shown("a\r\nb\x01", kRoom), "a  b ");
  EXPECT_EQ(Shown("M\xFCnchen", kRoom), "M\xFCnchen");
}

TEST(Shown, ColumnShowsTheSourceOfTheText) {
  EXPECT_EQ(ShownBefore(FromRecord(kDrive, "C:"), kRoom), "C:");
  EXPECT_EQ(ShownBefore(FromRecord(kSize, "0"), kRoom), "(none)");
  EXPECT_EQ(ShownBefore(FromRecord(kSize, "many"), kRoom), "many");
  EXPECT_EQ(ShownBefore(FromBackup("65536"), kRoom), "not recorded; backup: 65536");
  EXPECT_EQ(ShownBefore(FromBackup(std::nullopt), kRoom), "not recorded; backup: (none)");
  EXPECT_EQ(ShownBefore({.known = Before::Known::kFromItsName}, kRoom), "not recorded");
}

}  // namespace
}  // namespace qdix::undo
