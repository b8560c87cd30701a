#include "self_test/answer_texts.h"

#include "base/numbers.h"

namespace qdix::self_test {

std::string Hex(std::uint32_t value, std::size_t digits) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  constexpr unsigned kBitsPerDigit = 4;
  std::string text;
  while (value != 0 || text.size() < digits) {
    text.insert(text.begin(), kDigits[value % kDigits.size()]);
    value >>= kBitsPerDigit;
  }
  return text;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char character : text) {
    const auto byte = static_cast<std::uint8_t>(character);
    if (byte < ' ') {
      quoted += "\\x" + Hex(byte, 2);
    } else {
      quoted += character;
    }
  }
  return quoted + "\"";
}

std::string KeptOrCut(std::int32_t given, std::int32_t found) {
  std::string text = base::TextOf(given);
  if (found == given) return text += " kept";
  // The low word with its sign, or without it.
  const bool is_cut = found == static_cast<std::int16_t>(given) || found == static_cast<std::uint16_t>(given);
  text += is_cut ? " cut to 16 bits: " : " became ";
  return text += base::TextOf(found);
}

void AnswerList::Add(std::initializer_list<std::string_view> parts) {
  if (!text_.empty()) text_ += ", ";
  for (const std::string_view part : parts) text_ += part;
}

}  // namespace qdix::self_test
