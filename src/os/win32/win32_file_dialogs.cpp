#include "os/win32/win32_file_dialogs.h"

// commdlg.h and shlobj.h need windows.h first.
// clang-format off
#include <windows.h>
#include <commdlg.h>
#include <shlobj.h>
// clang-format on

#include <array>

#include "runtime/float_control.h"

namespace qdix::os::win32 {

namespace {

/// The size of the record in the first Windows 95; later systems appended fields.
constexpr DWORD kOpenFileNameBytes = 76;

int CALLBACK ChooseFolder(HWND dialog, UINT message, LPARAM /*argument*/, LPARAM folder) {
  if (message == BFFM_INITIALIZED && *reinterpret_cast<const char*>(folder) != '\0') {
    SendMessageA(dialog, BFFM_SETSELECTIONA, TRUE, folder);
  }
  return 0;
}

/// Frees an identifier list with the shell's allocator.
void FreeIdentifierList(LPITEMIDLIST list) {
  IMalloc* memory = nullptr;
  if (FAILED(SHGetMalloc(&memory))) return;
  memory->Free(list);
  memory->Release();
}

}  // namespace

std::string Win32FileDialogs::GetOpenFileNameA(const OpenFileRequest& question) {
  const runtime::FloatingPointKeeper keeper;
  std::array<char, MAX_PATH> path{};
  OPENFILENAMEA record{};
  record.lStructSize = kOpenFileNameBytes;
  record.hwndOwner = owner_;
  record.lpstrFilter = question.filter;
  record.lpstrFile = path.data();
  record.nMaxFile = static_cast<DWORD>(path.size());
  record.lpstrInitialDir = question.folder.empty() ? nullptr : question.folder.c_str();
  record.lpstrTitle = question.title;
  // Keeps the current folder: a folder that is current in a program cannot be removed.
  record.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR |
                 OFN_NODEREFERENCELINKS;
  if (::GetOpenFileNameA(&record) == FALSE) return {};
  return path.data();
}

std::string Win32FileDialogs::SHBrowseForFolderA(const std::string& title, const std::string& folder) {
  const runtime::FloatingPointKeeper keeper;
  std::array<char, MAX_PATH> path{};
  BROWSEINFOA record{};
  record.hwndOwner = owner_;
  record.pszDisplayName = path.data();  // receives the name, which is not used
  record.lpszTitle = title.c_str();
  record.ulFlags = BIF_RETURNONLYFSDIRS;
  record.lpfn = &ChooseFolder;
  record.lParam = reinterpret_cast<LPARAM>(folder.c_str());
  const LPITEMIDLIST chosen = ::SHBrowseForFolderA(&record);
  if (chosen == nullptr) return {};
  const bool is_folder = SHGetPathFromIDListA(chosen, path.data()) != FALSE;
  FreeIdentifierList(chosen);
  return is_folder ? path.data() : std::string();
}

}  // namespace qdix::os::win32
