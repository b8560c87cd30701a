// The label with the processor's name and clock.
#include "cpu/cpu_speed.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/form_fixture.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

/// Returns the values that a test sets.
class FakeProcessorInformation final : public cpu::ProcessorInformation {
 public:
  void GetProcessorNormSpeed(cpu::TextBuffer& speed) override { Put(speed, norm_speed); }
  void GetProcessor(cpu::TextBuffer& vendor, cpu::TextBuffer& description,
                    cpu::TextBuffer& signature) override {
    Put(vendor, "maker");
    Put(description, name);
    Put(signature, "signature");
  }
  std::int32_t cpunormspeed(std::int32_t /*reserved*/) override {
    ++times_asked;
    return measured_mhz;
  }

  std::string norm_speed = "0";
  std::string name;
  std::int32_t measured_mhz = 0;
  int times_asked = 0;

 private:
  /// Writes the text and its NUL; the rest of the buffer stays as it was.
  static void Put(cpu::TextBuffer& buffer, const std::string& text) {
    std::copy(text.begin(), text.end(), buffer.begin());
    if (text.size() < buffer.size()) buffer[text.size()] = '\0';
  }
};

class CpuSpeed : public testing::Test {
 protected:
  std::string Shown() {
    cpu::CpuSpeed(information, screen).CPUSPEED();
    return screen.lblCPU.Caption();
  }

  FormFixture fixture;
  screens::QuondixScreen screen{fixture.form};
  FakeProcessorInformation information;
};

TEST_F(CpuSpeed, ShowsNameAndClockWithTwoBlanksBetween) {
  information.name = "Intel Pentium";
  information.norm_speed = "133";
  EXPECT_EQ(Shown(), "CPU : Intel Pentium  133 MHz");
  EXPECT_EQ(information.times_asked, 0);
}

TEST_F(CpuSpeed, ClockIsTheLeadingNumberOfItsTextRoundedHalfToEven) {
  information.name = "X";
  information.norm_speed = "66.5 or so";
  EXPECT_EQ(Shown(), "CPU : X  66 MHz");
}

TEST_F(CpuSpeed, SecondSourceAloneShowsOnlyItsClock) {
  information.name = "Intel Pentium";
  information.measured_mhz = 733;
  EXPECT_EQ(Shown(), "CPU Speed : 733 MHz");
  EXPECT_EQ(information.times_asked, 2);
}

TEST_F(CpuSpeed, NoClockAtAllShowsNothing) {
  information.name = "386";
  EXPECT_EQ(Shown(), "");
}

TEST_F(CpuSpeed, EmptySpeedTextCountsAsZero) {
  information.norm_speed = "";
  information.measured_mhz = 25;
  EXPECT_EQ(Shown(), "CPU Speed : 25 MHz");
}

TEST_F(CpuSpeed, TextWithoutANulIsTakenCompletely) {
  information.name = std::string(255, 'x');
  information.norm_speed = "100";
  EXPECT_EQ(Shown(), "CPU : " + std::string(255, 'x') + "  100 MHz");
}

TEST(StripZero, GivesThePartBeforeTheFirstNulOrTheWholeText) {
  EXPECT_EQ(cpu::CpuSpeed::StripZero(std::string_view("abc\0def\0", 8)), "abc");
  EXPECT_EQ(cpu::CpuSpeed::StripZero("abc"), "abc");
  EXPECT_EQ(cpu::CpuSpeed::StripZero(std::string_view("\0abc", 4)), "");
  EXPECT_EQ(cpu::CpuSpeed::StripZero(""), "");
}

TEST(CpuSpeedAtLoad, ShowsWhatTheProcessorReports) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  auto& processor = rig.machine.FakeProcessor();
  processor.SetLeaf(0, {.eax = 1, .ebx = 0x756e6547, .ecx = 0x6c65746e, .edx = 0x49656e69});
  processor.SetLeaf(1, {.eax = 0x52C, .edx = 0x1BF});
  processor.SetClock(133333);
  EXPECT_EQ(rig.Start().QuondixScreen().lblCPU.Caption(), "CPU : Intel Pentium  133 MHz");
}

TEST(CpuSpeedAtLoad, ForbiddenCounterLeavesTheLabelEmpty) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  auto& processor = rig.machine.FakeProcessor();
  processor.SetLeaf(0, {.eax = 1, .ebx = 0x756e6547, .ecx = 0x6c65746e, .edx = 0x49656e69});
  processor.SetLeaf(1, {.eax = 0x52C, .edx = 0x1BF});
  processor.SetClock(0);
  EXPECT_EQ(rig.Start().QuondixScreen().lblCPU.Caption(), "");
}

TEST(CpuSpeedAtLoad, ProcessorWithoutACounterIsNeverMeasured) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  rig.machine.FakeProcessor().SetGeneration(3);
  rig.machine.FakeProcessor().SetClock(33000);
  EXPECT_EQ(rig.Start().QuondixScreen().lblCPU.Caption(), "");
  for (const std::string& call : rig.machine.Calls()) EXPECT_FALSE(call.starts_with("CountCycles")) << call;
}

TEST(CpuSpeedAtLoad, ClockIsMeasuredOnce) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  auto& processor = rig.machine.FakeProcessor();
  processor.SetLeaf(0, {.eax = 1, .ebx = 0x756e6547, .ecx = 0x6c65746e, .edx = 0x49656e69});
  processor.SetLeaf(1, {.eax = 0x52C, .edx = 0x1BF});
  rig.Start();
  EXPECT_EQ(std::count(rig.machine.Calls().begin(), rig.machine.Calls().end(), "CountCycles(10)"), 1);
}

TEST(CpuSpeedAtLoad, ClockIsMeasuredBeforeTheStatisticIsStarted) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  rig.machine.SetCpuLoad(10);
  auto& processor = rig.machine.FakeProcessor();
  processor.SetLeaf(0, {.eax = 1, .ebx = 0x756e6547, .ecx = 0x6c65746e, .edx = 0x49656e69});
  processor.SetLeaf(1, {.eax = 0x52C, .edx = 0x1BF});
  rig.Start();
  const std::vector<std::string>& calls = rig.machine.Calls();
  const auto measured = std::find(calls.begin(), calls.end(), "CountCycles(10)");
  const auto is_start = [](const std::string& call) {
    return call.starts_with("RegOpenKeyExA(HKDD\\PerfStats\\StartStat");
  };
  ASSERT_NE(measured, calls.end());
  EXPECT_TRUE(std::none_of(calls.begin(), measured, is_start));
  EXPECT_TRUE(std::any_of(measured, calls.end(), is_start));
}

}  // namespace
}  // namespace qdix::tests
