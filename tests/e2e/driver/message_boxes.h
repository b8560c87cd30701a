// Message boxes of a program, which block it until they are answered.
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

/// Returns the boxes that a process shows now.
[[nodiscard]] std::vector<MessageBox> MessageBoxesOf(DWORD process_id);

/// Presses a button of the box, by its standard number (IDOK, IDYES...), and waits until the box has closed.
/// Returns false if it has no such button or stays open.
[[nodiscard]] bool PressButton(const MessageBox& box, int button);

/// True for the report that appears on a machine with more memory than 32 bits can count. It says nothing
/// about the program, so the driver answers it in passing.
[[nodiscard]] bool IsReportOfAnImplausibleReading(const MessageBox& box);

}  // namespace qdix::e2e
