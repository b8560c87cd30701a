// A program that lies idle with written memory:   idle.exe MEGABYTES NUMBER
// It fills its memory with a sequence that depends on the number, says so, and sleeps. For each line that it
// is given it reads everything back, compares, and says how many words were wrong and how long it took.
// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

namespace {

constexpr std::size_t kBytesPerMegabyte = 1024 * 1024;

/// No two pages alike, of one program or of two: nothing could merge or compress them away.
class Sequence {
 public:
  explicit Sequence(std::uint32_t number) : word_((number + 1) * 2654435761U) {}
  std::uint32_t Next() {
    word_ ^= word_ << 13;
    word_ ^= word_ >> 17;
    word_ ^= word_ << 5;
    return word_;
  }

 private:
  std::uint32_t word_;
};

void Fill(std::span<std::uint32_t> words, std::uint32_t number) {
  Sequence sequence(number);
  for (std::uint32_t& word : words) word = sequence.Next();
}

std::size_t WrongWords(std::span<const std::uint32_t> words, std::uint32_t number) {
  Sequence sequence(number);
  std::size_t wrong = 0;
  for (const std::uint32_t word : words) wrong += word != sequence.Next() ? 1 : 0;
  return wrong;
}

unsigned long MillisecondsSince(DWORD start) { return GetTickCount() - start; }

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::puts("idle.exe MEGABYTES NUMBER");
    return 2;
  }
  const std::size_t bytes = std::strtoul(argv[1], nullptr, 10) * kBytesPerMegabyte;
  const auto number = static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 10));
  // Whoever waits for a line sees it at once, and a line on its way in is not waited for to be followed by
  // more.
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  std::setvbuf(stdin, nullptr, _IONBF, 0);
  DWORD start = GetTickCount();
  void* const memory = VirtualAlloc(nullptr, bytes, MEM_COMMIT, PAGE_READWRITE);
  if (memory == nullptr) {
    std::puts("no memory");
    return 1;
  }
  const std::span words(static_cast<std::uint32_t*>(memory), bytes / sizeof(std::uint32_t));
  Fill(words, number);
  std::printf("holds %s MB after %lu ms\n", argv[1], MillisecondsSince(start));
  while (std::getchar() == '\n') {
    start = GetTickCount();
    const std::size_t wrong = WrongWords(words, number);
    std::printf("%lu wrong words of %lu, read back in %lu ms\n", static_cast<unsigned long>(wrong),
                static_cast<unsigned long>(words.size()), MillisecondsSince(start));
  }
  return 0;
}
