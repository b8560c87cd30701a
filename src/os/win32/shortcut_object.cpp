#include "os/win32/shortcut_object.h"

// objbase.h and shlobj.h need windows.h first.
// clang-format off
#include <windows.h>
#include <objbase.h>
#include <shlobj.h>
// clang-format on

#include <array>

#include "os/win32/late_binding.h"

namespace qdix::os::win32 {

namespace {

// The published identifiers of the shell link class and its two interfaces.
constexpr GUID kShellLinkClass = {0x00021401, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID kShellLinkInterface = {0x000214EE, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID kPersistFileInterface = {0x0000010B, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

/// IPersistFile takes two-byte characters only.
using WidePath = std::array<WCHAR, MAX_PATH>;

bool Widen(const std::string& path, WidePath& wide) {
  return MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide.data(), static_cast<int>(wide.size())) != 0;
}

}  // namespace

ShortcutObject::ShortcutObject() : library_(LoadLibraryA("ole32.dll")) {
  if (library_ == nullptr) return;
  const auto initialize = FindFunction<decltype(&CoInitialize)>(library_, "CoInitialize");
  const auto create = FindFunction<decltype(&CoCreateInstance)>(library_, "CoCreateInstance");
  if (initialize == nullptr || create == nullptr) return;
  is_initialised_ = SUCCEEDED(initialize(nullptr));
  void* made = nullptr;
  if (FAILED(create(kShellLinkClass, nullptr, CLSCTX_INPROC_SERVER, kShellLinkInterface, &made))) return;
  link_ = static_cast<IShellLinkA*>(made);
  void* asked = nullptr;
  if (SUCCEEDED(link_->QueryInterface(kPersistFileInterface, &asked))) {
    file_ = static_cast<IPersistFile*>(asked);
  }
}

ShortcutObject::~ShortcutObject() {
  if (file_ != nullptr) file_->Release();
  if (link_ != nullptr) link_->Release();
  if (library_ == nullptr) return;
  const auto uninitialize = FindFunction<decltype(&CoUninitialize)>(library_, "CoUninitialize");
  if (is_initialised_ && uninitialize != nullptr) uninitialize();
  FreeLibrary(library_);
}

bool ShortcutObject::Load(const std::string& path) {
  WidePath wide;
  return file_ != nullptr && Widen(path, wide) && SUCCEEDED(file_->Load(wide.data(), STGM_READ));
}

bool ShortcutObject::Set(const Shortcut& shortcut) {
  return link_ != nullptr && SUCCEEDED(link_->SetPath(shortcut.target.c_str())) &&
         SUCCEEDED(link_->SetArguments(shortcut.arguments.c_str())) &&
         SUCCEEDED(link_->SetWorkingDirectory(shortcut.folder.c_str()));
}

bool ShortcutObject::Save(const std::string& path) {
  WidePath wide;
  return file_ != nullptr && Widen(path, wide) && SUCCEEDED(file_->Save(wide.data(), TRUE));
}

std::optional<Shortcut> ShortcutObject::Read() const {
  if (link_ == nullptr) return std::nullopt;
  std::array<char, MAX_PATH> target{};
  std::array<char, MAX_PATH> arguments{};
  std::array<char, MAX_PATH> folder{};
  WIN32_FIND_DATAA of_file{};  // unused, but the first shell32 may write even through a null pointer
  const bool is_file = link_->GetPath(target.data(), static_cast<int>(target.size()), &of_file, 0) == S_OK &&
                       target[0] != '\0';
  const bool has_rest =
      SUCCEEDED(link_->GetArguments(arguments.data(), static_cast<int>(arguments.size()))) &&
      SUCCEEDED(link_->GetWorkingDirectory(folder.data(), static_cast<int>(folder.size())));
  if (!is_file || !has_rest) return std::nullopt;
  return Shortcut{target.data(), arguments.data(), folder.data()};
}

}  // namespace qdix::os::win32
