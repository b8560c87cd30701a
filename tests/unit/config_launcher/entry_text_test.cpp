#include "config_launcher/entry_text.h"

#include <gtest/gtest.h>

namespace qdix::config_launcher {
namespace {

using namespace std::string_literals;

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
  EXPECT_EQ(EntryOfFile("C:\\WINDOWS\\NOTEPAD.EXE"),
            (launcher::LauncherEntry{"NOTEPAD", "C:\\WINDOWS\\NOTEPAD.EXE", "C:\\WINDOWS"}));
  EXPECT_EQ(EntryOfFile("C:\\Program Files\\My Game\\Game 1.2.exe"),
            (launcher::LauncherEntry{"Game 1.2", "\"C:\\Program Files\\My Game\\Game 1.2.exe\"",
                                     "C:\\Program Files\\My Game"}));
  EXPECT_EQ(EntryOfFile("D:\\SETUP.EXE"), (launcher::LauncherEntry{"SETUP", "D:\\SETUP.EXE", "D:\\"}));
  EXPECT_EQ(EntryOfFile("\\\\SERVER\\SHARE\\A"),
            (launcher::LauncherEntry{"A", "\\\\SERVER\\SHARE\\A", "\\\\SERVER\\SHARE"}));
  EXPECT_EQ(EntryOfFile("EDIT.COM"), (launcher::LauncherEntry{"EDIT", "EDIT.COM", ""}));
  EXPECT_EQ(EntryOfFile("C:\\.profile").name, ".profile");
  EXPECT_EQ(EntryOfFile("C:\\A \\ B .EXE"), (launcher::LauncherEntry{"B", "\"C:\\A \\ B .EXE\"", "C:\\A"}));
}

TEST(EntryText, FileWhoseTitleIsADividingLineKeepsItsExtension) {
  EXPECT_EQ(EntryOfFile("C:\\-.EXE").name, "-.EXE");
  EXPECT_EQ(EntryOfFile("C:\\--.EXE").name, "--");
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

TEST(EntryText, ProgramsAreToldByTheirExtensions) {
  for (const char* const path : {"A.exe", "C:\\A.COM", "A.B.Bat", "A.PIF"})
    EXPECT_TRUE(IsProgram(path)) << path;
  for (const char* const path : {"A.EX", "A.EXE ", ".exe", "exe", "", "A.LNK", "A.EXE.TXT"}) {
    EXPECT_FALSE(IsProgram(path)) << path;
  }
}

TEST(EntryText, LongNameIsCutAndLongPathsDoNotFit) {
  const std::string long_name(60, 'n');
  const launcher::LauncherEntry entry = EntryOfFile("C:\\" + long_name + ".EXE");
  EXPECT_EQ(entry.name, std::string(55, 'n'));
  EXPECT_TRUE(Fits(entry));
  const std::string folder = "C:\\" + std::string(240, 'd');
  EXPECT_TRUE(Fits(EntryOfFile(folder + "\\1234567.EXE"))) << "255 characters";
  EXPECT_FALSE(Fits(EntryOfFile(folder + "\\12345678.EXE")));
  EXPECT_FALSE(Fits(EntryOfFile(folder + "\\12345 7.EXE"))) << "two quotation marks more";
}

}  // namespace
}  // namespace qdix::config_launcher
