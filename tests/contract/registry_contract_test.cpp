// Registry: keys, values, result codes.
#include <gmock/gmock.h>

#include "registry/registry_key.h"
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using os::KeyHandle;

constexpr const char* kTestKey = "Software\\QDIX contract tests";
constexpr KeyHandle kUntouched = 0x1234;

class RegistryContract : public ContractTest {
 protected:
  ~RegistryContract() override { machine->DeleteRegistryTree(os::kHkeyCurrentUser, kTestKey); }

  /// Closes the key at the end of the test.
  struct OpenKey {
    os::Registry& registry;
    KeyHandle handle = 0;
    ~OpenKey() { registry.RegCloseKey(handle); }
  };

  [[nodiscard]] static std::string Below(const std::string& subkey) {
    return std::string(kTestKey) + "\\" + subkey;
  }
  [[nodiscard]] OpenKey Create(const std::string& path = kTestKey) const {
    KeyHandle handle = 0;
    EXPECT_EQ(system.registry.RegCreateKeyExA(os::kHkeyCurrentUser, path.c_str(), os::kKeyAllAccess, handle),
              os::kErrorSuccess);
    return {system.registry, handle};
  }
  [[nodiscard]] std::int32_t Open(const std::string& path, KeyHandle& handle) const {
    return system.registry.RegOpenKeyExA(os::kHkeyCurrentUser, path.c_str(), os::kKeyQueryValue, handle);
  }
  [[nodiscard]] std::int32_t Set(KeyHandle key, const char* name, std::uint32_t type,
                                 const std::string& bytes) const {
    return system.registry.RegSetValueExA(key, name, type,
                                          reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                          static_cast<std::uint32_t>(bytes.size()));
  }

  struct Answer {
    std::int32_t code = 0;
    std::uint32_t type = 0;
    std::uint32_t size_bytes = 0;
    std::string bytes;
  };
  /// Queries a value with a buffer of this size.
  [[nodiscard]] Answer Query(KeyHandle key, const char* name, std::uint32_t room_bytes = 4096) const {
    Answer answer;
    std::string room(room_bytes, '#');
    answer.size_bytes = room_bytes;
    answer.code = system.registry.RegQueryValueExA(
        key, name, answer.type, reinterpret_cast<std::uint8_t*>(room.data()), answer.size_bytes);
    answer.bytes = room.substr(0, answer.code == os::kErrorSuccess ? answer.size_bytes : room_bytes);
    return answer;
  }
  [[nodiscard]] std::string TextWithNul(const std::string& text) const { return text + '\0'; }
};

TEST_F(RegistryContract, MissingKeyIsNotFoundAndLeavesTheHandleAlone) {
  KeyHandle key = kUntouched;
  EXPECT_EQ(Open(Below("Missing"), key), os::kErrorFileNotFound);
  EXPECT_EQ(key, kUntouched);
}

TEST_F(RegistryContract, CreateAlsoCreatesTheParentKeys) {
  const OpenKey deep = Create(Below("One\\Two\\Three"));
  KeyHandle key = 0;
  ASSERT_EQ(Open(Below("One\\Two"), key), os::kErrorSuccess);
  EXPECT_EQ(system.registry.RegCloseKey(key), os::kErrorSuccess);
}

TEST_F(RegistryContract, CreateOpensAnExistingKeyWithItsValues) {
  {
    const OpenKey key = Create();
    ASSERT_EQ(Set(key.handle, "Name", os::kRegSz, TextWithNul("kept")), os::kErrorSuccess);
  }
  const OpenKey again = Create();
  EXPECT_EQ(Query(again.handle, "Name").bytes, TextWithNul("kept"));
}

TEST_F(RegistryContract, OldCallsOpenAndCreateKeysWithAllRights) {
  KeyHandle missing = kUntouched;
  EXPECT_EQ(system.registry.RegOpenKeyA(os::kHkeyCurrentUser, Below("Old").c_str(), missing),
            os::kErrorFileNotFound);
  EXPECT_EQ(missing, kUntouched);
  OpenKey made{system.registry};
  ASSERT_EQ(system.registry.RegCreateKeyA(os::kHkeyCurrentUser, Below("Old").c_str(), made.handle),
            os::kErrorSuccess);
  EXPECT_EQ(Set(made.handle, "Number", os::kRegBinary, "1234"), os::kErrorSuccess);
  OpenKey opened{system.registry};
  ASSERT_EQ(system.registry.RegOpenKeyA(os::kHkeyCurrentUser, Below("Old").c_str(), opened.handle),
            os::kErrorSuccess);
  EXPECT_EQ(system.registry.RegDeleteValueA(opened.handle, "Number"), os::kErrorSuccess);
}

TEST_F(RegistryContract, KeysOpenBelowAnOpenKey) {
  const OpenKey parent = Create();
  const OpenKey child = Create(Below("Child"));
  KeyHandle key = 0;
  EXPECT_EQ(system.registry.RegOpenKeyExA(parent.handle, "Child", os::kKeyQueryValue, key),
            os::kErrorSuccess);
  EXPECT_EQ(system.registry.RegCloseKey(key), os::kErrorSuccess);
}

TEST_F(RegistryContract, NamesOfKeysIgnoreCase) {
  const OpenKey made = Create(Below("MixedCase"));
  ASSERT_EQ(Set(made.handle, "Name", os::kRegSz, TextWithNul("x")), os::kErrorSuccess);
  const OpenKey found = Create(Below("mIXEDcASE"));
  EXPECT_EQ(Query(found.handle, "Name").code, os::kErrorSuccess);
}

TEST_F(RegistryContract, NamesOfValuesIgnoreCase) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Name", os::kRegSz, TextWithNul("old")), os::kErrorSuccess);
  ASSERT_EQ(Set(key.handle, "NAME", os::kRegSz, TextWithNul("new")), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "name").bytes, TextWithNul("new"));
  EXPECT_EQ(system.registry.RegDeleteValueA(key.handle, "nAmE"), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "Name").code, os::kErrorFileNotFound);
}

TEST_F(RegistryContract, MissingValueIsNotFound) {
  const OpenKey key = Create();
  EXPECT_EQ(Query(key.handle, "Missing").code, os::kErrorFileNotFound);
  EXPECT_EQ(system.registry.RegDeleteValueA(key.handle, "Missing"), os::kErrorFileNotFound);
}

TEST_F(RegistryContract, MissingUnnamedValueIsNotFound) {
  const OpenKey key = Create();
  EXPECT_EQ(Query(key.handle, "").code, os::kErrorFileNotFound);
}

TEST_F(RegistryContract, TextComesBackWithItsNul) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Text", os::kRegSz, TextWithNul("64 MB")), os::kErrorSuccess);
  const Answer answer = Query(key.handle, "Text");
  EXPECT_EQ(answer.code, os::kErrorSuccess);
  EXPECT_EQ(answer.type, os::kRegSz);
  EXPECT_EQ(answer.size_bytes, 6U);
  EXPECT_EQ(answer.bytes, TextWithNul("64 MB"));
}

TEST_F(RegistryContract, EmptyTextIsOnlyItsNul) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Empty", os::kRegSz, TextWithNul("")), os::kErrorSuccess);
  const Answer answer = Query(key.handle, "Empty");
  EXPECT_EQ(answer.code, os::kErrorSuccess);
  EXPECT_EQ(answer.size_bytes, 1U);
}

TEST_F(RegistryContract, QueryWithoutABufferReturnsTypeAndSize) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Text", os::kRegSz, TextWithNul("12345")), os::kErrorSuccess);
  std::uint32_t type = 0;
  std::uint32_t size_bytes = 0;
  EXPECT_EQ(system.registry.RegQueryValueExA(key.handle, "Text", type, nullptr, size_bytes),
            os::kErrorSuccess);
  EXPECT_EQ(type, os::kRegSz);
  EXPECT_EQ(size_bytes, 6U);
}

TEST_F(RegistryContract, TooSmallABufferGivesMoreDataAndTheSizeNeeded) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Data", os::kRegBinary, "123456789"), os::kErrorSuccess);
  const Answer answer = Query(key.handle, "Data", 8);
  EXPECT_EQ(answer.code, os::kErrorMoreData);
  EXPECT_EQ(answer.size_bytes, 9U);
  EXPECT_EQ(answer.bytes, "########");
}

TEST_F(RegistryContract, ExactRoomIsEnough) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Data", os::kRegBinary, "123456789"), os::kErrorSuccess);
  const Answer answer = Query(key.handle, "Data", 9);
  EXPECT_EQ(answer.code, os::kErrorSuccess);
  EXPECT_EQ(answer.bytes, "123456789");
}

TEST_F(RegistryContract, EachTypeIsKept) {
  const OpenKey key = Create();
  const std::string number("\x78\x56\x34\x12", 4);
  ASSERT_EQ(Set(key.handle, "Binary", os::kRegBinary, std::string("\0\1\xFF", 3)), os::kErrorSuccess);
  ASSERT_EQ(Set(key.handle, "Number", os::kRegDword, number), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "Binary").type, os::kRegBinary);
  EXPECT_EQ(Query(key.handle, "Binary").bytes, std::string("\0\1\xFF", 3));
  EXPECT_EQ(Query(key.handle, "Number").type, os::kRegDword);
  EXPECT_EQ(Query(key.handle, "Number").bytes, number);
}

TEST_F(RegistryContract, NewValueAlsoReplacesTheType) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Name", os::kRegSz, TextWithNul("a long text")), os::kErrorSuccess);
  ASSERT_EQ(Set(key.handle, "Name", os::kRegBinary, "b"), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "Name").type, os::kRegBinary);
  EXPECT_EQ(Query(key.handle, "Name").bytes, "b");
}

TEST_F(RegistryContract, LongTextIsKeptWhole) {
  const OpenKey key = Create();
  const std::string text = TextWithNul(std::string(3000, 'x') + "end");
  ASSERT_EQ(Set(key.handle, "Long", os::kRegSz, text), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "Long").bytes, text);
}

TEST_F(RegistryContract, UnnamedValueCoexistsWithNamedOnes) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "", os::kRegSz, TextWithNul("unnamed")), os::kErrorSuccess);
  ASSERT_EQ(Set(key.handle, "Name", os::kRegSz, TextWithNul("named")), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "").bytes, TextWithNul("unnamed"));
  EXPECT_EQ(system.registry.RegDeleteValueA(key.handle, ""), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "Name").bytes, TextWithNul("named"));
}

TEST_F(RegistryContract, EachKeyHasValuesOfItsOwn) {
  const OpenKey first = Create(Below("First"));
  const OpenKey second = Create(Below("Second"));
  ASSERT_EQ(Set(first.handle, "Name", os::kRegSz, TextWithNul("1")), os::kErrorSuccess);
  EXPECT_EQ(Query(second.handle, "Name").code, os::kErrorFileNotFound);
}

TEST_F(RegistryContract, TwoHandlesOfOneKeySeeTheSameValues) {
  const OpenKey writer = Create();
  const OpenKey reader = Create();
  ASSERT_EQ(Set(writer.handle, "Name", os::kRegSz, TextWithNul("seen")), os::kErrorSuccess);
  EXPECT_EQ(Query(reader.handle, "Name").bytes, TextWithNul("seen"));
}

TEST_F(RegistryContract, FlushedKeyKeepsItsValues) {
  const OpenKey key = Create();
  ASSERT_EQ(Set(key.handle, "Name", os::kRegSz, TextWithNul("kept")), os::kErrorSuccess);
  EXPECT_EQ(system.registry.RegFlushKey(key.handle), os::kErrorSuccess);
  EXPECT_EQ(Query(key.handle, "Name").bytes, TextWithNul("kept"));
}

TEST_F(RegistryContract, RootsAreKeysToo) {
  EXPECT_EQ(Query(os::kHkeyCurrentUser, "QDIX contract tests, missing").code, os::kErrorFileNotFound);
}

TEST_F(RegistryContract, ClosedHandleIsInvalid) {
  KeyHandle closed = 0;
  {
    const OpenKey key = Create();
    closed = key.handle;
  }
  KeyHandle opened = kUntouched;
  EXPECT_EQ(Query(closed, "Name").code, os::kErrorInvalidHandle);
  EXPECT_EQ(Set(closed, "Name", os::kRegSz, TextWithNul("x")), os::kErrorInvalidHandle);
  EXPECT_EQ(system.registry.RegDeleteValueA(closed, "Name"), os::kErrorInvalidHandle);
  EXPECT_EQ(system.registry.RegOpenKeyExA(closed, "Child", os::kKeyQueryValue, opened),
            os::kErrorInvalidHandle);
  EXPECT_EQ(system.registry.RegCreateKeyExA(closed, "Child", os::kKeyAllAccess, opened),
            os::kErrorInvalidHandle);
  EXPECT_EQ(system.registry.RegFlushKey(closed), os::kErrorInvalidHandle);
  EXPECT_EQ(system.registry.RegCloseKey(closed), os::kErrorInvalidHandle);
  EXPECT_EQ(opened, kUntouched);
}

TEST_F(RegistryContract, TextsOfTheProgramSurviveTheRoundTrip) {
  const std::string path = Below("Settings");
  for (const std::string text : {"", "64 MB", "True", "1,5", "a\tb", "\xE4\xF6\xFC"}) {
    auto writer =
        registry::RegistryKey::Create(system.registry, os::kHkeyCurrentUser, path, os::kKeySetValue);
    ASSERT_TRUE(writer.WriteText("Text", text)) << text;
    const auto reader =
        registry::RegistryKey::Open(system.registry, os::kHkeyCurrentUser, path, os::kKeyQueryValue);
    EXPECT_EQ(reader.ReadText("Text"), text);
  }
}

}  // namespace
}  // namespace qdix::contract
