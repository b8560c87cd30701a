#include "base/concat.h"

#include <gtest/gtest.h>

namespace qdix::base {
namespace {

TEST(Concat, JoinsThePartsInOrder) {
  const std::string owned = "owned";
  EXPECT_EQ(Concat({"literal ", owned, std::string_view(" view"), ""}), "literal owned view");
  EXPECT_EQ(Concat({}), "");
}

TEST(Concat, KeepsNulCharacters) {
  const std::string with_nul("a\0b", 3);
  EXPECT_EQ(Concat({with_nul, with_nul}), std::string("a\0ba\0b", 6));
}

}  // namespace
}  // namespace qdix::base
