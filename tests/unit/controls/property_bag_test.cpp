// The bag that stores a control's properties by name.
#include "ui/property_bag.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace qdix::tests {
namespace {

using ui::PropertyBag;

TEST(PropertyBag, AnUnknownNameReadsItsDefault) {
  const PropertyBag bag;
  EXPECT_EQ(bag.ReadProperty("Max", 100), 100);
  EXPECT_EQ(bag.ReadProperty("Max", -7), -7);
}

TEST(PropertyBag, AWrittenValueReadsBackForAnyDefault) {
  PropertyBag bag;
  bag.WriteProperty("Max", 50, 100);
  EXPECT_EQ(bag.ReadProperty("Max", 100), 50);
  EXPECT_EQ(bag.ReadProperty("Max", 3), 50);
}

TEST(PropertyBag, AValueEqualToItsDefaultIsNotKept) {
  PropertyBag bag;
  bag.WriteProperty("Max", 100, 100);
  EXPECT_FALSE(bag.Keeps("Max"));
  EXPECT_EQ(bag.ReadProperty("Max", 3), 3);
}

TEST(PropertyBag, WritingTheDefaultDropsTheStoredValue) {
  PropertyBag bag;
  bag.WriteProperty("Max", 50, 100);
  bag.WriteProperty("Max", 100, 100);
  EXPECT_FALSE(bag.Keeps("Max"));
  EXPECT_EQ(bag.ReadProperty("Max", 100), 100);
}

TEST(PropertyBag, TheLastValueWrittenCounts) {
  PropertyBag bag;
  bag.WriteProperty("Max", 50, 100);
  bag.WriteProperty("Max", 60, 100);
  EXPECT_EQ(bag.ReadProperty("Max", 100), 60);
}

TEST(PropertyBag, NamesAreKeptApartInAnyOrderOfWriting) {
  PropertyBag bag;
  bag.WriteProperty("M", 1, 0);
  bag.WriteProperty("Z", 2, 0);
  bag.WriteProperty("A", 3, 0);
  bag.WriteProperty("Max", 4, 0);
  bag.WriteProperty("M", 0, 0);
  EXPECT_FALSE(bag.Keeps("M"));
  EXPECT_EQ(bag.ReadProperty("Z", 0), 2);
  EXPECT_EQ(bag.ReadProperty("A", 0), 3);
  EXPECT_EQ(bag.ReadProperty("Max", 0), 4);
}

TEST(PropertyBag, NamesAreComparedExactly) {
  PropertyBag bag;
  bag.WriteProperty("Max", 50, 100);
  EXPECT_FALSE(bag.Keeps("max"));
  EXPECT_FALSE(bag.Keeps("Maximum"));
  EXPECT_FALSE(bag.Keeps(""));
}

TEST(PropertyBag, KeepsTheWholeRangeOf32Bits) {
  PropertyBag bag;
  bag.WriteProperty("Low", std::numeric_limits<std::int32_t>::min(), 0);
  bag.WriteProperty("High", std::numeric_limits<std::int32_t>::max(), 0);
  EXPECT_EQ(bag.ReadProperty("Low", 0), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(bag.ReadProperty("High", 0), std::numeric_limits<std::int32_t>::max());
}

}  // namespace
}  // namespace qdix::tests
