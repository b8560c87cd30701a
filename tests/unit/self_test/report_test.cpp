// The log of the self-test, byte for byte.
#include "self_test/report.h"

#include <gtest/gtest.h>

#include <optional>

#include "os/simulated/simulated_machine.h"

namespace qdix::tests {
namespace {

using self_test::Outcome;
using self_test::Report;

constexpr const char* kPath = "C:\\LOGS\\TEST.LOG";
constexpr const char* kOtherPath = "C:\\TEMP\\TEST.LOG";

class SelfTestReport : public testing::Test {
 protected:
  void Make() { report.emplace(machine.GetSystem().files, machine.GetSystem().clock, kPath, kOtherPath); }

  os::SimulatedMachine machine;
  std::optional<Report> report;
};

TEST_F(SelfTestReport, EachCheckHasALineWithResultAndTime) {
  Make();
  report->Fact("System", "Windows 4.10");
  report->Run("One", [this] {
    machine.AdvanceMs(55);
    return Outcome::Ok();
  });
  report->Run("Two", [] { return Outcome::Ok("8 MB"); });
  report->Run("Three", [] { return Outcome::Failed("it is broken"); });
  report->Finish();
  EXPECT_EQ(report->Checks(), 3);
  EXPECT_EQ(report->Failures(), 1);
  EXPECT_EQ(machine.ReadFile(kPath),
            "System               Windows 4.10\r\n"
            "One ............................................ ok, 55 ms\r\n"
            "Two ............................................ ok (8 MB), 0 ms\r\n"
            "Three .......................................... FAILED: it is broken, 0 ms\r\n"
            "\r\n"
            "3 checks, 2 ok, 1 failed, 55 ms\r\n");
}

TEST_F(SelfTestReport, QuestionHasALineWithItsAnswerAndIsNoCheck) {
  Make();
  report->Run("One", [] { return Outcome::Ok(); });
  report->Ask("Two", [this] {
    EXPECT_TRUE(
        machine.ReadFile(kPath).value_or("").ends_with("Two ............................................ "));
    machine.AdvanceMs(7);
    return std::string("refused (error 123)");
  });
  report->Finish();
  EXPECT_EQ(report->Checks(), 1);
  EXPECT_EQ(report->Failures(), 0);
  EXPECT_EQ(machine.ReadFile(kPath),
            "One ............................................ ok, 0 ms\r\n"
            "Two ............................................ answer: refused (error 123), 7 ms\r\n"
            "\r\n"
            "1 checks, 1 ok, 0 failed, 7 ms\r\n");
}

TEST_F(SelfTestReport, NameIsOnTheDiskBeforeTheCheckBegins) {
  Make();
  report->Run("Hangs", [this] {
    EXPECT_EQ(machine.ReadFile(kPath), "Hangs .......................................... ");
    return Outcome::Ok();
  });
}

TEST_F(SelfTestReport, SecondFolderIsUsedIfTheFirstRefuses) {
  machine.WriteFile(kPath, "before");
  machine.ProtectFile(kPath);
  Make();
  report->Line("text");
  EXPECT_EQ(report->Path(), kOtherPath);
  EXPECT_EQ(machine.ReadFile(kPath), "before");
  EXPECT_EQ(machine.ReadFile(kOtherPath), "text\r\n");
}

TEST_F(SelfTestReport, ChecksRunEvenWithoutALog) {
  machine.ProtectDisk();
  Make();
  report->Run("One", [] { return Outcome::Failed("no"); });
  EXPECT_EQ(report->Path(), "");
  EXPECT_EQ(report->Failures(), 1);
}

TEST_F(SelfTestReport, FullDiskIsDetected) {
  Make();
  report->Line("text");
  EXPECT_FALSE(report->IsIncomplete());
  machine.LimitFreeBytes(1);
  report->Line("text");
  EXPECT_TRUE(report->IsIncomplete());
}

TEST_F(SelfTestReport, FileIsClosedAtTheEnd) {
  Make();
  report.reset();
  EXPECT_EQ(machine.OpenFileCount(), 0);
}

}  // namespace
}  // namespace qdix::tests
