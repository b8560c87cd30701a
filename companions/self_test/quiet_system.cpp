#include "self_test/quiet_system.h"

#include <utility>

namespace qdix::self_test {

int QuietDialogs::MessageBoxA(const std::string& text, const std::string& /*title*/,
                              std::uint32_t /*flags*/) {
  if (!texts_.empty()) texts_ += " / ";
  for (const char character : text) texts_ += static_cast<unsigned char>(character) < ' ' ? ' ' : character;
  return os::kIdNone;
}

std::string QuietDialogs::TakeTexts() { return std::exchange(texts_, {}); }

}  // namespace qdix::self_test
