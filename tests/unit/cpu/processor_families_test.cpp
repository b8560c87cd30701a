// Every model of every family in which a maker has processors, named or not.
#include <gtest/gtest.h>

#include "base/numbers.h"
#include "cpu/processor_name.h"

namespace qdix::tests {
namespace {

struct Family {
  const char* vendor;
  std::uint32_t family;
  /// Consecutive models with their names, unnamed ones left out: "0-1 One, 4 Other".
  const char* names;
};

void PrintTo(const Family& family, std::ostream* out) { *out << family.vendor << ' ' << family.family; }

std::string NameOf(const Family& family, std::uint32_t model) {
  cpu::ProcessorIdentity identity;
  identity.vendor = family.vendor;
  identity.family = family.family;
  identity.model = model;
  return cpu::NameOf(identity);
}

bool HasNoName(const std::string& name) { return name.find(" family ") != std::string::npos; }

/// Builds the text of `Family::names`, model by model.
std::string NamesOf(const Family& family) {
  constexpr std::uint32_t kModels = 20;
  std::string text;
  for (std::uint32_t first = 0; first < kModels;) {
    const std::string name = NameOf(family, first);
    std::uint32_t last = first;
    while (last + 1 < kModels && NameOf(family, last + 1) == name) ++last;
    if (!HasNoName(name)) {
      if (!text.empty()) text += ", ";
      text += base::TextOf(static_cast<std::int32_t>(first));
      if (last != first) text += "-" + base::TextOf(static_cast<std::int32_t>(last));
      text += " " + name;
    }
    first = last + 1;
  }
  return text;
}

class ProcessorFamily : public testing::TestWithParam<Family> {};

TEST_P(ProcessorFamily, HasItsNamesAndNoOthers) { EXPECT_EQ(NamesOf(GetParam()), GetParam().names); }

INSTANTIATE_TEST_SUITE_P(
    Table, ProcessorFamily,
    testing::Values(
        Family{"GenuineIntel", 4,
               "0-1 Intel 486DX, 2 Intel 486SX, 3 Intel 486DX2, 4 Intel 486SL, 5 Intel 486SX2, 7 Intel "
               "486DX2, 8-9 Intel 486DX4"},
        Family{"GenuineIntel", 5,
               "0-3 Intel Pentium, 4 Intel Pentium MMX, 7 Intel Pentium, 8 Intel Pentium MMX"},
        Family{"GenuineIntel", 6,
               "0-1 Intel Pentium Pro, 3-5 Intel Pentium II, 6 Intel Celeron, 7-8 Intel Pentium III, 9 Intel "
               "Pentium M, 10-11 Intel Pentium III, 13 Intel Pentium M"},
        Family{"GenuineIntel", 15, "0-6 Intel Pentium 4"},
        Family{"AuthenticAMD", 4, "3 AMD Am486DX2, 7 AMD Am486DX2, 8-9 AMD Am486DX4, 14-15 AMD Am5x86"},
        Family{"AuthenticAMD", 5, "0-3 AMD K5, 6-7 AMD K6, 8 AMD K6-2, 9 AMD K6-III, 13 AMD K6-2+"},
        Family{"AuthenticAMD", 6,
               "1-2 AMD Athlon, 3 AMD Duron, 4 AMD Athlon, 6 AMD Athlon XP, 7 AMD Duron, 8-10 AMD Athlon XP"},
        Family{"CyrixInstead", 4, "4 Cyrix MediaGX, 9 Cyrix 5x86"},
        Family{"CyrixInstead", 5, "2 Cyrix 6x86, 4 Cyrix MediaGX MMX"},
        Family{"CyrixInstead", 6, "0 Cyrix 6x86MX, 5 VIA Cyrix III"},
        Family{"CentaurHauls", 5, "4 IDT WinChip, 8 IDT WinChip 2, 9 IDT WinChip 3"},
        Family{"CentaurHauls", 6, "6-9 VIA C3"}, Family{"NexGenDriven", 5, "0 NexGen Nx586"},
        Family{"UMC UMC UMC ", 4, "1 UMC U5D, 2 UMC U5S"}, Family{"RiseRiseRise", 5, "0-15 Rise mP6"},
        Family{"GenuineTMx86", 5, "4 Transmeta Crusoe"}, Family{"SiS SiS SiS ", 5, "0 SiS 55x"}));

TEST(ProcessorWithoutAName, IsCalledByItsMaker) {
  EXPECT_EQ(NameOf({"GenuineIntel", 2, ""}, 7), "Intel family 2 model 7");
  EXPECT_EQ(NameOf({"AuthenticAMD", 2, ""}, 7), "AMD family 2 model 7");
  EXPECT_EQ(NameOf({"CyrixInstead", 2, ""}, 7), "Cyrix family 2 model 7");
  EXPECT_EQ(NameOf({"CentaurHauls", 2, ""}, 7), "IDT family 2 model 7");
  EXPECT_EQ(NameOf({"NexGenDriven", 2, ""}, 7), "NexGen family 2 model 7");
  EXPECT_EQ(NameOf({"UMC UMC UMC ", 2, ""}, 7), "UMC family 2 model 7");
  EXPECT_EQ(NameOf({"RiseRiseRise", 2, ""}, 7), "Rise family 2 model 7");
  EXPECT_EQ(NameOf({"GenuineTMx86", 2, ""}, 7), "Transmeta family 2 model 7");
  EXPECT_EQ(NameOf({"SiS SiS SiS ", 2, ""}, 7), "SiS family 2 model 7");
}

}  // namespace
}  // namespace qdix::tests
