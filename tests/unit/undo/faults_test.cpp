// Runs a whole session for every system call that can fail: with that call failing once, and with all calls
// failing from then on.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/undo/undo_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kKeptPath = "C:\\WINDOWS\\SYSTEM.Q01";

/// A session that reaches every call: half of the entries undone, the whole file restored, a restart.
void RunSession(UndoRig& rig) {
  rig.Start();
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.machine.AnswerNextBox(os::kIdNo);
  rig.Screen().MinFileCache.box.Press();
  rig.Screen().cmdPutBack.Press();
  for (int box = 0; box < 5; ++box) rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().cmdRestore.Press();
  rig.Screen().cmdClose.Press();
}

int CallsOfASession(int& calls_before) {
  UndoRig rig;
  rig.TakeRecordAndChange();
  calls_before = rig.machine.FaultableCallCount();
  RunSession(rig);
  return rig.machine.FaultableCallCount();
}

bool IsKnown(const std::string& message) {
  constexpr std::array<const char*, 6> kBeginnings{"Q-DIX Undo will make these changes:\r\n\r\n",
                                                   "These settings could not be put back:\r\n\r\n",
                                                   "All of system.ini will be replaced",
                                                   "system.ini could not be replaced, and ",
                                                   "system.ini has been replaced.",
                                                   "You must restart your computer"};
  return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                     [&message](const char* beginning) { return message.starts_with(beginning); });
}

/// Expects each line of the file to be an old or a new one: nothing that a failed call could leave behind.
void ExpectOldOrNew(const UndoRig& rig, int call) {
  const std::string known = std::string(kIniBefore) + kIniAfter;
  // If neither rename succeeded, the old file is complete under the name that the message names.
  const std::string ini =
      rig.machine.ReadFile(kIniPath).value_or(rig.machine.ReadFile(kKeptPath).value_or(""));
  for (std::size_t begin = 0; begin < ini.size();) {
    const std::size_t end = ini.find("\r\n", begin);
    ASSERT_NE(end, std::string::npos) << call;
    std::string line = ini.substr(begin, end - begin + 2);
    const bool is_known = known.find(line) != std::string::npos || line == "MinFileCache=2048\r\n";
    EXPECT_TRUE(is_known) << call << ": " << line;
    begin = end + 2;
  }
  EXPECT_NE(ini.find("shell=Explorer.exe"), std::string::npos) << call;
  const auto name = rig.Template();
  EXPECT_TRUE(name == "Desktop" || name == "Quondix") << call << ": " << name.value_or("none");
}

void ExpectSound(UndoRig& rig, int call) {
  EXPECT_TRUE(rig.form->Form().Unloaded()) << call;
  EXPECT_TRUE(rig.RecordIsUntouched()) << call;
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << call;
  EXPECT_TRUE(rig.machine.Misuses().empty()) << call;
  for (const auto& box : rig.machine.Boxes()) EXPECT_TRUE(IsKnown(box.text)) << call << ": " << box.text;
  ExpectOldOrNew(rig, call);
}

TEST(UndoFaults, EachCallFailedOnceLosesNothing) {
  int first = 0;
  const int calls = CallsOfASession(first);
  ASSERT_GT(calls - first, 60);
  for (int call = first + 1; call <= calls; ++call) {
    UndoRig rig;
    rig.TakeRecordAndChange();
    rig.machine.FailCallNumber(call);
    RunSession(rig);
    ExpectSound(rig, call);
  }
}

TEST(UndoFaults, AllCallsFailedFromEachOnLoseNothing) {
  int first = 0;
  const int calls = CallsOfASession(first);
  for (int call = first + 1; call <= calls; ++call) {
    UndoRig rig;
    rig.TakeRecordAndChange();
    rig.machine.FailFromCallNumber(call);
    RunSession(rig);
    ExpectSound(rig, call);
  }
}

/// Whichever call fails, each entry that is written gets its original value.
TEST(UndoFaults, NoFailedReadCausesAWrongAction) {
  int first = 0;
  const int calls = CallsOfASession(first);
  for (int call = first + 1; call <= calls; ++call) {
    UndoRig rig;
    rig.TakeRecordAndChange();
    rig.machine.FailCallNumber(call);
    rig.Start();
    rig.TickAll();
    rig.machine.AnswerNextBox(os::kIdYes);
    rig.machine.AnswerNextBox(os::kIdNo);
    rig.Screen().cmdPutBack.Press();
    const std::string ini = rig.Ini();
    EXPECT_TRUE(ini.find("MinFileCache=2048\r\n") != std::string::npos ||
                ini.find("MinFileCache=4096\r\n") != std::string::npos)
        << call << ":\n"
        << ini;
    EXPECT_TRUE(ini.find("MinPagingFileSize=0\r\n") != std::string::npos ||
                ini.find("MinPagingFileSize=65536\r\n") != std::string::npos)
        << call << ":\n"
        << ini;
    EXPECT_TRUE(ini.find("PagingDrive=") != std::string::npos) << call << ":\n" << ini;
    EXPECT_NE(rig.Template(), std::nullopt) << call;
  }
}

}  // namespace
}  // namespace qdix::tests
