#include "self_test/profile_questions.h"

#include <array>
#include <string_view>

#include "base/text.h"
#include "self_test/answer_texts.h"

namespace qdix::self_test {

namespace {

constexpr const char* kSection = "ask";
constexpr const char* kKey = "entry";
constexpr const char* kMissingKey = "missing";
/// Written once and looked for in the bytes of the file.
constexpr const char* kMark = "QDIXTEST";

class ProfileQuestions {
 public:
  ProfileQuestions(os::ProfileFiles& profile_files, os::Files& files, const std::string& path)
      : profile_files_(profile_files), files_(files), path_(path) {}
  ProfileQuestions(const ProfileQuestions&) = delete;
  ProfileQuestions& operator=(const ProfileQuestions&) = delete;
  ~ProfileQuestions() {
    Flush();
    files_.DeleteFileA(path_.c_str());
  }

  /// What comes back of a text as the value of an entry, and as the default for a missing one.
  [[nodiscard]] std::string AsValueAndDefault(const char* text) {
    if (!Write(text)) return "cannot be written";
    AnswerList answers;
    answers.Add({"value ", Returned(text, Read(kKey, ""))});
    answers.Add({"default ", Returned(text, Read(kMissingKey, text))});
    return answers.Text();
  }

  [[nodiscard]] std::string WhenVisible() {
    if (!Write(kMark)) return "cannot be written";
    if (FileHasMark()) return "at once";
    Flush();
    return FileHasMark() ? "after the flush" : "not even after the flush";
  }

 private:
  [[nodiscard]] static std::string Returned(std::string_view text, std::string_view returned) {
    return returned == text ? "kept" : "read as " + Quoted(returned);
  }

  [[nodiscard]] bool Write(const char* value) {
    return profile_files_.WritePrivateProfileStringA(kSection, kKey, value, path_.c_str());
  }

  [[nodiscard]] std::string Read(const char* key, const char* missing) {
    std::array<char, 64> buffer{};
    static_cast<void>(profile_files_.GetPrivateProfileStringA(kSection, key, missing, buffer.data(),
                                                              buffer.size(), path_.c_str()));
    return std::string(base::CutAtNul({buffer.data(), buffer.size()}));
  }

  void Flush() { profile_files_.WritePrivateProfileStringA(nullptr, nullptr, nullptr, path_.c_str()); }

  /// False also if there is no file yet.
  [[nodiscard]] bool FileHasMark() {
    const os::FileHandle file = files_.CreateFileA(path_.c_str(), os::kGenericRead, os::kOpenExisting);
    if (file == os::kInvalidFile) return false;
    std::array<char, 256> bytes{};
    std::uint32_t read_bytes = 0;
    const bool is_read = files_.ReadFile(file, bytes.data(), bytes.size(), read_bytes);
    files_.CloseHandle(file);
    return is_read && std::string_view(bytes.data(), read_bytes).find(kMark) != std::string_view::npos;
  }

  os::ProfileFiles& profile_files_;
  os::Files& files_;
  const std::string path_;
};

}  // namespace

void AskAboutProfileFiles(Report& report, os::ProfileFiles& profile_files, os::Files& files,
                          const std::string& own_folder) {
  struct Sentinel {
    const char* name;
    const char* text;
  };
  constexpr std::array<Sentinel, 3> kSentinels{{{"INI file: \"(missing)\"", "(missing)"},
                                                {"INI file: \"\\x01\"", "\x01"},
                                                {"INI file: \"none  \"", "none  "}}};
  ProfileQuestions questions(profile_files, files, own_folder + "\\ASK.INI");
  // First, because nothing has read the file yet.
  report.Ask("INI file: new entry is in the file", [&questions] { return questions.WhenVisible(); });
  for (const Sentinel& sentinel : kSentinels) {
    report.Ask(sentinel.name, [&questions, &sentinel] { return questions.AsValueAndDefault(sentinel.text); });
  }
}

}  // namespace qdix::self_test
