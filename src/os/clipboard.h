// The clipboard that all programs share.
#pragma once

#include <string>

namespace qdix::os {

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// Puts a text in place of whatever was there; its lines end in a carriage return and a line feed. False
  /// where another program holds the clipboard, or memory is short: what was there may then be gone.
  [[nodiscard]] virtual bool SetClipboardData(const std::string& text) = 0;
};

}  // namespace qdix::os
