// Registry values below a root, byte for byte.
#include "registry/module_registry.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::tests {
namespace {

constexpr const char* kKey = "SOFTWARE\\A";
constexpr os::KeyHandle kRoot = os::kHkeyLocalMachine;

class ModuleRegistry : public testing::Test {
 protected:
  ~ModuleRegistry() override {
    EXPECT_EQ(machine.OpenKeyCount(), 0) << "a key is still open at the end";
    EXPECT_TRUE(machine.Misuses().empty());
  }
  void SetBytes(std::uint32_t type, const std::string& bytes) {
    machine.SetRegistryBytes(kRoot, kKey, "V", type, bytes);
  }
  [[nodiscard]] std::string Read() { return registry.ReadRegistryValue(kRoot, kKey, "V"); }
  [[nodiscard]] std::optional<os::simulated::RegistryValue> Stored() const {
    return machine.RegistryValue(kRoot, kKey, "V");
  }

  os::SimulatedMachine machine;
  registry::ModuleRegistry registry{machine.GetSystem().registry};
};

TEST_F(ModuleRegistry, TextIsReadUpToItsFirstNul) {
  SetBytes(os::kRegSz, std::string("abc\0def\0", 8));
  EXPECT_EQ(Read(), "abc");
  SetBytes(os::kRegSz, "without an end");
  EXPECT_EQ(Read(), "without an end");
  SetBytes(os::kRegSz, std::string(1, '\0'));
  EXPECT_EQ(Read(), "");
  SetBytes(os::kRegSz, "");
  EXPECT_EQ(Read(), "");
}

TEST_F(ModuleRegistry, BinaryIsItsFirstTwoBytesAsASignedNumber) {
  SetBytes(os::kRegBinary, std::string("\xFF\xFF\x00\x00", 4));
  EXPECT_EQ(Read(), "-1");
  SetBytes(os::kRegBinary, std::string("\x51\x01\x00\x00", 4));
  EXPECT_EQ(Read(), "337");
  SetBytes(os::kRegBinary, std::string("\x00\x80\xFF\xFF", 4));
  EXPECT_EQ(Read(), "-32768");
}

TEST_F(ModuleRegistry, ShortBinaryCountsMissingBytesAsZeroAndALongOneIsEmpty) {
  SetBytes(os::kRegBinary, "\x05");
  EXPECT_EQ(Read(), "5");
  SetBytes(os::kRegBinary, "");
  EXPECT_EQ(Read(), "0");
  SetBytes(os::kRegBinary, "12345");
  EXPECT_EQ(Read(), "");
}

TEST_F(ModuleRegistry, OtherTypesReadAsEmpty) {
  SetBytes(os::kRegDword, std::string("\x05\x00\x00\x00", 4));
  EXPECT_EQ(Read(), "");
  SetBytes(2, std::string("%A%\0", 4));
  EXPECT_EQ(Read(), "");
}

TEST_F(ModuleRegistry, MissingKeyOrValueReadsAsEmptyAndIsNotCreated) {
  EXPECT_EQ(Read(), "");
  EXPECT_FALSE(machine.KeyExists(kRoot, kKey));
  machine.CreateRegistryKey(kRoot, kKey);
  EXPECT_EQ(Read(), "");
}

TEST_F(ModuleRegistry, FailedCallsReadAsEmpty) {
  SetBytes(os::kRegSz, "abc");
  machine.FailNextCall("RegOpenKeyA");
  EXPECT_EQ(Read(), "");
  for (const int failing_call : {2, 3}) {
    machine.FailCallNumber(machine.FaultableCallCount() + failing_call);
    EXPECT_EQ(Read(), "") << failing_call;
  }
  EXPECT_EQ(Read(), "abc");
}

TEST_F(ModuleRegistry, BinaryIsWrittenAsFourBytesWithTheUpperTwoZero) {
  registry.WriteRegistryBinary(kRoot, kKey, "V", "337");
  ASSERT_TRUE(Stored());
  EXPECT_EQ(Stored()->type, os::kRegBinary);
  EXPECT_EQ(Stored()->bytes, std::string("\x51\x01\x00\x00", 4));
  registry.WriteRegistryBinary(kRoot, kKey, "V", "-2");
  EXPECT_EQ(Stored()->bytes, std::string("\xFE\xFF\x00\x00", 4));
}

TEST_F(ModuleRegistry, TextThatIsNoNumberOfSixteenBitsWritesNothing) {
  for (const char* text : {"32768", "-32769", "", "abc", "12 MB"}) {
    registry.WriteRegistryBinary(kRoot, kKey, "V", text);
    EXPECT_FALSE(Stored()) << text;
  }
  registry.WriteRegistryBinary(kRoot, kKey, "V", "32767");
  EXPECT_EQ(Stored()->bytes, std::string("\xFF\x7F\x00\x00", 4));
}

TEST_F(ModuleRegistry, DeleteCreatesTheKeyAndRemovesTheValue) {
  registry.DeleteRegistryValue(kRoot, kKey, "V");
  EXPECT_TRUE(machine.KeyExists(kRoot, kKey));
  SetBytes(os::kRegSz, "x");
  machine.SetRegistryValue(kRoot, kKey, "Other", "y");
  registry.DeleteRegistryValue(kRoot, kKey, "V");
  EXPECT_FALSE(Stored());
  EXPECT_EQ(machine.RegistryText(kRoot, kKey, "Other"), "y");
}

TEST_F(ModuleRegistry, TextIsWrittenOnlyIntoAnExistingKey) {
  registry.WriteRegistryText(kRoot, kKey, "", "Quondix");
  EXPECT_FALSE(machine.KeyExists(kRoot, kKey));
  machine.CreateRegistryKey(kRoot, kKey);
  registry.WriteRegistryText(kRoot, kKey, "", "Quondix");
  EXPECT_EQ(machine.RegistryText(kRoot, kKey, ""), "Quondix");
}

TEST_F(ModuleRegistry, SetValueExWritesOnlyTextsAndNumbers) {
  os::KeyHandle key = 0;
  ASSERT_EQ(machine.GetSystem().registry.RegCreateKeyA(kRoot, kKey, key), os::kErrorSuccess);
  EXPECT_EQ(registry.SetValueEx(key, "V", os::kRegSz, "ab"), os::kErrorSuccess);
  EXPECT_EQ(Stored()->bytes, std::string("ab\0", 3));
  EXPECT_EQ(registry.SetValueEx(key, "V", os::kRegDword, "-2"), os::kErrorSuccess);
  EXPECT_EQ(Stored()->type, os::kRegDword);
  EXPECT_EQ(Stored()->bytes, "\xFE\xFF\xFF\xFF");
  EXPECT_EQ(registry.SetValueEx(key, "V", os::kRegDword, "2147483648"), os::kErrorSuccess);
  EXPECT_EQ(Stored()->bytes, std::string(4, '\0')) << "too large for a 32-bit number";
  EXPECT_EQ(registry.SetValueEx(key, "V", os::kRegBinary, "7"), os::kErrorSuccess);
  EXPECT_EQ(Stored()->type, os::kRegDword) << "the value was not written";
  machine.FailNextCall("RegSetValueExA");
  EXPECT_EQ(registry.SetValueEx(key, "V", os::kRegSz, "x"), os::kErrorAccessDenied);
  machine.GetSystem().registry.RegCloseKey(key);
}

TEST_F(ModuleRegistry, RefusedCallsLeaveTheOldValueAndCloseTheKey) {
  SetBytes(os::kRegBinary, std::string("\x01\x00\x00\x00", 4));
  for (const char* call : {"RegCreateKeyA", "RegSetValueExA"}) {
    machine.FailNextCall(call);
    registry.WriteRegistryBinary(kRoot, kKey, "V", "2");
    EXPECT_EQ(Read(), "1") << call;
  }
  for (const char* call : {"RegCreateKeyA", "RegDeleteValueA"}) {
    machine.FailNextCall(call);
    registry.DeleteRegistryValue(kRoot, kKey, "V");
    EXPECT_EQ(Read(), "1") << call;
  }
}

}  // namespace
}  // namespace qdix::tests
