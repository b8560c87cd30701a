#include "undo/settings.h"

#include <array>

#include "base/text.h"
#include "registry/registry_key.h"
#include "shell/file_content.h"

namespace qdix::undo {

namespace {

/// Default values for reading an entry. An entry that equals one of them differs from the other. They are
/// printable, because Windows 95 may trim blanks and control characters, and not empty, because an empty text
/// would be put back as an empty line.
constexpr std::array<const char*, 2> kMissing{"(missing)", "(none)"};

/// More equal lines than fit into a file of 64 KB.
constexpr int kMaxEqualLines = 8192;

/// Returns the value to write so that Windows reads this text. Windows drops blanks at the ends and one pair
/// of quotation marks around a value, unless another pair encloses them.
std::string ValueThatReadsAs(const std::string& text) {
  const bool has_blanks = base::Trim(text).size() != text.size();
  const bool is_quoted =
      text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
  return has_blanks || is_quoted ? '"' + text + '"' : text;
}

}  // namespace

void Settings::Read() {
  record_ = Record::Read(system_.registry);
  system_ini_state_ = ReadFile(WindowsFolder() + tuning::kSystemIni).state;
  ReadBackup();
}

IniFile Settings::ReadFile(const std::string& path) const {
  const std::optional<std::string> bytes = shell::ReadWholeFile(system_.files, path, kMaxIniBytes);
  if (bytes.has_value()) return {.state = StateOfIni(*bytes), .bytes = *bytes};
  const std::uint32_t attributes = system_.files.GetFileAttributesA(path.c_str());
  const bool is_file =
      attributes != os::kInvalidFileAttributes && (attributes & os::kFileAttributeDirectory) == 0;
  return {.state = is_file ? IniState::kUnreadable : IniState::kMissing};
}

void Settings::ReadBackup() {
  const std::string path = BackupPath();
  backup_ = {.state = ReadFile(path).state};
  os::FoundFile found;
  if (system_.files.FindFirstFileA(path.c_str(), found)) backup_.found = found;
  const Texts texts = backup_.IsWhole() ? ReadBackupTexts() : Texts{};
  backup_.agrees = BackupAgrees(texts);
  for (std::size_t entry = 0; entry < kEntries.size(); ++entry) before_[entry] = ReadBefore(entry, texts);
}

Settings::Texts Settings::ReadBackupTexts() const {
  const std::string path = BackupPath();
  Texts texts;
  for (std::size_t entry = 0; entry < kEntries.size(); ++entry) {
    if (!kEntries[entry].IsInSystemIni()) continue;
    texts[entry] = ReadEntry(kEntries[entry], path.c_str());
  }
  return texts;
}

bool Settings::BackupAgrees(const Texts& texts) const {
  for (std::size_t entry = 0; entry < kEntries.size(); ++entry) {
    if (!Agree(kEntries[entry], record_.Value(entry), record_.IsComplete(), texts[entry])) return false;
  }
  return true;
}

Before Settings::ReadBefore(std::size_t entry, const Texts& backup_texts) const {
  if (!record_.IsTaken()) {
    const bool is_own = !kEntries[entry].IsInSystemIni() && ReadTemplate() == tuning::kOwnTemplate;
    return is_own && offers_own_template_ ? Before{.known = Before::Known::kFromItsName} : Before{};
  }
  if (kEntries[entry].IsInSystemIni() && backup_.CanSupplyEntries()) {
    return FromBoth(kEntries[entry], record_.Value(entry), record_.IsComplete(), backup_texts[entry]);
  }
  return FromRecord(kEntries[entry], record_.Value(entry));
}

std::optional<std::string> Settings::ReadNow(const Entry& entry) const {
  return entry.IsInSystemIni() ? ReadEntry(entry, tuning::kSystemIni) : ReadTemplate();
}

std::optional<std::string> Settings::ReadTemplate() const {
  auto name = registry::RegistryKey::Open(system_.registry, os::kHkeyLocalMachine, tuning::kTemplatesKey,
                                          os::kKeyQueryValue)
                  .ReadText(tuning::kUnnamedValue);
  return name.value_or("").empty() ? std::nullopt : name;
}

/// Counts an entry as missing only if two reads agree. While another program holds the file for a moment, it
/// reads as if it had no entries, and an entry missing from the backup is offered for removal.
std::optional<std::string> Settings::ReadEntry(const Entry& entry, const char* file) const {
  for (const char* const missing : kMissing) {
    // One more character than an entry may have, to detect longer ones.
    std::array<char, kMaxTextLength + 2> buffer{};
    const std::uint32_t copied = system_.profile_files.GetPrivateProfileStringA(
        entry.section, entry.key, missing, buffer.data(), buffer.size(), file);
    std::string text(base::CutAtNul({buffer.data(), copied}));
    if (text != missing) return text;
  }
  return std::nullopt;
}

void Settings::PutBack(const Entry& entry, const Before& before) {
  if (!before.text.has_value()) {
    Remove(entry);
  } else if (entry.IsInSystemIni()) {
    system_ini_.WriteIniText(entry.section, entry.key, ValueThatReadsAs(*before.text), tuning::kSystemIni);
  } else {
    module_registry_.WriteRegistryText(os::kHkeyLocalMachine, tuning::kTemplatesKey, tuning::kUnnamedValue,
                                       *before.text);
  }
}

/// Repeats the removal: it deletes only the first of several equal lines, and the next one would take effect.
void Settings::Remove(const Entry& entry) {
  if (!entry.IsInSystemIni()) {
    module_registry_.DeleteRegistryValue(os::kHkeyLocalMachine, tuning::kTemplatesKey, tuning::kUnnamedValue);
    return;
  }
  for (int line = 0; line < kMaxEqualLines; ++line) {
    const bool is_removed = system_.profile_files.WritePrivateProfileStringA(entry.section, entry.key,
                                                                             nullptr, tuning::kSystemIni);
    if (!is_removed || !ReadEntry(entry, tuning::kSystemIni).has_value()) return;
  }
}

void Settings::FlushSystemIni() {
  system_.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, tuning::kSystemIni);
}

Replacement Settings::RestoreWholeFile() {
  FlushSystemIni();
  const IniFile backup = ReadFile(BackupPath());
  if (!backup.IsWhole()) return {};
  return ReplaceSystemIni(system_.files, WindowsFolder(), backup.bytes);
}

std::string Settings::BackupPath() const { return WindowsFolder() + tuning::kSystemBackup; }

}  // namespace qdix::undo
