#include "tests/support/tuning_rig.h"

namespace qdix::tests {

TuningRig::TuningRig(double ram_mb) : ProgramRig(MemoryBytes(ram_mb)) {
  SetHasRunBefore();
  machine.SetRegistryValue(os::kHkeyLocalMachine, kTemplatesPath, "", "Desktop");
  machine.AddDrive('C', {.total_bytes = FreeBytes(4000), .free_bytes = FreeBytes(2000)});
}

void TuningRig::WriteSystemIni(const std::string& content) { machine.WriteFile(kSystemIniPath, content); }

std::string TuningRig::SystemIni() const { return machine.ReadFile(kSystemIniPath).value_or("none"); }

app::Form1& TuningRig::StartAt(screens::Tab tab) {
  Start();
  program->MainWindow().SSTab1.ChooseTab(tab);
  return *program;
}

void TuningRig::End() {
  program->Form().Unload();
  timers = {};
  machine.EndProcess();
}

app::Form1& TuningRig::Restart(screens::Tab tab) {
  End();
  return StartAt(tab);
}

void TuningRig::Answer(const std::vector<int>& answers) {
  for (const int answer : answers) machine.AnswerNextBox(answer);
}

std::vector<std::string> TuningRig::BoxTexts() const {
  std::vector<std::string> texts;
  for (const auto& box : machine.Boxes()) texts.push_back(box.text);
  return texts;
}

std::vector<std::string> TuningRig::Changes(std::size_t first_call) const {
  std::vector<std::string> changes;
  for (std::size_t i = first_call; i < machine.Calls().size(); ++i) {
    const std::string& call = machine.Calls()[i];
    for (const char* name :
         {"RegSetValueExA", "RegDeleteValueA", "WritePrivateProfileStringA", "CopyFileA", "ExitWindowsEx"}) {
      if (call.starts_with(name)) changes.push_back(call);
    }
  }
  return changes;
}

std::string TuningRig::ValueBytes(const char* path, const char* name) const {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto value = machine.RegistryValue(os::kHkeyLocalMachine, path, name);
  if (!value) return "none";
  std::string shown = std::to_string(value->type) + ":";
  for (const char byte : value->bytes) {
    const auto number = static_cast<unsigned char>(byte);
    shown += ' ';
    shown += kDigits[number >> 4U];
    shown += kDigits[number & 15U];
  }
  return shown;
}

}  // namespace qdix::tests
