// The shell: the notification area of the taskbar, and opening files with their programs.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "os/top_level_windows.h"

namespace qdix::os {

/// A system icon; 0 means none.
using IconHandle = std::uintptr_t;

inline constexpr std::uint32_t kNimAdd = 0;
inline constexpr std::uint32_t kNimModify = 1;
inline constexpr std::uint32_t kNimDelete = 2;

/// The record's message, icon and tooltip are valid.
inline constexpr std::uint32_t kNifAll = 7;

/// The notification record as the first Windows 95 defines it: 88 bytes on a 32-bit system.
struct NotifyIconData {
  std::uint32_t size_bytes = 88;
  WindowHandle owner = 0;
  std::uint32_t id = 0;
  std::uint32_t flags = 0;
  std::uint32_t callback_message = 0;
  IconHandle icon = 0;
  std::array<char, 64> tip{};
};

/// The program's window is maximised.
inline constexpr int kSwShowMaximized = 3;

class Shell {
 public:
  /// Adds, modifies or deletes an icon. False if the shell refuses or is not running.
  virtual bool Shell_NotifyIconA(std::uint32_t request, const NotifyIconData& data) = 0;

  /// Applies a verb ("Open") to a file, without an owner window; `show` says how to show the program's
  /// window. False if the file, or a program for it, is missing. The shell may already have shown a message.
  virtual bool ShellExecuteA(const char* verb, const std::string& path, int show) = 0;

 protected:
  ~Shell() = default;
};

}  // namespace qdix::os
