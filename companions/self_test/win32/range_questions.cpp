#include <windows.h>

#include <array>

#include "base/numbers.h"
#include "self_test/answer_texts.h"
#include "self_test/win32/hidden_window.h"
#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

namespace {

/// More than a signed number of 16 bits can hold, and more than 16 bits can hold.
constexpr int kAbove15Bits = 40000;
constexpr int kAbove16Bits = 70000;

/// Sets an interval of which 16 bits would leave the shortest that Windows 95 has, and waits for a few of
/// those.
std::string Interval() {
  constexpr UINT kShortMs = 55;
  constexpr UINT kIntervalMs = 0x10000 + kShortMs;
  constexpr DWORD kWaitMs = 6 * kShortMs;
  const auto window = HiddenWindow("STATIC");
  if (SetTimer(window.get(), 1, kIntervalMs, nullptr) == 0) return "refused";
  const DWORD began = GetTickCount();
  bool has_ticked = false;
  DWORD passed_ms = 0;
  while (!has_ticked && passed_ms < kWaitMs) {
    MSG message{};
    MsgWaitForMultipleObjects(0, nullptr, FALSE, kWaitMs - passed_ms, QS_TIMER);
    has_ticked = PeekMessageA(&message, window.get(), WM_TIMER, WM_TIMER, PM_REMOVE) != FALSE;
    passed_ms = GetTickCount() - began;
  }
  KillTimer(window.get(), 1);
  std::string text = has_ticked ? "cut to 16 bits: tick after " : "no tick within ";
  text += base::ShortestText(passed_ms);
  return text += " ms";
}

/// Returns the rectangle of a hidden window after moving it there.
RECT Moved(int left, int width) {
  const auto window = HiddenWindow("STATIC");
  MoveWindow(window.get(), left, 0, width, 1, FALSE);
  RECT box{};
  GetWindowRect(window.get(), &box);
  return box;
}

std::string Left() {
  AnswerList answers;
  for (const int left : {kAbove15Bits, kAbove16Bits}) answers.Add({KeptOrCut(left, Moved(left, 1).left)});
  return answers.Text();
}

std::string Width() {
  const RECT box = Moved(0, kAbove15Bits);
  return KeptOrCut(kAbove15Bits, box.right - box.left);
}

std::string ScrollRange() {
  const auto bar = HiddenWindow("SCROLLBAR");
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_POS;
  info.nMax = kAbove16Bits;
  info.nPos = kAbove15Bits;
  SetScrollInfo(bar.get(), SB_CTL, &info, FALSE);
  info.nMax = 0;
  info.nPos = 0;
  if (GetScrollInfo(bar.get(), SB_CTL, &info) == FALSE) return "cannot be read";
  AnswerList answers;
  answers.Add({"maximum ", KeptOrCut(kAbove16Bits, info.nMax)});
  answers.Add({"position ", KeptOrCut(kAbove15Bits, info.nPos)});
  return answers.Text();
}

std::string ControlNumber() {
  const auto parent = HiddenWindow("STATIC");
  HWND const child = CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 1, 1, parent.get(),
                                     reinterpret_cast<HMENU>(static_cast<INT_PTR>(kAbove16Bits)),
                                     GetModuleHandleA(nullptr), nullptr);
  return child == nullptr ? "refused" : KeptOrCut(kAbove16Bits, GetDlgCtrlID(child));
}

/// Measures long texts of equal characters.
std::string TextLength() {
  const ui::win32::OwnedMemoryDevice device(CreateCompatibleDC(nullptr));
  AnswerList answers;
  for (const int length : {1000, 8191, 8192}) {
    const std::string text(static_cast<std::size_t>(length), 'n');
    SIZE size{};
    const bool is_measured = GetTextExtentPoint32A(device.get(), text.c_str(), length, &size) != FALSE;
    answers.Add({base::TextOf(length), is_measured ? " characters are " : " characters refused, ",
                 base::TextOf(size.cx), " pixels"});
  }
  return answers.Text();
}

constexpr std::array<Question, 6> kQuestions{{{"16 bits: timer of 65591 ms", &Interval},
                                              {"16 bits: left of a window", &Left},
                                              {"16 bits: width of a window", &Width},
                                              {"16 bits: scroll bar", &ScrollRange},
                                              {"16 bits: control number", &ControlNumber},
                                              {"16 bits: length of a text", &TextLength}}};

}  // namespace

std::span<const Question> AboutRanges() { return kQuestions; }

}  // namespace qdix::self_test::win32::questions
