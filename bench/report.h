// What was measured, as rows of a table: ours beside theirs, the ratio, the budget, and whether it is kept.
#pragma once

#include <string>
#include <vector>

namespace qdix::bench {

struct Row {
  std::string what;
  std::string ours;
  /// What it is measured against; empty for a budget that is a plain number.
  std::string other;
  std::string ratio;
  std::string budget;
  std::string verdict;
};

inline constexpr const char* kKept = "kept";
inline constexpr const char* kMissed = "**missed**";
inline constexpr const char* kNotMeasured = "not measured";

/// A number with this many decimals.
[[nodiscard]] std::string Decimals(double number, int decimals);
/// Middle, smallest and largest of a series, as "12.3 ms (11.9 to 14.0)".
[[nodiscard]] std::string Spread(const std::vector<double>& values, const std::string& unit, int decimals);
/// The middle of a series; the series may not be empty.
[[nodiscard]] double Median(std::vector<double> values);

/// A row about two series whose middles have a ratio of at most `most_ratio`. Work that is the same each time
/// is given as a series of its fastest run alone: what makes a run slower is the rest of the machine.
[[nodiscard]] Row Compared(const std::string& what, const std::vector<double>& ours,
                           const std::vector<double>& theirs, const std::string& unit, double most_ratio,
                           const std::string& budget);
[[nodiscard]] double Fastest(const std::vector<double>& values);
/// A row for something that could not be measured, with the reason.
[[nodiscard]] Row NotMeasured(const std::string& what, const std::string& budget, const std::string& why);

void PrintTable(const std::vector<Row>& rows);

}  // namespace qdix::bench
