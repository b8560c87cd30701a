#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <array>
#include <cstdint>

#include "base/numbers.h"
#include "self_test/answer_texts.h"
#include "self_test/win32/hidden_window.h"
#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

namespace {

constexpr int kScrollPosition = 7;

/// Room for a structure of any of the sizes.
template <class Structure>
struct Roomy {
  Structure structure{};
  std::array<std::uint8_t, 32> rest{};
};

bool AcceptsScrollInfo(HWND bar, UINT size_bytes) {
  SetScrollRange(bar, SB_CTL, 0, 100, FALSE);
  SetScrollPos(bar, SB_CTL, kScrollPosition, FALSE);
  Roomy<SCROLLINFO> info;
  info.structure.cbSize = size_bytes;
  info.structure.fMask = SIF_POS;
  return GetScrollInfo(bar, SB_CTL, &info.structure) != FALSE && info.structure.nPos == kScrollPosition;
}

bool AcceptsToolInfo(HWND tips, UINT size_bytes) {
  const auto owner = HiddenWindow("STATIC");
  std::array<char, 4> text{"tip"};
  Roomy<TOOLINFOA> tool;
  tool.structure.cbSize = size_bytes;
  tool.structure.hwnd = owner.get();
  tool.structure.lpszText = text.data();
  return SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool.structure)) != FALSE;
}

bool AcceptsMetrics(HWND /*window*/, UINT size_bytes) {
  Roomy<NONCLIENTMETRICSA> metrics;
  metrics.structure.cbSize = size_bytes;
  return SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, size_bytes, &metrics.structure, 0) != FALSE;
}

bool AcceptsPlacement(HWND window, UINT size_bytes) {
  Roomy<WINDOWPLACEMENT> placement;
  placement.structure.length = size_bytes;
  return GetWindowPlacement(window, &placement.structure) != FALSE;
}

bool AcceptsVersion(HWND /*window*/, UINT size_bytes) {
  Roomy<OSVERSIONINFOA> version;
  version.structure.dwOSVersionInfoSize = size_bytes;
  return GetVersionExA(&version.structure) != FALSE;
}

struct SizeQuestion {
  const char* name;
  /// The class of the window that is asked.
  const char* window_class;
  /// The sizes that are tried; 0 for none.
  std::array<UINT, 3> sizes_bytes;
  bool (*accepts)(HWND window, UINT size_bytes);
};

constexpr std::array<SizeQuestion, 5> kQuestions{
    {{"Size of SCROLLINFO", "SCROLLBAR", {24, 28, 32}, &AcceptsScrollInfo},
     {"Size of TOOLINFO", TOOLTIPS_CLASSA, {40, 44, 48}, &AcceptsToolInfo},
     {"Size of NONCLIENTMETRICS", "STATIC", {340, 344}, &AcceptsMetrics},
     {"Size of WINDOWPLACEMENT", "STATIC", {44, 48}, &AcceptsPlacement},
     {"Size of OSVERSIONINFO", "STATIC", {148, 156}, &AcceptsVersion}}};

std::string Tried(const SizeQuestion& question) {
  AnswerList answers;
  for (const UINT size_bytes : question.sizes_bytes) {
    if (size_bytes == 0) break;
    const auto window = HiddenWindow(question.window_class);
    const bool is_accepted = question.accepts(window.get(), size_bytes);
    answers.Add({base::ShortestText(size_bytes), is_accepted ? " accepted" : " refused"});
  }
  return answers.Text();
}

}  // namespace

void AskForSizes(Report& report) {
  for (const SizeQuestion& question : kQuestions) {
    report.Ask(question.name, [&question] { return Tried(question); });
  }
}

}  // namespace qdix::self_test::win32::questions
