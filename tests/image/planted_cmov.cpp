// Contains one instruction of the Pentium Pro.
#include "runtime/entry.h"

extern "C" int QdixMain(void* /*instance*/, int show_command) {
  int chosen = 1;
  asm("test %1, %1\n\tcmovne %1, %0" : "+r"(chosen) : "r"(show_command) : "cc");
  return chosen;
}
