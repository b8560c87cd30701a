// Reports violations as they happen and, at the end, how many resources of each kind the program held at
// most. Appends the lines to the file that the environment variable QDIX_STRICT_LOG names.
#pragma once

#include <string>

#include "tests/strict95/guard/call.h"

namespace qdix::strict95 {

enum class Rule {
  kLaterNames = 1,
  kSizes,
  kMessages,
  kBalance,
  kForeground,
  kSixteenBits,
  kDrives,
  kControlWord,
  kRegistry,
  kProfileCache,
  kDeviceReset,
  kLaterAnswers,
  kStartCommand
};

/// Reports a violation, unless it is exempt. Reports the same call, text and calling function only once.
void Report(const Call& call, Rule rule, const std::string& text);

/// Reports the largest number of resources of a kind that the program held at the same time.
void ReportHeld(const char* what, int most);

/// Returns the file name of the running program, without its folder.
[[nodiscard]] const std::string& ProgramName();

[[nodiscard]] std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace qdix::strict95
