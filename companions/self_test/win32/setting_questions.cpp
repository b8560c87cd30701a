#include <windows.h>

#include <array>

#include "base/numbers.h"
#include "self_test/answer_texts.h"
#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

namespace {

// What the headers of the first Windows 95 lack.
constexpr UINT kGetForegroundLockTimeout = 0x2000;
constexpr UINT kGetWheelLines = 0x68;
constexpr int kHotColour = 26;
constexpr int kMonitorCount = 80;
constexpr WORD kHandCursor = 32649;

std::string ForegroundLock() {
  DWORD timeout_ms = 0;
  if (SystemParametersInfoA(kGetForegroundLockTimeout, 0, &timeout_ms, 0) == FALSE) return "no such setting";
  return base::ShortestText(timeout_ms) + " ms";
}

std::string LaterSettings() {
  AnswerList known;
  UINT lines = 0;
  if (GetSysColorBrush(kHotColour) != nullptr) known.Add({"hot colour"});
  if (LoadCursorA(nullptr, MAKEINTRESOURCEA(kHandCursor)) != nullptr) known.Add({"hand cursor"});
  if (SystemParametersInfoA(kGetWheelLines, 0, &lines, 0) != FALSE) known.Add({"wheel lines"});
  if (GetSystemMetrics(kMonitorCount) != 0) known.Add({"number of monitors"});
  return known.Text();
}

std::string HandlesOfOneKey() {
  HKEY first = nullptr;
  HKEY second = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Software", 0, KEY_READ, &first) != ERROR_SUCCESS) return "unknown";
  const LONG opened = RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Software", 0, KEY_READ, &second);
  std::string answer = opened != ERROR_SUCCESS ? "unknown"
                       : first == second       ? "the same handle"
                                               : "two handles";
  if (opened == ERROR_SUCCESS) RegCloseKey(second);
  RegCloseKey(first);
  return answer;
}

constexpr std::array<Question, 3> kQuestions{{{"Foreground lock", &ForegroundLock},
                                              {"Later settings", &LaterSettings},
                                              {"Registry key opened twice", &HandlesOfOneKey}}};

}  // namespace

std::span<const Question> AboutSettings() { return kQuestions; }

}  // namespace qdix::self_test::win32::questions
