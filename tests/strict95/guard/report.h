// What the guard tells: violations as they happen, and at the end the most that the program held at once.
// Lines are appended to the file that the environment variable QDIX_STRICT_LOG names.
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
  kStartersWish
};

/// Tells of a violation once for each place in the program, unless it is exempt.
void Report(const Call& call, Rule rule, const std::string& text);

/// Tells how many of something the program held at once at most.
void ReportHeld(const char* what, int most);

/// File name of the running program.
[[nodiscard]] const std::string& ProgramName();

[[nodiscard]] std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace qdix::strict95
