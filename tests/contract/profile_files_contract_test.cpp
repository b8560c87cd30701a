// Profile files: reading, writing and removing entries of a file in the Windows directory.
#include <array>

#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

constexpr const char* kFile = "qdixtest.ini";

class ProfileFilesContract : public ContractTest {
 protected:
  ~ProfileFilesContract() override {
    for (const char* key : {"Size", "Other", "Text"}) Write("vcache", key, nullptr);
  }
  bool Write(const char* section, const char* key, const char* value) {
    return system.profile_files.WritePrivateProfileStringA(section, key, value, kFile);
  }
  /// Returns the number of characters copied, followed by the text.
  std::string Read(const char* section, const char* key, std::uint32_t room = 255) {
    std::array<char, 255> buffer{};
    const std::uint32_t copied =
        system.profile_files.GetPrivateProfileStringA(section, key, "0", buffer.data(), room, kFile);
    return std::to_string(copied) + ":" + buffer.data();
  }
};

TEST_F(ProfileFilesContract, MissingEntryGivesTheDefault) { EXPECT_EQ(Read("vcache", "Size"), "1:0"); }

TEST_F(ProfileFilesContract, DefaultLosesTheBlanksAtItsEnd) {
  std::array<char, 255> buffer{};
  EXPECT_EQ(system.profile_files.GetPrivateProfileStringA("vcache", "Size", "none  ", buffer.data(),
                                                          buffer.size(), kFile),
            4U);
  EXPECT_STREQ(buffer.data(), "none");
}

TEST_F(ProfileFilesContract, WrittenEntryIsReadInAnyCaseOfItsNames) {
  EXPECT_TRUE(Write("vcache", "Size", "4096"));
  EXPECT_EQ(Read("vcache", "Size"), "4:4096");
  EXPECT_EQ(Read("VCACHE", "size"), "4:4096");
  EXPECT_TRUE(Write("vcache", "SIZE", "512"));
  EXPECT_EQ(Read("vcache", "Size"), "3:512");
}

TEST_F(ProfileFilesContract, EntriesOfOneSectionCoexist) {
  EXPECT_TRUE(Write("vcache", "Size", "1"));
  EXPECT_TRUE(Write("vcache", "Other", "2"));
  EXPECT_TRUE(Write("vcache", "Size", nullptr));
  EXPECT_EQ(Read("vcache", "Size"), "1:0");
  EXPECT_EQ(Read("vcache", "Other"), "1:2");
}

TEST_F(ProfileFilesContract, EmptyEntryExists) {
  EXPECT_TRUE(Write("vcache", "Text", ""));
  EXPECT_EQ(Read("vcache", "Text"), "0:");
}

TEST_F(ProfileFilesContract, ValueThatDoesNotFitIsCut) {
  EXPECT_TRUE(Write("vcache", "Text", std::string(300, 'x').c_str()));
  EXPECT_EQ(Read("vcache", "Text"), "254:" + std::string(254, 'x'));
  EXPECT_EQ(Read("vcache", "Text", 5), "4:xxxx");
  EXPECT_TRUE(Write("vcache", "Text", std::string(254, 'y').c_str()));
  EXPECT_EQ(Read("vcache", "Text"), "254:" + std::string(254, 'y'));
}

TEST_F(ProfileFilesContract, OnePairOfQuotationMarksAndSurroundingBlanksAreStripped) {
  EXPECT_TRUE(Write("vcache", "Text", "\"a b\""));
  EXPECT_EQ(Read("vcache", "Text"), "3:a b");
  EXPECT_TRUE(Write("vcache", "Text", "  c  "));
  EXPECT_EQ(Read("vcache", "Text"), "1:c");
}

TEST_F(ProfileFilesContract, RemovingAMissingEntrySucceeds) {
  EXPECT_TRUE(Write("vcache", "Size", nullptr));
  EXPECT_EQ(Read("vcache", "Size"), "1:0");
}

TEST_F(ProfileFilesContract, FlushIsAlwaysFalseAndKeepsWhatWasWritten) {
  EXPECT_TRUE(Write("vcache", "Size", "4096"));
  EXPECT_FALSE(Write(nullptr, nullptr, nullptr));
  EXPECT_EQ(Read("vcache", "Size"), "4:4096");
  EXPECT_FALSE(Write(nullptr, nullptr, nullptr)) << "nothing to write out";
}

class FilesContract : public ContractTest {
 protected:
  /// Returns the Windows directory with a backslash at its end.
  std::string WindowsFolder() {
    std::array<char, 255> buffer{};
    EXPECT_GT(system.files.GetWindowsDirectoryA(buffer.data(), buffer.size()), 0U);
    return std::string(buffer.data()) + "\\";
  }
};

TEST_F(FilesContract, WindowsDirectoryIsAFullPathWithoutASeparatorAtItsEnd) {
  std::array<char, 255> buffer{};
  const std::uint32_t length = system.files.GetWindowsDirectoryA(buffer.data(), buffer.size());
  const std::string folder = buffer.data();
  EXPECT_EQ(folder.size(), length);
  ASSERT_GT(length, 3U);
  EXPECT_EQ(folder.substr(1, 2), ":\\");
  EXPECT_NE(folder.back(), '\\');
}

TEST_F(FilesContract, NoCharacterTakesTwoBytesInTheWest) {
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_FALSE(system.files.IsDBCSLeadByte(static_cast<char>(byte))) << byte;
  }
}

TEST_F(FilesContract, CopyReplacesAnEarlierFileAndFailsWithoutASource) {
  const std::string folder = WindowsFolder();
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", "1", kFile));
  const std::string copy = folder + "qdixcopy.ini";
  EXPECT_TRUE(system.files.CopyFileA((folder + kFile).c_str(), copy.c_str()));
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", "2", kFile));
  EXPECT_TRUE(system.files.CopyFileA((folder + kFile).c_str(), copy.c_str()));
  std::array<char, 16> value{};
  EXPECT_EQ(
      system.profile_files.GetPrivateProfileStringA("s", "k", "", value.data(), value.size(), copy.c_str()),
      1U);
  EXPECT_EQ(std::string(value.data()), "2");
  EXPECT_FALSE(system.files.CopyFileA((folder + "no such.ini").c_str(), copy.c_str()));
  EXPECT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", nullptr, kFile));
}

TEST_F(FilesContract, FlushedProfileFileCanBeReplacedAndIsReadAgain) {
  const std::string file = WindowsFolder() + kFile;
  const std::string copy = WindowsFolder() + "qdixcopy.ini";
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", "1", kFile));
  system.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, kFile);
  ASSERT_TRUE(system.files.CopyFileA(file.c_str(), copy.c_str()));
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", "2", kFile));
  system.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, kFile);
  ASSERT_TRUE(system.files.CopyFileA(copy.c_str(), file.c_str()));
  std::array<char, 16> value{};
  EXPECT_EQ(system.profile_files.GetPrivateProfileStringA("s", "k", "", value.data(), value.size(), kFile),
            1U);
  EXPECT_EQ(std::string(value.data()), "1");
  EXPECT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", nullptr, kFile));
}

TEST_F(FilesContract, EntryKeepsTheSpellingOfItsKey) {
  const std::string file = WindowsFolder() + kFile;
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "Key", "1", kFile));
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("S", "KEY", "2", kFile));
  system.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, kFile);
  const os::FileHandle opened = system.files.CreateFileA(file.c_str(), os::kGenericRead, os::kOpenExisting);
  ASSERT_NE(opened, os::kInvalidFile);
  std::array<char, 200> content{};
  std::uint32_t read = 0;
  EXPECT_TRUE(system.files.ReadFile(opened, content.data(), content.size(), read));
  system.files.CloseHandle(opened);
  EXPECT_NE(std::string(content.data(), read).find("Key=2\r\n"), std::string::npos);
  EXPECT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "Key", nullptr, kFile));
}

TEST_F(FilesContract, AttributesDistinguishAFileAFolderAndNothing) {
  const std::string folder = WindowsFolder();
  ASSERT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", "1", kFile));
  system.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, kFile);
  const std::uint32_t file = system.files.GetFileAttributesA((folder + kFile).c_str());
  EXPECT_NE(file, os::kInvalidFileAttributes);
  EXPECT_EQ(file & os::kFileAttributeDirectory, 0U);
  const std::string bare_folder = folder.substr(0, folder.size() - 1);
  const std::uint32_t attributes = system.files.GetFileAttributesA(bare_folder.c_str());
  ASSERT_NE(attributes, os::kInvalidFileAttributes);
  EXPECT_NE(attributes & os::kFileAttributeDirectory, 0U);
  EXPECT_EQ(system.files.GetFileAttributesA((folder + "no such.ini").c_str()), os::kInvalidFileAttributes);
  EXPECT_TRUE(system.profile_files.WritePrivateProfileStringA("s", "k", nullptr, kFile));
}

}  // namespace
}  // namespace qdix::contract
