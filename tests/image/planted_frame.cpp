// Has a stack frame larger than a page, which nothing probes.
#pragma GCC diagnostic ignored "-Wframe-larger-than="

#include "runtime/entry.h"

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  volatile char page_and_more[5000];
  for (int i = 0; i < 5000; ++i) page_and_more[i] = static_cast<char>(i);
  return page_and_more[4999];
}
