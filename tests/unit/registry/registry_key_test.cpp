// A key that is open for the lifetime of its object, and the texts in it.
#include "registry/registry_key.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::tests {
namespace {

constexpr const char* kKey = "SOFTWARE\\QDIX";
/// Longest text that is read, including its NUL.
constexpr std::size_t kLongestBytes = 65536;

class RegistryKeyText : public testing::Test {
 protected:
  std::optional<std::string> Read(const std::string& stored) {
    machine.SetRegistryValue(os::kHkeyLocalMachine, kKey, "V", stored);
    const auto key = registry::RegistryKey::Open(machine.GetSystem().registry, os::kHkeyLocalMachine, kKey,
                                                 os::kKeyQueryValue);
    return key.ReadText("V");
  }

  os::SimulatedMachine machine;
};

TEST_F(RegistryKeyText, LongestTextIsReadAndALongerOneCountsAsMissing) {
  const std::string longest(kLongestBytes - 1, 'x');
  EXPECT_EQ(Read(longest), longest);
  EXPECT_EQ(Read(longest + "x"), std::nullopt);
}

}  // namespace
}  // namespace qdix::tests
