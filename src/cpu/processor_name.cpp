#include "cpu/processor_name.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/concat.h"
#include "base/numbers.h"
#include "base/text.h"

namespace qdix::cpu {

namespace {

constexpr std::uint32_t kExtendedLeaves = 0x80000000U;
constexpr std::uint32_t kFirstBrandLeaf = 0x80000002U;
constexpr std::uint32_t kLastBrandLeaf = 0x80000004U;
/// A processor without extended leaves answers with the data of another leaf, which is never in this range.
constexpr std::uint32_t kHighestSensibleLeaf = 0x8000FFFFU;

constexpr std::uint32_t kTimeStampCounterBit = 1U << 4U;
constexpr std::uint32_t kExtendedFamily = 15;
constexpr std::uint32_t kPentiumProFamily = 6;

enum class Maker : std::uint8_t {
  kIntel,
  kAmd,
  kCyrix,
  kCentaur,
  kNexGen,
  kUmc,
  kRise,
  kTransmeta,
  kSis,
};

struct MakerNames {
  /// What the processor reports, twelve characters.
  const char* vendor;
  const char* common;
};

/// In the order of Maker.
constexpr std::array<MakerNames, 9> kMakers{{
    {"GenuineIntel", "Intel"},
    {"AuthenticAMD", "AMD"},
    {"CyrixInstead", "Cyrix"},
    {"CentaurHauls", "IDT"},
    {"NexGenDriven", "NexGen"},
    {"UMC UMC UMC ", "UMC"},
    {"RiseRiseRise", "Rise"},
    {"GenuineTMx86", "Transmeta"},
    {"SiS SiS SiS ", "SiS"},
}};

struct Model {
  Maker maker;
  std::uint8_t family;
  /// Range of models, inclusive.
  std::uint8_t first;
  std::uint8_t last;
  const char* name;
};

constexpr char kPentium3[] = "Intel Pentium III";
constexpr char kCeleron[] = "Intel Celeron";

/// From the makers' identification tables. A processor that reports its own name needs no row.
constexpr Model kModels[] = {
    {Maker::kIntel, 4, 0, 1, "Intel 486DX"},
    {Maker::kIntel, 4, 2, 2, "Intel 486SX"},
    {Maker::kIntel, 4, 3, 3, "Intel 486DX2"},
    {Maker::kIntel, 4, 4, 4, "Intel 486SL"},
    {Maker::kIntel, 4, 5, 5, "Intel 486SX2"},
    {Maker::kIntel, 4, 7, 7, "Intel 486DX2"},
    {Maker::kIntel, 4, 8, 9, "Intel 486DX4"},
    {Maker::kIntel, 5, 0, 3, "Intel Pentium"},
    {Maker::kIntel, 5, 4, 4, "Intel Pentium MMX"},
    {Maker::kIntel, 5, 7, 7, "Intel Pentium"},
    {Maker::kIntel, 5, 8, 8, "Intel Pentium MMX"},
    {Maker::kIntel, 6, 0, 1, "Intel Pentium Pro"},
    {Maker::kIntel, 6, 3, 5, "Intel Pentium II"},
    {Maker::kIntel, 6, 6, 6, kCeleron},
    {Maker::kIntel, 6, 7, 8, kPentium3},
    {Maker::kIntel, 6, 9, 9, "Intel Pentium M"},
    {Maker::kIntel, 6, 10, 11, kPentium3},
    {Maker::kIntel, 6, 13, 13, "Intel Pentium M"},
    {Maker::kIntel, 15, 0, 6, "Intel Pentium 4"},
    {Maker::kAmd, 4, 3, 3, "AMD Am486DX2"},
    {Maker::kAmd, 4, 7, 7, "AMD Am486DX2"},
    {Maker::kAmd, 4, 8, 9, "AMD Am486DX4"},
    {Maker::kAmd, 4, 14, 15, "AMD Am5x86"},
    {Maker::kAmd, 5, 0, 3, "AMD K5"},
    {Maker::kAmd, 5, 6, 7, "AMD K6"},
    {Maker::kAmd, 5, 8, 8, "AMD K6-2"},
    {Maker::kAmd, 5, 9, 9, "AMD K6-III"},
    {Maker::kAmd, 5, 13, 13, "AMD K6-2+"},
    {Maker::kAmd, 6, 1, 2, "AMD Athlon"},
    {Maker::kAmd, 6, 3, 3, "AMD Duron"},
    {Maker::kAmd, 6, 4, 4, "AMD Athlon"},
    {Maker::kAmd, 6, 6, 6, "AMD Athlon XP"},
    {Maker::kAmd, 6, 7, 7, "AMD Duron"},
    {Maker::kAmd, 6, 8, 10, "AMD Athlon XP"},
    {Maker::kCyrix, 4, 4, 4, "Cyrix MediaGX"},
    {Maker::kCyrix, 4, 9, 9, "Cyrix 5x86"},
    {Maker::kCyrix, 5, 2, 2, "Cyrix 6x86"},
    {Maker::kCyrix, 5, 4, 4, "Cyrix MediaGX MMX"},
    {Maker::kCyrix, 6, 0, 0, "Cyrix 6x86MX"},
    {Maker::kCyrix, 6, 5, 5, "VIA Cyrix III"},
    {Maker::kCentaur, 5, 4, 4, "IDT WinChip"},
    {Maker::kCentaur, 5, 8, 8, "IDT WinChip 2"},
    {Maker::kCentaur, 5, 9, 9, "IDT WinChip 3"},
    {Maker::kCentaur, 6, 6, 9, "VIA C3"},
    {Maker::kNexGen, 5, 0, 0, "NexGen Nx586"},
    {Maker::kUmc, 4, 1, 1, "UMC U5D"},
    {Maker::kUmc, 4, 2, 2, "UMC U5S"},
    {Maker::kRise, 5, 0, 15, "Rise mP6"},
    {Maker::kTransmeta, 5, 4, 4, "Transmeta Crusoe"},
    {Maker::kSis, 5, 0, 0, "SiS 55x"},
};

/// Brand index that marks a Celeron among the models of the Pentium III.
constexpr std::uint32_t kCeleronBrand = 1;

void AppendCharacters(std::string& text, std::uint32_t four_characters) {
  for (unsigned shift = 0; shift < 32; shift += 8) {
    text += static_cast<char>((four_characters >> shift) & 0xFFU);
  }
}

std::uint32_t Bits(std::uint32_t value, unsigned lowest, unsigned count) {
  return (value >> lowest) & ((1U << count) - 1U);
}

std::string TextOf(std::uint32_t small_number) {
  return base::TextOf(static_cast<std::int32_t>(small_number));
}

std::string CollapseSpaces(std::string_view text) {
  std::string result;
  for (const char character : base::Trim(text)) {
    if (character != ' ' || result.back() != ' ') result += character;
  }
  return result;
}

std::string ReadBrandText(os::Processor& processor) {
  const std::uint32_t highest = processor.Cpuid(kExtendedLeaves).eax;
  if (highest < kLastBrandLeaf || highest > kHighestSensibleLeaf) return {};
  std::string text;
  for (std::uint32_t leaf = kFirstBrandLeaf; leaf <= kLastBrandLeaf; ++leaf) {
    const os::CpuidRegisters part = processor.Cpuid(leaf);
    for (const std::uint32_t characters : {part.eax, part.ebx, part.ecx, part.edx}) {
      AppendCharacters(text, characters);
    }
  }
  return CollapseSpaces(base::CutAtNul(text));
}

const char* NameOfModel(Maker maker, const ProcessorIdentity& identity) {
  for (const Model& model : kModels) {
    if (model.maker != maker || model.family != identity.family) continue;
    if (identity.model >= model.first && identity.model <= model.last) return model.name;
  }
  return nullptr;
}

}  // namespace

ProcessorIdentity Identify(os::Processor& processor) {
  ProcessorIdentity identity;
  identity.generation = processor.Generation();
  if (!processor.HasCpuid()) return identity;
  const os::CpuidRegisters vendor = processor.Cpuid(0);
  for (const std::uint32_t characters : {vendor.ebx, vendor.edx, vendor.ecx}) {
    AppendCharacters(identity.vendor, characters);
  }
  if (vendor.eax == 0) return identity;
  const os::CpuidRegisters signature = processor.Cpuid(1);
  identity.stepping = Bits(signature.eax, 0, 4);
  identity.model = Bits(signature.eax, 4, 4);
  identity.family = Bits(signature.eax, 8, 4);
  if (identity.family == kPentiumProFamily || identity.family == kExtendedFamily) {
    identity.model += Bits(signature.eax, 16, 4) << 4U;
  }
  if (identity.family == kExtendedFamily) identity.family += Bits(signature.eax, 20, 8);
  identity.brand_index = Bits(signature.ebx, 0, 8);
  identity.has_time_stamp_counter = (signature.edx & kTimeStampCounterBit) != 0;
  identity.brand_text = ReadBrandText(processor);
  return identity;
}

std::string NameOf(const ProcessorIdentity& identity) {
  if (!identity.brand_text.empty()) return identity.brand_text;
  if (identity.vendor.empty()) return identity.generation <= 3 ? "386" : "486";
  std::string_view name = base::Trim(identity.vendor);
  const auto* const maker =
      std::find_if(kMakers.begin(), kMakers.end(),
                   [&identity](const MakerNames& names) { return identity.vendor == names.vendor; });
  if (maker != kMakers.end()) {
    const char* const model = NameOfModel(static_cast<Maker>(maker - kMakers.begin()), identity);
    if (model == kPentium3 && identity.brand_index == kCeleronBrand) return kCeleron;
    if (model != nullptr) return model;
    name = maker->common;
  }
  if (identity.family == 0) return std::string(name);
  return base::Concat({name, " family ", TextOf(identity.family), " model ", TextOf(identity.model)});
}

std::string SignatureOf(const ProcessorIdentity& identity) {
  if (identity.family == 0) return {};
  return base::Concat({"Family ", TextOf(identity.family), " Model ", TextOf(identity.model), " Stepping ",
                       TextOf(identity.stepping)});
}

}  // namespace qdix::cpu
