// Gives any system.ini to the tuning tabs and to the program that undoes their changes. Whatever it contains,
// the lines of other programs stay, the backup equals the original file, and nothing is left open. A failing
// run prints its seed.
#include <gtest/gtest.h>

#include "tests/fuzz/corpus.h"
#include "tests/support/tuning_rig.h"
#include "undo/undo_form.h"

namespace qdix::tests {
namespace {

constexpr const char* kOthers = "[OtherProgram]\r\nKeep=this line\r\n";

/// A machine whose system.ini is `ini` followed by the lines of another program.
class MachineWithIni {
 public:
  explicit MachineWithIni(const std::string& ini) : before_(ini + "\r\n" + kOthers) {
    rig_.WriteSystemIni(before_);
    rig_.machine.WhileBoxIsOpen([this] { AnswerBox(); });
  }

  void Run() {
    Tune();
    EXPECT_NE(rig_.SystemIni(), before_);
    ExpectSound();
    PutBack();
    ExpectSound();
  }

 private:
  /// Answers Yes to every question except the one about the restart.
  void AnswerBox() {
    const auto& box = rig_.machine.Boxes().back();
    const bool asks = (box.flags & os::kMbYesNo) != 0;
    const bool restarts = box.text.find("restart") != std::string::npos;
    rig_.machine.AnswerNextBox(!asks ? os::kIdOk : restarts ? os::kIdNo : os::kIdYes);
  }

  void Tune() {
    rig_.StartAt(screens::kCacheTab);
    ASSERT_FALSE(rig_.program->Form().Unloaded());
    rig_.program->CacheScreen().Combo2.Choose("Multimedia (Win95)");
    rig_.program->CacheScreen().Command11.Press();
    rig_.program->MainWindow().SSTab1.ChooseTab(screens::kSwapFileTab);
    rig_.program->SwapFileScreen().optSwap2.Press();
    rig_.program->SwapFileScreen().Text8.SetText("192");
    rig_.program->SwapFileScreen().Command18.Press();
    rig_.End();
  }

  void PutBack() {
    rig_.machine.SetModuleFileName("C:\\Program Files\\QDIX\\undo.exe");
    undo::UndoForm form(rig_.machine.GetSystem());
    form.Start();
    form.Screen().cmdPutBack.Press();
    form.Form().Unload();
    rig_.machine.EndProcess();
  }

  void ExpectSound() {
    const std::string now = rig_.SystemIni();
    EXPECT_NE(now.find(kOthers), std::string::npos) << now;
    EXPECT_EQ(rig_.machine.ReadFile(kBackupPath), before_);
    EXPECT_EQ(rig_.machine.OpenKeyCount(), 0);
    EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
  }

  TuningRig rig_;
  const std::string before_;
};

TEST(SystemIniFuzz, CorpusWholeAndDamagedIsTunedAndPutBack) {
  RunCorpus("system_ini", 25,
            [](unsigned /*seed*/, const std::string& bytes) { MachineWithIni(bytes).Run(); });
}

}  // namespace
}  // namespace qdix::tests
