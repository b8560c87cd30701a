// Gives the program arbitrary bytes as the launcher's list. Each record is a row and can be launched, a list
// of more than 25 records ends the program, and the file is left unchanged. A failing run prints its seed.
#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/fuzz/corpus.h"
#include "tests/fuzz/random_list_maker.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kPath = "C:\\Program Files\\QDIX\\launcher.dat";
constexpr std::size_t kFieldWidths[] = {55, 255, 255};

/// Returns a field of a record, worked out independently of the program: blanks for what the file lacks, no
/// blanks at the ends, nothing from the first NUL on.
std::string FieldOf(const std::string& file, std::size_t record, std::size_t field) {
  std::size_t begin = record * 565;
  for (std::size_t before = 0; before < field; ++before) begin += kFieldWidths[before];
  std::string text = begin < file.size() ? file.substr(begin, kFieldWidths[field]) : std::string();
  text.resize(kFieldWidths[field], ' ');
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, text.find_first_not_of(' '));
  return std::string(text.c_str());
}

/// Length divided by 565, rounded to the nearest whole number; no length is exactly halfway.
std::size_t RecordsOf(const std::string& file) { return (file.size() + 282) / 565; }

class TabWithFile {
 public:
  explicit TabWithFile(std::string file) : file_(std::move(file)) {}

  void Run() {
    rig_.SetHasRunBefore();
    rig_.Store("Settings", "Launcher RAM", "4");
    rig_.machine.WriteFile(kPath, file_);
    rig_.Start();
    if (RecordsOf(file_) > 25) {
      ExpectEnd();
    } else {
      ExpectRows();
      StartEach();
      rig_.program->Form().Unload();
    }
    EXPECT_EQ(rig_.machine.ReadFile(kPath), file_);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
    EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
  }

 private:
  void ExpectEnd() {
    EXPECT_TRUE(rig_.program->Form().Unloaded());
    ASSERT_FALSE(rig_.machine.Boxes().empty());
    EXPECT_EQ(rig_.machine.Boxes().back().text,
              "Run-time error '340':\r\n\r\nControl array element '25' doesn't exist");
  }

  void ExpectRows() {
    const ui::ListBox& list = rig_.program->LauncherScreen().List5;
    ASSERT_EQ(static_cast<std::size_t>(list.Count()), RecordsOf(file_));
    for (int row = 0; row < list.Count(); ++row) {
      EXPECT_EQ(list.Item(row), FieldOf(file_, static_cast<std::size_t>(row), 0));
    }
  }

  /// No file has such a name: each launch reports that, and the next one still works.
  void StartEach() {
    rig_.program->MainWindow().SSTab1.ChooseTab(screens::kLauncherTab);
    ui::ListBox& list = rig_.program->LauncherScreen().List5;
    for (int row = 0; row < list.Count(); ++row) {
      const std::size_t boxes_before = rig_.machine.Boxes().size();
      list.ChooseIndex(row);
      list.PressEnter();
      const std::string command = FieldOf(file_, static_cast<std::size_t>(row), 1);
      EXPECT_GT(rig_.machine.Boxes().size(), boxes_before) << command;
      EXPECT_EQ(rig_.machine.Boxes().back().text,
                base::Trim(command).empty() ? "Invalid procedure call or argument" : "File not found");
    }
  }

  const std::string file_;
  ProgramRig rig_;
};

TEST(LauncherTabFuzz, AnyBytesAreShownTriedAndLeftAlone) {
  RunSeeds(150, [](unsigned seed) { TabWithFile(RandomListMaker(seed).RandomFile()).Run(); });
}

TEST(LauncherTabFuzz, CorpusIsShownTriedAndLeftAloneWholeAndDamaged) {
  RunCorpus("launcher", 6, [](unsigned /*seed*/, const std::string& bytes) { TabWithFile(bytes).Run(); });
}

}  // namespace
}  // namespace qdix::tests
