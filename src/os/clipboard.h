// The clipboard that all programs share.
#pragma once

#include <string>

namespace qdix::os {

class Clipboard {
 public:
  /// Replaces the content of the clipboard with a text whose lines end in CR LF. False if another program
  /// holds the clipboard or memory is short; the previous content may then be lost.
  [[nodiscard]] virtual bool SetClipboardData(const std::string& text) = 0;

 protected:
  ~Clipboard() = default;
};

}  // namespace qdix::os
