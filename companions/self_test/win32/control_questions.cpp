#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <array>
#include <span>

#include "self_test/answer_texts.h"
#include "self_test/win32/hidden_window.h"
#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

namespace {

constexpr std::array<const char*, 12> kFirstClasses{
    "SysTabControl32",    "msctls_trackbar32", "msctls_updown32", "tooltips_class32",
    "msctls_progress32",  "msctls_hotkey32",   "SysAnimate32",    "SysHeader32",
    "msctls_statusbar32", "ToolbarWindow32",   "SysListView32",   "SysTreeView32"};
constexpr std::array<const char*, 6> kLaterClasses{"ReBarWindow32", "ComboBoxEx32",   "SysDateTimePick32",
                                                   "SysMonthCal32", "SysIPAddress32", "SysPager"};

// Messages of common controls 4.70 and later.
constexpr UINT kSetMaxTipWidth = WM_USER + 24;
constexpr UINT kGetMaxTipWidth = WM_USER + 25;
constexpr UINT kSetRange32 = WM_USER + 111;
constexpr UINT kGetRange32 = WM_USER + 112;
constexpr UINT kSetExtendedTabStyle = 0x1334;
constexpr UINT kGetExtendedTabStyle = 0x1335;

std::string Existing(std::span<const char* const> names) {
  InitCommonControls();
  AnswerList found;
  for (const char* const name : names) {
    WNDCLASSA description{};
    if (GetClassInfoA(nullptr, name, &description) != FALSE) found.Add({name});
  }
  return found.Text();
}

/// Sets something by a later message and asks for it by another. A control that knows neither answers 0.
std::string LaterMessages() {
  constexpr LPARAM kWidth = 123;
  constexpr LPARAM kLimit = 70000;
  constexpr LRESULT kFlatSeparators = 1;
  AnswerList known;
  const auto tips = HiddenWindow(TOOLTIPS_CLASSA);
  SendMessageA(tips.get(), kSetMaxTipWidth, 0, kWidth);
  if (SendMessageA(tips.get(), kGetMaxTipWidth, 0, 0) == kWidth) known.Add({"tip width"});
  const auto up_down = HiddenWindow(UPDOWN_CLASSA);
  int high = 0;
  SendMessageA(up_down.get(), kSetRange32, 0, kLimit);
  SendMessageA(up_down.get(), kGetRange32, 0, reinterpret_cast<LPARAM>(&high));
  if (high == kLimit) known.Add({"32-bit up-down range"});
  const auto tab = HiddenWindow(WC_TABCONTROLA);
  SendMessageA(tab.get(), kSetExtendedTabStyle, 0, kFlatSeparators);
  if (SendMessageA(tab.get(), kGetExtendedTabStyle, 0, 0) == kFlatSeparators)
    known.Add({"extended tab style"});
  return known.Text();
}

constexpr std::array<Question, 3> kQuestions{
    {{"Classes of the first common controls", [] { return Existing(kFirstClasses); }},
     {"Classes of later common controls", [] { return Existing(kLaterClasses); }},
     {"Messages of later common controls", &LaterMessages}}};

}  // namespace

std::span<const Question> AboutControls() { return kQuestions; }

}  // namespace qdix::self_test::win32::questions
