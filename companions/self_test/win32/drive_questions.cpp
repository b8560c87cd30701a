#include <windows.h>

#include <array>

#include "base/numbers.h"
#include "os/win32/late_binding.h"
#include "os/win32/suppressed_disk_errors.h"
#include "self_test/answer_texts.h"
#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

namespace {

/// Returns what `answer` says about the root of the Windows drive, then about the same text without the
/// backslash.
std::string WithAndWithoutBackslash(std::string (*answer)(const char* root)) {
  std::array<char, MAX_PATH> root{};
  AnswerList answers;
  if (GetWindowsDirectoryA(root.data(), root.size()) >= root.size()) return answers.Text();
  for (const std::size_t length : {3, 2}) {
    root[length] = '\0';
    answers.Add({root.data(), " ", answer(root.data())});
  }
  return answers.Text();
}

/// Makes a query that returns whether it succeeded.
std::string Outcome(BOOL (*query)(const char* root), const char* root) {
  const os::win32::SuppressedDiskErrors quiet;
  SetLastError(ERROR_SUCCESS);
  if (query(root) != FALSE) return "succeeded";
  return "refused (error " + base::ShortestText(GetLastError()) + ")";
}

BOOL QueryExtended(const char* root) {
  ULARGE_INTEGER ignored{};
  return os::win32::FindExtendedQuery()(root, &ignored, &ignored, &ignored);
}

BOOL QuerySpace(const char* root) {
  DWORD ignored = 0;
  return GetDiskFreeSpaceA(root, &ignored, &ignored, &ignored, &ignored);
}

BOOL QueryVolume(const char* root) {
  DWORD flags = 0;
  return GetVolumeInformationA(root, nullptr, 0, nullptr, nullptr, &flags, nullptr, 0);
}

std::string ExtendedSpace() {
  if (os::win32::FindExtendedQuery() == nullptr) return "no such function";
  return WithAndWithoutBackslash([](const char* root) { return Outcome(&QueryExtended, root); });
}

std::string Space() {
  return WithAndWithoutBackslash([](const char* root) { return Outcome(&QuerySpace, root); });
}

std::string Volume() {
  return WithAndWithoutBackslash([](const char* root) { return Outcome(&QueryVolume, root); });
}

std::string Type() {
  return WithAndWithoutBackslash([](const char* root) { return base::ShortestText(GetDriveTypeA(root)); });
}

constexpr std::array<Question, 4> kQuestions{{{"Drive: GetDiskFreeSpaceEx", &ExtendedSpace},
                                              {"Drive: GetDiskFreeSpace", &Space},
                                              {"Drive: GetVolumeInformation", &Volume},
                                              {"Drive: GetDriveType", &Type}}};

}  // namespace

std::span<const Question> AboutDrives() { return kQuestions; }

}  // namespace qdix::self_test::win32::questions
