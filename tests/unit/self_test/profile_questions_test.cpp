// The self-test's questions about INI files, on systems that answer them differently.
#include "self_test/profile_questions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>

#include "os/simulated/simulated_machine.h"

namespace qdix::tests {
namespace {

constexpr const char* kLog = "C:\\LOGS\\TEST.LOG";
constexpr const char* kFolder = "C:\\TEMP\\QDIXTEST";
constexpr const char* kFile = "C:\\TEMP\\QDIXTEST\\ASK.INI";

/// The INI files of a system that keeps changes in memory and drops control characters from values and
/// defaults.
class CachingProfileFiles final : public os::ProfileFiles {
 public:
  explicit CachingProfileFiles(os::ProfileFiles& real) : real_(real) {}

  std::uint32_t GetPrivateProfileStringA(const char* section, const char* key, const char* missing,
                                         char* buffer, std::uint32_t size_bytes, const char* file) override {
    WriteOut();
    return real_.GetPrivateProfileStringA(section, key, Printable(missing).c_str(), buffer, size_bytes, file);
  }

  bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                  const char* file) override {
    WriteOut();
    if (value == nullptr) return real_.WritePrivateProfileStringA(section, key, value, file);
    kept_ = {section, key, Printable(value), file};
    return true;
  }

 private:
  struct Entry {
    std::string section;
    std::string key;
    std::string value;
    std::string file;
  };

  static std::string Printable(const std::string& text) {
    std::string printable;
    for (const char character : text) {
      if (character >= ' ') printable += character;
    }
    return printable;
  }

  void WriteOut() {
    if (!kept_.has_value()) return;
    const Entry entry = *kept_;
    kept_.reset();
    real_.WritePrivateProfileStringA(entry.section.c_str(), entry.key.c_str(), entry.value.c_str(),
                                     entry.file.c_str());
  }

  os::ProfileFiles& real_;
  std::optional<Entry> kept_;
};

class ProfileQuestions : public testing::Test {
 protected:
  /// Asks all questions. Returns the answer of each by its name.
  std::map<std::string, std::string> Ask(os::ProfileFiles& profile_files) {
    {
      self_test::Report report(machine.GetSystem().files, machine.GetSystem().clock, kLog, kLog);
      self_test::AskAboutProfileFiles(report, profile_files, machine.GetSystem().files, kFolder);
    }
    std::map<std::string, std::string> answers;
    std::istringstream lines(machine.ReadFile(kLog).value_or(""));
    constexpr std::string_view kAnswer = ". answer: ";
    for (std::string line; std::getline(lines, line);) {
      const std::size_t answer = line.find(kAnswer) + kAnswer.size();
      answers[line.substr(0, line.find(" .."))] = line.substr(answer, line.rfind(", ") - answer);
    }
    return answers;
  }

  [[nodiscard]] os::ProfileFiles& Plain() { return machine.GetSystem().profile_files; }

  os::SimulatedMachine machine;
};

TEST_F(ProfileQuestions, SystemThatWritesAtOnce) {
  const auto answers = Ask(Plain());
  EXPECT_EQ(answers, (std::map<std::string, std::string>{
                         {"INI file: new entry is in the file", "at once"},
                         {"INI file: \"(missing)\"", "value kept, default kept"},
                         {"INI file: \"\\x01\"", "value kept, default read as \"\""},
                         {"INI file: \"none  \"", "value read as \"none\", default read as \"none\""}}));
}

TEST_F(ProfileQuestions, SystemThatCachesAndDropsControlCharacters) {
  CachingProfileFiles caching(Plain());
  const auto answers = Ask(caching);
  EXPECT_EQ(answers.at("INI file: new entry is in the file"), "after the flush");
  EXPECT_EQ(answers.at("INI file: \"(missing)\""), "value kept, default kept");
  EXPECT_EQ(answers.at("INI file: \"\\x01\""), "value read as \"\", default read as \"\"");
}

TEST_F(ProfileQuestions, SystemThatRefusesToWrite) {
  machine.WriteFile(kFile, "");
  machine.ProtectFile(kFile);
  for (const auto& [name, answer] : Ask(Plain())) EXPECT_EQ(answer, "cannot be written") << name;
}

TEST_F(ProfileQuestions, FileIsFlushedClosedAndDeleted) {
  Ask(Plain());
  EXPECT_FALSE(machine.ReadFile(kFile).has_value());
  EXPECT_EQ(machine.OpenFileCount(), 0);
  EXPECT_TRUE(machine.Misuses().empty());
  const auto& calls = machine.Calls();
  const auto deleted = std::find(calls.begin(), calls.end(), std::string("DeleteFileA(") + kFile + ")");
  ASSERT_NE(deleted, calls.end());
  EXPECT_EQ(*std::prev(deleted), std::string("WritePrivateProfileStringA(") + kFile + " flushed)");
}

}  // namespace
}  // namespace qdix::tests
