// Opens arbitrary bytes as the launcher's list. Opening does no harm and changes nothing, and a saved list
// reads back as it was shown. Random use of the window loses nothing either. A failing run prints its seed.
#include <gtest/gtest.h>

#include "tests/fuzz/corpus.h"
#include "tests/fuzz/random_list_maker.h"
#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

constexpr int kActionsPerRun = 60;

class RandomLists : private RandomListMaker {
 public:
  using RandomListMaker::RandomListMaker;

  void Run() { RunWith(RandomFile()); }

  void RunWith(const std::string& before) {
    rig_.machine.WriteFile(kListPath, before);
    rig_.Start();
    ExpectShowable();
    for (int i = 0; i < kActionsPerRun && !rig_.form->Form().Unloaded(); ++i) {
      Act();
      ASSERT_EQ(rig_.ListOnDisk(), before) << "changed before OK";
    }
    if (rig_.form->Form().Unloaded()) return;
    // From here on, text that was typed but not added to the list may be lost.
    while (rig_.form->Entries().size() > launcher::kMaxEntries) Remove();
    const Entries shown = rig_.form->Entries();
    rig_.machine.AnswerNextBox(os::kIdYes);
    rig_.Screen().cmdOK.Press();
    ASSERT_TRUE(rig_.form->Form().Unloaded());
    EXPECT_EQ(rig_.ListOnDisk(), BytesOf(shown));
    rig_.Restart();
    EXPECT_TRUE(rig_.form->Entries() == shown);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
    EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
  }

 private:
  /// No text in the list is longer than its field, has blanks at an end, or contains characters that cannot
  /// be shown.
  void ExpectShowable() {
    EXPECT_LE(rig_.form->Entries().size(), 100U);
    for (const launcher::LauncherEntry& entry : rig_.form->Entries()) {
      EXPECT_EQ(launcher::ReadRecord(launcher::RecordBytes(entry), 0), entry);
      for (const std::string& text : {entry.name, entry.path, entry.start_in}) {
        for (const char character : text) EXPECT_GE(static_cast<unsigned char>(character), 0x20U);
      }
    }
  }

  /// Selects a row and removes it, as a user does.
  void Remove() {
    rig_.machine.AnswerNextBox(os::kIdYes);
    rig_.Screen().lstPrograms.ChooseIndex(0);
    rig_.Screen().cmdRemove.Press();
  }

  /// Performs one action of the user; none of them saves or closes.
  void Act() {
    config_launcher::ConfigScreen& screen = rig_.Screen();
    const std::size_t count = rig_.form->Entries().size();
    switch (Random() % 11) {
      case 0:
        return screen.cmdAdd.Press();
      case 1:
        return screen.cmdChange.Press();
      case 2:
        return screen.cmdRemove.Press();
      case 3:
        return screen.cmdMoveUp.Press();
      case 4:
        return screen.cmdMoveDown.Press();
      case 5:
        rig_.dialogs.PickNext("C:\\" + Printable(RandomText(270)) + (Chance(2) ? ".EXE" : ""));
        return Chance(2) ? screen.cmdBrowsePath.Press() : screen.cmdBrowseStartIn.Press();
      case 6:
        return rig_.form->FilesDropped({"C:\\" + Printable(RandomText(270)) + ".EXE", "D:\\A B.EXE"});
      case 7:
        return rig_.Type({Printable(RandomText(60)), Printable(RandomText(260)), Printable(RandomText(9))});
      case 8:
        return Chance(2) ? screen.cmdNew.Press()
                         : screen.lstPrograms.PressRowKey(static_cast<ui::RowKey>(Random() % 3));
      default:
        if (Chance(2)) rig_.machine.AnswerNextBox(os::kIdYes);
        return screen.lstPrograms.ChooseIndex(count == 0 ? 0 : static_cast<int>(Random() % count));
    }
  }

  /// What a keyboard and a disk can supply: no control characters.
  static std::string Printable(std::string text) {
    for (char& character : text) {
      if (static_cast<unsigned char>(character) < 0x20U) character = '_';
    }
    return text;
  }

  ConfigRig rig_;
};

TEST(LauncherListFuzz, AnyBytesAndAnyUse) {
  RunSeeds(300, [](unsigned seed) { RandomLists(seed).Run(); });
}

TEST(LauncherListFuzz, CorpusWholeAndDamagedAndAnyUse) {
  RunCorpus("launcher", 6, [](unsigned seed, const std::string& bytes) { RandomLists(seed).RunWith(bytes); });
}

}  // namespace
}  // namespace qdix::tests
