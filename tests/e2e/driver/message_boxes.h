// Message boxes of a program, which hold it up until somebody answers.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

namespace qdix::e2e {

struct MessageBox {
  HWND window = nullptr;
  std::string title;
  std::string text;
};

/// The boxes that a process shows now.
[[nodiscard]] std::vector<MessageBox> MessageBoxesOf(DWORD process_id);

/// Presses a button of the box, by its standard number (IDOK, IDYES...), and waits until the box is gone;
/// false when it has no such button or stays.
[[nodiscard]] bool PressButton(const MessageBox& box, int button);

/// The report that a machine with more memory than 32 bits count gives rise to. It says nothing about the
/// program; whoever drives it answers it on the way.
[[nodiscard]] bool IsReportOfAnImplausibleReading(const MessageBox& box);

}  // namespace qdix::e2e
