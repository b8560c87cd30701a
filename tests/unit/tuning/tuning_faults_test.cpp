// Uses both tuning tabs for every system call that can fail: with that call failing once, and with all calls
// failing from then on. If the free space cannot be read, the suggestion is the system's default, which is
// then saved instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "base/text.h"
#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kBefore =
    "[386Enh]\r\nEMMExclude=A000\r\nPaging=on\r\n[vcache]\r\nMinFileCache=1024\r\nOther=1\r\n";

/// Every line that may be in system.ini at the end: the original lines, and those that the session writes.
constexpr std::array<const char*, 13> kSoundLines{"[386Enh]",
                                                  "EMMExclude=A000",
                                                  "Paging=on",
                                                  "PagingDrive=C:",
                                                  "MinPagingFileSize=196608",
                                                  "MaxPagingFileSize=196608",
                                                  "[vcache]",
                                                  "MinFileCache=1024",
                                                  "MinFileCache=4096",
                                                  "maxfilecache=8192",
                                                  "chunksize=4096",
                                                  "Other=1",
                                                  ""};

/// How every box begins that the session may show.
constexpr std::array<const char*, 10> kKnownBoxes{"Are you sure you want to set the virtual memory",
                                                  "Quondix has reset your virtual memory",
                                                  "Are you sure you want to save these new cache settings?",
                                                  "You must restart your computer",
                                                  "Quondix suggests",
                                                  "Are you sure you want to configure your Virtual Memory",
                                                  "The size you have selected is too large.",
                                                  "Ok to run the Disk Defragmenter now?",
                                                  "The Automatic free up function",
                                                  "Run-time error '53':"};

/// Answers Yes to every question except the one about the restart.
void AnswerBoxes(TuningRig& rig) {
  rig.machine.WhileBoxIsOpen([&rig] {
    const std::string& text = rig.machine.Boxes().back().text;
    const bool restarts = text.find("Do you want to restart") != std::string::npos;
    const bool asks = (rig.machine.Boxes().back().flags & os::kMbYesNo) != 0;
    rig.machine.AnswerNextBox(!asks ? os::kIdOk : restarts ? os::kIdNo : os::kIdYes);
  });
}

/// Applies and saves a preset, has a swap file suggested and saves it, then runs the defragmenter.
void UseBothTabs(TuningRig& rig) {
  rig.WriteSystemIni(kBefore);
  rig.Start();
  if (rig.program->Form().Unloaded()) return;
  AnswerBoxes(rig);
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kCacheTab);
  rig.program->CacheScreen().Combo2.Choose("Multimedia (Win95)");
  rig.program->CacheScreen().Command11.Press();
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap2.Press();
  rig.program->SwapFileScreen().cmdBeginnerSwapFile.Press();
  rig.program->SwapFileScreen().Text8.SetText("192");
  rig.program->SwapFileScreen().Command18.Press();
  rig.program->SwapFileScreen().Command26.Press();
  rig.program->Form().Unload();
}

/// Expects only complete old and new lines, and every line that the session does not touch.
void ExpectSoundFile(const std::string& content, int call) {
  for (std::size_t begin = 0; begin < content.size();) {
    const std::size_t end = std::min(content.find("\r\n", begin), content.size());
    const std::string line = content.substr(begin, end - begin);
    EXPECT_TRUE(std::find(kSoundLines.begin(), kSoundLines.end(), line) != kSoundLines.end())
        << call << ": " << line;
    begin = end + base::kLineBreak.size();
  }
  EXPECT_NE(content.find("EMMExclude=A000\r\n"), std::string::npos) << call;
  EXPECT_NE(content.find("Other=1\r\n"), std::string::npos) << call;
}

/// Expects each value of the templates to be complete, with its old content or with what a session writes.
void ExpectSoundTemplate(const TuningRig& rig, int call) {
  const auto is_one_of = [&](const char* path, const char* name, std::initializer_list<const char*> sound) {
    const std::string bytes = rig.ValueBytes(path, name);
    EXPECT_TRUE(std::find(sound.begin(), sound.end(), bytes) != sound.end())
        << call << ": " << path << ", " << name << " is " << bytes;
  };
  is_one_of(kTemplatesPath, "", {"1: 44 65 73 6B 74 6F 70 00", "1: 51 75 6F 6E 64 69 78 00"});
  is_one_of(kOwnTemplatePath, "", {"none", "1: 51 75 6F 6E 64 69 78 20 53 65 74 74 69 6E 67 73 00"});
  is_one_of(kOwnTemplatePath, "NameCache", {"none", "3: 00 08 00 00", "3: 00 18 00 00"});
  is_one_of(kOwnTemplatePath, "PathCache", {"none", "3: 80 00 00 00"});
}

void ExpectSoundEnd(TuningRig& rig, int call) {
  EXPECT_TRUE(rig.program->Form().Unloaded()) << call;
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << call;
  EXPECT_TRUE(rig.machine.Misuses().empty()) << call;
  EXPECT_EQ(rig.machine.RestartCount(), 0) << call;
  ExpectSoundFile(rig.SystemIni(), call);
  // The backup is missing if the copy failed, and is made again if the record cannot be read.
  ExpectSoundFile(rig.machine.ReadFile(kBackupPath).value_or(kBefore), call);
  ExpectSoundTemplate(rig, call);
  for (const std::string& text : rig.BoxTexts()) {
    EXPECT_TRUE(std::any_of(kKnownBoxes.begin(), kKnownBoxes.end(),
                            [&text](const char* known) { return text.starts_with(known); }))
        << call << ": " << text;
  }
}

/// Returns both to Windows: clears the boxes of the cache and saves, chooses the default swap file and saves.
void GoBackToDefaults(TuningRig& rig) {
  rig.WriteSystemIni(kBefore);
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kOwnTemplatePath, "NameCache", os::kRegBinary,
                               {0, '\x08', 0, 0});
  rig.Start();
  if (rig.program->Form().Unloaded()) return;
  AnswerBoxes(rig);
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kCacheTab);
  rig.program->CacheScreen().Command14.Press();
  rig.program->CacheScreen().Command11.Press();
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap1.Press();
  rig.program->SwapFileScreen().Command18.Press();
  rig.program->Form().Unload();
}

struct Scenario {
  const char* name;
  void (*run)(TuningRig& rig);
  std::string after;
};

void PrintTo(const Scenario& scenario, std::ostream* out) { *out << scenario.name; }

class TuningFaults : public testing::TestWithParam<Scenario> {
 protected:
  /// Returns how many calls of a fault-free run can fail, and checks that the run does what it is for.
  static int Calls() {
    TuningRig rig;
    GetParam().run(rig);
    EXPECT_EQ(rig.SystemIni(), GetParam().after);
    EXPECT_EQ(rig.machine.ReadFile(kBackupPath), kBefore);
    EXPECT_GT(rig.machine.FaultableCallCount(), 100);
    return rig.machine.FaultableCallCount();
  }
};

TEST_P(TuningFaults, EachCallFailedOnceAffectsOnlyItsOwnOperation) {
  const int calls = Calls();
  for (int call = 1; call <= calls; ++call) {
    TuningRig rig;
    rig.machine.FailCallNumber(call);
    GetParam().run(rig);
    ExpectSoundEnd(rig, call);
  }
}

TEST_P(TuningFaults, AllCallsFailedFromEachOnAffectOnlyTheirOwnOperations) {
  const int calls = Calls();
  for (int call = 1; call <= calls; ++call) {
    TuningRig rig;
    rig.machine.FailFromCallNumber(call);
    GetParam().run(rig);
    ExpectSoundEnd(rig, call);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Scenarios, TuningFaults,
    testing::Values(Scenario{"BothTabs", &UseBothTabs,
                             "[386Enh]\r\nEMMExclude=A000\r\nPagingDrive=C:\r\nMinPagingFileSize=196608\r\n"
                             "MaxPagingFileSize=196608\r\n[vcache]\r\nMinFileCache=4096\r\nOther=1\r\n"
                             "maxfilecache=8192\r\nchunksize=4096\r\n"},
                    Scenario{"Defaults", &GoBackToDefaults,
                             "[386Enh]\r\nEMMExclude=A000\r\nPaging=on\r\n[vcache]\r\nOther=1\r\n"}));

}  // namespace
}  // namespace qdix::tests
