#include "tests/strict95/guard/exemptions.h"

#include <algorithm>

namespace qdix::strict95 {

namespace {

struct Exemption {
  Rule rule;
  /// Null for any function.
  const char* function;
  /// Part of the violation's text.
  const char* text;
  /// Part of the name of the function that made the call.
  const char* place;
  const char* reason;
};

constexpr const char* kQuestions = "self_test::win32::questions::";
constexpr const char* kAsked = "the self-test asks the system what it does with such a call";

constexpr Exemption kExemptions[] = {
    {Rule::kRegistry, "ExitProcess", "leaves hkdd\\perfstats\\statdata open", "",
     "the reading of the processor load leaves up to four openings per display update, as it always did"},
    {Rule::kLaterNames, "GetProcAddress", "", kQuestions, kAsked},
    {Rule::kSizes, nullptr, "", kQuestions, kAsked},
    {Rule::kMessages, "SendMessageA", "", kQuestions, kAsked},
    {Rule::kSixteenBits, nullptr, "", kQuestions, kAsked},
    {Rule::kDrives, nullptr, "without the backslash", kQuestions, kAsked},
    {Rule::kProfileCache, "CreateFileA", "ask.ini is not flushed yet", "", kAsked},
};

}  // namespace

bool IsExempt(const Violation& violation) {
  return std::any_of(std::begin(kExemptions), std::end(kExemptions), [&violation](const Exemption& one) {
    return one.rule == violation.rule &&
           (one.function == nullptr || std::string(one.function) == violation.function) &&
           violation.text.find(one.text) != std::string::npos &&
           violation.place.find(one.place) != std::string::npos;
  });
}

}  // namespace qdix::strict95
