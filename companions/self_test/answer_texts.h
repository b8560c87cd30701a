// The words in which the log gives the system's answers.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace qdix::self_test {

/// Returns a number in hexadecimal with at least this many digits, in capitals.
[[nodiscard]] std::string Hex(std::uint32_t value, std::size_t digits);

/// Returns the text in quotation marks, with each control character as "\x01".
[[nodiscard]] std::string Quoted(std::string_view text);

/// Says what became of a number that the system was given and asked for again.
[[nodiscard]] std::string KeptOrCut(std::int32_t given, std::int32_t found);

/// A list such as "one, two"; "none" while it is empty.
class AnswerList {
 public:
  /// The parts together are one item.
  void Add(std::initializer_list<std::string_view> parts);
  [[nodiscard]] std::string Text() const { return text_.empty() ? "none" : text_; }

 private:
  std::string text_;
};

}  // namespace qdix::self_test
