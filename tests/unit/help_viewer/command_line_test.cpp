// The topic number on the command line, for every way of starting the program.
#include "help_viewer/command_line.h"

#include <gtest/gtest.h>

namespace qdix::tests {
namespace {

using help_viewer::TopicOfCommandLine;

TEST(HelpCommandLine, NumberFollowsTheProgram) {
  EXPECT_EQ(TopicOfCommandLine("help.exe 4"), 4);
  EXPECT_EQ(TopicOfCommandLine("HELP.EXE  10 "), 10);
  EXPECT_EQ(TopicOfCommandLine("help 7"), 7);
  EXPECT_EQ(TopicOfCommandLine("C:\\help.exe 0"), 0);
  EXPECT_EQ(TopicOfCommandLine("help.exe 007"), 7);
}

TEST(HelpCommandLine, FolderMayContainBlanksWithOrWithoutQuotationMarks) {
  EXPECT_EQ(TopicOfCommandLine("C:\\Program Files\\QDIX\\help.exe 11"), 11);
  EXPECT_EQ(TopicOfCommandLine("\"C:\\Program Files\\QDIX\\help.exe\" 11"), 11);
  EXPECT_EQ(TopicOfCommandLine(" \"C:\\Program Files\\QDIX\\help 9.exe\" 11"), 11);
  EXPECT_EQ(TopicOfCommandLine("C:\\Program Files\\QDIX\\help 11"), 11);
  EXPECT_EQ(TopicOfCommandLine("C:\\Old.exe 5\\help.exe 11"), 11);
  EXPECT_EQ(TopicOfCommandLine("C:\\Folder 5\\help.exe"), std::nullopt);
}

TEST(HelpCommandLine, EverythingElseIsNoNumber) {
  for (const char* const line : {"", " ", "help.exe", "help", "\"help.exe\"", "\"help.exe", "help.exe x",
                                 "help.exe 4 5", "help.exe -4", "help.exe +4", "help.exe 4x", "help.exe 0x4",
                                 "help.exe \"4\"", "help.exe 1234567890", "\""}) {
    EXPECT_EQ(TopicOfCommandLine(line), std::nullopt) << line;
  }
}

}  // namespace
}  // namespace qdix::tests
