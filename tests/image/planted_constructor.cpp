// Has a global object whose constructor nothing would run.
#include <string>

#include "runtime/entry.h"

namespace {

std::string global_text(1000, 'x');

}  // namespace

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  return static_cast<int>(global_text.size());
}
