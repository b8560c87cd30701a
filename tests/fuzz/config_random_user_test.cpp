// Uses all controls of the program-list editor at random, OK and Cancel included, on disks that fill up. At
// every moment the list on the disk is complete: either the previous one or the saved one. A failing run
// prints its seed.
#include <gtest/gtest.h>

#include "tests/fuzz/random_list_maker.h"
#include "tests/fuzz/random_user.h"
#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

constexpr unsigned long kEvents = 12000;

class RandomConfigUser : private RandomListMaker {
 public:
  using RandomListMaker::RandomListMaker;

  unsigned long Run() {
    if (!Chance(4)) rig_.machine.WriteFile(kListPath, RandomFile());
    on_disk_ = rig_.ListOnDisk();
    rig_.machine.WhileBoxIsOpen([this] { actions_.Answer(rig_.machine); });
    rig_.Start();
    actions_.Collect(rig_.form->Form());
    for (unsigned long events = 0; events < kEventsPerRun; ++events) {
      Act();
      CheckInvariants();
      if (!rig_.form->Form().Unloaded()) continue;
      rig_.Restart();
      actions_.Collect(rig_.form->Form());
    }
    return kEventsPerRun;
  }

 private:
  void Act() {
    if (Chance(20)) rig_.machine.LimitFreeBytes(Random() % 20000);
    if (Chance(10)) rig_.machine.LimitFreeBytes(10000000);
    if (Chance(8)) rig_.dialogs.PickNext("C:\\" + Printable(RandomText(270)) + (Chance(2) ? ".EXE" : ""));
    if (Chance(15)) {
      rig_.form->FilesDropped(
          {"C:\\" + Printable(RandomText(270)) + ".exe", Printable(RandomText(20)), "D:\\A B.EXE"});
    }
    if (Chance(60)) AskForTheEndOfTheSession();
    if (Chance(4)) rig_.Type({Printable(RandomText(60)), Printable(RandomText(260)), ""});
    if (Chance(60)) rig_.form->Form().Close();
    if (Chance(60)) rig_.form->Form().PressEscape();
    actions_.UseAny();
  }

  /// Another program may keep the session going: the window then stays open, whether the list was saved or
  /// not.
  void AskForTheEndOfTheSession() {
    const bool was_open = !rig_.form->Form().Unloaded();
    const bool may_end = rig_.form->MaySessionEnd();
    EXPECT_EQ(!rig_.form->Form().Unloaded(), was_open);
    if (rig_.ListOnDisk() == on_disk_) return;
    EXPECT_TRUE(may_end) << "the list is saved, yet the window refuses the end of the session";
    ExpectSaved();
  }

  /// What a keyboard and a disk can supply: no control characters.
  static std::string Printable(std::string text) {
    for (char& character : text) {
      if (static_cast<unsigned char>(character) < 0x20U) character = '_';
    }
    return text;
  }

  void ExpectSaved() {
    on_disk_ = rig_.ListOnDisk();
    EXPECT_EQ(on_disk_, BytesOf(rig_.form->Entries())) << "neither the old list nor the new one";
    EXPECT_LE(rig_.form->Entries().size(), std::size_t{launcher::kMaxEntries});
  }

  void CheckInvariants() {
    const auto list = rig_.ListOnDisk();
    if (list != on_disk_) {
      ExpectSaved();
      EXPECT_TRUE(rig_.form->Form().Unloaded()) << "the list is saved, yet the window is still open";
    }
    EXPECT_EQ(rig_.machine.ReadFile(kListTemporaryPath), std::nullopt);
    EXPECT_EQ(rig_.Rows().size(), rig_.form->Entries().size());
    EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
    EXPECT_EQ(rig_.machine.OpenKeyCount(), 0);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
    rig_.machine.ClearRecords();
  }

  ConfigRig rig_;
  RandomActions actions_{*this};
  std::optional<std::string> on_disk_;
};

TEST(RandomConfigUser, KeepsTheListCompleteAtEveryMoment) { RunRandomUser<RandomConfigUser>(kEvents); }

}  // namespace
}  // namespace qdix::tests
