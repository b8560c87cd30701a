// Exercises the runtime of the shipped programs from inside a program: memory functions, new and delete,
// growing strings, division of 64-bit numbers, rounding to 53 bits. The exit code is 0 if every step passed,
// otherwise the number of the step that failed.
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "runtime/entry.h"

namespace {

/// Keeps the compiler from computing the result itself.
template <class T>
T Hidden(T value) {
  volatile T hidden = value;
  return hidden;
}

bool MemoryFunctionsWork() {
  char bytes[16] = "abcdefghijklmno";
  std::memmove(bytes + 2, bytes, Hidden(8U));
  if (std::memcmp(bytes, "ababcdefghklmno", Hidden(15U)) != 0) return false;
  std::memmove(bytes, bytes + 2, Hidden(8U));
  std::memset(bytes + 8, 'x', Hidden(4U));
  if (std::memcmp(bytes, "abcdefghxxxxmno", Hidden(15U)) != 0) return false;
  return std::memchr(bytes, 'm', Hidden(15U)) == bytes + 12 && std::strlen(bytes) == 15 &&
         std::memcmp("a", "b", Hidden(1U)) < 0;
}

bool TextsGrow() {
  std::string text;
  for (int i = 0; i < Hidden(10000); ++i) text += static_cast<char>('a' + i % 26);
  return text.size() == 10000 && text[9999] == 'a' + 9999 % 26 && text.find("xyzabc") == 23;
}

bool ListsGrow() {
  std::vector<std::string> texts;
  for (int i = 0; i < Hidden(500); ++i) texts.push_back(qdix::base::TextOf(i));
  texts.erase(texts.begin(), texts.begin() + 250);
  return texts.size() == 250 && texts.front() == "250" && texts.back() == "499";
}

bool LongNumbersDivide() {
  const auto dividend = Hidden<std::int64_t>(-9000000000000000001);
  return dividend / Hidden<std::int64_t>(1000000007) == -8999999937 &&
         dividend % Hidden<std::int64_t>(10) == -1;
}

/// With a longer significand the small summand would survive until the subtraction. The operands are loaded
/// first: a call in between would store the sum, which rounds it in any case.
bool SumsHave53Bits() {
  const double one = Hidden(1.0);
  const double past_the_last_bit = Hidden(0x1p-60);
  const double last_bit = Hidden(0x1p-52);
  return (one + past_the_last_bit) - one == 0 && (one + last_bit) - one == last_bit;
}

bool NumbersRound() {
  using namespace qdix::base;
  return WholePart(Hidden(-0.5)) == -1 && RoundHalfEven(Hidden(2.5)) == 2 &&
         RoundHalfEven(Hidden(-1.5)) == -2 && FormatTwoDecimals(Hidden(23.4495)) == "23.45" &&
         ShortestText(Hidden(0.1) + Hidden(0.2)) == "0.3" && Hidden(0.1) + Hidden(0.2) != Hidden(0.3);
}

}  // namespace

extern "C" int QdixMain(void* /*instance*/, int /*show_command*/) {
  constexpr bool (*kSteps[])() = {&MemoryFunctionsWork, &TextsGrow,      &ListsGrow,
                                  &LongNumbersDivide,   &SumsHave53Bits, &NumbersRound};
  int number = 0;
  for (const auto step : kSteps) {
    ++number;
    if (!step()) return number;
  }
  return 0;
}
