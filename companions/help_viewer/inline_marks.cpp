#include "help_viewer/inline_marks.h"

#include "help_viewer/numbers.h"

namespace qdix::help_viewer {

namespace {

constexpr char kBold = '\x01';
constexpr char kLiteral = '\x02';
constexpr char kLinkBegin = '\x03';
constexpr char kLinkEnd = '\x04';
constexpr char kLinkText = '\x1F';

bool IsControl(char character) { return static_cast<unsigned char>(character) < 0x20U; }

/// Builds a text from characters, each with the look that is current at that point.
class Reader {
 public:
  explicit Reader(std::string_view marked) : rest_(marked) {}

  Text Read() {
    while (!rest_.empty()) {
      const char character = rest_.front();
      rest_.remove_prefix(1);
      Take(character);
    }
    return std::move(text_);
  }

 private:
  void Take(char character) {
    switch (character) {
      case kBold:
        is_bold_ = !is_bold_;
        break;
      case kLiteral:
        is_literal_ = !is_literal_;
        break;
      case kLinkBegin:
        link_ = TakeLinkNumber();
        break;
      case kLinkEnd:
        link_ = kNoLink;
        break;
      default:
        if (!IsControl(character)) Add(character);
        break;
    }
  }

  /// Reads the digits before the link's text. A link without an end is not a link.
  std::int32_t TakeLinkNumber() {
    const std::size_t middle = rest_.find(kLinkText);
    const std::size_t end = rest_.find(kLinkEnd);
    if (middle == std::string_view::npos || middle > end) return kNoLink;
    const auto number = ParseNumber(rest_.substr(0, middle));
    if (!number.has_value()) return kNoLink;
    rest_.remove_prefix(middle + 1);
    return end == std::string_view::npos ? kNoLink : *number;
  }

  void Add(char character) {
    const bool is_bold = link_ == kNoLink && (is_bold_ || is_literal_);
    const bool continues =
        !text_.runs.empty() && text_.runs.back().is_bold == is_bold && text_.runs.back().link == link_;
    if (!continues) text_.runs.push_back({text_.characters.size(), is_bold, link_});
    text_.characters += character;
  }

  std::string_view rest_;
  Text text_;
  bool is_bold_ = false;
  bool is_literal_ = false;
  std::int32_t link_ = kNoLink;
};

}  // namespace

Text ReadMarkedText(std::string_view marked) { return Reader(marked).Read(); }

}  // namespace qdix::help_viewer
