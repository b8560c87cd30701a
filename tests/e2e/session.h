// A fresh machine for each test, as far as the program can tell: its settings are taken away before and
// after.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "tests/e2e/driver/shipped_program.h"

namespace qdix::e2e {

/// The text of a registry value, or nothing.
[[nodiscard]] std::optional<std::string> RegistryText(HKEY root, const std::string& path,
                                                      const std::string& name);
void SetRegistryText(HKEY root, const std::string& path, const std::string& name, const std::string& text);
/// Names and texts of a key.
[[nodiscard]] std::map<std::string, std::string> RegistryTexts(HKEY root, const std::string& path);

inline constexpr const char* kSettings = "Software\\VB and VBA Program Settings\\QDIX\\Settings";
inline constexpr const char* kStartup = "Software\\VB and VBA Program Settings\\QDIX\\Startup";
inline constexpr const char* kMachineKey = "SOFTWARE\\QDIX";
inline constexpr const char* kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class Session : public testing::Test {
 protected:
  Session() { TakeSettingsAway(); }
  ~Session() override { TakeSettingsAway(); }

  /// The program is started and its window shown.
  void StartProgram() {
    ASSERT_TRUE(program.Start());
    ASSERT_TRUE(program.WaitForWindow());
  }
  /// The program is closed and has ended by itself.
  void CloseProgram() {
    program.Close();
    ASSERT_TRUE(Eventually([this] {
      program.AnswerBoxes();
      return !program.IsRunning();
    }));
    EXPECT_EQ(program.WaitForExit(), 0);
  }
  static void MarkMachineAsKnown() { SetRegistryText(HKEY_LOCAL_MACHINE, kMachineKey, "HasRun", "1"); }

  ShippedProgram program;

 private:
  static void TakeSettingsAway();
};

}  // namespace qdix::e2e
