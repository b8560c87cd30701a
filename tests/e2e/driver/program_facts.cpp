#include "tests/e2e/driver/program_facts.h"

#include <algorithm>
#include <cstdlib>

#include "app/form1.h"
#include "config_launcher/config_form.h"
#include "help_viewer/help_form.h"
#include "os/simulated/simulated_clipboard.h"
#include "os/simulated/simulated_file_dialogs.h"
#include "os/simulated/simulated_machine.h"
#include "os/simulated/simulated_printer.h"
#include "os/simulated/simulated_screen.h"
#include "undo/undo_form.h"

namespace qdix::e2e {

namespace {

/// Reads the controls of a program's window. The machine under the program does not matter.
template <class Program, class... Others>
ScreenMap MapOf(Others&&... others) {
  const os::SimulatedMachine machine;
  Program program(machine.GetSystem(), others...);
  return ScreenMap(program.Form());
}

/// Converts a path of the host to the form that programs under Wine use.
std::string WindowsPath(const std::string& host_path) {
  std::string path = "Z:" + host_path;
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

}  // namespace

ProgramFacts Qdix() { return {"QDIX.exe", "Q-DIX", MapOf<app::Form1>()}; }

ProgramFacts Undo() { return {"undo.exe", "Q-DIX Undo", MapOf<undo::UndoForm>()}; }

ProgramFacts ConfigLauncher() {
  os::simulated::SimulatedFileDialogs dialogs;
  return {"configL.exe", config_launcher::kTitle, MapOf<config_launcher::ConfigForm>(dialogs)};
}

std::string WitnessPath() {
  const char* const chosen = std::getenv("QDIX_WITNESS_PROGRAM");
  return WindowsPath(chosen != nullptr ? chosen : QDIX_WITNESS);
}

std::string WitnessReportPath() {
  const std::string program = WitnessPath();
  return program.substr(0, program.rfind('.')) + ".txt";
}

ProgramFacts HelpViewer() {
  os::simulated::SimulatedClipboard clipboard;
  os::simulated::SimulatedPrinter printer;
  os::simulated::SimulatedScreen screen;
  const help_viewer::Devices devices{clipboard, printer, screen};
  return {"help.exe", help_viewer::kTitle, MapOf<help_viewer::HelpForm>(devices, help_viewer::StartWith{})};
}

std::string ProgramPath(const std::string& file_name) {
  const char* const chosen = std::getenv("QDIX_PROGRAM");
  const std::string main_program =
      chosen != nullptr ? std::string(chosen) : std::string(QDIX_SOURCE_DIR) + "/build/win9x/QDIX.exe";
  return WindowsPath(main_program.substr(0, main_program.rfind('/') + 1) + file_name);
}

}  // namespace qdix::e2e
