#include "tests/e2e/tuning_session.h"

namespace qdix::e2e {

namespace {

/// Without empty lines, which Wine drops when it writes.
constexpr const char* kSmallSystemIni =
    "[boot]\r\n"
    "shell=Explorer.exe\r\n"
    "[386Enh]\r\n"
    "device=*vpowerd\r\n"
    "[vcache]\r\n"
    "[drivers]\r\n"
    "wave=mmsystem.dll\r\n";

}  // namespace

void TuningSession::SetUp() {
  Session::SetUp();
  MarkMachineAsKnown();
  SetWindowsFile(kSystemBackup, std::nullopt);
  SetSystemIni(kSmallSystemIni);
  DeleteTree(kTemplates);
  SetRegistryText(kTemplates, "", "Desktop");
}

void TuningSession::TearDown() {
  Session::TearDown();
  const std::uint32_t count = restarts_.has_value() ? restarts_->Count() : 0;
  EXPECT_EQ(count, expected_restarts_) << "requested restarts";
}

void TuningSession::StartOnTab(int tab) {
  ASSERT_FALSE(restarts_.has_value() && restarts_->Count() != 0) << "a restart was already requested";
  SetRegistryText(kSettings, "LastTab", std::to_string(tab));
  StartProgram();
  ASSERT_EQ(program.OpenedTab(), tab);
  restarts_.emplace(program.Process());
  ASSERT_TRUE(restarts_->Begin());
  ASSERT_TRUE(BringForward(program.MainWindow()));
}

std::string TuningSession::Shown(const std::string& name) const {
  std::string text = program.Text(name);
  std::erase(text, '&');
  return text;
}

void TuningSession::ExpectBox(const std::string& text) const {
  // A box that a key has just answered may still exist for a moment.
  const bool is_shown = program.Await([&] {
    const std::vector<MessageBox> boxes = program.MessageBoxes();
    return boxes.size() == 1 && boxes.front().text == text;
  });
  const std::vector<MessageBox> boxes = program.MessageBoxes();
  ASSERT_TRUE(is_shown) << "expected: " << text
                        << "\nshown: " << (boxes.empty() ? "no box" : boxes.front().text);
  EXPECT_EQ(boxes.front().title, "Q-DIX");
}

void TuningSession::Answer(const std::string& text, int button) const {
  ASSERT_NO_FATAL_FAILURE(ExpectBox(text));
  ASSERT_TRUE(PressButton(program.MessageBoxes().front(), button)) << text;
}

int TuningSession::ButtonWithKeyboard() const {
  const HWND box = program.MessageBoxes().front().window;
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(box, nullptr), &info) == 0) return 0;
  return GetDlgCtrlID(info.hwndFocus);
}

void TuningSession::ExpectKeyboardOn(const std::string& name) const {
  EXPECT_TRUE(Becomes([&] { return program.FocusedControl() == name; }))
      << name << " expected, " << program.FocusedControl() << " has the keyboard";
}

void TuningSession::GoTo(char access_key, const std::string& name) const {
  PressKeyWith(VK_MENU, access_key);
  ExpectKeyboardOn(name);
}

void TuningSession::PhotographTab(const std::string& name) const {
  constexpr POINT kOnCaption{200, 10};
  EXPECT_TRUE(PointAt(program.MainWindow(), kOnCaption));
  EXPECT_TRUE(Becomes([this] { return !program.ShowsToolTip(); }));
  EXPECT_TRUE(Photograph(name));
}

void TuningSession::ExpectRestartAndEnd() {
  expected_restarts_ = 1;
  ExpectCleanEnd(program);
  EXPECT_EQ(restarts_->Count(), 1U);
  EXPECT_EQ(restarts_->Flags(), EWX_REBOOT);
  EXPECT_EQ(restarts_->Reserved(), 0U);
}

}  // namespace qdix::e2e
