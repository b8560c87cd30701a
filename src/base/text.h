// Small operations on text. Text is bytes in the machine's ANSI code page; only ASCII letters change case.
#pragma once

#include <string>
#include <string_view>

namespace qdix::base {

/// Returns the text without the spaces (0x20) at both ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

/// Returns the part before the first NUL character, or the whole text if there is none.
[[nodiscard]] std::string_view CutAtNul(std::string_view text);

/// Returns an ASCII letter in upper case and every other byte unchanged.
[[nodiscard]] constexpr char UpperAscii(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

/// Returns the text with its ASCII letters in upper case and every other byte unchanged.
[[nodiscard]] std::string UpperAscii(std::string_view text);

/// True if both texts are equal, ignoring the case of ASCII letters.
[[nodiscard]] bool EqualsIgnoringCase(std::string_view a, std::string_view b);

inline constexpr std::string_view kLineBreak = "\r\n";

}  // namespace qdix::base
