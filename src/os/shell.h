// The shell: the notification area of the taskbar, and opening files with the programs they belong to.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "os/windows.h"

namespace qdix::os {

/// An icon of the system; 0 is none.
using IconHandle = std::uintptr_t;

inline constexpr std::uint32_t kNimAdd = 0;
inline constexpr std::uint32_t kNimModify = 1;
inline constexpr std::uint32_t kNimDelete = 2;

/// Message, icon and tip of the record are valid.
inline constexpr std::uint32_t kNifAll = 7;

/// The notification record as the first Windows 95 knows it: 88 bytes on a 32-bit system.
struct NotifyIconData {
  std::uint32_t size_bytes = 88;
  WindowHandle owner = 0;
  std::uint32_t id = 0;
  std::uint32_t flags = 0;
  std::uint32_t callback_message = 0;
  IconHandle icon = 0;
  std::array<char, 64> tip{};
};

/// The program's window fills the screen.
inline constexpr int kSwShowMaximized = 3;

class Shell {
 public:
  virtual ~Shell() = default;

  /// Adds, modifies or deletes an icon. False when the shell refuses or is not there.
  virtual bool Shell_NotifyIconA(std::uint32_t request, const NotifyIconData& data) = 0;

  /// Does to a file what a verb says ("Open"), for no window, with the program's window shown as asked. False
  /// where the file or a program for it is missing; the shell may have said so itself.
  virtual bool ShellExecuteA(const char* verb, const std::string& path, int show) = 0;
};

}  // namespace qdix::os
