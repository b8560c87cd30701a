// Whatever is on the disk is shown as far as possible, and is left unchanged until the user saves.
#include <gtest/gtest.h>

#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

using namespace std::string_literals;

using Names = std::vector<std::string>;

class ConfigOpening : public testing::Test {
 protected:
  /// Opens the list and expects one message with this remark, and an untouched disk.
  void ExpectRemark(ConfigRig& rig, const std::string& remark) {
    rig.Start();
    EXPECT_EQ(rig.BoxText(1), OpeningMessage(remark));
    EXPECT_TRUE(rig.form->Form().Shown());
    rig.Screen().cmdCancel.Press();
    EXPECT_TRUE(rig.form->Form().Unloaded()) << "nothing was changed, so nothing is asked";
    EXPECT_EQ(rig.Changes(), Names{});
    EXPECT_EQ(rig.machine.OpenFileCount(), 0);
  }
};

TEST_F(ConfigOpening, GoodAndMissingListsCauseNoRemark) {
  for (const int count : {0, 1, 25}) {
    ConfigRig rig(SomeEntries(count));
    rig.Start();
    EXPECT_EQ(rig.form->Entries(), SomeEntries(count));
    EXPECT_EQ(rig.machine.Boxes().size(), 0U) << count;
  }
  ConfigRig none;
  none.Start();
  EXPECT_EQ(none.machine.Boxes().size(), 0U);
  EXPECT_EQ(none.Rows(), Names{});
}

TEST_F(ConfigOpening, OddLength) {
  ConfigRig rig(BytesOf(SomeEntries(2)).substr(0, 848));
  ExpectRemark(rig, "The file ends in the middle of a program. The last program may be incomplete.");
  EXPECT_EQ(rig.form->Entries(), (Entries{SomeEntries(2)[0], {"Program 1", "C:\\P1.EXE /x", ""}}));
}

TEST_F(ConfigOpening, TooManyEntriesAreShownAndNotSaved) {
  ConfigRig rig(SomeEntries(27));
  rig.Start();
  EXPECT_EQ(rig.BoxText(1),
            OpeningMessage("It holds 27 programs, but the launcher takes only 25. Please remove some."));
  EXPECT_EQ(rig.form->Entries(), SomeEntries(27));
  rig.Screen().cmdRemove.Press();
  rig.Screen().cmdOK.Press();
  EXPECT_EQ(rig.BoxText(2),
            "The launcher takes 25 programs at most.\r\n\r\nPlease remove some before you save the list.");
  EXPECT_FALSE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.Changes(), Names{});
  rig.Screen().cmdRemove.Press();
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(27)).substr(2 * launcher::kRecordBytes));
}

TEST_F(ConfigOpening, ControlCharactersAreLeftOut) {
  ConfigRig rig(Entries{{"Ed\0itor"s, "A.EXE\t/x", "\r\n"}});
  ExpectRemark(rig,
               "Some texts contained characters that cannot be displayed. Those characters were left out.");
  EXPECT_EQ(rig.form->Entries(), (Entries{{"Ed", "A.EXE /x", ""}}));
}

TEST_F(ConfigOpening, FoldersLoseTheirQuotationMarks) {
  ConfigRig rig(Entries{{"A", "\"C:\\A B.EXE\"", "\"C:\\A B\""}});
  rig.Start();
  EXPECT_EQ(rig.form->Entries(), (Entries{{"A", "\"C:\\A B.EXE\"", "C:\\A B"}}));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  rig.Screen().cmdOK.Press();
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(rig.form->Entries()));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST_F(ConfigOpening, ProgramsWithoutNameOrCommandLine) {
  ConfigRig rig(Entries{{"", "A.EXE", ""}, {"B", "", ""}});
  ExpectRemark(rig, "Some programs have no name or no command line.");
  EXPECT_EQ(rig.Rows(), (Names{"(no name)", "B"}));
}

TEST_F(ConfigOpening, HugeFileIsReadAsFarAsPossible) {
  ConfigRig rig(SomeEntries(150));
  ExpectRemark(rig,
               "The file is longer than 100 programs. Only the first 100 were read.\r\n- It holds 100 "
               "programs, but the launcher takes only 25. Please remove some.");
  EXPECT_EQ(rig.form->Entries(), SomeEntries(100));
}

TEST_F(ConfigOpening, CopyOfAnInterruptedSaveIsUsed) {
  for (const bool has_empty_list : {false, true}) {
    ConfigRig rig;
    rig.machine.WriteFile(kListBackupPath, BytesOf(SomeEntries(3)));
    if (has_empty_list) rig.machine.WriteFile(kListPath, "");
    ExpectRemark(rig, kReadFromBackup);
    EXPECT_EQ(rig.form->Entries(), SomeEntries(3));
  }
}

TEST_F(ConfigOpening, SeveralRemarksAreInOneMessageInOrder) {
  Entries entries = SomeEntries(27);
  entries[3] = {"Tab\there", "", ""};
  const auto remarks_on = [](const std::string& bytes) {
    ConfigRig rig;
    rig.machine.WriteFile(kListBackupPath, bytes);
    rig.Start();
    std::vector<std::string> beginnings;
    const std::string text = rig.BoxText(1);
    for (std::size_t at = text.find("- "); at != std::string::npos; at = text.find("\n- ", at)) {
      if (text[at] == '\n') ++at;
      beginnings.push_back(text.substr(at + 2, 11));
    }
    return beginnings;
  };
  EXPECT_EQ(remarks_on(BytesOf(entries) + std::string(launcher::kRecordBytes - 1, ' ')),
            (Names{"An earlier ", "The file en", "It holds 28", "Some texts ", "Some progra"}));
  entries.resize(101, SomeEntries(1)[0]);
  EXPECT_EQ(remarks_on(BytesOf(entries)),
            (Names{"An earlier ", "The file is", "It holds 10", "Some texts ", "Some progra"}));
}

/// Reads the list when the window is told to show itself.
struct ShowingPeer final : ui::ControlPeer {
  explicit ShowingPeer(ConfigRig& the_rig) : rig(the_rig) {}
  void ControlChanged(ui::Control& /*control*/, ui::Change change) override {
    if (change == ui::Change::kVisible) rows_shown.push_back(rig.Screen().lstPrograms.Count());
  }
  ConfigRig& rig;
  std::vector<int> rows_shown;
};

TEST_F(ConfigOpening, WindowShowsItselfWithItsList) {
  ConfigRig rig(SomeEntries(3));
  ShowingPeer peer(rig);
  rig.form.emplace(rig.machine.GetSystem(), rig.dialogs);
  rig.form->Form().AttachPeer(&peer);
  rig.form->Start();
  EXPECT_EQ(peer.rows_shown, std::vector<int>{3});
}

TEST_F(ConfigOpening, UntrappedErrorIsShownAndEndsTheProgram) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.machine.WhileBoxIsOpen([&rig] { EXPECT_FALSE(rig.form->Form().Unloaded()); });
  rig.form->Form().Dispatcher().Report(base::kOverflow);
  EXPECT_TRUE(rig.BoxText(1).starts_with("Run-time error '6':"));
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk | os::kMbIconExclamation);
  EXPECT_TRUE(rig.form->Form().Unloaded());
}

TEST_F(ConfigOpening, CopyBesideAListIsLeftAlone) {
  ConfigRig rig(SomeEntries(1));
  rig.machine.WriteFile(kListBackupPath, BytesOf(SomeEntries(3)));
  rig.Start();
  EXPECT_EQ(rig.form->Entries(), SomeEntries(1));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST_F(ConfigOpening, UnreadableListIsNotOverwritten) {
  for (const char* const path : {kListPath, kListBackupPath}) {
    ConfigRig rig;
    rig.machine.WriteFile(path, BytesOf(SomeEntries(3)));
    rig.machine.FailNextCall("ReadFile");
    rig.machine.WhileBoxIsOpen([&rig] { EXPECT_FALSE(rig.form->Form().Unloaded()); });
    rig.Start();
    EXPECT_EQ(rig.BoxText(1),
              "The list of programs could not be read.\r\n\r\nPlease make sure that no other program has "
              "launcher.dat open, and start Config Launcher again.");
    EXPECT_TRUE(rig.form->Form().Unloaded());
    EXPECT_FALSE(rig.form->Form().Shown());
    EXPECT_EQ(rig.Changes(), Names{});
  }
}

TEST_F(ConfigOpening, SecondCopyBringsTheFirstForwardAndEnds) {
  ConfigRig rig(SomeEntries(3));
  rig.machine.SetOtherCopyRunning(true);
  const os::WindowHandle hidden = rig.machine.OpenWindow("ThunderRT6Main", "Config Launcher");
  const os::WindowHandle other = rig.machine.OpenWindow("QDIXMain", "Config Launcher");
  rig.machine.OpenWindow("QDIXMain", "12 MB   Q-DIX");
  rig.machine.Minimise(other);
  rig.Start();
  EXPECT_EQ(rig.machine.ForegroundWindow(), other);
  EXPECT_NE(rig.machine.ForegroundWindow(), hidden);
  EXPECT_FALSE(rig.machine.IsMinimised(other));
  const std::vector<std::string>& calls = rig.machine.Calls();
  const auto called = [&calls](const std::string& name) {
    return std::find_if(calls.begin(), calls.end(),
                        [&name](const std::string& call) { return call.starts_with(name + "("); });
  };
  EXPECT_LT(called("OpenIcon"), called("SetForegroundWindow")) << "nobody is brought to an icon";
  EXPECT_NE(called("SetForegroundWindow"), calls.end());
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_FALSE(rig.form->Form().Shown());
  EXPECT_NE(rig.form->Form().Caption(), "Config Launcher") << "the copy could find itself";
  EXPECT_NE(rig.form->TheApplication().Title(), "Config Launcher");
}

TEST_F(ConfigOpening, SecondCopyAlsoEndsIfTheFirstHasNoWindow) {
  ConfigRig rig;
  rig.machine.SetOtherCopyRunning(true);
  rig.Start();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.machine.ForegroundWindow(), 0U);
  for (const std::string& call : rig.machine.Calls()) EXPECT_FALSE(call.starts_with("OpenIcon")) << call;
}

}  // namespace
}  // namespace qdix::tests
