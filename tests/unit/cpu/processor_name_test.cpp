// Names of processors, derived from the registers of the identification instruction.
#include "cpu/processor_name.h"

#include <gtest/gtest.h>

#include <vector>

#include "cpu/processor_identification.h"
#include "os/simulated/simulated_processor.h"

namespace qdix::tests {
namespace {

using os::CpuidRegisters;

/// Returns the result of leaf 0 for the twelve characters of a maker.
CpuidRegisters Maker(const std::string& characters, std::uint32_t highest_leaf = 1) {
  const auto word = [&characters](std::size_t from) {
    std::uint32_t value = 0;
    for (std::size_t index = 4; index-- > 0;) {
      value = value << 8U | static_cast<unsigned char>(characters.at(from + index));
    }
    return value;
  };
  return {.eax = highest_leaf, .ebx = word(0), .ecx = word(8), .edx = word(4)};
}

struct Recorded {
  const char* maker;
  std::uint32_t signature;
  std::uint32_t brand_index;
  const char* name;
  const char* signature_text;
};

void PrintTo(const Recorded& recorded, std::ostream* out) { *out << recorded.name; }

class RecordedProcessor : public testing::TestWithParam<Recorded> {};

TEST_P(RecordedProcessor, HasItsName) {
  os::simulated::CallLog log;
  os::simulated::SimulatedProcessor processor(log);
  processor.SetLeaf(0, Maker(GetParam().maker));
  processor.SetLeaf(1, {.eax = GetParam().signature, .ebx = GetParam().brand_index});
  const cpu::ProcessorIdentity identity = cpu::Identify(processor);
  EXPECT_EQ(identity.vendor, GetParam().maker);
  EXPECT_EQ(cpu::NameOf(identity), GetParam().name);
  EXPECT_EQ(cpu::SignatureOf(identity), GetParam().signature_text);
}

TEST(ProcessorBrand, IsReadIfTheHighestLeafAllowsIt) {
  const auto name_with_highest = [](std::uint32_t highest_leaf) {
    os::simulated::CallLog log;
    os::simulated::SimulatedProcessor processor(log);
    processor.SetLeaf(0, Maker("GenuineIntel"));
    processor.SetLeaf(1, {.eax = 0x0F12});
    processor.SetLeaf(0x80000000U, {.eax = highest_leaf});
    processor.SetLeaf(0x80000002U, {.eax = 0x444E4142U});  // "BAND"
    return cpu::NameOf(cpu::Identify(processor));
  };
  for (const std::uint32_t highest_leaf : {0x80000004U, 0x80000008U, 0x8000FFFFU}) {
    EXPECT_EQ(name_with_highest(highest_leaf), "BAND") << highest_leaf;
  }
  for (const std::uint32_t highest_leaf : {0U, 2U, 0x80000000U, 0x80000003U, 0x80010000U, 0xFFFFFFFFU}) {
    EXPECT_EQ(name_with_highest(highest_leaf), "Intel Pentium 4") << highest_leaf;
  }
}

TEST(ProcessorSignature, EachNumberHasItsOwnBits) {
  const auto identified = [](std::uint32_t signature, std::uint32_t brand) {
    os::simulated::CallLog log;
    os::simulated::SimulatedProcessor processor(log);
    processor.SetLeaf(0, Maker("GenuineIntel"));
    processor.SetLeaf(1, {.eax = signature, .ebx = brand});
    const cpu::ProcessorIdentity identity = cpu::Identify(processor);
    return std::vector<std::uint32_t>{identity.family, identity.model, identity.stepping,
                                      identity.brand_index};
  };
  using Numbers = std::vector<std::uint32_t>;
  EXPECT_EQ(identified(0xFFFFFFFFU, 0xFFFFFFFFU), (Numbers{15 + 255, 255, 15, 255}));
  EXPECT_EQ(identified(0xF000F000U, 0xFFFFFF00U), (Numbers{0, 0, 0, 0}));
  EXPECT_EQ(identified(0x00100F00U, 0), (Numbers{16, 0, 0, 0}));
  EXPECT_EQ(identified(0x00010F00U, 0), (Numbers{15, 16, 0, 0}));
  EXPECT_EQ(identified(0x00010610U, 0), (Numbers{6, 17, 0, 0}));
  EXPECT_EQ(identified(0x00110510U, 0), (Numbers{5, 1, 0, 0})) << "other families have no extended bits";
}

INSTANTIATE_TEST_SUITE_P(
    Table, RecordedProcessor,
    testing::Values(
        Recorded{"GenuineIntel", 0x0415, 0, "Intel 486DX", "Family 4 Model 1 Stepping 5"},
        Recorded{"GenuineIntel", 0x0435, 0, "Intel 486DX2", "Family 4 Model 3 Stepping 5"},
        Recorded{"GenuineIntel", 0x0480, 0, "Intel 486DX4", "Family 4 Model 8 Stepping 0"},
        Recorded{"GenuineIntel", 0x0517, 0, "Intel Pentium", "Family 5 Model 1 Stepping 7"},
        Recorded{"GenuineIntel", 0x052C, 0, "Intel Pentium", "Family 5 Model 2 Stepping 12"},
        // An OverDrive: its type is in the bits above the family.
        Recorded{"GenuineIntel", 0x1532, 0, "Intel Pentium", "Family 5 Model 3 Stepping 2"},
        Recorded{"GenuineIntel", 0x0543, 0, "Intel Pentium MMX", "Family 5 Model 4 Stepping 3"},
        Recorded{"GenuineIntel", 0x0619, 0, "Intel Pentium Pro", "Family 6 Model 1 Stepping 9"},
        Recorded{"GenuineIntel", 0x0634, 0, "Intel Pentium II", "Family 6 Model 3 Stepping 4"},
        Recorded{"GenuineIntel", 0x0652, 0, "Intel Pentium II", "Family 6 Model 5 Stepping 2"},
        Recorded{"GenuineIntel", 0x0665, 0, "Intel Celeron", "Family 6 Model 6 Stepping 5"},
        Recorded{"GenuineIntel", 0x0673, 0, "Intel Pentium III", "Family 6 Model 7 Stepping 3"},
        Recorded{"GenuineIntel", 0x0683, 1, "Intel Celeron", "Family 6 Model 8 Stepping 3"},
        Recorded{"GenuineIntel", 0x0683, 2, "Intel Pentium III", "Family 6 Model 8 Stepping 3"},
        Recorded{"GenuineIntel", 0x06B1, 4, "Intel Pentium III", "Family 6 Model 11 Stepping 1"},
        Recorded{"GenuineIntel", 0x0F12, 8, "Intel Pentium 4", "Family 15 Model 1 Stepping 2"},
        Recorded{"AuthenticAMD", 0x04F4, 0, "AMD Am5x86", "Family 4 Model 15 Stepping 4"},
        Recorded{"AuthenticAMD", 0x0501, 0, "AMD K5", "Family 5 Model 0 Stepping 1"},
        Recorded{"AuthenticAMD", 0x0562, 0, "AMD K6", "Family 5 Model 6 Stepping 2"},
        Recorded{"AuthenticAMD", 0x058C, 0, "AMD K6-2", "Family 5 Model 8 Stepping 12"},
        Recorded{"AuthenticAMD", 0x0591, 0, "AMD K6-III", "Family 5 Model 9 Stepping 1"},
        Recorded{"CyrixInstead", 0x0494, 0, "Cyrix 5x86", "Family 4 Model 9 Stepping 4"},
        Recorded{"CyrixInstead", 0x0520, 0, "Cyrix 6x86", "Family 5 Model 2 Stepping 0"},
        Recorded{"CyrixInstead", 0x0600, 0, "Cyrix 6x86MX", "Family 6 Model 0 Stepping 0"},
        Recorded{"CentaurHauls", 0x0541, 0, "IDT WinChip", "Family 5 Model 4 Stepping 1"},
        Recorded{"CentaurHauls", 0x0585, 0, "IDT WinChip 2", "Family 5 Model 8 Stepping 5"},
        Recorded{"NexGenDriven", 0x0500, 0, "NexGen Nx586", "Family 5 Model 0 Stepping 0"},
        Recorded{"UMC UMC UMC ", 0x0423, 0, "UMC U5S", "Family 4 Model 2 Stepping 3"},
        Recorded{"RiseRiseRise", 0x0502, 0, "Rise mP6", "Family 5 Model 0 Stepping 2"},
        // Models without a row: the maker's usual name, or its own twelve characters.
        Recorded{"GenuineIntel", 0x05E0, 0, "Intel family 5 model 14", "Family 5 Model 14 Stepping 0"},
        Recorded{"Some Maker  ", 0x0621, 0, "Some Maker family 6 model 2", "Family 6 Model 2 Stepping 1"},
        // Family and model above 15 are the sum of two fields each.
        Recorded{"AuthenticAMD", 0x00800F12, 0, "AMD family 23 model 1", "Family 23 Model 1 Stepping 2"},
        Recorded{"GenuineIntel", 0x000306C3, 0, "Intel family 6 model 60", "Family 6 Model 60 Stepping 3"}));

class OneProcessor : public testing::Test {
 protected:
  [[nodiscard]] std::string Name() { return cpu::NameOf(cpu::Identify(processor)); }
  /// Splits the processor's own text into the registers of three leaves.
  void SetBrandText(std::string text, std::uint32_t highest_leaf = 0x80000004U) {
    text.resize(48, '\0');
    processor.SetLeaf(0x80000000U, {.eax = highest_leaf});
    for (std::uint32_t leaf = 0; leaf < 3; ++leaf) {
      const CpuidRegisters words = Maker(text.substr(leaf * 16, 12), 0);
      const CpuidRegisters last = Maker(text.substr(leaf * 16 + 12) + std::string(8, '\0'), 0);
      processor.SetLeaf(0x80000002U + leaf,
                        {.eax = words.ebx, .ebx = words.edx, .ecx = words.ecx, .edx = last.ebx});
    }
  }

  os::simulated::CallLog log;
  os::simulated::SimulatedProcessor processor{log};
};

TEST_F(OneProcessor, WithoutIdentificationIsA386OrA486) {
  processor.SetGeneration(3);
  EXPECT_EQ(Name(), "386");
  processor.SetGeneration(4);
  EXPECT_EQ(Name(), "486");
  EXPECT_EQ(cpu::SignatureOf(cpu::Identify(processor)), "");
}

TEST_F(OneProcessor, WithOnlyAMakerIsNamedAfterIt) {
  processor.SetLeaf(0, Maker("GenuineIntel", 0));
  EXPECT_EQ(Name(), "Intel");
  EXPECT_EQ(cpu::SignatureOf(cpu::Identify(processor)), "");
}

TEST_F(OneProcessor, OwnTextWinsAndLosesItsSuperfluousBlanks) {
  processor.SetLeaf(0, Maker("GenuineIntel"));
  processor.SetLeaf(1, {.eax = 0x0F29});
  SetBrandText("        Intel(R) Pentium(R) 4 CPU   2.40GHz ");
  EXPECT_EQ(Name(), "Intel(R) Pentium(R) 4 CPU 2.40GHz");
}

TEST_F(OneProcessor, OwnTextOfFortyEightCharactersNeedsNoNul) {
  processor.SetLeaf(0, Maker("AuthenticAMD"));
  processor.SetLeaf(1, {.eax = 0x0662});
  SetBrandText(std::string(48, 'z'));
  EXPECT_EQ(Name(), std::string(48, 'z'));
}

TEST_F(OneProcessor, EmptyOwnTextFallsBackToTheTable) {
  processor.SetLeaf(0, Maker("AuthenticAMD"));
  processor.SetLeaf(1, {.eax = 0x0642});
  SetBrandText("   ");
  EXPECT_EQ(Name(), "AMD Athlon");
}

TEST_F(OneProcessor, TooFewOrInvalidExtendedLeavesAreNoText) {
  processor.SetLeaf(0, Maker("GenuineIntel"));
  processor.SetLeaf(1, {.eax = 0x0543});
  SetBrandText("nonsense", 0x80000001U);
  EXPECT_EQ(Name(), "Intel Pentium MMX");
  SetBrandText("nonsense", 0x00000002U);
  EXPECT_EQ(Name(), "Intel Pentium MMX");
  SetBrandText("nonsense", 0xFFFFFFFFU);
  EXPECT_EQ(Name(), "Intel Pentium MMX");
}

TEST_F(OneProcessor, CounterIsDetectedByItsBit) {
  processor.SetLeaf(0, Maker("GenuineIntel"));
  processor.SetLeaf(1, {.eax = 0x0543, .edx = 0x10});
  EXPECT_TRUE(cpu::Identify(processor).has_time_stamp_counter);
  processor.SetLeaf(1, {.eax = 0x0543, .edx = 0xFFFFFFEFU});
  EXPECT_FALSE(cpu::Identify(processor).has_time_stamp_counter);
}

struct Clock {
  std::uint32_t khz;
  const char* text;
};
class MeasuredClock : public OneProcessor, public testing::WithParamInterface<Clock> {};

TEST_P(MeasuredClock, IsRoundedToWholeMegahertz) {
  processor.SetLeaf(0, Maker("GenuineIntel"));
  processor.SetLeaf(1, {.eax = 0x0543, .edx = 0x10});
  processor.SetClock(GetParam().khz);
  cpu::ProcessorIdentification identification(processor);
  cpu::TextBuffer speed{};
  identification.GetProcessorNormSpeed(speed);
  EXPECT_STREQ(speed.data(), GetParam().text);
  EXPECT_EQ(std::to_string(identification.cpunormspeed(0)), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Values, MeasuredClock,
                         testing::Values(Clock{0, "0"}, Clock{66666, "67"}, Clock{133333, "133"},
                                         Clock{199490, "199"}, Clock{3600123, "3600"}));

TEST_F(OneProcessor, ReportsMakerNameAndSignature) {
  processor.SetLeaf(0, Maker("GenuineIntel"));
  processor.SetLeaf(1, {.eax = 0x0543, .edx = 0x10});
  cpu::ProcessorIdentification identification(processor);
  cpu::TextBuffer vendor{};
  cpu::TextBuffer description{};
  cpu::TextBuffer signature{};
  for (cpu::TextBuffer* buffer : {&vendor, &description, &signature}) buffer->fill('#');
  identification.GetProcessor(vendor, description, signature);
  EXPECT_STREQ(vendor.data(), "GenuineIntel");
  EXPECT_STREQ(description.data(), "Intel Pentium MMX");
  EXPECT_STREQ(signature.data(), "Family 5 Model 4 Stepping 3");
}

}  // namespace
}  // namespace qdix::tests
