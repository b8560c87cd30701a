#include "undo/before.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"

namespace qdix::undo {

namespace {

constexpr std::string_view kCut = "...";

bool IsControl(char character) { return static_cast<unsigned char>(character) < ' '; }

/// A longer entry would not be read whole, and a line break would make two lines of it.
bool CanStandInOneLine(const std::string& text) {
  return text.size() <= kLongestText && std::none_of(text.begin(), text.end(), IsControl);
}

/// The record holds numbers of this kind only.
double NumberOf(const std::optional<std::string>& text) {
  return text.has_value() ? base::ParseLeadingNumber(*text) : 0;
}

Before NumberFromRecord(const std::string& recorded) {
  if (!base::IsNumber(recorded)) return {.unusable = recorded};
  if (base::ParseLeadingNumber(recorded) == 0) return {.known = Before::Known::kFromRecord};
  return {.known = Before::Known::kFromRecord, .text = std::string(base::Trim(recorded))};
}

}  // namespace

Before FromRecord(const Entry& entry, const std::optional<std::string>& recorded) {
  if (!recorded.has_value()) return {};
  if (!CanStandInOneLine(*recorded)) return {.unusable = *recorded};
  if (entry.recorded == Recorded::kAsNumber) return NumberFromRecord(*recorded);
  if (entry.recorded == Recorded::kAsTextOrEmpty && recorded->empty()) {
    return {.known = Before::Known::kFromRecord};
  }
  return {.known = Before::Known::kFromRecord, .text = recorded};
}

Before FromBackup(const std::optional<std::string>& text) {
  if (text.has_value() && !CanStandInOneLine(*text)) return {.unusable = *text};
  return {.known = Before::Known::kFromBackup, .text = text};
}

/// A size was recorded as the number that it begins with, so it is compared as such.
bool StandsAsBefore(const Entry& entry, const Before& before, const std::optional<std::string>& now) {
  const bool is_size = entry.recorded == Recorded::kAsNumber && before.known == Before::Known::kFromRecord;
  return is_size ? NumberOf(before.text) == NumberOf(now) : before.text == now;
}

std::string Shown(const std::optional<std::string>& text, std::size_t most) {
  if (!text.has_value()) return "(none)";
  if (text->empty()) return "(empty)";
  std::string shown = *text;
  if (shown.size() > most) {
    shown.resize(most - kCut.size());
    shown += kCut;
  }
  std::replace_if(shown.begin(), shown.end(), IsControl, ' ');
  return shown;
}

std::string ShownBefore(const Before& before, std::size_t most) {
  switch (before.known) {
    case Before::Known::kFromRecord:
      return Shown(before.text, most);
    case Before::Known::kFromBackup:
      return "not recorded; backup: " + Shown(before.text, most);
    case Before::Known::kNot:
      break;
  }
  return before.unusable.empty() ? "not recorded" : Shown(before.unusable, most);
}

std::string NameOf(const Entry& entry) {
  if (!entry.IsInSystemIni()) return "File system template";
  return std::string("[") + entry.section + "] " + entry.key;
}

}  // namespace qdix::undo
