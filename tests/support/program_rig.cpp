#include "tests/support/program_rig.h"

namespace qdix::tests {

ProgramRig::ProgramRig(std::uint32_t ram_bytes) {
  machine.SetMemory(ram_bytes, ram_bytes / 2, ram_bytes, ram_bytes / 4 * 3);
  machine.SetNow(kNoon21November2026);
  machine.AddProgram("C:\\Program Files\\QDIX\\help.exe");
}

ProgramRig::~ProgramRig() = default;

void ProgramRig::Store(const char* section, const char* key, const std::string& text) {
  machine.SetRegistryValue(os::kHkeyCurrentUser, SectionPath(section), key, text);
}

std::optional<std::string> ProgramRig::Stored(const char* section, const char* key) const {
  return machine.RegistryText(os::kHkeyCurrentUser, SectionPath(section), key);
}

std::string ProgramRig::SectionPath(const char* section) {
  return std::string("Software\\VB and VBA Program Settings\\QDIX\\") + section;
}

void ProgramRig::SetHasRunBefore() {
  machine.SetRegistryValue(os::kHkeyLocalMachine, "SOFTWARE\\QDIX", "HasRun", "1");
}

app::Form1& ProgramRig::Start() {
  Create();
  program->Start();
  return *program;
}

app::Form1& ProgramRig::Create() {
  program.emplace(machine.GetSystem());
  for (ui::Timer* timer : program->Timers()) timers.Add(*timer);
  program->QuondixScreen().XGraphMeter1.SurfaceChanged(&graph);
  return *program;
}

void ProgramRig::AdvanceMs(std::int64_t ms) { timers.AdvanceMs(ms); }

void ProgramRig::SetAvailableMb(double mb) {
  const os::MemoryStatus status = machine.GetSystem().memory.GlobalMemoryStatus();
  machine.SetMemory(status.total_physical, static_cast<std::uint32_t>(mb * 1024000), status.total_page_file,
                    status.available_page_file);
}

void ProgramRig::RemoveGraph() { program->QuondixScreen().XGraphMeter1.SurfaceChanged(nullptr); }

int ProgramRig::NewestBarPx() const {
  int height = 0;
  while (height < graph.Height() && graph.At(graph.Width() - 1, graph.Height() - 1 - height) == kBarColour) {
    ++height;
  }
  return height;
}

}  // namespace qdix::tests
