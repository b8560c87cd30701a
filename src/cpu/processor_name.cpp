#include "cpu/processor_name.h"

#include <array>
#include <string_view>

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

constexpr std::string_view kIntel = "GenuineIntel";
constexpr std::string_view kAmd = "AuthenticAMD";
constexpr std::string_view kCyrix = "CyrixInstead";
constexpr std::string_view kCentaur = "CentaurHauls";

/// The makers: their twelve-character vendor strings and their common names.
constexpr std::array<std::array<std::string_view, 2>, 9> kMakers{{
    {kIntel, "Intel"},
    {kAmd, "AMD"},
    {kCyrix, "Cyrix"},
    {kCentaur, "IDT"},
    {"NexGenDriven", "NexGen"},
    {"UMC UMC UMC ", "UMC"},
    {"RiseRiseRise", "Rise"},
    {"GenuineTMx86", "Transmeta"},
    {"SiS SiS SiS ", "SiS"},
}};

struct Model {
  std::string_view vendor;
  std::uint32_t family;
  /// Range of models, inclusive.
  std::uint32_t first;
  std::uint32_t last;
  std::string_view name;
};

/// From the makers' identification tables. A processor that reports its own name needs no row.
constexpr Model kModels[] = {
    {kIntel, 4, 0, 1, "Intel 486DX"},
    {kIntel, 4, 2, 2, "Intel 486SX"},
    {kIntel, 4, 3, 3, "Intel 486DX2"},
    {kIntel, 4, 4, 4, "Intel 486SL"},
    {kIntel, 4, 5, 5, "Intel 486SX2"},
    {kIntel, 4, 7, 7, "Intel 486DX2"},
    {kIntel, 4, 8, 9, "Intel 486DX4"},
    {kIntel, 5, 0, 3, "Intel Pentium"},
    {kIntel, 5, 4, 4, "Intel Pentium MMX"},
    {kIntel, 5, 7, 7, "Intel Pentium"},
    {kIntel, 5, 8, 8, "Intel Pentium MMX"},
    {kIntel, 6, 0, 1, "Intel Pentium Pro"},
    {kIntel, 6, 3, 5, "Intel Pentium II"},
    {kIntel, 6, 6, 6, "Intel Celeron"},
    {kIntel, 6, 7, 8, "Intel Pentium III"},
    {kIntel, 6, 9, 9, "Intel Pentium M"},
    {kIntel, 6, 10, 11, "Intel Pentium III"},
    {kIntel, 6, 13, 13, "Intel Pentium M"},
    {kIntel, 15, 0, 6, "Intel Pentium 4"},
    {kAmd, 4, 3, 3, "AMD Am486DX2"},
    {kAmd, 4, 7, 7, "AMD Am486DX2"},
    {kAmd, 4, 8, 9, "AMD Am486DX4"},
    {kAmd, 4, 14, 15, "AMD Am5x86"},
    {kAmd, 5, 0, 3, "AMD K5"},
    {kAmd, 5, 6, 7, "AMD K6"},
    {kAmd, 5, 8, 8, "AMD K6-2"},
    {kAmd, 5, 9, 9, "AMD K6-III"},
    {kAmd, 5, 13, 13, "AMD K6-2+"},
    {kAmd, 6, 1, 2, "AMD Athlon"},
    {kAmd, 6, 3, 3, "AMD Duron"},
    {kAmd, 6, 4, 4, "AMD Athlon"},
    {kAmd, 6, 6, 6, "AMD Athlon XP"},
    {kAmd, 6, 7, 7, "AMD Duron"},
    {kAmd, 6, 8, 10, "AMD Athlon XP"},
    {kCyrix, 4, 4, 4, "Cyrix MediaGX"},
    {kCyrix, 4, 9, 9, "Cyrix 5x86"},
    {kCyrix, 5, 2, 2, "Cyrix 6x86"},
    {kCyrix, 5, 4, 4, "Cyrix MediaGX MMX"},
    {kCyrix, 6, 0, 0, "Cyrix 6x86MX"},
    {kCyrix, 6, 5, 5, "VIA Cyrix III"},
    {kCentaur, 5, 4, 4, "IDT WinChip"},
    {kCentaur, 5, 8, 8, "IDT WinChip 2"},
    {kCentaur, 5, 9, 9, "IDT WinChip 3"},
    {kCentaur, 6, 6, 9, "VIA C3"},
    {"NexGenDriven", 5, 0, 0, "NexGen Nx586"},
    {"UMC UMC UMC ", 4, 1, 1, "UMC U5D"},
    {"UMC UMC UMC ", 4, 2, 2, "UMC U5S"},
    {"RiseRiseRise", 5, 0, 15, "Rise mP6"},
    {"GenuineTMx86", 5, 4, 4, "Transmeta Crusoe"},
    {"SiS SiS SiS ", 5, 0, 0, "SiS 55x"},
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

std::string_view MakerOf(std::string_view vendor) {
  for (const auto& [characters, name] : kMakers) {
    if (characters == vendor) return name;
  }
  return base::Trim(vendor);
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
  for (const Model& model : kModels) {
    if (model.vendor != identity.vendor || model.family != identity.family) continue;
    if (identity.model < model.first || identity.model > model.last) continue;
    const bool is_celeron = model.name == "Intel Pentium III" && identity.brand_index == kCeleronBrand;
    return std::string(is_celeron ? "Intel Celeron" : model.name);
  }
  std::string name(MakerOf(identity.vendor));
  if (identity.family != 0) {
    name += " family " + base::TextOf(static_cast<std::int32_t>(identity.family)) + " model " +
            base::TextOf(static_cast<std::int32_t>(identity.model));
  }
  return name;
}

std::string SignatureOf(const ProcessorIdentity& identity) {
  if (identity.family == 0) return {};
  return "Family " + base::TextOf(static_cast<std::int32_t>(identity.family)) + " Model " +
         base::TextOf(static_cast<std::int32_t>(identity.model)) + " Stepping " +
         base::TextOf(static_cast<std::int32_t>(identity.stepping));
}

}  // namespace qdix::cpu
