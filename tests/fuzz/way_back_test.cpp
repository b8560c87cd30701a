// Undoing is exact: whatever system.ini contained and however often both tuning tabs were saved, undoing all
// settings makes each of them read as before and touches no line of another program. A failing run prints its
// seed.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "tests/fuzz/corpus.h"
#include "tests/fuzz/system_ini_maker.h"
#include "tests/support/tuning_rig.h"
#include "undo/ini_state.h"
#include "undo/undo_form.h"

namespace qdix::tests {
namespace {

using Texts = std::array<std::optional<std::string>, undo::kEntries.size()>;

bool IsControl(char character) { return static_cast<unsigned char>(character) < ' '; }

/// True for the entries that the tabs change.
bool IsOwnKey(std::string_view section, std::string_view key) {
  return std::any_of(undo::kEntries.begin(), undo::kEntries.end(), [&](const undo::Entry& entry) {
    return entry.IsInSystemIni() && base::EqualsIgnoringCase(entry.section, section) &&
           base::EqualsIgnoringCase(entry.key, key);
  });
}

/// Returns all lines except those of the tabs' entries and the section heading that the first of them may
/// have added.
std::string ForeignLines(const std::string& content) {
  std::string lines;
  std::string section;
  std::string line;
  for (const char character : content + "\n") {
    if (character != '\n') {
      if (character != '\r') line += character;
      continue;
    }
    const std::string_view text = base::Trim(line);
    if (text.starts_with('[')) section = text.substr(1, text.find(']') - 1);
    const bool is_own =
        IsOwnKey(section, base::Trim(line.substr(0, line.find('=')))) && line.find('=') != std::string::npos;
    const bool is_heading = base::EqualsIgnoringCase(text, "[vcache]");
    if (!is_own && !is_heading && !line.empty()) lines += line + "\n";
    line.clear();
  }
  return lines;
}

class WayBack : private RandomSource {
 public:
  WayBack(unsigned seed, const std::string& ini) : RandomSource(seed), before_(ini) {
    rig_.WriteSystemIni(before_);
    if (Chance(4)) rig_.machine.SetRegistryValue(os::kHkeyLocalMachine, kTemplatesPath, "", "Server");
    rig_.machine.WhileBoxIsOpen([this] { AnswerBox(); });
    texts_before_ = ReadTexts();
  }

  void Run() {
    const unsigned sessions = 1 + Random() % 3;
    for (unsigned session = 0; session < sessions; ++session) Tune();
    PutBackAll();
    ExpectTextsAsBefore();
    EXPECT_EQ(ForeignLines(rig_.SystemIni()), ForeignLines(before_));
    EXPECT_TRUE(rig_.machine.Misuses().empty());
    EXPECT_EQ(rig_.machine.OpenKeyCount(), 0);
  }

 private:
  /// Answers Yes to every question except the one about the restart, and now and then gives another answer.
  void AnswerBox() {
    const auto& box = rig_.machine.Boxes().back();
    const bool asks = (box.flags & os::kMbYesNo) != 0;
    const bool is_refused = box.text.find("restart") != std::string::npos || (is_tuning_ && Chance(8));
    rig_.machine.AnswerNextBox(!asks ? os::kIdOk : is_refused ? os::kIdNo : os::kIdYes);
  }

  [[nodiscard]] Texts ReadTexts() {
    const os::System& system = rig_.machine.GetSystem();
    Texts texts;
    for (std::size_t entry = 0; entry < undo::kEntries.size(); ++entry) {
      if (!undo::kEntries[entry].IsInSystemIni()) {
        texts[entry] = rig_.machine.RegistryText(os::kHkeyLocalMachine, kTemplatesPath, "");
        continue;
      }
      std::array<char, 1000> buffer{};
      const std::uint32_t copied = system.profile_files.GetPrivateProfileStringA(
          undo::kEntries[entry].section, undo::kEntries[entry].key, "\x01", buffer.data(), buffer.size(),
          "system.ini");
      const std::string text(buffer.data(), copied);
      if (text != "\x01") texts[entry] = text;
    }
    return texts;
  }

  void Tune() {
    is_tuning_ = true;
    rig_.StartAt(screens::kCacheTab);
    ASSERT_FALSE(rig_.program->Form().Unloaded());
    for (unsigned saves = 1 + Random() % 4; saves > 0; --saves) {
      if (Chance(2)) {
        SaveCache();
      } else {
        SaveSwapFile();
      }
    }
    rig_.End();
    is_tuning_ = false;
  }

  void SaveCache() {
    rig_.program->MainWindow().SSTab1.ChooseTab(screens::kCacheTab);
    auto& tab = rig_.program->CacheScreen();
    if (Chance(2)) tab.Combo2.ChooseIndex(static_cast<int>(Random() % 12));
    for (ui::CheckBox* const box : {&tab.Check5, &tab.Check6, &tab.Check7, &tab.Check8}) {
      if (Chance(4)) box->Press();
    }
    if (Chance(5)) tab.Command14.Press();
    tab.Command11.Press();
  }

  void SaveSwapFile() {
    rig_.program->MainWindow().SSTab1.ChooseTab(screens::kSwapFileTab);
    auto& tab = rig_.program->SwapFileScreen();
    if (Chance(3)) {
      tab.optSwap1.Press();
    } else {
      tab.optSwap2.Press();
      tab.Combo3.ChooseIndex(0);
      tab.Text8.SetText(std::to_string(64 + Random() % 600));
    }
    tab.Command18.Press();
  }

  void PutBackAll() {
    rig_.machine.SetModuleFileName("C:\\Program Files\\QDIX\\undo.exe");
    undo::UndoForm form(rig_.machine.GetSystem());
    form.Start();
    for (undo::EntryRow* const row : form.Screen().Rows()) row->box.SetTicked(row->box.Enabled());
    form.Screen().cmdPutBack.Press();
    form.Form().Unload();
  }

  /// An entry that the program cannot read whole, or that would not fit into one line, is shown and left
  /// alone.
  void ExpectTextsAsBefore() {
    const bool is_recorded =
        rig_.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "FirstSave").has_value();
    const Texts now = ReadTexts();
    for (std::size_t entry = 0; entry < undo::kEntries.size(); ++entry) {
      const std::string text = texts_before_[entry].value_or("");
      if (text.size() > undo::kMaxTextLength || std::any_of(text.begin(), text.end(), IsControl)) continue;
      EXPECT_EQ(now[entry], texts_before_[entry])
          << undo::NameOf(undo::kEntries[entry]) << (is_recorded ? "" : ", never saved") << "\n"
          << before_;
    }
  }

  TuningRig rig_;
  const std::string before_;
  Texts texts_before_;
  bool is_tuning_ = false;
};

TEST(WayBackFuzz, ThousandGeneratedFilesReadAsBefore) {
  RunSeeds(1000, [](unsigned seed) {
    RandomSource random(seed);
    WayBack(seed, SystemIniMaker(random).Make()).Run();
  });
}

/// Appends the parts of a complete system.ini where the corpus file lacks them.
TEST(WayBackFuzz, CorpusWholeAndDamagedReadsAsBefore) {
  RunCorpus("system_ini", 10, [](unsigned seed, const std::string& bytes) {
    const bool is_whole = undo::StateOfIni(bytes) == undo::IniState::kWhole;
    WayBack(seed, is_whole ? bytes : bytes + "\r\n[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\n").Run();
  });
}

}  // namespace
}  // namespace qdix::tests
