// "Save Settings" and "System Defaults" of the "Cache Settings" tab: what is asked, and what is written in
// which order, byte for byte.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;

constexpr const char* kQuestion = "Are you sure you want to save these new cache settings?";
constexpr const char* kRestart =
    "You must restart your computer before the new settings take effect.\r\n\r\n"
    "Do you want to restart your computer now?";

const std::string kRecord = "HKLM\\SOFTWARE\\QDIX: ";
const std::string kTemplates = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates: ";
const std::string kOwnTemplate =
    "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates\\Quondix: ";

std::string Set(const std::string& value) { return "RegSetValueExA(" + value + ")"; }
std::string Deleted(const std::string& value) { return "RegDeleteValueA(" + value + ")"; }
std::string Ini(const std::string& entry) { return "WritePrivateProfileStringA(" + entry + ")"; }

class CacheSaving : public testing::Test {
 protected:
  screens::CacheScreen& Tab() { return rig.program->CacheScreen(); }
  void Start() { rig.StartAt(screens::kCacheTab); }
  void Save(const std::vector<int>& answers) {
    rig.Answer(answers);
    Tab().Command11.Press();
  }
  [[nodiscard]] std::string Value(const char* path, const char* name) const {
    return rig.machine.RegistryText(os::kHkeyLocalMachine, path, name).value_or("none");
  }

  TuningRig rig;
};

TEST_F(CacheSaving, AnswerNoWritesNothingNotEvenTheRecord) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\n");
  Start();
  Tab().Combo2.Choose("Multimedia (Win95)");
  const std::size_t before = rig.machine.Calls().size();
  Save({os::kIdNo});
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion));
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbYesNo | os::kMbDefaultButton2);
  EXPECT_TRUE(rig.Changes(before).empty());
  EXPECT_EQ(rig.SystemIni(), "[vcache]\r\nMinFileCache=1024\r\n");
  EXPECT_EQ(Value(kMachineKeyPath, "FirstSave"), "none");
}

TEST_F(CacheSaving, UnansweredBoxWritesNothing) {
  Start();
  const std::size_t before = rig.machine.Calls().size();
  rig.machine.WhileBoxIsOpen([this] { rig.machine.EndBoxes(); });
  Tab().Command11.Press();
  EXPECT_TRUE(rig.Changes(before).empty());
}

TEST_F(CacheSaving, FirstSaveRecordsThenWritesInOrder) {
  rig.WriteSystemIni("[386Enh]\r\nPagingDrive=D:\r\n[vcache]\r\nMinFileCache=1024\r\nChunkSize=512 KB\r\n");
  Start();
  Tab().Combo2.Choose("Multimedia (Win95)");
  const std::size_t before = rig.machine.Calls().size();
  Save({os::kIdYes, os::kIdNo});
  EXPECT_THAT(
      rig.Changes(before),
      ElementsAre(Set(kRecord + "FirstSave"), "CopyFileA(C:\\WINDOWS\\system.ini, C:\\WINDOWS\\system.qdix)",
                  Set(kRecord + "OldMinCache"), Set(kRecord + "OldMaxCache"), Set(kRecord + "OldChunk"),
                  Set(kRecord + "OldFileCache"), Set(kRecord + "OldPagingDrive"), Set(kTemplates),
                  Set(kOwnTemplate + "NameCache"), Set(kOwnTemplate + "PathCache"),
                  Ini("System.ini [vcache] minfilecache 4096"), Ini("System.ini [vcache] maxfilecache 8192"),
                  Ini("System.ini [vcache] chunksize 4096")));
  EXPECT_EQ(Value(kMachineKeyPath, "FirstSave"), "1");
  EXPECT_EQ(Value(kMachineKeyPath, "OldMinCache"), "1024");
  EXPECT_EQ(Value(kMachineKeyPath, "OldMaxCache"), "0");
  EXPECT_EQ(Value(kMachineKeyPath, "OldChunk"), "512");
  EXPECT_EQ(Value(kMachineKeyPath, "OldFileCache"), "Desktop");
  EXPECT_EQ(Value(kMachineKeyPath, "OldPagingDrive"), "D:");
  EXPECT_EQ(rig.machine.ReadFile(kBackupPath),
            "[386Enh]\r\nPagingDrive=D:\r\n[vcache]\r\nMinFileCache=1024\r\nChunkSize=512 KB\r\n");
  EXPECT_EQ(rig.SystemIni(),
            "[386Enh]\r\nPagingDrive=D:\r\n[vcache]\r\nMinFileCache=4096\r\nChunkSize=4096\r\n"
            "maxfilecache=8192\r\n");
  EXPECT_EQ(rig.ValueBytes(kTemplatesPath, ""), "1: 51 75 6F 6E 64 69 78 00");
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "NameCache"), "3: 00 18 00 00");
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "PathCache"), "3: 80 00 00 00");
}

TEST_F(CacheSaving, NameCacheOf337IsStoredAsItsFourBytes) {
  Start();
  Tab().Combo2.Choose("Low Memory System (Win95)");
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "NameCache"), "3: 51 01 00 00");
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "PathCache"), "3: 10 00 00 00");
}

TEST_F(CacheSaving, CaptionOfTheTemplateIsWrittenByTheSecondSave) {
  Start();
  Tab().Combo2.Choose("Power User (Win95)");
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(Value(kOwnTemplatePath, ""), "none");
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, ""), "1: 51 75 6F 6E 64 69 78 20 53 65 74 74 69 6E 67 73 00");
}

TEST_F(CacheSaving, SecondSaveWritesTheCaptionEvenIfTheFirstOnlyDeletes) {
  Start();
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(Value(kOwnTemplatePath, ""), "none");
  EXPECT_TRUE(rig.machine.KeyExists(os::kHkeyLocalMachine, kOwnTemplatePath));
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(Value(kOwnTemplatePath, ""), "Quondix Settings");
}

TEST_F(CacheSaving, SecondSaveNamesTheTemplateEvenWithoutTheTemplatesKey) {
  ProgramRig bare;
  bare.SetHasRunBefore();
  bare.Start().MainWindow().SSTab1.ChooseTab(screens::kCacheTab);
  for (const char* expected : {"none", "Quondix"}) {
    bare.machine.AnswerNextBox(os::kIdYes);
    bare.machine.AnswerNextBox(os::kIdNo);
    bare.program->CacheScreen().Command11.Press();
    EXPECT_EQ(bare.machine.RegistryText(os::kHkeyLocalMachine, kTemplatesPath, "").value_or("none"),
              expected);
  }
}

TEST_F(CacheSaving, ClearBoxesRemoveTheEntriesAndStillNameTheTemplate) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\nMaxFileCache=4096\r\nChunkSize=512\r\nOther=1\r\n");
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kOwnTemplatePath, "NameCache", os::kRegBinary,
                               {0, '\x08', 0, 0});
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kOwnTemplatePath, "PathCache", os::kRegBinary,
                               {'\x40', 0, 0, 0});
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, kMachineKeyPath, "FirstSave", "1");
  Start();
  Tab().Command14.Press();
  const std::size_t before = rig.machine.Calls().size();
  Save({os::kIdYes, os::kIdNo});
  EXPECT_THAT(
      rig.Changes(before),
      ElementsAre(Set(kTemplates), Set(kOwnTemplate), Deleted(kOwnTemplate + "NameCache"),
                  Deleted(kOwnTemplate + "PathCache"), Ini("system.ini [vcache] minfilecache removed"),
                  Ini("system.ini [vcache] maxfilecache removed"),
                  Ini("system.ini [vcache] chunksize removed")));
  EXPECT_EQ(rig.SystemIni(), "[vcache]\r\nOther=1\r\n");
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "NameCache"), "none");
  EXPECT_EQ(rig.ValueBytes(kOwnTemplatePath, "PathCache"), "none");
  EXPECT_EQ(Value(kTemplatesPath, ""), "Quondix");
  EXPECT_EQ(Value(kOwnTemplatePath, ""), "Quondix Settings");
}

TEST_F(CacheSaving, SizesThatTheTabCannotShowAreRemoved) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=256\r\nMaxFileCache=99999\r\nChunkSize=512\r\n");
  Start();
  EXPECT_FALSE(Tab().Check5.Ticked());
  EXPECT_FALSE(Tab().Check6.Ticked());
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(rig.SystemIni(), "[vcache]\r\nChunkSize=512\r\n");
}

TEST_F(CacheSaving, SystemDefaultsClearsTheBoxesAndWritesNothing) {
  Start();
  Tab().Combo2.Choose("Multimedia (Win98/ME)");
  const std::size_t before = rig.machine.Calls().size();
  Tab().Command14.Press();
  for (const ui::CheckBox* box : {&Tab().Check5, &Tab().Check6, &Tab().Check7, &Tab().Check8}) {
    EXPECT_EQ(box->Value(), 0) << box->Name();
  }
  EXPECT_EQ(Tab().lblMinCache.Caption(), "Min Cache Size : ");
  EXPECT_EQ(Tab().lblMaxCache.Caption(), "Max Cache Size : ");
  EXPECT_EQ(Tab().lblChunkSize.Caption(), "Chunk Size : ");
  EXPECT_EQ(Tab().lblNameCache.Caption(), "Name Cache : ");
  EXPECT_EQ(Tab().lblDirectoryCache.Caption(), "Directory Cache : ");
  EXPECT_FALSE(Tab().Slider1.Enabled());
  EXPECT_FALSE(Tab().Slider5.Enabled());
  EXPECT_EQ(Tab().Combo2.Text(), "User-defined");
  EXPECT_TRUE(rig.Changes(before).empty());
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(CacheSaving, RecordIsTakenOnce) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\n");
  Start();
  Tab().Combo2.Choose("CD Writer (Win95)");
  Save({os::kIdYes, os::kIdNo});
  const std::size_t before = rig.machine.Calls().size();
  Save({os::kIdYes, os::kIdNo});
  for (const std::string& change : rig.Changes(before)) {
    EXPECT_FALSE(change.starts_with("CopyFileA")) << change;
    EXPECT_EQ(change.find(kRecord), std::string::npos) << change;
  }
  EXPECT_EQ(rig.machine.ReadFile(kBackupPath), "[vcache]\r\nMinFileCache=1024\r\n");
  EXPECT_EQ(Value(kMachineKeyPath, "OldMinCache"), "1024");
}

TEST_F(CacheSaving, RestartIsOfferedLast) {
  Start();
  Save({os::kIdYes, os::kIdNo});
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion, kRestart));
  EXPECT_EQ(rig.machine.Boxes()[1].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbYesNo | os::kMbIconInformation);
  EXPECT_EQ(rig.machine.RestartCount(), 0);
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

TEST_F(CacheSaving, YesRestartsTheMachineAndEndsTheProgram) {
  Start();
  Save({os::kIdYes, os::kIdYes});
  EXPECT_EQ(rig.machine.RestartCount(), 1);
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "5");
}

TEST_F(CacheSaving, WindowClosedDuringTheQuestionWritesNothing) {
  Start();
  const std::size_t before = rig.machine.Calls().size();
  rig.machine.WhileBoxIsOpen([this] {
    rig.program->Form().Unload();
    rig.machine.EndBoxes();
  });
  Tab().Command11.Press();
  for (const std::string& change : rig.Changes(before)) {
    EXPECT_THAT(change, testing::StartsWith("RegSetValueExA(HKCU\\"));
  }
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion));
}

// With wider sliders than the tab has: sizes beyond 16 bits cause a run-time error, and nothing follows it.
TEST_F(CacheSaving, EntriesBeyond16BitsAreAnOverflow) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\n");
  Start();
  Tab().Check8.Press();
  Tab().Slider4.SetMaximum(40000);
  Tab().Slider4.Drag(32768);
  Save({os::kIdYes});
  EXPECT_EQ(rig.BoxTexts().back(), "Run-time error '6':\r\n\r\nOverflow");
  EXPECT_EQ(rig.SystemIni(), "[vcache]\r\nMinFileCache=1024\r\n");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(CacheSaving, WriteProtectedFileStaysUnchangedSilently) {
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\n");
  rig.machine.ProtectFile(kSystemIniPath);
  Start();
  Tab().Combo2.Choose("Multimedia (Win95)");
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(rig.SystemIni(), "[vcache]\r\nMinFileCache=1024\r\n");
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion, kRestart));
}

}  // namespace
}  // namespace qdix::tests
