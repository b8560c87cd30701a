#include <windows.h>

#include <array>
#include <cstdint>

#include "base/numbers.h"
#include "os/win32/late_binding.h"
#include "self_test/answer_texts.h"
#include "self_test/win32/loaded_library.h"
#include "self_test/win32/system_questions.h"

namespace qdix::self_test::win32::questions {

namespace {

using os::win32::FindFunction;

struct Function {
  const char* library;
  const char* name;
};

/// Exported by the first Windows 95 only to fail, by cmake/win95-exports/stubs-in-95.txt; the last one works
/// there, for comparison. The libraries are always loaded.
constexpr std::array<Function, 8> kStubs{{{"kernel32.dll", "MoveFileExA"},
                                          {"kernel32.dll", "LockFileEx"},
                                          {"kernel32.dll", "CreateFileW"},
                                          {"kernel32.dll", "CreateMutexW"},
                                          {"advapi32.dll", "RegNotifyChangeKeyValue"},
                                          {"user32.dll", "ToUnicode"},
                                          {"gdi32.dll", "MaskBlt"},
                                          {"kernel32.dll", "lstrlenW"}}};

constexpr std::array<Function, 6> kLaterFunctions{{{"kernel32.dll", "GetDiskFreeSpaceExA"},
                                                   {"kernel32.dll", "GetLongPathNameA"},
                                                   {"kernel32.dll", "InterlockedCompareExchange"},
                                                   {"user32.dll", "TrackMouseEvent"},
                                                   {"user32.dll", "MonitorFromWindow"},
                                                   {"comctl32.dll", "InitCommonControlsEx"}}};

constexpr std::array<const char*, 3> kLaterLibraries{"msvcrt.dll", "shlwapi.dll", "uxtheme.dll"};

/// The published record of DllGetVersion.
struct LibraryVersion {
  DWORD size_bytes = sizeof(LibraryVersion);
  DWORD major = 0;
  DWORD minor = 0;
  DWORD build = 0;
  DWORD platform = 0;
};
using VersionQuery = HRESULT(CALLBACK*)(LibraryVersion*);

FARPROC AddressOf(const Function& function) {
  return GetProcAddress(GetModuleHandleA(function.library), function.name);
}

/// Returns the address and the first bytes of the code. Functions that only fail often share their code, or
/// have next to none.
std::string AddressAndCode(const Function& function) {
  constexpr std::size_t kCodeBytes = 12;
  const auto* const code = reinterpret_cast<const std::uint8_t*>(AddressOf(function));
  if (code == nullptr) return "none";
  std::string text = Hex(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(code)), 8);
  text += ", code";
  if (IsBadReadPtr(code, kCodeBytes) != FALSE) return text += " unreadable";
  for (const std::uint8_t byte : std::span(code, kCodeBytes)) {
    text += ' ';
    text += Hex(byte, 2);
  }
  return text;
}

std::string LaterFunctions() {
  AnswerList found;
  for (const Function& function : kLaterFunctions) {
    if (AddressOf(function) != nullptr) found.Add({function.name});
  }
  return found.Text();
}

/// Looks for the files. Loading them would run their code.
std::string LaterLibraries() {
  std::array<char, MAX_PATH> folder{};
  if (GetSystemDirectoryA(folder.data(), folder.size()) >= folder.size()) return "folder unknown";
  AnswerList found;
  for (const char* const name : kLaterLibraries) {
    std::string path = folder.data();
    path += '\\';
    path += name;
    if (GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES) found.Add({name});
  }
  return found.Text();
}

std::string Dotted(std::initializer_list<DWORD> numbers) {
  std::string text;
  for (const DWORD number : numbers) {
    if (!text.empty()) text += '.';
    text += base::ShortestText(number);
  }
  return text;
}

std::string ReportedVersion(HMODULE library) {
  const auto query = FindFunction<VersionQuery>(library, "DllGetVersion");
  LibraryVersion version;
  if (query == nullptr || FAILED(query(&version))) return "none";
  return Dotted({version.major, version.minor, version.build});
}

/// Loads version.dll only for this question.
std::string FileVersion(HMODULE library) {
  const LoadedLibrary reader("version.dll");
  if (reader.Get() == nullptr) return "unknown";
  const auto size =
      FindFunction<DWORD(WINAPI*)(const char*, DWORD*)>(reader.Get(), "GetFileVersionInfoSizeA");
  const auto read =
      FindFunction<BOOL(WINAPI*)(const char*, DWORD, DWORD, void*)>(reader.Get(), "GetFileVersionInfoA");
  const auto find =
      FindFunction<BOOL(WINAPI*)(const void*, const char*, void**, UINT*)>(reader.Get(), "VerQueryValueA");
  std::array<char, MAX_PATH> path{};
  const DWORD length = GetModuleFileNameA(library, path.data(), path.size());
  if (size == nullptr || read == nullptr || find == nullptr || length == 0) return "unknown";
  DWORD ignored = 0;
  std::string block(size(path.data(), &ignored), '\0');
  void* found = nullptr;
  UINT found_bytes = 0;
  if (block.empty() || read(path.data(), 0, block.size(), block.data()) == FALSE ||
      find(block.data(), "\\", &found, &found_bytes) == FALSE || found_bytes < sizeof(VS_FIXEDFILEINFO)) {
    return "unknown";
  }
  const auto& version = *static_cast<const VS_FIXEDFILEINFO*>(found);
  return Dotted({HIWORD(version.dwFileVersionMS), LOWORD(version.dwFileVersionMS),
                 HIWORD(version.dwFileVersionLS), LOWORD(version.dwFileVersionLS)});
}

std::string Version(const char* name) {
  HMODULE const library = GetModuleHandleA(name);
  AnswerList versions;
  versions.Add({"DllGetVersion ", ReportedVersion(library)});
  versions.Add({"file ", FileVersion(library)});
  return versions.Text();
}

constexpr std::array<Question, 4> kQuestions{
    {{"Later functions", &LaterFunctions},
     {"Later libraries", &LaterLibraries},
     {"Version of comctl32.dll", [] { return Version("comctl32.dll"); }},
     {"Version of shell32.dll", [] { return Version("shell32.dll"); }}}};

}  // namespace

std::span<const Question> AboutLibraries() { return kQuestions; }

void AskForAddresses(Report& report) {
  for (const Function& stub : kStubs) {
    report.Ask(std::string("Address of ") + stub.name, [&stub] { return AddressAndCode(stub); });
  }
}

}  // namespace qdix::self_test::win32::questions
