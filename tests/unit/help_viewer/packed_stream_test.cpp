// The packed form of the stream: repetitions, sizes, and damage.
#include "help_viewer/packed_stream.h"

#include <gtest/gtest.h>

#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

using namespace std::string_literals;
using help_viewer::Unpack;

TEST(PackedHelp, BytesAreRestored) {
  EXPECT_EQ(Unpack(PackPlainly("")), "");
  EXPECT_EQ(Unpack(PackPlainly("a")), "a");
  EXPECT_EQ(Unpack(PackPlainly(kBook)), kBook);
}

TEST(PackedHelp, RepetitionsAreCopied) {
  // "abc", three bytes from a distance of three, then six bytes from a distance of one.
  EXPECT_EQ(Unpack("\x0C\0\0\0\x07"
                   "abc\x02\x00\x00\x60"s),
            "abcabccccccc");
}

TEST(PackedHelp, LongestDistanceAndLength) {
  std::string stream;
  for (int i = 0; i < 8192; ++i) stream += static_cast<char>('a' + i % 23 + i / 1024);
  std::string packed = PackPlainly(stream);
  packed[0] = '\x0A';  // 8192 and 10
  packed += "\x00\xFF\xFF"s;
  EXPECT_EQ(Unpack(packed), stream + stream.substr(0, 10));
}

TEST(PackedHelp, DamageEndsTheStreamEarly) {
  EXPECT_EQ(Unpack(""), "");
  EXPECT_EQ(Unpack("\x05"), "");
  EXPECT_EQ(Unpack("\x05\0\0\0"s), "");
  EXPECT_EQ(Unpack("\x05\0\0\0\xFF"
                   "ab"s),
            "ab");
  EXPECT_EQ(Unpack("\x05\0\0\0\x00\x00\x00"s), "") << "a repetition with nothing before it";
  EXPECT_EQ(Unpack("\x05\0\0\0\x03"
                   "ab\x02\x00"s),
            "ab")
      << "a repetition from before the beginning";
  EXPECT_EQ(Unpack("\x03\0\0\0\x01"
                   "a\x00\xE0"s),
            "aaa")
      << "no more bytes than the stated size";
}

TEST(PackedHelp, StreamThatIsCutInARepetitionEndsThere) {
  // What lies behind the end would repeat the same byte.
  const std::string bytes =
      "\x08\0\0\0\x01"
      "a\x00"s;
  const std::string with_more = bytes + std::string(8, '\0');
  EXPECT_EQ(Unpack(std::string_view(with_more).substr(0, bytes.size())), "aaaa");
}

TEST(PackedHelp, ImpossibleSizeIsRejected) {
  EXPECT_EQ(Unpack("\xFF\xFF\xFF\xFF\xFF"
                   "abc"s),
            "abc");
}

}  // namespace
}  // namespace qdix::tests
