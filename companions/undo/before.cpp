#include "undo/before.h"

#include <algorithm>

#include "base/concat.h"
#include "base/numbers.h"
#include "base/text.h"

namespace qdix::undo {

namespace {

constexpr std::string_view kCut = "...";

bool IsControl(char character) { return static_cast<unsigned char>(character) < ' '; }

/// A longer entry would not be read in full, and a line break would split it into two lines.
bool FitsOnOneLine(const std::string& text) {
  return text.size() <= kMaxTextLength && std::none_of(text.begin(), text.end(), IsControl);
}

double NumberOf(const std::optional<std::string>& text) {
  return text.has_value() ? base::ParseLeadingNumber(*text) : 0;
}

/// Returns the number as the record stores it, with at most 15 digits.
double RecordedNumberOf(const std::optional<std::string>& text) {
  return base::ParseLeadingNumber(base::ShortestText(NumberOf(text)));
}

Before NumberFromRecord(const std::string& recorded) {
  if (!base::IsNumber(recorded)) return {.unusable = recorded};
  if (base::ParseLeadingNumber(recorded) == 0)
    return {.known = Before::Known::kFromRecord, .is_exact = false};
  return {.known = Before::Known::kFromRecord, .text = std::string(base::Trim(recorded)), .is_exact = false};
}

/// The record holds only the beginning of a longer entry, or the number in it.
std::optional<std::string> RecordedPartOf(const std::optional<std::string>& text) {
  return text.has_value() ? std::optional(text->substr(0, kMaxTextLength)) : std::nullopt;
}

}  // namespace

Before FromRecord(const Entry& entry, const std::optional<std::string>& recorded) {
  if (!recorded.has_value()) return {};
  if (!FitsOnOneLine(*recorded)) return {.unusable = *recorded};
  if (entry.recorded == Recorded::kAsNumber) return NumberFromRecord(*recorded);
  if (entry.recorded == Recorded::kAsTextOrEmpty && recorded->empty()) {
    return {.known = Before::Known::kFromRecord};
  }
  return {.known = Before::Known::kFromRecord, .text = recorded};
}

Before FromBackup(const std::optional<std::string>& text) {
  if (text.has_value() && !FitsOnOneLine(*text)) return {.unusable = *text};
  return {.known = Before::Known::kFromBackup, .text = text};
}

Before FromBoth(const Entry& entry, const std::optional<std::string>& recorded, bool is_record_complete,
                const std::optional<std::string>& backup_text) {
  if (!recorded.has_value()) {
    // A missing entry is expected to have no record.
    const bool was_missing = entry.recorded == Recorded::kAsTextOrMissing && !backup_text.has_value();
    if (was_missing && is_record_complete) return {.known = Before::Known::kFromRecord};
    return FromBackup(backup_text);
  }
  Before before = FromRecord(entry, recorded);
  if (!before.IsKnown()) return before;
  if (backup_text.has_value() && !FitsOnOneLine(*backup_text)) return {.unusable = *backup_text};
  before.text = backup_text;
  before.is_exact = true;
  return before;
}

bool Agree(const Entry& entry, const std::optional<std::string>& recorded, bool is_record_complete,
           const std::optional<std::string>& backup_text) {
  if (entry.recorded == Recorded::kNever || !entry.IsInSystemIni()) return true;
  if (!recorded.has_value()) {
    const bool can_be_missing = !backup_text.has_value() || backup_text->size() == 1;
    return entry.recorded == Recorded::kAsNumber || !is_record_complete || can_be_missing;
  }
  if (!FromRecord(entry, recorded).IsKnown()) return true;  // an unusable record says nothing about its time
  const std::optional<std::string> part = RecordedPartOf(backup_text);
  return entry.recorded == Recorded::kAsNumber ? NumberOf(recorded) == RecordedNumberOf(part)
                                               : part == recorded;
}

bool IsAsBefore(const Before& before, const std::optional<std::string>& now) {
  return before.is_exact ? before.text == now : NumberOf(before.text) == RecordedNumberOf(now);
}

std::string Shown(const std::optional<std::string>& text, std::size_t max_length) {
  if (!text.has_value()) return "(none)";
  if (text->empty()) return "(empty)";
  std::string shown = *text;
  if (shown.size() > max_length) {
    shown.resize(max_length - kCut.size());
    shown += kCut;
  }
  std::replace_if(shown.begin(), shown.end(), IsControl, ' ');
  return shown;
}

std::string ShownBefore(const Before& before, std::size_t max_length) {
  switch (before.known) {
    case Before::Known::kFromRecord:
      return Shown(before.text, max_length);
    case Before::Known::kFromBackup:
      return "not recorded; backup: " + Shown(before.text, max_length);
    case Before::Known::kFromItsName:
      return "not recorded";
    case Before::Known::kNot:
      break;
  }
  return before.unusable.empty() ? "not recorded" : Shown(before.unusable, max_length);
}

std::string NameOf(const Entry& entry) {
  if (!entry.IsInSystemIni()) return "File system template";
  return base::Concat({"[", entry.section, "] ", entry.key});
}

}  // namespace qdix::undo
