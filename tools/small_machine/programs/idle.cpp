// A program that fills memory and stays idle:   idle.exe MEGABYTES NUMBER
// It fills its memory with a sequence that depends on the number, prints a line, and waits. For each empty
// line on its input it reads everything back, compares, and prints how many words were wrong and how long it
// took.
#include <cstdio>

#include "tools/small_machine/programs/written_memory.h"

using qdix::small_machine::Fill;
using qdix::small_machine::MillisecondsSince;
using qdix::small_machine::TakeMemory;
using qdix::small_machine::Words;
using qdix::small_machine::WrongWords;

int main(int argc, char** argv) {
  if (argc != 3) {
    std::puts("idle.exe MEGABYTES NUMBER");
    return 2;
  }
  const auto number = static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 10));
  // No buffers: a line of output must appear at once, and a line of input must not wait for more input.
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  std::setvbuf(stdin, nullptr, _IONBF, 0);
  DWORD start = GetTickCount();
  const Words words = TakeMemory(argv[1]);
  if (words.empty()) {
    std::puts("no memory");
    return 1;
  }
  Fill(words, number);
  std::printf("holds %s MB after %lu ms\n", argv[1], MillisecondsSince(start));
  while (std::getchar() == '\n') {
    start = GetTickCount();
    const unsigned long wrong = WrongWords(words, number);
    std::printf("%lu wrong words of %lu, read back in %lu ms\n", wrong,
                static_cast<unsigned long>(words.size()), MillisecondsSince(start));
  }
  return 0;
}
