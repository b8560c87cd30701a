#include "help_viewer/command_line.h"

#include <algorithm>

#include "base/text.h"
#include "help_viewer/numbers.h"

namespace qdix::help_viewer {

namespace {

constexpr std::string_view kExtension = ".EXE";

/// Returns the rest after the first `length` characters; empty if the text is shorter.
std::string_view After(std::string_view text, std::size_t length) {
  return text.substr(std::min(length, text.size()));
}

/// A name without quotation marks ends after its extension, or at the first blank of its last part if it has
/// none. A number never contains the extension.
std::string_view ArgumentsAfterPlainName(std::string_view command_line) {
  const std::size_t extension = base::UpperAscii(command_line).rfind(kExtension);
  if (extension != std::string_view::npos) return After(command_line, extension + kExtension.size());
  const std::size_t folder_end = command_line.rfind('\\');
  return After(command_line, command_line.find(' ', folder_end == std::string_view::npos ? 0 : folder_end));
}

}  // namespace

std::optional<std::int32_t> TopicOfCommandLine(std::string_view command_line) {
  command_line = base::Trim(command_line);
  if (!command_line.starts_with('"')) return ParseNumber(base::Trim(ArgumentsAfterPlainName(command_line)));
  const std::size_t end = command_line.find('"', 1);
  if (end == std::string_view::npos) return std::nullopt;
  return ParseNumber(base::Trim(After(command_line, end + 1)));
}

}  // namespace qdix::help_viewer
