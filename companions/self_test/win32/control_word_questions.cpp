#include <windows.h>

#include <array>

#include "os/win32/shortcut_object.h"
#include "runtime/float_control.h"
#include "self_test/answer_texts.h"
#include "self_test/win32/loaded_library.h"
#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

namespace {

/// The exit code is the control word.
DWORD WINAPI ReadInNewThread(void* /*unused*/) { return runtime::FloatingPointControl(); }

/// Our own thread has had its word set by the start of the program.
std::string OfNewThread() {
  constexpr DWORD kLimitMs = 10000;
  DWORD number = 0;
  HANDLE const thread = CreateThread(nullptr, 0, &ReadInNewThread, nullptr, 0, &number);
  if (thread == nullptr) return "no thread";
  DWORD word = 0;
  const bool has_ended =
      WaitForSingleObject(thread, kLimitMs) == WAIT_OBJECT_0 && GetExitCodeThread(thread, &word) != FALSE;
  CloseHandle(thread);
  return has_ended ? Hex(word, 4) : "the thread does not end";
}

/// Makes a call with our control word and returns the one it leaves. Restores ours.
std::string WordAfter(void (*call)()) {
  const runtime::FloatingPointKeeper keeper;
  runtime::SetFloatingPointControl();
  call();
  return Hex(runtime::FloatingPointControl(), 4);
}

void LoadCommonDialogs() { const LoadedLibrary library("comdlg32.dll"); }
void LoadPrinting() { const LoadedLibrary library("winspool.drv"); }

void MakeObject() { const os::win32::ShortcutObject shortcut; }

constexpr std::array<Question, 4> kQuestions{
    {{"Control word of a new thread", &OfNewThread},
     {"Control word after loading comdlg32.dll", [] { return WordAfter(&LoadCommonDialogs); }},
     {"Control word after loading winspool.drv", [] { return WordAfter(&LoadPrinting); }},
     {"Control word after a COM object", [] { return WordAfter(&MakeObject); }}}};

}  // namespace

std::span<const Question> AboutControlWord() { return kQuestions; }

}  // namespace qdix::self_test::win32::questions
