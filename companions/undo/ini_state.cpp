#include "undo/ini_state.h"

#include "base/text.h"
#include "tuning/system_ini.h"

namespace qdix::undo {

namespace {

/// Some DOS editors write this character at the end of a text.
constexpr char kEndOfText = '\x1A';

/// True for a line such as "[boot]", in any case and with blanks around it.
bool IsHeadingOf(std::string_view line, std::string_view section) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  line = base::Trim(line);
  return line.size() == section.size() + 2 && line.front() == '[' && line.back() == ']' &&
         base::EqualsIgnoringCase(line.substr(1, section.size()), section);
}

bool HasSection(std::string_view bytes, std::string_view section) {
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    if (IsHeadingOf(bytes.substr(0, end), section)) return true;
    if (end == std::string_view::npos) return false;
    bytes.remove_prefix(end + 1);
  }
  return false;
}

}  // namespace

IniState StateOfIni(std::string_view bytes) {
  if (!HasSection(bytes, "boot")) return IniState::kWithoutBoot;
  if (!HasSection(bytes, tuning::k386EnhSection)) return IniState::kWithout386Enh;
  if (bytes.ends_with(kEndOfText)) bytes.remove_suffix(1);
  return bytes.ends_with('\n') ? IniState::kWhole : IniState::kCut;
}

}  // namespace qdix::undo
