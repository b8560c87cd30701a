// Small operations on texts. Texts are bytes in the machine's ANSI code page; only ASCII letters change case.
#pragma once

#include <string>
#include <string_view>

namespace qdix::base {

/// The text without blanks (0x20) at both ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

/// The part before the first NUL character, or the whole text when it has none.
[[nodiscard]] std::string_view CutAtNul(std::string_view text);

/// ASCII letters in upper case, every other byte unchanged.
[[nodiscard]] std::string UpperAscii(std::string_view text);

/// True where both texts are equal but for the case of ASCII letters.
[[nodiscard]] bool EqualsIgnoringCase(std::string_view a, std::string_view b);

inline constexpr std::string_view kLineBreak = "\r\n";

}  // namespace qdix::base
