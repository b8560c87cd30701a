#include "launcher/launcher_file.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::launcher {
namespace {

using namespace std::string_literals;

constexpr std::uint32_t kPlenty = 100000;

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

std::string Records(std::size_t count) {
  std::string content;
  for (std::size_t i = 0; i < count; ++i) {
    content += RecordBytes({"Program " + std::to_string(i), "C:\\P" + std::to_string(i) + ".EXE", ""});
  }
  return content;
}

TEST(LauncherFile, RecordIsThreeFieldsFilledWithBlanks) {
  EXPECT_EQ(kRecordBytes, 565U);
  EXPECT_EQ(
      RecordBytes({"Editor", "C:\\WINDOWS\\NOTEPAD.EXE", "C:\\My Documents"}),
      "Editor" + Blanks(49) + "C:\\WINDOWS\\NOTEPAD.EXE" + Blanks(233) + "C:\\My Documents" + Blanks(240));
  EXPECT_EQ(RecordBytes({}), Blanks(565));
}

TEST(LauncherFile, FieldsOfFullWidthAreAdjacentAndLongerOnesAreCut) {
  const std::string full =
      std::string(55, 'n') + std::string(255, 'p') + std::string(254, 's') + std::string(1, 'e');
  EXPECT_EQ(RecordBytes({std::string(55, 'n'), std::string(255, 'p'), std::string(254, 's') + "e"}), full);
  EXPECT_EQ(
      RecordBytes({std::string(55, 'n') + "x", std::string(255, 'p') + "x", std::string(254, 's') + "ex"}),
      full);
  const LauncherEntry entry = ReadRecord(full, 0);
  EXPECT_EQ(entry.name, std::string(55, 'n'));
  EXPECT_EQ(entry.path, std::string(255, 'p'));
  EXPECT_EQ(entry.start_in, std::string(254, 's') + "e");
}

TEST(LauncherFile, BlanksAreTrimmedAtTheEndsAndKeptInside) {
  const LauncherEntry entry =
      ReadRecord(RecordBytes({"  two  words ", " \"C:\\My Games\\A B.EXE\" /x ", "   "}), 0);
  EXPECT_EQ(entry, (LauncherEntry{"two  words", "\"C:\\My Games\\A B.EXE\" /x", ""}));
}

TEST(LauncherFile, OtherWhiteSpaceAndNulsStay) {
  const LauncherEntry odd{"\tTab\r\n"s, "\0begins"s, "in\0side"s};
  EXPECT_EQ(ReadRecord(RecordBytes(odd), 0), odd);
}

TEST(LauncherFile, EveryByteOfTheCodePageSurvives) {
  std::string bytes;
  for (int byte = 255; byte >= 1; --byte) bytes += static_cast<char>(byte);
  const LauncherEntry entry{"\xC4\xD6\xDC \xE4\xF6\xFC\xDF", bytes, "C:\\\xE9t\xE9"};
  EXPECT_EQ(ReadRecord(RecordBytes(entry), 0), entry);
}

TEST(LauncherFile, ListsOfManyLengthsAreReadBackInOrder) {
  for (const std::size_t count : {0U, 1U, 25U, 26U, 27U}) {
    const std::vector<LauncherEntry> entries = ReadRecords(Records(count));
    ASSERT_EQ(entries.size(), count);
    std::string again;
    for (std::size_t i = 0; i < count; ++i) {
      EXPECT_EQ(entries[i].name, "Program " + std::to_string(i));
      again += RecordBytes(entries[i]);
    }
    EXPECT_EQ(again, Records(count));
  }
}

TEST(LauncherFile, PartialRecordCountsFromHalfItsLength) {
  EXPECT_EQ(RecordCount(0), 0U);
  EXPECT_EQ(RecordCount(1), 0U);
  EXPECT_EQ(RecordCount(282), 0U);
  EXPECT_EQ(RecordCount(283), 1U);
  EXPECT_EQ(RecordCount(564), 1U);
  EXPECT_EQ(RecordCount(565), 1U);
  EXPECT_EQ(RecordCount(847), 1U);
  EXPECT_EQ(RecordCount(848), 2U);
  EXPECT_EQ(RecordCount(14125), 25U);
  EXPECT_EQ(RecordCount(14125 + 282), 25U);
  EXPECT_EQ(RecordCount(14125 + 283), 26U);
}

TEST(LauncherFile, FieldsBeyondTheEndReadAsBlanks) {
  const std::string content = Records(2).substr(0, 848);
  const std::vector<LauncherEntry> entries = ReadRecords(content);
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[1], (LauncherEntry{"Program 1", "C:\\P1.EXE", ""}));
  EXPECT_EQ(ReadRecord("Edi", 0), (LauncherEntry{"Edi", "", ""}));
  EXPECT_EQ(ReadRecord(RecordBytes({"a", "b", "c"}).substr(0, kNameWidth), 0), (LauncherEntry{"a", "", ""}));
  EXPECT_EQ(ReadRecord(RecordBytes({"a", "b", "c"}), 1), LauncherEntry{});
  EXPECT_EQ(ReadRecord("", 7), LauncherEntry{});
}

TEST(LauncherFile, WholeFileIsReadAndClosed) {
  os::SimulatedMachine machine;
  os::Files& files = machine.GetSystem().files;
  machine.WriteFile("C:\\QDIX\\launcher.dat", "\0one\xFF two"s);
  EXPECT_EQ(ReadWholeFile(files, "C:\\QDIX\\launcher.dat", kPlenty), "\0one\xFF two"s);
  EXPECT_EQ(ReadWholeFile(files, "C:\\QDIX\\launcher.dat", 4), "\0one"s);
  EXPECT_EQ(ReadWholeFile(files, "C:\\QDIX\\none.dat", kPlenty), std::nullopt);
  machine.WriteFile("C:\\QDIX\\empty.dat", "");
  EXPECT_EQ(ReadWholeFile(files, "C:\\QDIX\\empty.dat", kPlenty), "");
  EXPECT_EQ(machine.Misuses().size(), 0U);
  EXPECT_EQ(machine.OpenFileCount(), 0);
}

TEST(LauncherFile, FailuresReturnNothingAndLeaveNothingOpen) {
  for (const char* const call : {"CreateFileA", "GetFileSize", "ReadFile"}) {
    os::SimulatedMachine machine;
    machine.WriteFile("C:\\launcher.dat", Records(2));
    machine.FailNextCall(call);
    EXPECT_EQ(ReadWholeFile(machine.GetSystem().files, "C:\\launcher.dat", kPlenty), std::nullopt) << call;
    EXPECT_EQ(machine.OpenFileCount(), 0) << call;
  }
}

}  // namespace
}  // namespace qdix::launcher
