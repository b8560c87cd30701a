#include "self_test/win32/own_places.h"

#include <windows.h>

#include <array>

namespace qdix::self_test::win32 {

namespace {

/// The key that also contains the settings of Q-DIX and of other programs.
constexpr const char* kSettingsKey = "Software\\VB and VBA Program Settings";
constexpr const char* kOwnKey = "Software\\VB and VBA Program Settings\\QDIX Self-Test";
constexpr const char* kOwnFolder = "QDIXTEST";

bool HasKey(const char* path) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

/// Deletes subkeys first, as Windows NT requires. Returns true if the key does not exist afterwards.
bool DeleteKeyTree(HKEY parent, const char* path) {
  HKEY key = nullptr;
  const LONG opened = RegOpenKeyExA(parent, path, 0, KEY_ALL_ACCESS, &key);
  if (opened == ERROR_FILE_NOT_FOUND) return true;
  if (opened != ERROR_SUCCESS) return false;
  std::array<char, MAX_PATH> name{};
  while (RegEnumKeyA(key, 0, name.data(), name.size()) == ERROR_SUCCESS) {
    if (!DeleteKeyTree(key, name.data())) break;
  }
  RegCloseKey(key);
  return RegDeleteKeyA(parent, path) == ERROR_SUCCESS;
}

/// Checks first that the key is empty: Windows 95 deletes a key with all its contents.
bool DeleteEmptyKey(const char* path) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return true;
  DWORD keys = 0;
  DWORD values = 0;
  const LONG counted = RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                                        nullptr, nullptr, nullptr, nullptr);
  RegCloseKey(key);
  if (counted != ERROR_SUCCESS) return false;
  return keys != 0 || values != 0 || RegDeleteKeyA(HKEY_CURRENT_USER, path) == ERROR_SUCCESS;
}

/// Deletes the folder and the files directly in it. The programs make no folders there.
bool DeleteFolder(const std::string& folder) {
  if (GetFileAttributesA(folder.c_str()) == INVALID_FILE_ATTRIBUTES) return true;
  // Otherwise Windows may write cached entries of the INI file later.
  WritePrivateProfileStringA(nullptr, nullptr, nullptr, (folder + "\\system.ini").c_str());
  WIN32_FIND_DATAA found{};
  HANDLE const search = FindFirstFileA((folder + "\\*").c_str(), &found);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::string path = folder + "\\" + static_cast<const char*>(found.cFileName);
      if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) DeleteFileA(path.c_str());
    } while (FindNextFileA(search, &found) != FALSE);
    FindClose(search);
  }
  return RemoveDirectoryA(folder.c_str()) != FALSE;
}

}  // namespace

std::string TemporaryFolder() {
  std::array<char, MAX_PATH> buffer{};
  const DWORD length = GetTempPathA(buffer.size(), buffer.data());
  std::string folder = length < buffer.size() ? std::string(buffer.data(), length) : std::string();
  if (!folder.empty() && folder.back() != '\\') folder += '\\';
  return folder;
}

OwnPlacesKeeper::OwnPlacesKeeper()
    : places_{.key = kOwnKey, .folder = TemporaryFolder() + kOwnFolder},
      settings_existed_(HasKey(kSettingsKey)) {
  if (!DeleteKeyTree(HKEY_CURRENT_USER, kOwnKey)) return;
  // If it cannot be deleted, it may still be usable.
  DeleteFolder(places_.folder);
  CreateDirectoryA(places_.folder.c_str(), nullptr);
  const DWORD attributes = GetFileAttributesA(places_.folder.c_str());
  is_made_ = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

Outcome OwnPlacesKeeper::WereCreated() const {
  return is_made_ ? Outcome::Ok(places_.folder)
                  : Outcome::Failed("cannot prepare the test key or " + places_.folder);
}

Outcome OwnPlacesKeeper::Remove() const {
  const bool key_is_gone = DeleteKeyTree(HKEY_CURRENT_USER, kOwnKey);
  const bool above_is_gone = settings_existed_ || DeleteEmptyKey(kSettingsKey);
  if (!DeleteFolder(places_.folder)) return Outcome::Failed(places_.folder + " could not be removed");
  return Outcome::Expect(key_is_gone && above_is_gone, "the registry key could not be removed");
}

}  // namespace qdix::self_test::win32
