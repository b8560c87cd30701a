// Asks the system how it behaves where versions of Windows differ, mostly by reading. What is created (hidden
// windows, a thread, timers) belongs to this program and is gone before a question ends. Shows nothing on the
// screen. The answers confirm or correct the rules of tests/strict95/; README.md says which.
//
// Everything that asks is in this namespace of its own, because the strict Windows 95 reports such calls
// elsewhere.
#pragma once

#include <span>
#include <string>

#include "self_test/report.h"

namespace qdix::self_test::win32::questions {

struct Question {
  const char* name;
  /// Returns the answer.
  std::string (*ask)();
};

/// Queries about the Windows drive by its root with and without the backslash.
[[nodiscard]] std::span<const Question> AboutDrives();

/// Later functions and libraries; versions.
[[nodiscard]] std::span<const Question> AboutLibraries();

/// Classes and later messages of the common controls.
[[nodiscard]] std::span<const Question> AboutControls();

/// Numbers that do not fit into 16 bits.
[[nodiscard]] std::span<const Question> AboutRanges();

/// The foreground lock, later settings, registry handles.
[[nodiscard]] std::span<const Question> AboutSettings();

/// The 387's control word in a new thread and after calls into other libraries. Leaves ours.
[[nodiscard]] std::span<const Question> AboutControlWord();

/// Asks for the addresses of functions that the first Windows 95 exports only to fail. Does not call them.
void AskForAddresses(Report& report);

/// Asks which sizes of structures the system accepts.
void AskForSizes(Report& report);

/// Asks all of these.
void AskAboutSystem(Report& report);

}  // namespace qdix::self_test::win32::questions
