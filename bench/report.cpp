#include "bench/report.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace qdix::bench {

std::string Decimals(double number, int decimals) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.*f", decimals, number);
  return text.data();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double Fastest(const std::vector<double>& values) { return *std::min_element(values.begin(), values.end()); }

std::string Spread(const std::vector<double>& values, const std::string& unit, int decimals) {
  const std::string middle = Decimals(Median(values), decimals) + " " + unit;
  if (values.size() == 1) return middle;
  const auto [least, most] = std::minmax_element(values.begin(), values.end());
  return middle + " (" + Decimals(*least, decimals) + " to " + Decimals(*most, decimals) + ")";
}

Row Compared(const std::string& what, const std::vector<double>& ours, const std::vector<double>& theirs,
             const std::string& unit, double most_ratio, const std::string& budget) {
  const int decimals = unit == "KB" ? 0 : 1;
  Row row{.what = what,
          .ours = Spread(ours, unit, decimals),
          .other = Spread(theirs, unit, decimals),
          .ratio = "",
          .budget = budget,
          .verdict = ""};
  const double other = Median(theirs);
  const double own = Median(ours);
  if (other > 0) row.ratio = Decimals(own / other, 2);
  row.verdict = own <= other * most_ratio ? kKept : kMissed;
  return row;
}

Row NotMeasured(const std::string& what, const std::string& budget, const std::string& why) {
  return {.what = what, .ours = why, .other = "", .ratio = "", .budget = budget, .verdict = kNotMeasured};
}

void PrintTable(const std::vector<Row>& rows) {
  std::puts("| What | Q-DIX | beside it | ratio | budget | |\n|---|---|---|---|---|---|");
  for (const Row& row : rows) {
    std::printf("| %s | %s | %s | %s | %s | %s |\n", row.what.c_str(), row.ours.c_str(), row.other.c_str(),
                row.ratio.c_str(), row.budget.c_str(), row.verdict.c_str());
  }
}

}  // namespace qdix::bench
