// Which bytes are a complete system.ini.
#include "undo/ini_state.h"

#include <gtest/gtest.h>

namespace qdix::undo {
namespace {

constexpr const char* kWholeFile =
    "; set up by hand\r\n[Boot]\r\nshell=Explorer.exe\r\n\r\n [386ENH] \r\nPagingDrive=D:\r\n";

TEST(IniState, WholeFileHasBothSectionsAndEndsWithALineBreak) {
  EXPECT_EQ(StateOfIni(kWholeFile), IniState::kWhole);
  EXPECT_EQ(StateOfIni("[386Enh]\n[boot]\n"), IniState::kWhole);
  EXPECT_EQ(StateOfIni(std::string(kWholeFile) + "\x1A"), IniState::kWhole)
      << "the end mark of an old editor";
}

TEST(IniState, EveryTruncationIsDetected) {
  const std::string whole = kWholeFile;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const bool is_at_the_end_of_a_line = length > 0 && whole[length - 1] == '\n';
    const bool has_both_sections = length >= whole.find("PagingDrive");
    const bool is_taken_for_whole = is_at_the_end_of_a_line && has_both_sections;
    EXPECT_EQ(StateOfIni(whole.substr(0, length)) == IniState::kWhole, is_taken_for_whole) << length;
  }
  EXPECT_EQ(StateOfIni(whole.substr(0, whole.size() - 1)), IniState::kCut);
  EXPECT_EQ(StateOfIni(whole + std::string(3, '\0')), IniState::kCut) << "a power cut leaves such bytes";
}

TEST(IniState, MissingSectionIsNamed) {
  EXPECT_EQ(StateOfIni(""), IniState::kWithoutBoot);
  EXPECT_EQ(StateOfIni("[386Enh]\r\n"), IniState::kWithoutBoot);
  EXPECT_EQ(StateOfIni("[boot.description]\r\n; [boot]\r\nx=[boot]\r\n[386Enh]\r\n"), IniState::kWithoutBoot);
  EXPECT_EQ(StateOfIni("[boot]\r\nshell=Explorer.exe\r\n"), IniState::kWithout386Enh);
  EXPECT_EQ(StateOfIni("[boot]\r\n[NonWindowsApp]\r\n386Enh=1\r\n"), IniState::kWithout386Enh);
}

}  // namespace
}  // namespace qdix::undo
