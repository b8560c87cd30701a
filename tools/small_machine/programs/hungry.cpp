// A program that needs much memory at once. The launcher starts it:   hungry.exe MEGABYTES FILE
// It fills its memory and writes to the file how long that took. Then it reads everything back, writes how
// many words were wrong, and sleeps. It has no window and no console, because their memory would count.
#include <cstdio>

#include "tools/small_machine/programs/written_memory.h"

using qdix::small_machine::Fill;
using qdix::small_machine::MillisecondsSince;
using qdix::small_machine::TakeMemory;
using qdix::small_machine::Words;
using qdix::small_machine::WrongWords;

int main(int argc, char** argv) {
  const DWORD start = GetTickCount();
  if (argc != 3) return 2;
  std::FILE* const report = std::fopen(argv[2], "w");
  if (report == nullptr) return 1;
  const Words words = TakeMemory(argv[1]);
  if (words.empty()) {
    std::fputs("no memory\n", report);
    std::fclose(report);
    return 1;
  }
  Fill(words, 0);
  std::fprintf(report, "holds %s MB after %lu ms\n", argv[1], MillisecondsSince(start));
  // The scenario waits for this line and must see it complete and at once.
  std::fflush(report);
  std::fprintf(report, "%lu wrong words of %lu\n", WrongWords(words, 0),
               static_cast<unsigned long>(words.size()));
  std::fclose(report);
  Sleep(INFINITE);
}
