// Starts, watches and ends a program of the system that the shipped programs are compared with.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::e2e {

class OtherProgram {
 public:
  /// `window_class` is the class of the main window; it identifies that window among those of the program.
  OtherProgram(std::string command_line, std::string window_class)
      : command_line_(std::move(command_line)), window_class_(std::move(window_class)) {}
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;
  ~OtherProgram() { End(); }

  /// Returns false if the system does not start it.
  [[nodiscard]] bool Start();
  /// True while its main window is shown.
  [[nodiscard]] bool IsShown() const;
  /// Closes its windows, and kills the program if it has not ended after 5 seconds.
  void End();

  [[nodiscard]] HANDLE Process() const { return process_; }
  [[nodiscard]] DWORD ProcessId() const { return process_id_; }

 private:
  const std::string command_line_;
  const std::string window_class_;
  HANDLE process_ = nullptr;
  DWORD process_id_ = 0;
};

}  // namespace qdix::e2e
