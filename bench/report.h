// The results as table rows: our figure, the other one, the ratio, the budget, and whether it is kept.
#pragma once

#include <string>
#include <vector>

namespace qdix::bench {

struct Row {
  std::string what;
  std::string ours;
  /// The figure of the other program; empty if the budget is a plain number.
  std::string other;
  std::string ratio;
  std::string budget;
  std::string verdict;
};

inline constexpr const char* kKept = "kept";
inline constexpr const char* kMissed = "**missed**";
inline constexpr const char* kNotMeasured = "not measured";

/// Formats a number with this many decimals.
[[nodiscard]] std::string Decimals(double number, int decimals);
/// Formats the median, minimum and maximum of a series, as in "12.3 ms (11.9 to 14.0)".
[[nodiscard]] std::string Spread(const std::vector<double>& values, const std::string& unit, int decimals);
/// Returns the median of a series, which must not be empty.
[[nodiscard]] double Median(std::vector<double> values);

/// Returns a row that compares two series; the budget is kept if the ratio of their medians is at most
/// `most_ratio`. For work that is the same each time, pass only the fastest run: other load on the machine
/// makes the other runs slower.
[[nodiscard]] Row Compared(const std::string& what, const std::vector<double>& ours,
                           const std::vector<double>& theirs, const std::string& unit, double most_ratio,
                           const std::string& budget);
[[nodiscard]] double Fastest(const std::vector<double>& values);
/// Returns a row for something that could not be measured, with the reason.
[[nodiscard]] Row NotMeasured(const std::string& what, const std::string& budget, const std::string& why);

void PrintTable(const std::vector<Row>& rows);

}  // namespace qdix::bench
