#include "tests/e2e/driver/message_boxes.h"

#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

constexpr const char* kDialogClass = "#32770";
constexpr int kTextNumber = 0xFFFF;
constexpr const char* kReportBegins = "An error has occurred. The following info may help debug.";

}  // namespace

std::vector<MessageBox> MessageBoxesOf(DWORD process_id) {
  std::vector<MessageBox> boxes;
  for (const HWND window : TopLevelWindows(process_id, kDialogClass)) {
    if (IsWindowVisible(window) == 0) continue;
    boxes.push_back({window, TextOf(window), TextOf(GetDlgItem(window, kTextNumber))});
  }
  return boxes;
}

bool PressButton(const MessageBox& box, int button) {
  const HWND its_button = GetDlgItem(box.window, button);
  if (its_button == nullptr) return false;
  PostMessageA(its_button, BM_CLICK, 0, 0);
  return Eventually([&box] { return IsWindow(box.window) == 0; });
}

bool IsReportOfAnImplausibleReading(const MessageBox& box) { return box.text.starts_with(kReportBegins); }

}  // namespace qdix::e2e
