// Files byte by byte: opening, sequential reading, writing, renaming.
#include <string>

#include "base/text.h"
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

class OpenFilesContract : public ContractTest {
 protected:
  OpenFilesContract() { DeleteFiles(); }
  ~OpenFilesContract() override { DeleteFiles(); }

  void DeleteFiles() {
    system.files.DeleteFileA(kFile);
    system.files.DeleteFileA(kOther);
  }
  void Write(const char* path, const std::string& content) {
    const os::FileHandle file = system.files.CreateFileA(path, os::kGenericWrite, os::kCreateAlways);
    ASSERT_NE(file, os::kInvalidFile);
    std::uint32_t written = 0;
    EXPECT_TRUE(
        system.files.WriteFile(file, content.data(), static_cast<std::uint32_t>(content.size()), written));
    EXPECT_EQ(written, content.size());
    EXPECT_TRUE(system.files.FlushFileBuffers(file));
    system.files.CloseHandle(file);
  }
  /// Reads at most `size_bytes` bytes and returns what was read.
  std::string ReadOn(os::FileHandle file, std::uint32_t size_bytes) {
    std::string text(size_bytes, '?');
    std::uint32_t read = 0;
    EXPECT_TRUE(system.files.ReadFile(file, text.data(), size_bytes, read));
    return text.substr(0, read);
  }
  std::string Content(const char* path) {
    const os::FileHandle file = system.files.CreateFileA(path, os::kGenericRead, os::kOpenExisting);
    if (file == os::kInvalidFile) return "no file";
    const std::string content = ReadOn(file, 100);
    system.files.CloseHandle(file);
    return content;
  }

  static constexpr const char* kFile = "C:\\qdix_contract.dat";
  static constexpr const char* kShort = "C:\\qdixcont.dat";
  static constexpr const char* kOther = "C:\\qdix_contract.tmp";
};

TEST_F(OpenFilesContract, MissingFileIsNotOpened) {
  EXPECT_EQ(system.files.CreateFileA(kFile, os::kGenericRead, os::kOpenExisting), os::kInvalidFile);
  EXPECT_EQ(Content(kFile), "no file");
}

TEST_F(OpenFilesContract, OpenAlwaysCreatesAnEmptyFileAndKeepsAnExistingOne) {
  os::FileHandle file = system.files.CreateFileA(kFile, os::kGenericRead, os::kOpenAlways);
  ASSERT_NE(file, os::kInvalidFile);
  EXPECT_EQ(system.files.GetFileSize(file), 0U);
  EXPECT_EQ(ReadOn(file, 10), "");
  system.files.CloseHandle(file);
  Write(kFile, "kept");
  file = system.files.CreateFileA(kFile, os::kGenericRead, os::kOpenAlways);
  EXPECT_EQ(system.files.GetFileSize(file), 4U);
  system.files.CloseHandle(file);
}

TEST_F(OpenFilesContract, CreateAlwaysEmptiesAFile) {
  Write(kFile, "a long text");
  Write(kFile, "short");
  EXPECT_EQ(Content(kFile), "short");
}

TEST_F(OpenFilesContract, ReadingContinuesWhereItEnded) {
  Write(kFile, std::string("ab\0cd", 5));
  const os::FileHandle file = system.files.CreateFileA(kFile, os::kGenericRead, os::kOpenExisting);
  EXPECT_EQ(ReadOn(file, 2), "ab");
  EXPECT_EQ(ReadOn(file, 10), std::string("\0cd", 3));
  EXPECT_EQ(ReadOn(file, 10), "");
  system.files.CloseHandle(file);
}

TEST_F(OpenFilesContract, FileOpenedForReadingCannotBeWritten) {
  Write(kFile, "kept");
  const os::FileHandle file = system.files.CreateFileA(kFile, os::kGenericRead, os::kOpenExisting);
  std::uint32_t written = 9;
  EXPECT_FALSE(system.files.WriteFile(file, "x", 1, written));
  EXPECT_EQ(written, 0U);
  system.files.CloseHandle(file);
  EXPECT_EQ(Content(kFile), "kept");
}

TEST_F(OpenFilesContract, MovedFileHasOnlyItsNewName) {
  Write(kFile, "content");
  EXPECT_TRUE(system.files.MoveFileA(kFile, kOther));
  EXPECT_EQ(Content(kFile), "no file");
  EXPECT_EQ(Content(kOther), "content");
}

TEST_F(OpenFilesContract, MoveFailsOverAnotherFileAndWithoutASource) {
  Write(kOther, "other");
  EXPECT_FALSE(system.files.MoveFileA(kFile, kOther));
  Write(kFile, "content");
  EXPECT_FALSE(system.files.MoveFileA(kFile, kOther));
  EXPECT_EQ(Content(kFile), "content");
  EXPECT_EQ(Content(kOther), "other");
}

TEST_F(OpenFilesContract, FoundFileHasItsDateAndItsDosName) {
  constexpr double kMinute = 1.0 / (24 * 60);
  Write(kFile, "content");
  os::FoundFile found;
  ASSERT_TRUE(system.files.FindFirstFileA(kFile, found));
  EXPECT_NEAR(found.changed_days, system.clock.Now(), kMinute);
  EXPECT_LE(found.dos_name.size(), std::string("FILENAME.EXT").size()) << found.dos_name;
  EXPECT_NE(found.dos_name, "");
  EXPECT_EQ(found.dos_name.find_first_of(" \\"), std::string::npos) << found.dos_name;
}

TEST_F(OpenFilesContract, ValidDosNameIsItsOwnDosName) {
  Write(kShort, "content");
  os::FoundFile found;
  EXPECT_TRUE(system.files.FindFirstFileA(kShort, found));
  EXPECT_EQ(base::UpperAscii(found.dos_name), "QDIXCONT.DAT");
  system.files.DeleteFileA(kShort);
}

TEST_F(OpenFilesContract, MissingFileIsNotFound) {
  os::FoundFile found{.changed_days = 7, .dos_name = "kept"};
  EXPECT_FALSE(system.files.FindFirstFileA(kFile, found));
  EXPECT_EQ(found.changed_days, 7);
  EXPECT_EQ(found.dos_name, "kept");
}

TEST_F(OpenFilesContract, CopyKeepsTheDateOfItsSource) {
  constexpr int kMoreThanASecondMs = 1500;
  Write(kFile, "content");
  os::FoundFile source;
  ASSERT_TRUE(system.files.FindFirstFileA(kFile, source));
  machine->LetTimePass(kMoreThanASecondMs);
  ASSERT_TRUE(system.files.CopyFileA(kFile, kOther));
  os::FoundFile copy;
  ASSERT_TRUE(system.files.FindFirstFileA(kOther, copy));
  EXPECT_EQ(copy.changed_days, source.changed_days);
  Write(kOther, "changed");
  ASSERT_TRUE(system.files.FindFirstFileA(kOther, copy));
  EXPECT_GT(copy.changed_days, source.changed_days);
}

TEST_F(OpenFilesContract, DeletedFileIsGone) {
  Write(kFile, "content");
  EXPECT_TRUE(system.files.DeleteFileA(kFile));
  EXPECT_EQ(Content(kFile), "no file");
  EXPECT_FALSE(system.files.DeleteFileA(kFile));
}

}  // namespace
}  // namespace qdix::contract
