#include "tests/e2e/driver/control_numbers_by_name.h"

#include "app/form1.h"
#include "os/simulated/simulated_machine.h"
#include "ui/control_numbers.h"

namespace qdix::e2e {

ControlAddress AddressOf(const std::string& name) {
  os::SimulatedMachine machine;
  app::Form1 program(machine.GetSystem());
  ControlAddress address{.number = ui::NumberOf(program.Window(), name)};
  const ui::Control* control = program.Window().Find(name);
  for (; control != nullptr; control = control->Parent()) {
    if (control->GetKind() == ui::Kind::kTabPage)
      address.tab = static_cast<const ui::TabPage*>(control)->Index();
  }
  return address;
}

}  // namespace qdix::e2e
