// The shell's folders, its file operations without prompts, and shortcuts. The list of recent documents is
// not tested here: what it makes of a file differs between systems.
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

constexpr const char* kProgram = "C:\\windows\\qdix_contract.exe";

class ShellFilesContract : public ContractTest {
 protected:
  void SetUp() override {
    RemoveAll();
    Write(kProgram, "program");
  }
  void TearDown() override { RemoveAll(); }

  [[nodiscard]] std::string Desktop() const {
    return system.shell_files.SpecialFolder(os::kDesktopFolder) + '\\';
  }
  void Write(const std::string& path, const std::string& content) const {
    const os::FileHandle file = system.files.CreateFileA(path.c_str(), os::kGenericWrite, os::kCreateAlways);
    ASSERT_NE(file, os::kInvalidFile) << path;
    std::uint32_t written = 0;
    EXPECT_TRUE(
        system.files.WriteFile(file, content.data(), static_cast<std::uint32_t>(content.size()), written));
    system.files.CloseHandle(file);
  }
  [[nodiscard]] bool Exists(const std::string& path) const {
    return system.files.GetFileAttributesA(path.c_str()) != os::kInvalidFileAttributes;
  }
  static std::string List(const std::string& name) { return name + std::string(2, '\0'); }

 private:
  void RemoveAll() const {
    for (const std::string& path :
         {std::string(kProgram), std::string("C:\\windows\\qdix_a.txt"),
          std::string("C:\\windows\\qdix_b.txt"), Desktop() + "qdix_a.txt", Desktop() + "qdix_link.lnk"}) {
      system.files.DeleteFileA(path.c_str());
    }
  }
};

TEST_F(ShellFilesContract, ShellFoldersAreFullPathsWithoutATrailingBackslash) {
  for (const int number : {os::kStartupFolder, os::kRecentFolder, os::kStartMenuFolder, os::kDesktopFolder}) {
    const std::string folder = system.shell_files.SpecialFolder(number);
    ASSERT_GT(folder.size(), 3U) << number;
    EXPECT_EQ(folder.substr(1, 2), ":\\");
    EXPECT_NE(folder.back(), '\\');
  }
}

TEST_F(ShellFilesContract, FolderUnknownToTheShellIsEmpty) {
  EXPECT_EQ(system.shell_files.SpecialFolder(0x7FFF), "");
}

TEST_F(ShellFilesContract, FileIsRenamedInItsFolder) {
  Write("C:\\windows\\qdix_a.txt", "a");
  EXPECT_TRUE(system.shell_files.SHFileOperationA(os::kFoRename, List("C:\\windows\\qdix_a.txt"),
                                                  List("C:\\windows\\qdix_b.txt"),
                                                  os::kFofSilent | os::kFofNoConfirmation));
  EXPECT_FALSE(Exists("C:\\windows\\qdix_a.txt"));
  EXPECT_TRUE(Exists("C:\\windows\\qdix_b.txt"));
}

TEST_F(ShellFilesContract, FileIsCopiedIntoAFolderOverAnEarlierOne) {
  Write("C:\\windows\\qdix_a.txt", "a");
  const std::string target = Desktop();
  for (int time = 0; time < 2; ++time) {
    EXPECT_TRUE(system.shell_files.SHFileOperationA(
        os::kFoCopy, List("C:\\windows\\qdix_a.txt"), List(target),
        os::kFofSilent | os::kFofNoConfirmation | os::kFofNoConfirmMkDir));
    EXPECT_TRUE(Exists(target + "qdix_a.txt"));
  }
  EXPECT_TRUE(Exists("C:\\windows\\qdix_a.txt"));
}

TEST_F(ShellFilesContract, ShortcutReadsAsItWasWritten) {
  const std::string path = Desktop() + "qdix_link.lnk";
  ASSERT_TRUE(system.shell_files.WriteShortcut(
      path, {.target = kProgram, .arguments = "/full \"two words\"", .folder = "C:\\windows"}));
  EXPECT_TRUE(Exists(path));
  const auto shortcut = system.shell_files.ReadShortcut(path);
  ASSERT_TRUE(shortcut.has_value());
  EXPECT_STRCASEEQ(shortcut->target.c_str(), kProgram);
  EXPECT_EQ(shortcut->arguments, "/full \"two words\"");
  EXPECT_EQ(shortcut->folder, "C:\\windows");
}

TEST_F(ShellFilesContract, ShortcutIsWrittenOverAnEarlierOne) {
  const std::string path = Desktop() + "qdix_link.lnk";
  ASSERT_TRUE(system.shell_files.WriteShortcut(path, {.target = kProgram, .arguments = "old", .folder = {}}));
  ASSERT_TRUE(system.shell_files.WriteShortcut(path, {.target = kProgram, .arguments = {}, .folder = {}}));
  EXPECT_EQ(system.shell_files.ReadShortcut(path)->arguments, "");
}

TEST_F(ShellFilesContract, FileThatIsNoShortcutHasNoTarget) {
  EXPECT_FALSE(system.shell_files.ReadShortcut(kProgram).has_value());
  EXPECT_FALSE(system.shell_files.ReadShortcut("C:\\windows\\qdix_a.txt").has_value());
}

}  // namespace
}  // namespace qdix::contract
