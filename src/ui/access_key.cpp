#include "ui/access_key.h"

#include "base/text.h"

namespace qdix::ui {

std::string MarkAccessKey(std::string_view caption, char key) {
  std::string marked;
  bool found = key == 0;
  for (const char character : caption) {
    if (!found && base::EqualsIgnoringCase({&character, 1}, {&key, 1})) {
      marked += '&';
      found = true;
    }
    marked += character;
    if (character == '&') marked += '&';
  }
  return marked;
}

}  // namespace qdix::ui
