#include <array>

#include "bench/measures.h"
#include "tests/e2e/driver/program_facts.h"

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::bench {

namespace {

struct Limit {
  const char* file_name;
  int most_kb;
};

constexpr std::array<Limit, 4> kLimits{
    {{"QDIX.exe", 112}, {"configL.exe", 56}, {"undo.exe", 52}, {"help.exe", 84}}};

Row SizeOf(const Limit& limit) {
  const std::string what = std::string("size of `") + limit.file_name + "`";
  const std::string budget = "at most " + std::to_string(limit.most_kb) + " KB";
  WIN32_FILE_ATTRIBUTE_DATA file = {};
  if (GetFileAttributesExA(e2e::ProgramPath(limit.file_name).c_str(), GetFileExInfoStandard, &file) == 0) {
    return NotMeasured(what, budget, "not in the build");
  }
  const double kb = static_cast<double>(file.nFileSizeLow) / 1024;
  return {.what = what,
          .ours = Decimals(kb, 1) + " KB",
          .other = "",
          .ratio = Decimals(kb / limit.most_kb, 2),
          .budget = budget,
          .verdict = kb <= limit.most_kb ? kKept : kMissed};
}

}  // namespace

std::vector<Row> MeasureSizes() {
  std::vector<Row> rows;
  for (const Limit& limit : kLimits) rows.push_back(SizeOf(limit));
  return rows;
}

}  // namespace qdix::bench
