#include "config_launcher/entry_text.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::config_launcher {
namespace {

using namespace std::string_literals;

launcher::LauncherEntry EntryOf(const std::string& path) {
  const os::SimulatedMachine machine;
  return EntryOfFile(machine.GetSystem().files, path);
}

TEST(EntryText, CleanedEndsAtTheNulAndHasBlanksForControlCharacters) {
  EXPECT_EQ(Cleaned("Editor"), "Editor");
  EXPECT_EQ(Cleaned("Edi\0tor"s), "Edi");
  EXPECT_EQ(Cleaned("\0Editor"s), "");
  EXPECT_EQ(Cleaned("\tTwo\r\nlines\x1F"), "Two  lines");
  EXPECT_EQ(Cleaned("Caf\xE9 \x80\xFF"), "Caf\xE9 \x80\xFF");
  EXPECT_TRUE(HasControlCharacters("a\x1F"));
  EXPECT_TRUE(HasControlCharacters("a\0b"s));
  EXPECT_FALSE(HasControlCharacters("a b\xFF\x80"));
}

TEST(EntryText, FileGivesNameCommandLineAndFolder) {
  EXPECT_EQ(EntryOf("C:\\WINDOWS\\NOTEPAD.EXE"),
            (launcher::LauncherEntry{"NOTEPAD", "C:\\WINDOWS\\NOTEPAD.EXE", "C:\\WINDOWS"}));
  EXPECT_EQ(EntryOf("C:\\Program Files\\My Game\\Game 1.2.exe"),
            (launcher::LauncherEntry{"Game 1.2", "\"C:\\Program Files\\My Game\\Game 1.2.exe\"",
                                     "C:\\Program Files\\My Game"}));
  EXPECT_EQ(EntryOf("D:\\SETUP.EXE"), (launcher::LauncherEntry{"SETUP", "D:\\SETUP.EXE", "D:\\"}));
  EXPECT_EQ(EntryOf("\\\\SERVER\\SHARE\\A"),
            (launcher::LauncherEntry{"A", "\\\\SERVER\\SHARE\\A", "\\\\SERVER\\SHARE"}));
  EXPECT_EQ(EntryOf("EDIT.COM"), (launcher::LauncherEntry{"EDIT", "EDIT.COM", ""}));
  EXPECT_EQ(EntryOf("C:\\.profile").name, ".profile");
  EXPECT_EQ(EntryOf("C:\\A \\ B .EXE"), (launcher::LauncherEntry{"B", "\"C:\\A \\ B .EXE\"", "C:\\A"}));
}

TEST(EntryText, FileWhoseTitleMeansADividingLineKeepsItsExtension) {
  EXPECT_EQ(EntryOf("C:\\-.EXE").name, "-.EXE");
  EXPECT_EQ(EntryOf("C:\\--.EXE").name, "--");
  EXPECT_TRUE(IsDividingLine("-"));
  EXPECT_FALSE(IsDividingLine(""));
}

TEST(EntryText, FolderHasNoQuotationMarksAndNoBlanksAtItsEnds) {
  EXPECT_EQ(FolderText("\"C:\\My Games\""), "C:\\My Games");
  EXPECT_EQ(FolderText(" \" C:\\A B \" "), "C:\\A B");
  EXPECT_EQ(FolderText("\"\""), "");
  EXPECT_EQ(Cleaned(launcher::LauncherEntry{"\"A\"", "\"C:\\A B.EXE\"", "\"C:\\A B\""}),
            (launcher::LauncherEntry{"\"A\"", "\"C:\\A B.EXE\"", "C:\\A B"}));
}

TEST(EntryText, DriveLetterIsALetterAndAColon) {
  for (const char* const folder : {"", "C:", "z:\\GAMES", "a:x"})
    EXPECT_TRUE(HasDriveLetter(folder)) << folder;
  for (const char* const folder : {"\\\\PC\\DIR", "C", "CD", "@:", "[:", "\\", "1:\\"}) {
    EXPECT_FALSE(HasDriveLetter(folder)) << folder;
  }
}

TEST(EntryText, ProgramsAreRecognisedByTheirExtensions) {
  for (const char* const path : {"A.exe", "C:\\A.COM", "A.B.Bat", "A.PIF"})
    EXPECT_TRUE(IsProgram(path)) << path;
  for (const char* const path : {"A.EX", "A.EXE ", ".exe", "exe", "", "A.LNK", "A.EXE.TXT"}) {
    EXPECT_FALSE(IsProgram(path)) << path;
  }
}

TEST(EntryText, LongNameIsCutAndLongPathsDoNotFit) {
  const std::string long_name(60, 'n');
  const launcher::LauncherEntry entry = EntryOf("C:\\" + long_name + ".EXE");
  EXPECT_EQ(entry.name, std::string(55, 'n'));
  EXPECT_TRUE(Fits(entry));
  const std::string folder = "C:\\" + std::string(240, 'd');
  EXPECT_TRUE(Fits(EntryOf(folder + "\\1234567.EXE"))) << "the command line has 255 characters";
  EXPECT_FALSE(Fits(EntryOf(folder + "\\12345678.EXE")));
  EXPECT_FALSE(Fits(EntryOf(folder + "\\12345 7.EXE"))) << "the quotation marks add two characters";
}

class EntryTextOfTwoByteCharacters : public testing::Test {
 protected:
  EntryTextOfTwoByteCharacters() { machine.MakeJapanese(); }
  [[nodiscard]] launcher::LauncherEntry Entry(const std::string& path) const {
    return EntryOfFile(machine.GetSystem().files, path);
  }

  os::SimulatedMachine machine;
};

/// The second byte of the first character has the value of a backslash.
constexpr const char* kTable = "\x95\x5C\x8C\x76\x8E\x5A";

TEST_F(EntryTextOfTwoByteCharacters, HalfOfACharacterIsNoBackslash) {
  const std::string table = kTable;
  EXPECT_EQ(Entry("C:\\" + table + ".EXE"),
            (launcher::LauncherEntry{table, "C:\\" + table + ".EXE", "C:\\"}));
  EXPECT_EQ(Entry("C:\\" + table + "\\A.EXE"),
            (launcher::LauncherEntry{"A", "C:\\" + table + "\\A.EXE", "C:\\" + table}));
  EXPECT_EQ(Entry(table + ".EXE").start_in, "");
  const launcher::LauncherEntry entry =
      EntryOfShortcut(machine.GetSystem().files, "C:\\" + table + ".LNK", {"D:\\" + table + ".EXE", "", ""});
  EXPECT_EQ(entry.name, table);
  EXPECT_EQ(entry.start_in, "D:\\");
}

TEST_F(EntryTextOfTwoByteCharacters, LongNameIsCutBetweenCharacters) {
  std::string name;
  for (int count = 0; count < 30; ++count) name += "\x95\x5C";
  EXPECT_EQ(Entry("C:\\" + name + ".EXE").name, name.substr(0, 54));
  EXPECT_EQ(Entry("C:\\n" + name + ".EXE").name, "n" + name.substr(0, 54));
  EXPECT_EQ(Entry("C:\\A\x95").name, "A\x95") << "the character was already cut off";
}

TEST_F(EntryTextOfTwoByteCharacters, SameBytesAreSeparateCharactersInOtherCodePages) {
  EXPECT_EQ(EntryOf("C:\\\x95\\A.EXE").start_in, "C:\\\x95");
}

}  // namespace
}  // namespace qdix::config_launcher
